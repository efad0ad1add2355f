#!/usr/bin/env python3
"""Writes the sample session's material library, materials/, in the host's
material-file format (.mtl): one file a material, its parameters as blocks
of Name, Type, Default (value and unit) and Access, as the host writes them
for the millimetre Newton second system (densities in tonne/mm^3, stresses
in MPa). The figures and where they come from are in the README.

Run it again after changing a material:  python3 make_materials.py
"""

import pathlib

MATERIALS_DIR = pathlib.Path(__file__).resolve().parent / "materials"

# name: (description, density g/cm^3, Young's modulus MPa, Poisson's ratio,
#        yield strength MPa or None, tensile strength MPa, hardness HBW or None)
MATERIALS = {
    "Q235": ("碳素结构钢 GB/T 700-2006", 7.85, 206000, 0.30, 235, 370, None),
    "45": ("优质碳素结构钢 GB/T 699-2015，正火", 7.85, 209000, 0.269, 355, 600, 229),
    "40Cr": ("合金结构钢 GB/T 3077-2015，调质", 7.87, 211000, 0.277, 785, 980, 207),
    "HT150": ("灰铸铁 GB/T 9439-2010", 7.20, 115000, 0.25, None, 150, None),
    "HT200": ("灰铸铁 GB/T 9439-2010", 7.20, 120000, 0.25, None, 200, None),
    "QT450-10": ("球墨铸铁 GB/T 1348-2019", 7.10, 169000, 0.275, 310, 450, None),
    "6061-T6": ("铝合金 GB/T 6892-2015，T6", 2.70, 68900, 0.33, 240, 260, None),
    "H62": ("普通黄铜 GB/T 5231-2012，半硬", 8.43, 100000, 0.33, None, 370, None),
    "POM": ("聚甲醛（共聚）", 1.41, 2800, 0.35, None, 62, None),
    "PA66": ("尼龙 66（干态）", 1.14, 3000, 0.39, None, 80, None),
}


def block(name, kind, default):
    return "{\n" + f"  Name = {name}\n  Type = {kind}\n  Default = {default}\n  Access = Full\n" + "}"


def material_file(name, description, density, young, poisson, yield_strength, tensile, hardness):
    blocks = [
        block("PTC_MATERIAL_DESCRIPTION", "String", f"'{description}'"),
        block("PTC_MASS_DENSITY", "Real", f"{density * 1e-9:.6e} tonne/mm^3"),
        block("PTC_YOUNG_MODULUS", "Real", f"{young:.6e} MPa"),
        block("PTC_POISSON_RATIO", "Real", f"{poisson:.6e}"),
        block("PTC_TENSILE_ULTIMATE_STRESS", "Real", f"{tensile:.6e} MPa"),
    ]
    if yield_strength is not None:
        blocks.append(block("PTC_TENSILE_YIELD_STRESS", "Real", f"{yield_strength:.6e} MPa"))
    if hardness is not None:
        blocks.append(block("PTC_HARDNESS", "Real", f"{hardness:.6e}"))
        blocks.append(block("PTC_HARDNESS_TYPE", "String", "'HBW'"))
    return f"ND_RelParSet_K01 = {{\n\nName = {name.upper()}\n\nPARAMETERS =\n" + ",\n".join(blocks) + "\n}\n"


def main():
    MATERIALS_DIR.mkdir(exist_ok=True)
    for name, figures in MATERIALS.items():
        (MATERIALS_DIR / f"{name.lower()}.mtl").write_text(material_file(name, *figures), encoding="utf-8")


if __name__ == "__main__":
    main()
