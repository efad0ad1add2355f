#!/usr/bin/env python3
"""Writes the sample session of a two-stage spur gear reducer (减速器) in the
simulated host's model-file format: session.json, the model files beside it
and the standard parts under std/.

Each part is described by simple solids (plates, stepped cylinders, rings);
its surfaces, volume, centre of gravity and inertia follow from them, so
that masses and outline sizes stay consistent with the drawings' numbers.
Lengths are millimetres, densities kg/mm^3, masses kg, inertia kg*mm^2: the
parts and assemblies say so with their principal unit system (mmKs).

Run it again after changing the machine:  python3 make_sample.py
"""

import json
import math
import pathlib

SESSION_DIR = pathlib.Path(__file__).resolve().parent
STD_DIR = "std"
MATERIALS_DIR = "materials"
UNIT_SYSTEM = "millimeter Kilogram Sec (mmKs)"

DENSITY = {
    "HT200": 7.2e-6,
    "HT150": 7.2e-6,
    "45": 7.85e-6,
    "40Cr": 7.87e-6,
    "Q235": 7.85e-6,
    "35": 7.85e-6,
    "GCr15": 7.81e-6,
    "NBR": 1.5e-6,
}


class Solid:
    """One simple body: its surfaces' boxes, volume, centroid and the
    inertia about its own centroid (axis-aligned, so the tensor is diagonal)."""

    def __init__(self, surfaces, volume, centroid, inertia_per_mass):
        self.surfaces = surfaces
        self.volume = volume
        self.centroid = centroid
        self.inertia_per_mass = inertia_per_mass  # (ixx, iyy, izz) / mass


def box(low, high):
    (x0, y0, z0), (x1, y1, z1) = low, high
    a, b, c = x1 - x0, y1 - y0, z1 - z0
    faces = [
        ((x0, y0, z0), (x0, y1, z1)),
        ((x1, y0, z0), (x1, y1, z1)),
        ((x0, y0, z0), (x1, y0, z1)),
        ((x0, y1, z0), (x1, y1, z1)),
        ((x0, y0, z0), (x1, y1, z0)),
        ((x0, y0, z1), (x1, y1, z1)),
    ]
    centroid = ((x0 + x1) / 2, (y0 + y1) / 2, (z0 + z1) / 2)
    per_mass = ((b * b + c * c) / 12, (a * a + c * c) / 12, (a * a + b * b) / 12)
    return Solid(faces, a * b * c, centroid, per_mass)


def ring(outer, inner, start, end, axis="y"):
    """A cylinder, or a tube with an inner diameter, on one of the axes."""
    r, q, length = outer / 2, inner / 2, end - start
    volume = math.pi * (r * r - q * q) * length
    radial = (r * r + q * q) / 4 + length * length / 12
    axial = (r * r + q * q) / 2

    def point(along, u, v):
        return {"x": (along, u, v), "y": (u, along, v), "z": (u, v, along)}[axis]

    faces = [(point(start, -r, -r), point(end, r, r))]
    if q:
        faces.append((point(start, -q, -q), point(end, q, q)))
    faces += [(point(start, -r, -r), point(start, r, r)), (point(end, -r, -r), point(end, r, r))]
    centroid = point((start + end) / 2, 0.0, 0.0)
    per_mass = {"x": (axial, radial, radial), "y": (radial, axial, radial), "z": (radial, radial, axial)}[axis]
    return Solid(faces, volume, centroid, per_mass)


def hexagon_z(across_flats, hole, start, end):
    """A hexagon prism along z (bolt head, nut), counted as a tube of the same
    cross-section for its inertia."""
    s = across_flats
    corner = s / math.sqrt(3)
    same_area = math.sqrt(2 * math.sqrt(3) * s * s / math.pi)
    tube = ring(same_area, hole, start, end, axis="z")
    faces = box((-corner, -s / 2, start), (corner, s / 2, end)).surfaces
    if hole:
        faces.append(((-hole / 2, -hole / 2, start), (hole / 2, hole / 2, end)))
    return Solid(faces, tube.volume, tube.centroid, tube.inertia_per_mass)


def stepped_shaft(steps):
    """Cylinders along y, one after the other from y = 0: (diameter, length)."""
    solids, y = [], 0.0
    for diameter, length in steps:
        solids.append(ring(diameter, 0, y, y + length))
        y += length
    return solids


def gear_blank(tip, rim_inner, hub, bore, width, web):
    """A webbed gear centred on the origin, its axis along y."""
    half, web_half = width / 2, web / 2
    return [
        ring(tip, rim_inner, -half, half),
        ring(rim_inner, hub, -web_half, web_half),
        ring(hub, bore, -half, half),
    ]


def box_shell(low, high, wall, open_side, flange, flange_thickness):
    """A cast box open at the split plane, walls of one thickness, with a
    flange around the opening: housing and cover."""
    (x0, y0, z0), (x1, y1, z1) = low, high
    if open_side == "top":
        closed = box((x0, y0, z0), (x1, y1, z0 + wall))
        wz0, wz1, fz0, fz1 = z0 + wall, z1, z1 - flange_thickness, z1
    else:
        closed = box((x0, y0, z1 - wall), (x1, y1, z1))
        wz0, wz1, fz0, fz1 = z0, z1 - wall, z0, z0 + flange_thickness
    walls = [
        box((x0, y0, wz0), (x0 + wall, y1, wz1)),
        box((x1 - wall, y0, wz0), (x1, y1, wz1)),
        box((x0 + wall, y0, wz0), (x1 - wall, y0 + wall, wz1)),
        box((x0 + wall, y1 - wall, wz0), (x1 - wall, y1, wz1)),
    ]
    f = flange
    flanges = [
        box((x0 - f, y0 - f, fz0), (x1 + f, y0, fz1)),
        box((x0 - f, y1, fz0), (x1 + f, y1 + f, fz1)),
        box((x0 - f, y0, fz0), (x0, y1, fz1)),
        box((x1, y0, fz0), (x1 + f, y1, fz1)),
    ]
    return [closed] + walls + flanges


def mass_data(solids, density, with_mass):
    """massProperties of a part made of the solids, inertia about its own
    coordinate system; without the mass, the host takes density times volume."""
    volume = sum(s.volume for s in solids)
    mass = density * volume
    cog = [sum(s.volume * s.centroid[i] for s in solids) / volume for i in range(3)]
    ixx = iyy = izz = ixy = ixz = iyz = 0.0
    for s in solids:
        m = density * s.volume
        x, y, z = s.centroid
        jx, jy, jz = s.inertia_per_mass
        ixx += m * (jx + y * y + z * z)
        iyy += m * (jy + x * x + z * z)
        izz += m * (jz + x * x + y * y)
        ixy -= m * x * y
        ixz -= m * x * z
        iyz -= m * y * z
    properties = {"volume": round(volume, 1)}
    if with_mass:
        properties["mass"] = round(mass, 5)
    properties["cog"] = [tidy(c, 3) for c in cog]
    properties["inertia"] = [tidy(i, 1) for i in (ixx, iyy, izz, ixy, ixz, iyz)]
    return properties, mass


def tidy(value, decimals):
    """Rounded, and never a negative zero in the file."""
    return round(value, decimals) + 0.0


def surfaces(solids):
    return [
        {"min": [tidy(v, 3) for v in low], "max": [tidy(v, 3) for v in high]}
        for s in solids
        for low, high in s.surfaces
    ]


def text(name, value, **extra):
    return {"name": name, "type": "string", "value": value, **extra}


PART_DATUMS = [
    {"type": "DATUM_PLANE", "name": "RIGHT"},
    {"type": "DATUM_PLANE", "name": "TOP"},
    {"type": "DATUM_PLANE", "name": "FRONT"},
    {"type": "CSYS", "name": "PRT_CSYS_DEF"},
]
ASSEMBLY_DATUMS = [
    {"type": "DATUM_PLANE", "name": "ASM_RIGHT"},
    {"type": "DATUM_PLANE", "name": "ASM_TOP"},
    {"type": "DATUM_PLANE", "name": "ASM_FRONT"},
    {"type": "CSYS", "name": "ASM_DEF_CSYS"},
]


def numbered(features):
    return [{"id": number, **feature} for number, feature in enumerate(features, start=1)]


def part(drawing_no, name, remark, solids, grade, assigned=True, purchased=False,
         common_name=None, features=(), parameters=(), relations=(), checker="李强", units=None):
    """A part file's contents. A manufactured part has its material assigned,
    its mass comes from the host's mass properties, and it names its designer
    and its checker (none when not yet checked); a standard part only names
    its grade, so the host takes density times volume. Further parameters
    follow the common ones; relations are the part's own. `units` is a
    principal unit system other than the sample's."""
    density = DENSITY[grade]
    properties, mass = mass_data(solids, density, with_mass=assigned)
    common = [
        text("图号", drawing_no, description="图样代号", designated=True),
        text("名称", name, description="零件名称", designated=True),
        text("材料", grade, description="材料牌号", designated=True),
        text("备注", remark),
        {"name": "数量", "type": "integer", "value": 1, "description": "每台数量"},
        {"name": "重量", "type": "double", "value": round(mass, 3), "unit": "kg",
         "description": "单件重量"},
        {"name": "外购", "type": "boolean", "value": purchased},
    ]
    parameters = common + list(parameters)
    model = {"type": "part", "commonName": common_name or name, "principalUnitSystem": UNIT_SYSTEM,
             "parameters": parameters}
    if relations:
        model["relations"] = list(relations)
    if assigned:
        parameters.append(text("设计", "张伟", description="设计者"))
        if checker:
            parameters.append(text("审核", checker, description="审核者"))
        parameters.append(text("PTC_MATERIAL_NAME", grade.upper()))
        model["material"] = grade.upper()
        model["materials"] = [grade.upper()]
    model["density"] = density
    model["massProperties"] = properties
    model["surfaces"] = surfaces(solids)
    model["features"] = numbered(PART_DATUMS + list(features))
    if units:
        model["principalUnitSystem"] = units
    return model


def standard_part(standard, name, remark, solids, grade, common_name, parameters=(), relations=()):
    return part(standard, name, remark, solids, grade, assigned=False, purchased=True,
                common_name=common_name, parameters=parameters, relations=relations)


def length(name, value, description):
    return {"name": name, "type": "double", "value": float(value), "unit": "mm", "description": description}


def move(x=0.0, y=0.0, z=0.0, rows=((1, 0, 0), (0, 1, 0), (0, 0, 1))):
    """The host's 4x4 placement: rotation rows, translation in the fourth row."""
    return [[float(v) for v in row] + [0.0] for row in rows] + [[float(x), float(y), float(z), 1.0]]


# Parts drawn along z (bolts, washers) turned to point along -y.
Z_TO_MINUS_Y = ((1, 0, 0), (0, 0, 1), (0, -1, 0))
# Half a turn about z: the same end cap on the other side of the housing.
HALF_TURN_Z = ((-1, 0, 0), (0, -1, 0), (0, 0, 1))


def assembly(drawing_no, name, remark, tree):
    """An assembly's contents from its feature tree in order: a component is
    (model file, placement[, suppressed]), a datum feature a dict. Ids count
    up through the tree, so datums lie between components."""
    components, features = [], []
    for entry in numbered(ASSEMBLY_DATUMS + [
            item if isinstance(item, dict) else {"component": item} for item in tree]):
        if "component" not in entry:
            features.append(entry)
            continue
        model_file, placement, *suppressed = entry["component"]
        component = {"id": entry["id"], "model": model_file, "transform": placement}
        if suppressed:
            component["suppressed"] = True
        components.append(component)
    return {
        "type": "assembly",
        "commonName": name,
        "principalUnitSystem": UNIT_SYSTEM,
        "parameters": [
            text("图号", drawing_no, description="图样代号", designated=True),
            text("名称", name, description="部件名称", designated=True),
            text("备注", remark),
        ],
        "features": features,
        "components": components,
    }


IDENTITY = [[1.0, 0.0, 0.0, 0.0], [0.0, 1.0, 0.0, 0.0], [0.0, 0.0, 1.0, 0.0], [0.0, 0.0, 0.0, 1.0]]


def drawing(drawing_no, title, solids, sheet_sizes=()):
    """A drawing of the solids; without sheet sizes the host gives it one A3
    sheet. Each sheet lies on the drawing's own coordinates."""
    content = {
        "type": "drawing",
        "parameters": [text("图号", drawing_no), text("名称", title)],
        "solids": solids,
    }
    if sheet_sizes:
        content["sheets"] = [{"size": size, "transform": IDENTITY} for size in sheet_sizes]
    return content


# Shaft axes lie in the split plane z = 0, spaced by the centre distances of
# the two stages (120 and 159); each shaft sub-assembly starts at the
# housing's left wall.
INPUT_X, MID_X, OUTPUT_X, LEFT_WALL = -190.0, -70.0, 89.0, -95.0
FLANGE = 10.0  # thickness of the housing's and the cover's joint flanges
FLANGE_BOLTS = [(x, y) for y in (-105.0, 105.0) for x in (-220.0, -75.0, 75.0, 220.0)]
CAP_BOLTS = [(35.4 * sx, 35.4 * sz) for sx, sz in ((1, 1), (-1, 1), (-1, -1), (1, -1))]

BOLT = "gb5782_m8x30.prt"
NUT = "gb6170_m8.prt"
WASHER = "gb97_1_8.prt"
BEARING_6206 = "gb276_6206.prt"
BEARING_6208 = "gb276_6208.prt"
KEY_10 = "gb1096_10x8x40.prt"
KEY_14 = "gb1096_14x9x50.prt"
SEAL_28 = "gb13871_28x47x7.prt"
SEAL_38 = "gb13871_38x58x8.prt"


# The bolt's designation follows its nominal diameter and length.
BOLT_PARAMETERS = [length("D", 8, "公称直径"), length("L", 30, "公称长度"), text("标记", "GB/T 5782 M8×30")]
BOLT_RELATIONS = ["/* 螺栓标记 GB/T 5782 M d×l", '标记 = "GB/T 5782 M" + ITOS(D) + "×" + ITOS(L)']


def standard_parts():
    bolt = [hexagon_z(13, 0, 0, 5.3), ring(8, 0, -30, 0, axis="z")]
    return {
        BOLT: standard_part("GB/T 5782-2016", "六角头螺栓 M8×30", "8.8级", bolt, "35",
                            "螺栓 M8×30", parameters=BOLT_PARAMETERS, relations=BOLT_RELATIONS),
        NUT: standard_part("GB/T 6170-2015", "1型六角螺母 M8", "8级",
                           [hexagon_z(13, 8, -6.8, 0)], "35", "螺母 M8"),
        WASHER: standard_part("GB/T 97.1-2002", "平垫圈 8", "200HV",
                              [ring(16, 8.4, -1.6, 0, axis="z")], "Q235", "垫圈 8"),
        BEARING_6206: standard_part("GB/T 276-2013", "深沟球轴承 6206", "外购",
                                    [ring(40, 30, -8, 8), ring(62, 52, -8, 8)], "GCr15",
                                    "轴承 6206"),
        BEARING_6208: standard_part("GB/T 276-2013", "深沟球轴承 6208", "外购",
                                    [ring(52, 40, -9, 9), ring(80, 68, -9, 9)], "GCr15",
                                    "轴承 6208"),
        KEY_10: standard_part("GB/T 1096-2003", "普通平键 A10×8×40", "标准件",
                              [box((-5, -20, -4), (5, 20, 4))], "45", "键 10×40"),
        KEY_14: standard_part("GB/T 1096-2003", "普通平键 A14×9×50", "标准件",
                              [box((-7, -25, -4.5), (7, 25, 4.5))], "45", "键 14×50"),
        SEAL_28: standard_part("GB/T 13871.1-2007", "油封 FB 28×47×7", "外购",
                               [ring(47, 28, -3.5, 3.5)], "NBR", "油封 28×47"),
        SEAL_38: standard_part("GB/T 13871.1-2007", "油封 FB 38×58×8", "外购",
                               [ring(58, 38, -4, 4)], "NBR", "油封 38×58"),
    }


def housing(grade, remark):
    shell = box_shell((-250, -95, -200), (250, 95, 0), 10, "top", 20, FLANGE)
    features = [{"type": "PROTRUSION", "name": "箱座主体"}, {"type": "HOLE", "name": "轴承孔"},
                {"type": "HOLE", "name": "螺栓孔"}]
    return part("JSQ-00-001", "箱座", remark, shell, grade, features=features)


def cover():
    shell = box_shell((-250, -95, 0), (250, 95, 140), 8, "bottom", 20, FLANGE)
    features = [{"type": "PROTRUSION", "name": "箱盖主体"}, {"type": "HOLE", "name": "螺栓孔"}]
    return part("JSQ-00-002", "箱盖", "人工时效", shell, "HT200", features=features, checker=None)


def shaft(drawing_no, name, remark, steps, grade, keyways, common_name=None):
    features = [{"type": "REVOLVE", "name": "轴"}] + [{"type": "CUT", "name": "键槽"}] * keyways
    return part(drawing_no, name, remark, stepped_shaft(steps), grade, common_name=common_name,
                features=features + [{"type": "CHAMFER", "name": "倒角"}])


def input_shaft(remark):
    # The stage-one pinion (m=2, z=25) is cut on the shaft itself.
    steps = [(30, 16), (36, 10), (54, 50), (36, 98), (30, 16), (28, 30), (25, 50)]
    return shaft("JSQ-01-001", "输入轴", remark, steps, "40Cr", 0, common_name="齿轮轴")


def mid_shaft():
    # Carries the stage-one gear and the stage-two pinion (m=3, z=22).
    steps = [(30, 16), (36, 10), (38, 50), (44, 10), (72, 60), (36, 28), (30, 16)]
    return shaft("JSQ-02-001", "中间轴", "调质 HB241-286", steps, "40Cr", 1)


def output_shaft():
    steps = [(40, 18), (46, 70), (48, 56), (56, 8), (46, 20), (40, 18), (38, 30), (35, 60)]
    return shaft("JSQ-03-001", "输出轴", "调质 HB217-255", steps, "45", 2)


def gear(drawing_no, name, remark, module, teeth, tip, rim_inner, hub, bore, width, web):
    """A gear whose pitch diameter follows its module and tooth count by a
    relation."""
    features = [{"type": "REVOLVE", "name": "轮坯"}, {"type": "CUT", "name": "齿形"},
                {"type": "CUT", "name": "键槽"}]
    parameters = [length("M", module, "模数"), {"name": "Z", "type": "integer", "value": teeth, "description": "齿数"},
                  length("D", module * teeth, "分度圆直径")]
    relations = ["/* 分度圆直径 d = m z", "D = M * Z"]
    return part(drawing_no, name, remark, gear_blank(tip, rim_inner, hub, bore, width, web), "45",
                features=features, parameters=parameters, relations=relations)


def skeleton():
    """The layout skeleton: a concept model (subtype 5), kept out of bills of
    materials, holding the shaft axes and the split plane."""
    axes = [{"type": "DATUM_AXIS", "name": name} for name in ("A_IN", "A_MID", "A_OUT")]
    return {
        "type": "part",
        "subtype": 5,
        "commonName": "减速器骨架",
        "parameters": [text("图号", "JSQ-00-SKL"), text("名称", "骨架模型")],
        "features": numbered(PART_DATUMS + axes + [{"type": "DATUM_PLANE", "name": "SPLIT"}]),
    }


def shaft_assemblies():
    """The three shaft sub-assemblies and the end cap sub-assembly that closes
    both ends of the intermediate shaft. Shafts run along y from y = 0."""
    # Bolt and washer drawn along z; the washer lies under the bolt head.
    cap_fasteners = [(WASHER, move(x, -11.6, z, Z_TO_MINUS_Y)) for x, z in CAP_BOLTS]
    cap_fasteners += [(BOLT, move(x, -11.6, z, Z_TO_MINUS_Y)) for x, z in CAP_BOLTS]
    return {
        "end_cap_asm.asm.1": assembly("JSQ-02-100", "闷盖组件", "中间轴两端各一",
                                      [("end_cap.prt", move())] + cap_fasteners),
        "input_shaft_asm.asm.1": assembly("JSQ-01-000", "输入轴组件", "", [
            ("input_shaft.prt", move()),
            ("oil_ring.prt", move(y=20)),
            ("oil_ring.prt", move(y=170)),
            (BEARING_6206, move(y=8)),
            (BEARING_6206, move(y=182)),
            (SEAL_28, move(y=200)),
        ]),
        "mid_shaft_asm.asm.1": assembly("JSQ-02-000", "中间轴组件", "", [
            ("mid_shaft.prt", move()),
            (KEY_10, move(y=51, z=18)),
            ("gear_1.prt", move(y=51)),
            ("oil_ring.prt", move(y=20)),
            ("oil_ring.prt", move(y=170)),
            (BEARING_6206, move(y=8)),
            (BEARING_6206, move(y=182)),
            {"type": "DATUM_PLANE", "name": "CAP_FACE"},
            ("end_cap_asm.asm", move(y=-8)),
            ("end_cap_asm.asm", move(y=198, rows=HALF_TURN_Z)),
        ]),
        "output_shaft_asm.asm.1": assembly("JSQ-03-000", "输出轴组件", "", [
            ("output_shaft.prt", move()),
            (KEY_14, move(y=116, z=23)),
            ("gear_2.prt", move(y=116)),
            (BEARING_6208, move(y=9)),
            (BEARING_6208, move(y=181)),
            (KEY_10, move(y=250, z=16.5)),
            (SEAL_38, move(y=200)),
        ]),
    }


def reducers():
    """Two versions of the top assembly: the first before the cover was
    fitted, the second complete. One flange bolt is suppressed."""
    base = [
        ("skeleton.prt", move()),
        ("housing.prt", move()),
        {"type": "DATUM_AXIS", "name": "A_IN"},
        {"type": "DATUM_AXIS", "name": "A_MID"},
        {"type": "DATUM_AXIS", "name": "A_OUT"},
        ("input_shaft_asm.asm", move(INPUT_X, LEFT_WALL)),
        ("mid_shaft_asm.asm", move(MID_X, LEFT_WALL)),
        ("output_shaft_asm.asm", move(OUTPUT_X, LEFT_WALL)),
    ]
    # Bolt heads on the cover's flange, washers and nuts under the housing's.
    bolts = [(BOLT, move(x, y, FLANGE)) for x, y in FLANGE_BOLTS]
    spare_bolt = (BOLT, move(0, 105, FLANGE), True)
    washers = [(WASHER, move(x, y, -FLANGE)) for x, y in FLANGE_BOLTS]
    nuts = [(NUT, move(x, y, -FLANGE - 1.6)) for x, y in FLANGE_BOLTS]
    closed = base + [("cover.prt", move()), {"type": "CSYS", "name": "CS_BOLTS"}]
    closed += bolts + [spare_bolt] + washers + nuts
    complete = assembly("JSQ-00-000", "二级圆柱齿轮减速器", "i=14.5", closed)
    # A relation of the intermediate shaft's component: the stage-one centre
    # distance from the gear pair it carries.
    complete["parameters"].append(length("A_HIGH", 120, "高速级中心距"))
    mid = next(c for c in complete["components"] if c["model"] == "mid_shaft_asm.asm")
    mid["relations"] = ["/* 高速级中心距 a = m (z1 + z2) / 2", "A_HIGH = 2 * (25 + 95) / 2"]
    return {
        "reducer.asm.1": assembly("JSQ-00-000", "二级圆柱齿轮减速器", "", base),
        "reducer.asm.2": complete,
    }


def models():
    """Every model file of the session by its file name."""
    files = {
        "housing.prt.1": housing("HT150", ""),
        "housing.prt.2": housing("HT200", ""),
        "housing.prt.3": housing("HT200", "人工时效"),
        "cover.prt.1": cover(),
        "skeleton.prt.1": skeleton(),
        "input_shaft.prt.1": input_shaft(""),
        "input_shaft.prt.2": input_shaft("调质 HB241-286，齿面淬火"),
        "mid_shaft.prt.1": mid_shaft(),
        "output_shaft.prt.1": output_shaft(),
        "gear_1.prt.1": gear("JSQ-02-002", "中间轴大齿轮", "m=2 z=95", 2, 95, 194, 164, 64, 38, 45, 12),
        "gear_2.prt.1": gear("JSQ-03-002", "大齿轮", "m=3 z=84", 3, 84, 258, 228, 80, 48, 55, 15),
        "gear_2.prt.2": gear("JSQ-03-002", "大齿轮", "m=3 z=84 调质", 3, 84, 258, 228, 80, 48, 55, 15),
        "oil_ring.prt.1": part("JSQ-01-002", "挡油环", "", [ring(56, 36, -4, 4)], "Q235"),
        "end_cap.prt.1": part("JSQ-02-101", "闷盖", "", [ring(110, 0, -10, 0), ring(62, 0, 0, 8)],
                              "HT150", units="millimeter Newton Second (mmNs)"),
        "reducer.drw.1": drawing("JSQ-00-000", "二级圆柱齿轮减速器装配图", ["reducer.asm"], ["A2"]),
        "output_shaft.drw.1": drawing("JSQ-03-001", "输出轴", ["output_shaft.prt"]),
        "output_shaft.drw.2": drawing("JSQ-03-001", "输出轴零件图", ["output_shaft.prt"]),
    }
    files.update(shaft_assemblies())
    files.update(reducers())
    files.update({f"{STD_DIR}/{name}": model for name, model in standard_parts().items()})
    return files


SESSION = {
    "open": ["reducer.asm", "reducer.drw", "output_shaft.drw"],
    "current": "reducer.asm",
    "searchPath": [STD_DIR],
    "configOptions": {"pro_material_dir": MATERIALS_DIR},
}


def to_json(value, indent=""):
    """JSON with two-space indents, a list of plain values on one line, so
    that coordinates and matrix rows read as such."""
    inner = indent + "  "
    if isinstance(value, dict):
        items = [f"{inner}{json.dumps(k, ensure_ascii=False)}: {to_json(v, inner)}" for k, v in value.items()]
        return "{\n" + ",\n".join(items) + "\n" + indent + "}"
    if isinstance(value, list) and any(isinstance(v, (dict, list)) for v in value):
        items = [inner + to_json(v, inner) for v in value]
        return "[\n" + ",\n".join(items) + "\n" + indent + "]"
    return json.dumps(value, ensure_ascii=False, separators=(", ", ": "))


def write_json(path, content):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(to_json(content) + "\n", encoding="utf-8")


def main():
    for name, content in models().items():
        write_json(SESSION_DIR / name, content)
    write_json(SESSION_DIR / "session.json", SESSION)


if __name__ == "__main__":
    main()
