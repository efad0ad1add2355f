#!/usr/bin/env python3
"""Makes the workbook templates of this folder (BOM.xls, Params.xls,
mattbl.xls, mdlname.xls) and Params.csv. Run it after changing a layout here,
naming the templates to make (Params, BOM, ...) or none for all of them;
it needs LibreOffice (soffice) on the path. The cells the program writes are
the contract of data/config/Excel.cfg and of the tools; see data/README.md."""

import os
import tempfile
import sys

sys.dont_write_bytecode = True  # nothing of this may be staged with data/

from fods_writer import Cell, PrintSetup, Sheet, Style, convert, fods  # noqa: E402

HERE = os.path.dirname(os.path.abspath(__file__))

TITLE = Style(bold=True, size=16, center=True)
LABEL = Style(bold=True, border=True, fill="#d9d9d9", center=True)
FIELD = Style(border=True, text=True)
HEADER = Style(bold=True, border=True, fill="#d9d9d9", center=True)
TEXT_CELL = Style(border=True, text=True)
NUMBER_CELL = Style(border=True, center=True)
TEXT_COLUMN = Style(text=True)

# Wide enough for the texts of the sample's bill (samples/reducer), such as
# 图号 "GB/T 13871.1-2007", 名称 "普通平键 A10×8×40", 备注 "调质 HB241-286，齿面淬火".
BOM_COLUMNS = [  # title, width in cm, format of the table cells
    ("序号", 1.2, NUMBER_CELL), ("层级", 1.6, TEXT_CELL), ("图号", 4.2, TEXT_CELL), ("名称", 4.6, TEXT_CELL),
    ("数量", 1.3, NUMBER_CELL), ("材料", 2.0, TEXT_CELL), ("重量", 1.8, NUMBER_CELL), ("总重", 1.8, NUMBER_CELL),
    ("备注", 5.8, TEXT_CELL), ("模型名称", 4.2, TEXT_CELL)]
BOM_FIRST_ROW = 4  # "BegainRow" of Excel.cfg
# Landscape, one page wide, the title and head rows above the table on
# every page.
BOM_PRINT = PrintSetup(landscape=True, fit_to_width=True, title_rows=BOM_FIRST_ROW - 1)
BOM_PAGE_ROWS = 35  # "RowNumOfPage": one page of ruled rows


def bom_sheet():
    rows = {
        1: [Cell("零件明细表", TITLE, span=10)],
        # Excel.cfg: 图号 goes to C2, 名称 to F2, the date to J2.
        2: [Cell("图号", LABEL, span=2), Cell(None, FIELD, span=2), Cell("名称", LABEL), Cell(None, FIELD, span=3),
            Cell("日期", LABEL), Cell(None, FIELD)],
        3: [Cell(title, HEADER) for title, _, _ in BOM_COLUMNS],
    }
    for row in range(BOM_FIRST_ROW, BOM_FIRST_ROW + BOM_PAGE_ROWS):
        rows[row] = [Cell(None, style) for _, _, style in BOM_COLUMNS]
    # Rows past the ruled page keep the columns' formats: a 层级 of "1.10" or a
    # 图号 of "0012" stays text however long the list.
    column_styles = {index: TEXT_COLUMN for index, (_, _, style) in enumerate(BOM_COLUMNS) if style.text}
    return Sheet("bom", [width for _, width, _ in BOM_COLUMNS], rows, heights={1: 1.0, 2: 0.7, 3: 0.7},
                 column_styles=column_styles, print_setup=BOM_PRINT)


PARAM_ROWS = [  # 属性名称, 属性类型, 参数类型, 属性值, 指定, 说明
    ("图号", "参数", "字符串", "", "是", "零件或部件的图号"),
    ("名称", "参数", "字符串", "", "是", "零件或部件的名称"),
    ("材料", "参数", "字符串", "Q235", "是", "材料牌号"),
    ("设计", "参数", "字符串", "", "否", "设计者"),
    ("审核", "参数", "字符串", "", "否", "审核者"),
    ("重量", "参数", "实数", "0", "否", "单件重量，千克"),
    # The value is the host's name of the unit system, which the check
    # compares exactly.
    ("单位制", "系统单位", "字符串", "millimeter Kilogram Sec (mmKs)", "否", "毫米千克秒"),
]
PARAM_TITLES = ["属性名称", "属性类型", "参数类型", "属性值", "指定", "说明"]


def titled_sheet(name, titles, widths, rows=()):
    cells = {1: [Cell(title, HEADER) for title in titles]}
    for number, values in enumerate(rows, start=2):
        cells[number] = [Cell(value, TEXT_CELL) for value in values]
    return Sheet(name, widths, cells, heights={1: 0.7},
                 column_styles={index: TEXT_COLUMN for index in range(len(titles))})


TEMPLATES = {
    "BOM": [bom_sheet()],
    "Params": [titled_sheet("sheet1", PARAM_TITLES, [2.6, 2.2, 2.2, 2.6, 1.4, 5.0], PARAM_ROWS)],
    "mattbl": [titled_sheet("sheet1", ["序号", "模型名称", "材料名称"], [1.4, 5.0, 4.0])],
    "mdlname": [titled_sheet("mdlname", ["序号", "模型", "模型名称", "公共名称"], [1.4, 4.0, 4.0, 5.0])],
}


def main(names):
    """Makes the named templates, all of them when none is named."""
    with tempfile.TemporaryDirectory() as work:
        for name, sheets in TEMPLATES.items():
            if names and name not in names:
                continue
            source = os.path.join(work, name + ".fods")
            with open(source, "w", encoding="utf-8") as out:
                out.write(fods(sheets))
            convert(source, HERE, ["xls"])
    if names and "Params" not in names:
        return
    # With a byte order mark, so that spreadsheet programs on Windows read it
    # as UTF-8 too.
    with open(os.path.join(HERE, "Params.csv"), "w", encoding="utf-8-sig", newline="\n") as out:
        out.write(",".join(PARAM_TITLES) + "\n")
        for values in PARAM_ROWS:
            out.write(",".join(values) + "\n")


if __name__ == "__main__":
    main(sys.argv[1:])
