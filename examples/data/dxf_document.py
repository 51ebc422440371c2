# SPDX-License-Identifier: MIT
"""A text drawing of version AC1015 in windows-1251: sections, tables, blocks, handles.

Knows the frame of a drawing and how entities are written, and nothing of what they mean.
"""

BYLAYER = 256
BYBLOCK = 0


class Handles:
    """Handles in the order of asking, so that the same script gives the same file."""

    def __init__(self):
        self.last = 0x0F

    def new(self):
        self.last += 1
        return f"{self.last:X}"


class Tags:
    """Groups as text: a code line and a value line each."""

    def __init__(self):
        self.lines = []

    def add(self, *pairs):
        """add(code, value, code, value, ...)"""
        for code, value in zip(pairs[::2], pairs[1::2]):
            text = f"{value:.6f}" if isinstance(value, float) else str(value)
            self.lines += [f"{code:3d}", text]

    def point(self, code, x, y, z=0.0):
        self.add(code, float(x), code + 10, float(y), code + 20, float(z))

    def plane(self, code, x, y):
        self.add(code, float(x), code + 10, float(y))


class Space(Tags):
    """Where entities go: model space, paper space or a block."""

    def __init__(self, document, name, owner, paper=False):
        super().__init__()
        self.document, self.name, self.owner, self.paper = document, name, owner, paper
        self.box = []

    def entity(self, kind, layer, *classes, color=BYLAYER, linetype=None, weight=None):
        """Opens an entity; the first class marker follows its head. Returns its handle."""
        handle = self.document.handles.new()
        self.add(0, kind, 5, handle, 330, self.owner, 100, "AcDbEntity")
        if self.paper:
            self.add(67, 1)
        self.add(8, layer)
        if linetype:
            self.add(6, linetype)
        if color != BYLAYER:
            self.add(62, color)
        if weight is not None:
            self.add(370, weight)
        for name in classes:
            self.add(100, name)
        return handle

    def seen(self, *points):
        self.box += [p[:2] for p in points]

    # ---- Entities, each in the order of groups that drawing programs write ------------------

    def dot(self, layer, p, **head):
        self.entity("POINT", layer, "AcDbPoint", **head)
        self.point(10, *p)
        self.seen(p)

    def line(self, layer, a, b, **head):
        self.entity("LINE", layer, "AcDbLine", **head)
        self.point(10, *a)
        self.point(11, *b)
        self.seen(a, b)

    def infinite(self, kind, layer, origin, direction, **head):
        self.entity(kind, layer, {"XLINE": "AcDbXline", "RAY": "AcDbRay"}[kind], **head)
        self.point(10, *origin)
        self.point(11, *direction)

    def circle(self, layer, center, radius, **head):
        self.entity("CIRCLE", layer, "AcDbCircle", **head)
        self.point(10, *center)
        self.add(40, float(radius))
        self.seen(center)

    def arc(self, layer, center, radius, start, end, **head):
        self.entity("ARC", layer, "AcDbCircle", **head)
        self.point(10, *center)
        self.add(40, float(radius), 100, "AcDbArc", 50, float(start), 51, float(end))
        self.seen(center)

    def ellipse(self, layer, center, major, ratio, **head):
        self.entity("ELLIPSE", layer, "AcDbEllipse", **head)
        self.point(10, *center)
        self.point(11, *major)
        self.add(40, float(ratio), 41, 0.0, 42, 6.283185)
        self.seen(center)

    def corners(self, kind, layer, points, **head):
        """SOLID (corners crosswise) or 3DFACE."""
        self.entity(kind, layer, {"SOLID": "AcDbTrace", "3DFACE": "AcDbFace"}[kind], **head)
        for code, p in zip(range(10, 14), points):
            self.point(code, *p)
        self.seen(*points)

    def polyline(self, layer, vertices, closed=False, elevation=0.0, width=0.0, **head):
        """LWPOLYLINE; a vertex is (x, y) or (x, y, bulge)."""
        self.entity("LWPOLYLINE", layer, "AcDbPolyline", **head)
        self.add(90, len(vertices), 70, int(closed), 43, float(width), 38, float(elevation))
        for v in vertices:
            self.plane(10, v[0], v[1])
            if len(v) > 2 and v[2]:
                self.add(42, float(v[2]))
        self.seen(*vertices)

    def old_polyline(self, layer, vertices, is3d, **head):
        """POLYLINE with its VERTEX records."""
        own = "AcDb3dPolyline" if is3d else "AcDb2dPolyline"
        marks = ("AcDbVertex", "AcDb3dPolylineVertex" if is3d else "AcDb2dVertex")
        self.entity("POLYLINE", layer, own, **head)
        self.add(66, 1)
        self.point(10, 0, 0)
        self.add(70, 8 if is3d else 0)
        for v in vertices:
            self.entity("VERTEX", layer, *marks, **head)
            self.point(10, *v)
            self.add(70, 32 if is3d else 0)
        self.entity("SEQEND", layer, **head)
        self.seen(*vertices)

    def spline(self, layer, control, **head):
        """A cubic that starts and ends in its first and last control point."""
        self.entity("SPLINE", layer, "AcDbSpline", **head)
        knots = clamped_knots(len(control))
        self.add(70, 8, 71, 3, 72, len(knots), 73, len(control), 74, 0)
        self.add(42, 0.0000001, 43, 0.0000001)
        for k in knots:
            self.add(40, k)
        for p in control:
            self.point(10, *p)
        self.seen(*control)

    def text(self, layer, p, height, value, rotation=0.0, style="ТОПО", **head):
        self.entity("TEXT", layer, "AcDbText", **head)
        self.point(10, *p)
        self.add(40, float(height), 1, value, 50, float(rotation), 7, style, 100, "AcDbText")
        self.seen(p)

    def mtext(self, layer, p, height, width, value, style="ТОПО", **head):
        self.entity("MTEXT", layer, "AcDbMText", **head)
        self.point(10, *p)
        self.add(40, float(height), 41, float(width), 71, 1, 72, 1)
        while len(value) > 250:
            self.add(3, value[:250])
            value = value[250:]
        self.add(1, value, 7, style)
        self.seen(p)

    def attribute_definition(self, layer, p, height, tag, prompt, default):
        self.entity("ATTDEF", layer, "AcDbText")
        self.point(10, *p)
        self.add(40, float(height), 1, default, 7, "ТОПО", 100, "AcDbAttributeDefinition",
                 3, prompt, 2, tag, 70, 0)

    def insert(self, layer, block, p, attributes=(), scale=(1.0, 1.0, 1.0), rotation=0.0, **head):
        """`attributes` are (tag, value, dx, dy, height): text beside the insertion point."""
        self.entity("INSERT", layer, "AcDbBlockReference", **head)
        if attributes:
            self.add(66, 1)
        self.add(2, block)
        self.point(10, *p)
        self.add(41, scale[0], 42, scale[1], 43, scale[2], 50, float(rotation))
        for tag, value, dx, dy, height in attributes:
            self.entity("ATTRIB", layer, "AcDbText", **head)
            self.point(10, p[0] + dx, p[1] + dy)
            self.add(40, float(height), 1, value, 7, "ТОПО", 100, "AcDbAttribute", 2, tag, 70, 0)
        if attributes:
            self.entity("SEQEND", layer, **head)
        self.seen(p)

    def multiline(self, layer, style, offsets, points, **head):
        self.entity("MLINE", layer, "AcDbMline", **head)
        self.add(2, style, 340, self.document.mline_styles[style], 40, 1.0, 70, 0, 71, 1)
        self.add(72, len(points), 73, len(offsets))
        self.point(10, *points[0])
        self.point(210, 0, 0, 1)
        for p, direction, miter, stretch in multiline_frames(points):
            self.point(11, *p)
            self.point(12, *direction)
            self.point(13, *miter)
            for offset in offsets:
                self.add(74, 2, 41, offset * stretch, 41, 0.0, 75, 0)
        self.seen(*points)

    def hatch(self, layer, paths, pattern=None, **head):
        """`paths` are objects of this module's path classes; `pattern` is (name, angle, step)."""
        self.entity("HATCH", layer, "AcDbHatch", **head)
        self.point(10, 0, 0)
        self.point(210, 0, 0, 1)
        self.add(2, pattern[0] if pattern else "SOLID", 70, int(not pattern), 71, 0)
        self.add(91, len(paths))
        for path in paths:
            path.write(self)
        self.add(75, 0, 76, 1)
        if pattern:
            write_pattern(self, *pattern)
        self.add(98, 0)


def clamped_knots(count):
    inner = [float(i) for i in range(1, count - 3)]
    return [0.0] * 4 + inner + [float(count - 3)] * 4


def curve(control, steps):
    """Points of the cubic with these control points, `steps` to each span, by de Boor's rule."""
    knots = clamped_knots(len(control))
    points = []
    for span in range(3, len(control)):
        last = span == len(control) - 1
        for step in range(steps + 1 if last else steps):
            u = knots[span] + step / steps
            d = [control[span - 3 + i][:2] for i in range(4)]
            for depth in range(1, 4):
                for i in range(3, depth - 1, -1):
                    low, high = knots[span - 3 + i], knots[span + 1 + i - depth]
                    a = (u - low) / (high - low)
                    d[i] = tuple((1 - a) * p + a * q for p, q in zip(d[i - 1], d[i]))
            points.append(d[3])
    return points


def multiline_frames(points):
    """For each point: itself, the direction onward, the miter, and how the miter stretches offsets."""
    def unit(a, b):
        length = ((b[0] - a[0]) ** 2 + (b[1] - a[1]) ** 2) ** 0.5
        return ((b[0] - a[0]) / length, (b[1] - a[1]) / length)

    directions = [unit(a, b) for a, b in zip(points, points[1:])]
    for i, p in enumerate(points):
        before = directions[max(i - 1, 0)]
        after = directions[min(i, len(directions) - 1)]
        normal = unit((0, 0), (-(before[1] + after[1]), before[0] + after[0]))
        cosine = normal[0] * -after[1] + normal[1] * after[0]
        yield p, (*after, 0.0), (*normal, 0.0), 1.0 / cosine


def write_pattern(tags, name, angle, step):
    """One family of parallel lines."""
    from math import cos, radians, sin
    a = radians(45.0 + angle)
    tags.add(52, float(angle), 41, step, 77, 0, 78, 1)
    tags.add(53, 45.0 + angle, 43, 0.0, 44, 0.0, 45, -3.175 * step * sin(a), 46,
             3.175 * step * cos(a), 79, 0)


class PolylinePath:
    """A boundary of vertices (x, y) or (x, y, bulge), closed."""

    def __init__(self, vertices, outer=True):
        self.vertices, self.outer = vertices, outer

    def write(self, tags):
        bulges = any(len(v) > 2 and v[2] for v in self.vertices)
        tags.add(92, 3 if self.outer else 2, 72, int(bulges), 73, 1, 93, len(self.vertices))
        for v in self.vertices:
            tags.plane(10, v[0], v[1])
            if bulges:
                tags.add(42, float(v[2]) if len(v) > 2 else 0.0)
        tags.add(97, 0)


class EdgePath:
    """A boundary of edges: ("line", a, b), ("arc", center, radius, start, end),
    ("ellipse", center, major, ratio) or ("spline", control points)."""

    def __init__(self, edges):
        self.edges = edges

    def write(self, tags):
        tags.add(92, 1, 93, len(self.edges))
        for kind, *data in self.edges:
            getattr(self, kind)(tags, *data)
        tags.add(97, 0)

    def line(self, tags, a, b):
        tags.add(72, 1)
        tags.plane(10, *a[:2])
        tags.plane(11, *b[:2])

    def arc(self, tags, center, radius, start, end):
        tags.add(72, 2)
        tags.plane(10, *center[:2])
        tags.add(40, float(radius), 50, float(start), 51, float(end), 73, 1)

    def ellipse(self, tags, center, major, ratio):
        tags.add(72, 3)
        tags.plane(10, *center[:2])
        tags.plane(11, *major[:2])
        tags.add(40, float(ratio), 50, 0.0, 51, 360.0, 73, 1)

    def spline(self, tags, control):
        knots = clamped_knots(len(control))
        tags.add(72, 4, 94, 3, 73, 0, 74, 0, 95, len(knots), 96, len(control))
        for k in knots:
            tags.add(40, k)
        for p in control:
            tags.plane(10, *p[:2])
