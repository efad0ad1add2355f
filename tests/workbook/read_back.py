#!/usr/bin/python3
"""Reads a workbook the tests wrote with an independent reader (xlrd for
.xls, openpyxl for .xlsx) and checks it against the expectations in a JSON
file: the written cells' values, their format index against the template's,
every other cell of the template unchanged in value and format index, and
every row height of the template kept.
Prints one line per problem; exits 1 when there is any."""

import json
import sys
import warnings


def xls_cells(path):
    import xlrd
    book = xlrd.open_workbook(path, formatting_info=True, on_demand=False)
    cells = {}
    for sheet in book.sheets():
        for row, info in sheet.rowinfo_map.items():
            cells[(sheet.name, "row height", row + 1)] = (info.height, info.has_default_height)
        for row in range(sheet.nrows):
            for column in range(sheet.ncols):
                cell = sheet.cell(row, column)
                kind = {xlrd.XL_CELL_TEXT: "text", xlrd.XL_CELL_NUMBER: "number", xlrd.XL_CELL_EMPTY: "empty",
                        xlrd.XL_CELL_BLANK: "empty", xlrd.XL_CELL_BOOLEAN: "boolean",
                        xlrd.XL_CELL_ERROR: "error", xlrd.XL_CELL_DATE: "number"}[cell.ctype]
                value = cell.value if kind in ("text", "number", "boolean", "error") else None
                if kind == "empty" and cell.xf_index is None:
                    continue
                cells[(sheet.name, row + 1, column + 1)] = (kind, value, cell.xf_index)
    return cells


def xlsx_cells(path):
    import openpyxl
    warnings.simplefilter("ignore")
    book = openpyxl.load_workbook(path)
    cells = {}
    for sheet in book.worksheets:
        for row, dimension in sheet.row_dimensions.items():
            cells[(sheet.title, "row height", row)] = (dimension.height, dimension.customHeight)
        for row in sheet.iter_rows():
            for cell in row:
                value = cell.value
                if value is None:
                    kind = "empty"
                elif isinstance(value, bool):
                    kind = "boolean"
                elif isinstance(value, (int, float)):
                    kind = "number"
                elif isinstance(value, str) and cell.data_type == "e":
                    kind = "error"
                else:
                    kind, value = "text", str(value)
                cells[(sheet.title, cell.row, cell.column)] = (kind, value, cell.style_id)
    return cells


def main():
    with open(sys.argv[1], encoding="utf-8") as source:
        expected = json.load(source)
    read = xls_cells if expected["format"] == "xls" else xlsx_cells
    problems = []
    try:
        written = read(expected["file"])
    except Exception as error:  # the reader's own complaint is the finding
        print(f"{expected['file']}: unreadable: {error!r}")
        return 1
    template = read(expected["template"]) if expected.get("template") else {}

    written_keys = set()
    for cell in expected["cells"]:
        key = (cell["sheet"], cell["row"], cell["column"])
        written_keys.add(key)
        kind, value, style = written.get(key, ("empty", None, None))
        if cell["kind"] != kind or (kind != "empty" and cell["value"] != value):
            problems.append(f"{key}: expected {cell['kind']} {cell['value']!r}, read {kind} {value!r}")
        if key in template and template[key][2] != style:
            problems.append(f"{key}: format index {style}, the template's {template[key][2]}")
        if "format_of_row" in cell:
            model = template.get((cell["sheet"], cell["format_of_row"], cell["column"]), (None, None, None))[2]
            if model is None or model != style:
                problems.append(f"{key}: format index {style}, the template's row {cell['format_of_row']} {model}")
        if "style" in cell and cell["style"] != style:
            problems.append(f"{key}: format index {style}, expected {cell['style']}")
    for key, was in template.items():  # cells, and row heights under (sheet, "row height", row)
        if key not in written_keys and written.get(key) != was:
            problems.append(f"{key}: was {was!r} in the template, now {written.get(key)!r}")
    for problem in problems[:50]:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
