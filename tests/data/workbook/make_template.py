#!/usr/bin/python3
"""Makes template.xls and template.xlsx, the template of the engine's typed
tests, through LibreOffice from one description, and BOM.xlsx, the delivered
BOM template in the newer format as a user may save it. Run it after
changing the cells below; the tests name these cells."""

import os
import sys
import zipfile

sys.dont_write_bytecode = True  # leaves no cache beside data/template

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "..", "data", "template"))

from fods_writer import Cell, Sheet, Style, convert, fods  # noqa: E402

BOLD = Style(bold=True)
BORDER = Style(border=True)
TEXT = Style(text=True, border=True)
FIXED = Style(decimals=2, border=True)


def main():
    first = Sheet("表一", [2.5] * 8, {
        1: [Cell("标题", BOLD), Cell(style=BOLD, runs=[("Rich ", False), ("bold", True)])],
        2: [Cell(12.5), Cell("text"), Cell(True), Cell(25, formula="of:=[.A2]*2"),
            Cell("xy", formula='of:="x"&"y"'), Cell(None, formula="of:=1/0")],
        3: [Cell(None, BORDER) for _ in range(5)],
        4: [Cell(n, FIXED) for n in range(1, 6)],
        5: [Cell(None, TEXT), Cell("0123", TEXT)],
        7: [Cell("tall row")],
    }, heights={7: 1.2}, column_styles={6: TEXT})
    second = Sheet("Sheet Two", [3.0], {1: [Cell("second")]})
    # LibreOffice writes the column of like formulas as a shared formula in
    # .xls, and the array formula over C1:D1 as an array in both formats.
    formulas = Sheet("公式", [2.0] * 4, {
        row: [Cell(row), Cell(row * 2, formula=f"of:=[.A{row}]*2")] for row in range(1, 5)})
    formulas.rows[1] += [Cell(1, formula="of:={1;2}", array=2), Cell(2)]
    source = os.path.join(HERE, "template.fods")
    with open(source, "w", encoding="utf-8") as out:
        out.write(fods([first, second, formulas]))
    try:
        convert(source, HERE, ["xls", "xlsx"])
    finally:
        os.remove(source)
    add_calculation_chain(os.path.join(HERE, "template.xlsx"), os.path.join(HERE, "calc_chain.xlsx"))
    make_bom_xlsx()


def make_bom_xlsx():
    from make_templates import bom_sheet
    source = os.path.join(HERE, "BOM.fods")
    with open(source, "w", encoding="utf-8") as out:
        out.write(fods([bom_sheet()]))
    try:
        convert(source, HERE, ["xlsx"])
    finally:
        os.remove(source)


def add_calculation_chain(source, target):
    """Excel writes a calculation chain beside formulas; LibreOffice does not."""
    chain = ('<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n<calcChain '
             'xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><c r="D2" i="1"/><c r="E2"/>'
             '<c r="F2"/></calcChain>')
    relation = ('<Relationship Id="rIdChain" Type="http://schemas.openxmlformats.org/officeDocument/2006/'
                'relationships/calcChain" Target="calcChain.xml"/></Relationships>')
    override = ('<Override PartName="/xl/calcChain.xml" ContentType="application/vnd.openxmlformats-officedocument.'
                'spreadsheetml.calcChain+xml"/></Types>')
    with zipfile.ZipFile(source) as original, zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED) as out:
        for item in original.infolist():
            data = original.read(item.filename).decode("utf-8")
            if item.filename == "xl/_rels/workbook.xml.rels":
                data = data.replace("</Relationships>", relation)
            elif item.filename == "[Content_Types].xml":
                data = data.replace("</Types>", override)
            out.writestr(item.filename, data)
        out.writestr("xl/calcChain.xml", chain)


if __name__ == "__main__":
    main()
