"""Writes a flat OpenDocument spreadsheet (.fods) from a small description
and has LibreOffice convert it, so that workbook templates are made from a
readable source. Used by make_templates.py and by the tests' template."""

import os
import subprocess
import tempfile
from dataclasses import dataclass, field
from xml.sax.saxutils import escape, quoteattr

NAMESPACES = {
    "office": "urn:oasis:names:tc:opendocument:xmlns:office:1.0",
    "style": "urn:oasis:names:tc:opendocument:xmlns:style:1.0",
    "text": "urn:oasis:names:tc:opendocument:xmlns:text:1.0",
    "table": "urn:oasis:names:tc:opendocument:xmlns:table:1.0",
    "fo": "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0",
    "number": "urn:oasis:names:tc:opendocument:xmlns:datastyle:1.0",
    "svg": "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0",
    "of": "urn:oasis:names:tc:opendocument:xmlns:of:1.2",
}

MAX_ROWS = 1048576
FILTERS = {"xls": "xls:MS Excel 97", "xlsx": "xlsx:Calc MS Excel 2007 XML"}


@dataclass(frozen=True)
class Style:
    """How a cell looks. `text` formats it as text ("@")."""
    bold: bool = False
    size: float = 0
    border: bool = False
    fill: str = ""
    center: bool = False
    text: bool = False
    decimals: int = -1


@dataclass
class Cell:
    value: object = None  # str, int, float, bool or None
    style: Style = Style()
    formula: str = ""  # OpenFormula, e.g. "of:=[.A1]*2"
    array: int = 0  # columns of an array formula that starts here
    span: int = 1
    runs: list = field(default_factory=list)  # (text, bold) pieces of a rich text


@dataclass
class Sheet:
    name: str
    widths: list  # centimetres, column by column
    rows: dict  # row number from 1 -> list of Cell from column A
    heights: dict = field(default_factory=dict)  # row number -> centimetres
    column_styles: dict = field(default_factory=dict)  # column index from 0 -> Style
    print_setup: "PrintSetup" = None


@dataclass(frozen=True)
class PrintSetup:
    """How a sheet prints: A4, landscape or not, scaled to one page wide (as
    many pages tall as it takes), with its first `title_rows` rows repeated
    at the top of every page."""
    landscape: bool = False
    fit_to_width: bool = False
    title_rows: int = 0


class _Styles:
    def __init__(self):
        self.cells = {}
        self.columns = {}
        self.rows = {}

    def cell(self, style):
        return self.cells.setdefault(style, f"ce{len(self.cells) + 1}")

    def column(self, width):
        return self.columns.setdefault(width, f"co{len(self.columns) + 1}")

    def row(self, height):
        return self.rows.setdefault(height, f"ro{len(self.rows) + 1}")

    def xml(self):
        out = ['<number:text-style style:name="NText"><number:text-content/></number:text-style>']
        for decimals in sorted({s.decimals for s in self.cells if s.decimals >= 0}):
            out.append(f'<number:number-style style:name="NFixed{decimals}"><number:number '
                       f'number:decimal-places="{decimals}" number:min-integer-digits="1"/></number:number-style>')
        out.append('<style:style style:name="Bold" style:family="text"><style:text-properties '
                   'fo:font-weight="bold" style:font-weight-asian="bold"/></style:style>')
        for width, name in self.columns.items():
            out.append(f'<style:style style:name="{name}" style:family="table-column">'
                       f'<style:table-column-properties style:column-width="{width}cm"/></style:style>')
        for height, name in self.rows.items():
            out.append(f'<style:style style:name="{name}" style:family="table-row"><style:table-row-properties '
                       f'style:row-height="{height}cm" style:use-optimal-row-height="false"/></style:style>')
        for style, name in self.cells.items():
            data = ' style:data-style-name="NText"' if style.text else (
                f' style:data-style-name="NFixed{style.decimals}"' if style.decimals >= 0 else "")
            cell = ' fo:border="0.06pt solid #000000"' if style.border else ""
            cell += f' fo:background-color="{style.fill}"' if style.fill else ""
            text = f' fo:font-size="{style.size}pt" style:font-size-asian="{style.size}pt"' if style.size else ""
            text += ' fo:font-weight="bold" style:font-weight-asian="bold"' if style.bold else ""
            out.append(
                f'<style:style style:name="{name}" style:family="table-cell" style:parent-style-name="Default"{data}>'
                f'<style:table-cell-properties style:vertical-align="middle"{cell}/>'
                + ('<style:paragraph-properties fo:text-align="center"/>' if style.center else "")
                + (f"<style:text-properties{text}/>" if text else "") + "</style:style>")
        return "".join(out)


def _cell_xml(cell, styles):
    attributes = f' table:style-name="{styles.cell(cell.style)}"'
    if cell.span > 1:
        attributes += f' table:number-columns-spanned="{cell.span}" table:number-rows-spanned="1"'
    if cell.formula:
        attributes += f" table:formula={quoteattr(cell.formula)}"
    if cell.array:
        attributes += f' table:number-matrix-columns-spanned="{cell.array}" table:number-matrix-rows-spanned="1"'
    value = cell.value
    content = ""
    if cell.runs:
        attributes += ' office:value-type="string"'
        pieces = "".join(f'<text:span text:style-name="Bold">{escape(t)}</text:span>' if bold else escape(t)
                         for t, bold in cell.runs)
        content = f"<text:p>{pieces}</text:p>"
    elif isinstance(value, bool):
        attributes += f' office:value-type="boolean" office:boolean-value="{str(value).lower()}"'
        content = f"<text:p>{'TRUE' if value else 'FALSE'}</text:p>"
    elif isinstance(value, (int, float)):
        attributes += f' office:value-type="float" office:value="{value}"'
        content = f"<text:p>{value}</text:p>"
    elif isinstance(value, str):
        attributes += ' office:value-type="string"'
        if cell.formula:
            attributes += f" office:string-value={quoteattr(value)}"
        content = f"<text:p>{escape(value)}</text:p>"
    covered = f'<table:covered-table-cell table:number-columns-repeated="{cell.span - 1}"/>' if cell.span > 1 else ""
    return f"<table:table-cell{attributes}>{content}</table:table-cell>{covered}"


def _page_xml(number, setup):
    """The page layout, table style and master page of the sheet `number`."""
    width, height = ("29.7cm", "21cm") if setup.landscape else ("21cm", "29.7cm")
    scale = ' style:scale-to-X="1" style:scale-to-Y="0"' if setup.fit_to_width else ""
    layout = (f'<style:page-layout style:name="pm{number}"><style:page-layout-properties '
              f'fo:page-width="{width}" fo:page-height="{height}" '
              f'style:print-orientation="{"landscape" if setup.landscape else "portrait"}"{scale}/>'
              '</style:page-layout>'
              f'<style:style style:name="ta{number}" style:family="table" style:master-page-name="Page{number}">'
              '<style:table-properties table:display="true"/></style:style>')
    master = f'<style:master-page style:name="Page{number}" style:page-layout-name="pm{number}"/>'
    return layout, master


def fods(sheets, font="宋体", size=10):
    """The .fods text of `sheets`, every cell in `font`."""
    styles = _Styles()
    tables = []
    pages = []
    for sheet_number, sheet in enumerate(sheets, start=1):
        setup = sheet.print_setup
        table_style = ""
        if setup:
            pages.append(_page_xml(sheet_number, setup))
            table_style = f' table:style-name="ta{sheet_number}"'
        parts = [f"<table:table table:name={quoteattr(sheet.name)}{table_style}>"]
        for index, width in enumerate(sheet.widths):
            default = sheet.column_styles.get(index)
            default = f' table:default-cell-style-name="{styles.cell(default)}"' if default else ""
            parts.append(f'<table:table-column table:style-name="{styles.column(width)}"{default}/>')
        last = max(list(sheet.rows) + list(sheet.heights) + [0])
        for number in range(1, last + 1):
            height = sheet.heights.get(number)
            row_style = f' table:style-name="{styles.row(height)}"' if height else ""
            cells = "".join(_cell_xml(cell, styles) for cell in sheet.rows.get(number, []))
            if setup and setup.title_rows and number == 1:
                parts.append("<table:table-header-rows>")
            parts.append(f"<table:table-row{row_style}>{cells or '<table:table-cell/>'}</table:table-row>")
            if setup and setup.title_rows and number == setup.title_rows:
                parts.append("</table:table-header-rows>")
        if sheet.column_styles:
            # A column's default format reaches the spreadsheet's last row only
            # through cells that carry it down there.
            cells = "".join(f'<table:table-cell table:style-name="{styles.cell(sheet.column_styles[index])}"/>'
                            if index in sheet.column_styles else "<table:table-cell/>"
                            for index in range(max(sheet.column_styles) + 1))
            parts.append(f'<table:table-row table:number-rows-repeated="{MAX_ROWS - last}">{cells}</table:table-row>')
        parts.append("</table:table>")
        tables.append("".join(parts))
    declarations = " ".join(f'xmlns:{prefix}="{uri}"' for prefix, uri in NAMESPACES.items())
    font_properties = (f'style:font-name="{font}" fo:font-size="{size}pt" style:font-name-asian="{font}" '
                       f'style:font-size-asian="{size}pt" style:font-name-complex="{font}"')
    return (
        f'<?xml version="1.0" encoding="UTF-8"?>\n<office:document {declarations} office:version="1.2" '
        'office:mimetype="application/vnd.oasis.opendocument.spreadsheet">'
        f'<office:font-face-decls><style:font-face style:name="{font}" svg:font-family="{font}" '
        'style:font-family-generic="system" style:font-pitch="variable"/></office:font-face-decls>'
        f'<office:styles><style:default-style style:family="table-cell"><style:text-properties {font_properties}/>'
        '</style:default-style><style:style style:name="Default" style:family="table-cell">'
        f'<style:text-properties {font_properties}/></style:style></office:styles>'
        f"<office:automatic-styles>{styles.xml()}{''.join(layout for layout, _ in pages)}</office:automatic-styles>"
        + (f"<office:master-styles>{''.join(master for _, master in pages)}</office:master-styles>" if pages else "")
        +         f'<office:body><office:spreadsheet>{"".join(tables)}</office:spreadsheet></office:body></office:document>\n')


def convert(source, target_dir, formats):
    """Converts the .fods file `source` into each of `formats` ("xls", "xlsx")
    in `target_dir`, with a LibreOffice profile of its own."""
    with tempfile.TemporaryDirectory() as profile:
        for target in formats:
            subprocess.run(["soffice", "--headless", f"-env:UserInstallation=file://{profile}",
                            "--convert-to", FILTERS[target], "--outdir", target_dir, source],
                           check=True, stdout=subprocess.DEVNULL)
            produced = os.path.join(target_dir, os.path.splitext(os.path.basename(source))[0] + "." + target)
            if not os.path.exists(produced):
                raise SystemExit(f"LibreOffice did not write {produced}")
