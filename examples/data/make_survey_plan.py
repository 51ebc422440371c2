#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes survey-plan.dxf and survey-plan-relief.png beside this script.

A topographic plan, 1:500, of a made-up quarter by a river: ground, streets, buildings, wells, poles,
trees, control points, what is planned and what is no longer valid. The same script always gives the
same bytes. Heights and coordinates are in metres.
"""

from math import cos, pi, sin
from pathlib import Path

from dxf_document import BYBLOCK, curve, EdgePath, PolylinePath
from dxf_frame import Document
import survey_terrain as ground

EAST, NORTH = 1284400.0, 412600.0     # the plan's lower left corner in the local grid
QUARTER = 0.414214                    # bulge of a quarter turn to the left
PIXEL = 2.0

LAYERS = [  # name, colour (negative: off), flags (1 frozen, 4 locked), line type, weight
    ("0", 7, 0, "Continuous", -3),
    ("Подложка", 8, 4, "Continuous", -3),
    ("Горизонтали", 32, 0, "Continuous", 13),
    ("Горизонтали утолщённые", 34, 0, "Continuous", 30),
    ("Гидрография", 150, 0, "Continuous", 25),
    ("Гидрография заливка", 151, 0, "Continuous", -3),
    ("Дороги", 252, 0, "Continuous", 18),
    ("Дороги покрытие", 254, 0, "Continuous", -3),
    ("Дороги оси", 1, 0, "ОСЕВАЯ", 13),
    ("Здания", 7, 0, "Continuous", 35),
    ("Здания штриховка", 40, 0, "Continuous", 9),
    ("Ограждения", 14, 0, "ОГРАДА", 18),
    ("Растительность", 84, 0, "Continuous", 18),
    ("Колодцы", 174, 0, "Continuous", 18),
    ("Сети", 214, 0, "Continuous", 25),
    ("ЛЭП", 6, 0, "Continuous", 25),
    ("Отметки", 16, 0, "Continuous", 13),
    ("Геодезическая основа", 10, 4, "Continuous", 25),
    ("Подписи", 7, 0, "Continuous", 18),
    ("Рамка", 7, 0, "Continuous", 50),
    ("Проект", -30, 0, "ШТРИХОВАЯ", 25),
    ("Архив съёмки", 9, 1, "Continuous", 13),
]

LINE_TYPES = [
    ("ОСЕВАЯ", "Осевая __ . __ . __", (6.0, -1.0, 0.5, -1.0)),
    ("ШТРИХОВАЯ", "Штриховая __ __ __", (2.0, -1.0)),
    ("ОГРАДА", "Ограда деревянная", (4.0, -0.5, 0.0, -0.5)),
]


def at(x, y, *rest):
    """Plan metres to the local grid; a height or a bulge behind them stays."""
    return (EAST + x, NORTH + y, *rest)


def path(points):
    return [at(*p) for p in points]


def rectangle(x1, y1, x2, y2):
    return [(x1, y1), (x2, y1), (x2, y2), (x1, y2)]


def scatter(seed):
    """Numbers from 0 to 1 that are the same on every machine."""
    while True:
        seed = (seed * 1103515245 + 12345) % 2 ** 31
        yield seed / 2 ** 31


# ---- Blocks ---------------------------------------------------------------------------------------

def add_blocks(d):
    sewer = d.new_block("КОЛОДЕЦ_К")
    sewer.circle("0", (0, 0), 0.8, color=BYBLOCK)
    sewer.line("0", (-0.57, 0.57), (0.57, -0.57), color=BYBLOCK)
    sewer.line("0", (-0.57, -0.57), (0.57, 0.57), color=BYBLOCK)
    sewer.attribute_definition("0", (1.2, 0.4), 1.0, "НОМЕР", "Номер колодца", "К-0")
    sewer.attribute_definition("0", (1.2, -1.2), 1.0, "ОТМ_ЛЮКА", "Отметка люка", "0.00")

    water = d.new_block("КОЛОДЕЦ_В")
    water.circle("0", (0, 0), 0.8, color=BYBLOCK)
    water.text("0", (-0.4, -0.5), 1.0, "В", color=BYBLOCK)
    water.attribute_definition("0", (1.2, 0.4), 1.0, "НОМЕР", "Номер колодца", "В-0")

    pole = d.new_block("ОПОРА")
    pole.hatch("0", [PolylinePath(rectangle(-0.35, -0.35, 0.35, 0.35))], color=BYBLOCK)
    pole.circle("0", (0, 0), 0.5, color=BYBLOCK)

    lamp = d.new_block("ОПОРА_С_ФОНАРЁМ")
    lamp.insert("0", "ОПОРА", (0, 0), color=BYBLOCK, linetype="ByBlock")
    lamp.line("0", (0.5, 0), (2.0, 0), color=BYBLOCK)
    lamp.arc("0", (2.6, 0), 0.6, 90, 270, color=BYBLOCK)

    leafy = d.new_block("ДЕРЕВО_ЛИСТВЕННОЕ")
    leafy.circle("0", (0, 0), 1.5)
    leafy.arc("0", (0, 0.3), 0.7, 20, 200)
    leafy.line("0", (0, -1.5), (0, -0.4))

    conifer = d.new_block("ДЕРЕВО_ХВОЙНОЕ")
    star = [(r * cos(a * pi / 8), r * sin(a * pi / 8))
            for a, r in ((i, 1.5 if i % 2 == 0 else 0.6) for i in range(16))]
    conifer.polyline("0", star, closed=True)
    conifer.dot("0", (0, 0))

    spot = d.new_block("ПИКЕТ")
    spot.circle("0", (0, 0), 0.2, color=BYBLOCK)
    spot.attribute_definition("0", (0.6, -0.5), 1.2, "ОТМЕТКА", "Отметка земли", "0.00")

    control = d.new_block("ПУНКТ_ПОЛИГОНОМЕТРИИ")
    control.polyline("0", rectangle(-1.2, -1.2, 1.2, 1.2), closed=True, color=BYBLOCK)
    control.dot("0", (0, 0), color=BYBLOCK)
    control.attribute_definition("0", (2.0, 0.3), 1.4, "НАЗВАНИЕ", "Название пункта", "пп 0")
    control.attribute_definition("0", (2.0, -1.7), 1.4, "ОТМЕТКА", "Отметка центра", "0.000")

    north = d.new_block("СТРЕЛКА_СЕВЕР")
    north.corners("SOLID", "0", [(-1.6, 0), (0, 1.5), (0, 8), (0, 8)])
    north.polyline("0", [(0, 1.5), (1.6, 0), (0, 8)], closed=True)
    north.text("0", (-0.9, 9), 2.5, "С")


# ---- Ground and water -----------------------------------------------------------------------------

def add_relief(d, m):
    level = 128.0
    while level < 141.0:
        thick = level % 2.5 == 0
        layer = "Горизонтали утолщённые" if thick else "Горизонтали"
        for line in ground.contours(level):
            closed = line[0] == line[-1]
            vertices = path(line[:-1] if closed else line)
            m.polyline(layer, vertices, closed, elevation=level, width=0.25 if thick else 0.0)
            if thick and len(line) > 12:
                x, y = line[len(line) // 2]
                m.text("Горизонтали утолщённые", at(x, y, level), 1.6, f"{level:.1f}")
        level += 0.5
    # A filled pit, measured as arcs.
    pit = [(246, 60, 0.35), (252, 64, 0.5), (248, 70, 0.35), (242, 66, 0.5)]
    m.polyline("Горизонтали", path(pit), closed=True, elevation=129.5)


def bank(side):
    """Control points of a bank, which lies `side` metres off the axis."""
    xs = [0, 20, 45, 70, 95, 120, 145, 170, 195, 220, 242, 260]
    return path([(x, ground.river(x) + side) for x in xs])


def add_water(m):
    north, south = bank(ground.BANK), bank(-ground.BANK)
    surface = curve(south, 8) + curve(north, 8)[::-1]
    m.hatch("Гидрография заливка", [PolylinePath(surface)])
    for line in (north, south):
        m.spline("Гидрография", line)
    m.text("Гидрография", at(100, ground.river(100) - 1), 3.0, "р. Тихая", rotation=6.0)
    ditch = [(x, ground.river(x) + 8 + 0.4 * i, 127.2 + 0.15 * i)
             for i, x in enumerate((176, 186, 197, 209, 222, 238, 255))]
    m.old_polyline("Гидрография", path(ditch), is3d=True)


# ---- Streets, buildings, fences -------------------------------------------------------------------

def add_roads(m):
    surface = [(0, 91), (260, 91), (260, 99), (132, 99, -QUARTER), (124, 107), (124, 180),
               (116, 180), (116, 107, -QUARTER), (108, 99), (0, 99)]
    m.hatch("Дороги покрытие", [PolylinePath(path(surface))])
    m.polyline("Дороги", path([(0, 91), (260, 91)]))
    m.polyline("Дороги", path([(260, 99), (132, 99, -QUARTER), (124, 107), (124, 180)]))
    m.polyline("Дороги", path([(116, 180), (116, 107, -QUARTER), (108, 99), (0, 99)]))
    m.line("Дороги оси", at(0, 95), at(260, 95))
    m.line("Дороги оси", at(120, 99), at(120, 180))
    m.text("Подписи", at(40, 94), 2.5, "ул. Геодезистов")
    m.text("Подписи", at(121.2, 128), 2.5, "пер. Нивелирный", rotation=90.0)


BUILDINGS = [  # outline, mark, house number; a third value of a corner is a bulge
    (rectangle(18, 108, 78, 121), "5КЖ", "12"),
    ([(142, 110), (182, 110), (182, 123), (156, 123), (156, 146), (142, 146)], "2КЖ", "14"),
    (rectangle(22, 66, 33, 76), "Ж", "9"),
    (rectangle(64, 64, 76, 75), "Ж", "11"),
    (rectangle(165, 66, 177, 77), "КЖ", "15"),
    (rectangle(39, 58, 45, 65), "Г", ""),
    (rectangle(205, 78, 210, 83), "ТП", "")]

SCHOOL = rectangle(198, 108, 244, 142)
LIBRARY = rectangle(22, 140, 52, 156)


def add_buildings(m):
    for outline, mark, number in BUILDINGS:
        m.hatch("Здания штриховка", [PolylinePath(path(outline))], ("ANSI31", 0.0, 0.5))
        m.polyline("Здания", path(outline), closed=True, width=0.2)
        x = min(p[0] for p in outline) + 2
        y = min(p[1] for p in outline) + 2
        m.text("Подписи", at(x, y), 2.2, mark)
        if number:
            m.text("Подписи", at(x + 7, y + 4), 2.2, number)
    add_school(m)
    add_library(m)


def add_school(m):
    outer, yard = SCHOOL, rectangle(208, 117, 234, 133)
    m.hatch("Здания штриховка", [PolylinePath(path(outer)), PolylinePath(path(yard), outer=False)],
            ("ANSI31", 90.0, 0.7))
    for ring in (outer, yard):
        m.polyline("Здания", path(ring), closed=True, width=0.2)
    m.text("Подписи", at(212, 124), 2.2, "3КН школа № 7")
    m.ellipse("Растительность", at(221, 120.5), (6.0, 0.0), 0.3)
    m.hatch("Растительность", [EdgePath([("ellipse", at(221, 120.5), (6.0, 0.0), 0.3)])],
            ("ANSI31", 15.0, 0.3))


def add_library(m):
    """A library with a round apse at its eastern end."""
    a, b, c, e = path(LIBRARY)
    edges = [("line", a, b), ("arc", at(52, 148), 8.0, -90.0, 90.0), ("line", c, e), ("line", e, a)]
    m.hatch("Здания штриховка", [EdgePath(edges)], ("ANSI31", 0.0, 0.6))
    m.polyline("Здания", [a, (*b, 1.0), c, e], closed=True, width=0.2)
    m.text("Подписи", at(26, 147), 2.2, "1КН библиотека")


def add_fences(m):
    m.polyline("Ограждения", path([(14, 54), (14, 84), (52, 84), (52, 54)]), closed=True)
    m.polyline("Ограждения", path([(56, 56), (56, 84), (86, 84, -QUARTER), (92, 78), (92, 56)]))
    m.polyline("Ограждения", path([(158, 60), (158, 84), (190, 84), (190, 60)]), closed=True)


# ---- Networks, trees, points ----------------------------------------------------------------------

def add_networks(d, m):
    d.add_mline_style("Standard", [(0.5, 256), (-0.5, 256)])
    d.add_mline_style("ТЕПЛОТРАССА", [(0.6, 1), (0.0, 256), (-0.6, 5)])
    m.multiline("Сети", "ТЕПЛОТРАССА", (0.6, 0.0, -0.6),
                path([(0, 104), (96, 104), (96, 128), (100, 160), (112, 160)]))
    wells = [(12, 88), (52, 88), (92, 88), (134, 88), (176, 88), (222, 88)]
    m.old_polyline("Сети", path([(x, y) for x, y in wells]), is3d=False)
    for number, (x, y) in enumerate(wells, 1):
        z = ground.height(x, y)
        m.insert("Колодцы", "КОЛОДЕЦ_К", at(x, y, z), [
            ("НОМЕР", f"К-{number}", 1.2, 0.4, 1.0), ("ОТМ_ЛЮКА", f"{z:.2f}", 1.2, -1.2, 1.0)])
    for number, (x, y) in enumerate([(30, 102), (88, 102), (150, 102)], 1):
        m.insert("Колодцы", "КОЛОДЕЦ_В", at(x, y, ground.height(x, y)),
                 [("НОМЕР", f"В-{number}", 1.2, 0.4, 1.0)], color=5)
    poles = [(8, 86.5), (58, 86.5), (108, 86.5), (158, 86.5), (208, 86.5), (252, 86.5)]
    m.old_polyline("ЛЭП", path([(x, y, ground.height(x, y) + 8.0) for x, y in poles]), is3d=True)
    for i, (x, y) in enumerate(poles):
        lit = i % 2 == 0
        m.insert("ЛЭП", "ОПОРА_С_ФОНАРЁМ" if lit else "ОПОРА", at(x, y, ground.height(x, y)),
                 rotation=90.0 if lit else 0.0)


def add_trees(m):
    numbers = scatter(7)
    for i in range(13):
        x, y = 10 + 19 * i + 3 * next(numbers), 101.5 if i % 2 else 89.3
        if 104 < x < 136:
            continue
        size = 0.8 + 0.5 * next(numbers)
        m.insert("Растительность", "ДЕРЕВО_ЛИСТВЕННОЕ", at(x, y), scale=(size, size, 1.0),
                 rotation=360.0 * next(numbers))
    for _ in range(12):
        x, y = 148 + 46 * next(numbers), 150 + 24 * next(numbers)
        size = 0.9 + 0.6 * next(numbers)
        m.insert("Растительность", "ДЕРЕВО_ХВОЙНОЕ", at(x, y), scale=(-size, size, 1.0))
    m.mtext("Растительность", at(166, 178), 2.0, 40.0, r"сосна\P\fArial|b0|i1|c204;12 м")


def built_over(x, y):
    outlines = [b[0] for b in BUILDINGS] + [SCHOOL, LIBRARY]
    return any(min(p[0] for p in o) < x < max(p[0] for p in o)
               and min(p[1] for p in o) < y < max(p[1] for p in o) for o in outlines)


def add_points(m):
    numbers = scatter(41)
    for i in range(12):
        for j in range(6):
            x = 12 + 21 * i + 6 * next(numbers)
            y = 46 + 23 * j + 6 * next(numbers)
            if y > ground.DEPTH - 3 or not ground.dry(x, y) or built_over(x, y):
                continue
            z = ground.height(x, y)
            m.dot("Отметки", at(x, y, z))
            m.insert("Отметки", "ПИКЕТ", at(x, y, z), [("ОТМЕТКА", f"{z:.2f}", 0.6, -0.5, 1.2)])
    for name, x, y in (("пп 4217", 100, 96.5), ("пп 4218", 240, 96.5), ("пп 4219", 118, 172)):
        z = ground.height(x, y)
        m.insert("Геодезическая основа", "ПУНКТ_ПОЛИГОНОМЕТРИИ", at(x, y, z), [
            ("НАЗВАНИЕ", name, 2.0, 0.3, 1.4), ("ОТМЕТКА", f"{z:.3f}", 2.0, -1.7, 1.4)], color=1)


# ---- What is planned, what is old, the frame ------------------------------------------------------

def add_hidden(m):
    m.polyline("Проект", path(rectangle(60, 140, 92, 170)), closed=True, linetype="ШТРИХОВАЯ")
    m.infinite("XLINE", "Проект", at(0, 135), (0.0, 1.0, 0.0))
    m.infinite("RAY", "Проект", at(124, 160), (1.0, 0.0, 0.0))
    m.text("Проект", at(64, 154), 2.2, "Проектируемый гараж")
    m.line("Архив съёмки", at(14, 54), at(52, 58))
    for x, y in ((200, 148), (212, 148)):
        corners = [(x, y), (x + 12, y), (x + 12, y + 12), (x + 12, y + 12)]
        m.corners("3DFACE", "Архив съёмки", [at(*p, ground.height(*p)) for p in corners])


def add_frame(d, m):
    m.polyline("Рамка", path(rectangle(0, 0, ground.WIDTH, ground.DEPTH)), closed=True, width=0.6)
    for x in range(0, int(ground.WIDTH) + 1, 50):
        m.line("Рамка", at(x, -3), at(x, 0))
        m.text("Рамка", at(x + 0.5, -3), 1.6, f"{EAST + x:.0f}")
    for y in range(0, int(ground.DEPTH) + 1, 50):
        m.line("Рамка", at(-3, y), at(0, y))
        m.text("Рамка", at(-0.8, y + 0.5), 1.6, f"{NORTH + y:.0f}", rotation=90.0)
    m.insert("Рамка", "СТРЕЛКА_СЕВЕР", at(250, 160))
    m.text("Рамка", at(70, 190), 5.0, "Топографический план М 1:500")
    m.mtext("Рамка", at(0, -8), 2.2, 120.0,
            r"Система координат местная, система высот Балтийская 1977 г.\P"
            r"Сплошные горизонтали проведены через 0,5 метра.\P"
            r"{\fArial|b1|i0|c204;Съёмка выполнена в июне 2024 г. электронным тахеометром от пунктов"
            r" полигонометрии; подземные сети нанесены по данным владельцев и обследованию колодцев,"
            r" полнота и положение их согласованы с эксплуатирующими организациями.}")
    d.paper.text("Рамка", (20.0, 10.0), 5.0, "Лист 1 из 1")


def build():
    d = Document()
    d.layers, d.line_types = LAYERS, LINE_TYPES
    d.styles = [("Standard", "txt"), ("ТОПО", "arial.ttf")]
    m = d.model
    picture, columns, rows = ground.relief_picture(PIXEL)
    d.image("Подложка", "survey-plan-relief.png", at(0, 0), PIXEL, columns, rows)
    add_blocks(d)
    add_water(m)
    add_roads(m)
    add_relief(d, m)
    add_buildings(m)
    add_fences(m)
    add_networks(d, m)
    add_trees(m)
    add_points(m)
    add_hidden(m)
    add_frame(d, m)
    return d.text().encode("cp1251"), picture


def main():
    here = Path(__file__).resolve().parent
    plan, picture = build()
    (here / "survey-plan.dxf").write_bytes(plan)
    (here / "survey-plan-relief.png").write_bytes(picture)


if __name__ == "__main__":
    main()
