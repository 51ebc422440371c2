# SPDX-License-Identifier: MIT
"""The sections around the entities of a drawing: header, classes, tables, blocks, objects."""

from dxf_document import Handles, Space, Tags


class Document:
    """Fill `layers`, `line_types`, `styles`, blocks and model space, then call `text`."""

    def __init__(self):
        self.handles = Handles()
        self.layers = []       # (name, colour, flags, line type, weight); a negative colour is off
        self.line_types = []   # (name, description, dashes)
        self.styles = []       # (name, font)
        self.mline_styles = {}  # name: handle
        self.mline_lines = {}  # name: [(offset, colour)]
        self.images = []       # (path, width, height, handle, reactor, image)
        self.tables = {n: self.handles.new() for n in
                       "VPORT LTYPE LAYER STYLE VIEW UCS APPID DIMSTYLE BLOCK_RECORD".split()}
        self.objects = {n: self.handles.new() for n in
                        "root groups mlines images layouts model_layout paper_layout".split()}
        self.blocks = []
        self.model = self.new_block("*Model_Space")
        self.paper = self.new_block("*Paper_Space", paper=True)

    def new_block(self, name, paper=False):
        block = Space(self, name, self.handles.new(), paper)
        self.blocks.append(block)
        return block

    def add_mline_style(self, name, lines):
        self.mline_styles[name] = self.handles.new()
        self.mline_lines[name] = lines

    def image(self, layer, path, origin, pixel, width, height):
        """An image along the axes: `pixel` drawing units a pixel."""
        definition, reactor = self.handles.new(), self.handles.new()
        m = self.model
        image = m.entity("IMAGE", layer, "AcDbRasterImage")
        m.add(90, 0)
        m.point(10, *origin)
        m.point(11, pixel, 0)
        m.point(12, 0, pixel)
        m.plane(13, width, height)
        m.add(340, definition, 70, 3, 280, 0, 281, 50, 282, 50, 283, 0, 360, reactor, 71, 1, 91, 2)
        m.plane(14, -0.5, -0.5)
        m.plane(14, width - 0.5, height - 0.5)
        self.images.append((path, width, height, definition, reactor, image))

    # ---- The sections ---------------------------------------------------------------------------

    def text(self):
        sections = [("CLASSES", self.classes), ("TABLES", self.table_section),
                    ("BLOCKS", self.block_section), ("ENTITIES", self.entity_section),
                    ("OBJECTS", self.object_section)]
        lines = []
        for name, write in sections:
            tags = Tags()
            tags.add(0, "SECTION", 2, name)
            write(tags)
            tags.add(0, "ENDSEC")
            lines += tags.lines
        head = Tags()
        self.header(head)
        return "".join(line + "\r\n" for line in head.lines + lines + ["  0", "EOF"])

    def header(self, t):
        xs, ys = zip(*self.model.box)
        t.add(0, "SECTION", 2, "HEADER", 9, "$ACADVER", 1, "AC1015")
        t.add(9, "$DWGCODEPAGE", 3, "ANSI_1251", 9, "$INSBASE")
        t.point(10, 0, 0)
        for name, x, y in (("$EXTMIN", min(xs), min(ys)), ("$EXTMAX", max(xs), max(ys))):
            t.add(9, name)
            t.point(10, x, y)
        for name, x, y in (("$LIMMIN", min(xs), min(ys)), ("$LIMMAX", max(xs), max(ys))):
            t.add(9, name)
            t.plane(10, x, y)
        t.add(9, "$LTSCALE", 40, 1.0, 9, "$TEXTSTYLE", 7, "ТОПО", 9, "$CLAYER", 8, "0")
        t.add(9, "$CECOLOR", 62, 256, 9, "$PDMODE", 70, 0, 9, "$LUNITS", 70, 2)
        t.add(9, "$INSUNITS", 70, 6, 9, "$MEASUREMENT", 70, 1)
        t.add(9, "$HANDSEED", 5, f"{self.handles.last + 1:X}", 0, "ENDSEC")

    def classes(self, t):
        for name, cpp, flags, entity in (("IMAGE", "AcDbRasterImage", 127, 1),
                                         ("IMAGEDEF", "AcDbRasterImageDef", 0, 0),
                                         ("IMAGEDEF_REACTOR", "AcDbRasterImageDefReactor", 1, 0)):
            t.add(0, "CLASS", 1, name, 2, cpp, 3, "ISM", 90, flags, 280, 0, 281, entity)

    def table_section(self, t):
        self.table(t, "VPORT", [self.viewport])
        self.table(t, "LTYPE", [lambda t, h, r=r: self.line_type(t, h, *r) for r in
                                [("ByBlock", "", ()), ("ByLayer", "", ()),
                                 ("Continuous", "", ())] + self.line_types])
        self.table(t, "LAYER", [lambda t, h, r=r: self.layer(t, h, *r) for r in self.layers])
        self.table(t, "STYLE", [lambda t, h, r=r: self.style(t, h, *r) for r in self.styles])
        self.table(t, "VIEW", [])
        self.table(t, "UCS", [])
        self.table(t, "APPID", [self.application])
        self.table(t, "DIMSTYLE", [self.dimension_style])
        self.table(t, "BLOCK_RECORD", [lambda t, h, b=b: self.block_record(t, b)
                                       for b in self.blocks])

    def table(self, t, name, records):
        handle = self.tables[name]
        t.add(0, "TABLE", 2, name, 5, handle, 330, 0, 100, "AcDbSymbolTable", 70, len(records))
        if name == "DIMSTYLE":
            t.add(100, "AcDbDimStyleTable")
        for write in records:
            write(t, handle)
        t.add(0, "ENDTAB")

    def record(self, t, kind, owner, marker, name, flags=0, code=5):
        t.add(0, kind, code, self.handles.new(), 330, owner, 100, "AcDbSymbolTableRecord",
              100, marker, 2, name, 70, flags)

    def viewport(self, t, owner):
        xs, ys = zip(*self.model.box)
        self.record(t, "VPORT", owner, "AcDbViewportTableRecord", "*ACTIVE")
        for code, x, y in ((10, 0, 0), (11, 1, 1), (12, (min(xs) + max(xs)) / 2,
                                                    (min(ys) + max(ys)) / 2),
                           (13, 0, 0), (14, 1, 1), (15, 1, 1)):
            t.plane(code, x, y)
        t.point(16, 0, 0, 1)
        t.point(17, 0, 0)
        t.add(40, (max(ys) - min(ys)) * 1.05, 41, 1.5, 42, 50.0, 43, 0.0, 44, 0.0, 50, 0.0, 51, 0.0)
        t.add(71, 0, 72, 100, 73, 1, 74, 1, 75, 0, 76, 0, 77, 0, 78, 0)

    def line_type(self, t, owner, name, description, dashes):
        self.record(t, "LTYPE", owner, "AcDbLinetypeTableRecord", name)
        t.add(3, description, 72, 65, 73, len(dashes), 40, float(sum(abs(d) for d in dashes)))
        for dash in dashes:
            t.add(49, float(dash), 74, 0)

    def layer(self, t, owner, name, color, flags, line_type, weight):
        self.record(t, "LAYER", owner, "AcDbLayerTableRecord", name, flags)
        t.add(62, color, 6, line_type, 370, weight, 390, "F")

    def style(self, t, owner, name, font):
        self.record(t, "STYLE", owner, "AcDbTextStyleTableRecord", name)
        t.add(40, 0.0, 41, 1.0, 50, 0.0, 71, 0, 42, 2.0, 3, font, 4, "")

    def application(self, t, owner):
        self.record(t, "APPID", owner, "AcDbRegAppTableRecord", "ACAD")

    def dimension_style(self, t, owner):
        self.record(t, "DIMSTYLE", owner, "AcDbDimStyleTableRecord", "Standard", code=105)

    def block_record(self, t, block):
        t.add(0, "BLOCK_RECORD", 5, block.owner, 330, self.tables["BLOCK_RECORD"],
              100, "AcDbSymbolTableRecord", 100, "AcDbBlockTableRecord", 2, block.name)
        layout = {"*Model_Space": "model_layout", "*Paper_Space": "paper_layout"}.get(block.name)
        t.add(340, self.objects[layout] if layout else 0)

    def block_section(self, t):
        for block in self.blocks:
            space = [67, 1] if block.paper else []
            t.add(0, "BLOCK", 5, self.handles.new(), 330, block.owner, 100, "AcDbEntity", *space,
                  8, "0", 100, "AcDbBlockBegin", 2, block.name, 70,
                  2 if "ATTDEF" in block.lines else 0)
            t.point(10, 0, 0)
            t.add(3, block.name, 1, "")
            if not block.name.startswith("*"):
                t.lines += block.lines
            t.add(0, "ENDBLK", 5, self.handles.new(), 330, block.owner, 100, "AcDbEntity", *space,
                  8, "0", 100, "AcDbBlockEnd")

    def entity_section(self, t):
        t.lines += self.model.lines + self.paper.lines

    def object_section(self, t):
        o = self.objects
        self.dictionary(t, o["root"], 0, [("ACAD_GROUP", o["groups"]), ("ACAD_LAYOUT", o["layouts"]),
                                          ("ACAD_MLINESTYLE", o["mlines"]),
                                          ("ACAD_IMAGE_DICT", o["images"])])
        self.dictionary(t, o["groups"], o["root"], [])
        self.dictionary(t, o["layouts"], o["root"], [("Model", o["model_layout"]),
                                                     ("Лист 1", o["paper_layout"])])
        self.dictionary(t, o["mlines"], o["root"], self.mline_styles.items())
        self.dictionary(t, o["images"], o["root"],
                        [(i[0].rsplit(".", 1)[0], i[3]) for i in self.images])
        self.layout(t, o["model_layout"], "Model", 0, self.model.owner, 1712)
        self.layout(t, o["paper_layout"], "Лист 1", 1, self.paper.owner, 688)
        for name, handle in self.mline_styles.items():
            self.mline_style(t, name, handle)
        for image in self.images:
            self.image_definition(t, *image)

    def dictionary(self, t, handle, owner, entries):
        t.add(0, "DICTIONARY", 5, handle, 330, owner, 100, "AcDbDictionary", 281, 1)
        for name, target in entries:
            t.add(3, name, 350, target)

    def layout(self, t, handle, name, order, record, plot_flags):
        t.add(0, "LAYOUT", 5, handle, 330, self.objects["layouts"], 100, "AcDbPlotSettings")
        t.add(1, "", 2, "none_device", 4, "A3", 6, "")
        t.add(*(x for code in (40, 41, 42, 43) for x in (code, 5.0)), 44, 420.0, 45, 297.0)
        t.add(*(x for code in (46, 47, 48, 49, 140, 141) for x in (code, 0.0)))
        t.add(142, 1.0, 143, 1.0, 70, plot_flags, 72, 1, 73, 0, 74, 5, 7, "", 75, 16, 147, 1.0,
              148, 0.0, 149, 0.0, 100, "AcDbLayout", 1, name, 70, 1, 71, order)
        t.plane(10, 0, 0)
        t.plane(11, 420, 297)
        for code, x, y, z in ((12, 0, 0, 0), (14, 0, 0, 0), (15, 420, 297, 0)):
            t.point(code, x, y, z)
        t.add(146, 0.0)
        for code, x, y in ((13, 0, 0), (16, 1, 0), (17, 0, 1)):
            t.point(code, x, y)
        t.add(76, 0, 330, record)

    def mline_style(self, t, name, handle):
        lines = self.mline_lines[name]
        t.add(0, "MLINESTYLE", 5, handle, 330, self.objects["mlines"], 100, "AcDbMlineStyle",
              2, name, 70, 0, 3, "", 62, 256, 51, 90.0, 52, 90.0, 71, len(lines))
        for offset, color in lines:
            t.add(49, offset, 62, color, 6, "BYLAYER")

    def image_definition(self, t, path, width, height, handle, reactor, image):
        t.add(0, "IMAGEDEF", 5, handle, 102, "{ACAD_REACTORS", 330, self.objects["images"],
              330, reactor, 102, "}", 330, self.objects["images"], 100, "AcDbRasterImageDef",
              90, 0, 1, path)
        t.plane(10, width, height)
        t.plane(11, 1, 1)
        t.add(280, 1, 281, 0)
        t.add(0, "IMAGEDEF_REACTOR", 5, reactor, 330, image, 100, "AcDbRasterImageDefReactor",
              90, 2, 330, image)
