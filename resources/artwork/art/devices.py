# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""One picture per device family. A family keeps its material and its face through all its variants:
Fenna, Quenta and Lumo are small charcoal desktop units, Cormel is slate blue, Tarvex graphite with a
teal band, three-phase cabinets light grey."""

from . import cases
from . import parts as p
from .cases import BLACK, CHARCOAL, CORMEL, FACE, GRAPHITE, LEAF, LIGHT, SILVER
from .svg import GREEN, HAIRLINE, INK, ORANGE, OUTLINE, RED, SLATE, TEAL, WHITE, YELLOW, darker, lighter


# Small line-interactive desktop units.

def fennapro():
    g, b = cases.desktop(w=54, h=98)
    cx = b.x + b.w / 2
    p.panel(g, b.x + 7, b.y + 8, b.w - 14, 44, FACE, 4)
    p.leds(g, cx - 10, b.y + 16, [GREEN, YELLOW, ORANGE], 10)
    p.knob(g, cx, b.y + 36, 8, CHARCOAL)
    p.slots(g, b.x + 9, b.y + 62, b.w - 18, 24, 5, CHARCOAL)
    p.badge(g, cx, b.y + 91)
    return g


def fennaiipro():
    g, b = cases.desktop(w=52, h=114)
    p.panel(g, b.x + 6, b.y + 7, b.w - 12, b.h - 14, FACE, 6)
    cx = b.x + b.w / 2
    p.knob(g, cx, b.y + 24, 9, CHARCOAL)
    p.leds(g, cx, b.y + 43, [GREEN, GREEN, YELLOW, ORANGE], 7, down=True)
    p.bars_vent(g, b.x + 13, b.y + 74, b.w - 26, 20, 6, CHARCOAL)
    p.badge(g, cx, b.y + 101)
    return g


def fenna_avr():
    g, b = cases.start(84, 38, 84, bottom=152)
    p.feet(g, b)
    p.body(g, b, CHARCOAL)
    p.sockets_on_top(g, b, 2, 4)
    p.panel(g, b.x + 6, b.y + 7, b.w - 12, b.h - 14, FACE, 4)
    p.knob(g, b.x + 20, b.y + b.h / 2, 7, CHARCOAL)
    p.leds(g, b.x + 37, b.y + b.h / 2, [GREEN, YELLOW, ORANGE], 8)
    p.badge(g, b.x + b.w - 15, b.y + b.h / 2)
    return g


def quenta():
    g, b = cases.desktop(w=62, h=96)
    cx, cy = b.x + b.w / 2, b.y + 33
    g.circle(cx, cy, 23, fill=g.linear([(0, lighter(FACE, 0.25)), (1, FACE)]), stroke=INK, stroke_width=HAIRLINE)
    g.circle(cx, cy, 17, fill=p.GLASS, stroke="#0b1118", stroke_width=1)
    for radius, colour in ((13.2, TEAL), (9.2, GREEN)):
        g.path(f"M{cx - radius * 0.87:.2f} {cy + radius * 0.5:.2f} A{radius} {radius} 0 1 1 "
               f"{cx + radius * 0.87:.2f} {cy + radius * 0.5:.2f}",
               fill="none", stroke=colour, stroke_width=2.2, stroke_linecap="round")
    g.rect(cx - 4, cy + 2, 8, 4.4, 1, fill="#9fe4e0")
    p.key(g, cx - 5, b.y + 61, 10, 4.6)
    p.slots(g, b.x + 10, b.y + 71, b.w - 20, 16, 3, CHARCOAL)
    return g


def lumolcd():
    g, b = cases.desktop(w=60, h=106)
    p.panel(g, b.x + 6, b.y + 7, b.w - 12, 56, FACE, 4)
    p.lcd(g, b.x + 10, b.y + 12, b.w - 20, 30, "bars")
    for i in range(3):
        p.key(g, b.x + 12 + i * 13.5, b.y + 49, 9, 5)
    p.slots(g, b.x + 9, b.y + 71, b.w - 18, 22, 4, CHARCOAL)
    p.badge(g, b.x + b.w / 2, b.y + 99)
    return g


def _lumopro(h):
    g, b = cases.desktop(w=60, h=h)
    p.panel(g, b.x + 5, b.y + 6, b.w - 10, 62, SILVER, 5)
    p.lcd(g, b.x + 10, b.y + 11, b.w - 20, 24, "wave")
    p.knob(g, b.x + b.w / 2, b.y + 52, 9, CHARCOAL)
    return g, b


def lumopro():
    g, b = _lumopro(110)
    p.mesh(g, b.x + 8, b.y + 75, b.w - 16, 24, CHARCOAL)
    return g


def lumopro_avr():
    g, b = _lumopro(120)
    for side in (-1, 1):
        p.leds(g, b.x + b.w / 2 + side * 18, b.y + 44, [GREEN, YELLOW, ORANGE], 7.5, down=True)
    p.bars_vent(g, b.x + 9, b.y + 78, b.w - 18, 14, 8, CHARCOAL)
    p.stripe(g, b, b.y + 100, 4, TEAL)
    p.badge(g, b.x + b.w / 2, b.y + 111)
    return g


# Rack units.

def lumopro_rack():
    g, b = cases.rack(30, CHARCOAL)
    p.panel(g, b.x + 5, b.y + 5, 38, b.h - 10, SILVER, 3)
    p.lcd(g, b.x + 8, b.y + 8, 19, b.h - 16, "bars")
    p.knob(g, b.x + 35, b.y + b.h / 2, 5, CHARCOAL)
    p.mesh(g, b.x + 48, b.y + 6, 33, b.h - 12, CHARCOAL)
    return g


def lumopro_avr_rack():
    g, b = cases.rack(36, CHARCOAL)
    p.panel(g, b.x + 5, b.y + 5, b.w - 10, 17, SILVER, 3)
    p.lcd(g, b.x + 8, b.y + 7, 32, 13, "wave")
    p.leds(g, b.x + 48, b.y + 13.5, [GREEN, YELLOW, ORANGE], 6)
    p.knob(g, b.x + b.w - 14, b.y + 13.5, 5, CHARCOAL)
    p.bars_vent(g, b.x + 7, b.y + 26, b.w - 14, 6, 12, CHARCOAL)
    return g


def cormel_rack():
    g, b = cases.rack(32, CORMEL)
    p.panel(g, b.x + b.w / 2 - 17, b.y + 5, 34, b.h - 10, FACE, 3)
    p.leds(g, b.x + b.w / 2 - 10, b.y + 11, [GREEN, YELLOW, ORANGE, ORANGE], 6.6)
    p.knob(g, b.x + b.w / 2, b.y + 20.5, 4.6, CORMEL)
    for x in (b.x + 5, b.x + b.w - 26):
        p.slots(g, x, b.y + 6, 21, b.h - 10, 4, CORMEL)
    return g


def cormel_hid_rack():
    g, b = cases.rack(32, CORMEL)
    p.panel(g, b.x + 5, b.y + 5, 44, b.h - 10, FACE, 3)
    p.lcd(g, b.x + 8, b.y + 8, 26, b.h - 16, "bars")
    cases.usb(g, b.x + 37, b.y + 9)
    p.key(g, b.x + 37.5, b.y + 18, 8, 4)
    p.bars_vent(g, b.x + 54, b.y + 7, 28, b.h - 14, 7, CORMEL)
    return g


def cormelxl_rack():
    g, b = cases.rack(48, CORMEL)
    for x in (b.x + 5, b.x + b.w - 8.4):
        p.handle(g, x, b.y + 10, b.h - 20)
    p.panel(g, b.x + b.w / 2 - 22, b.y + 6, 44, 20, FACE, 3)
    p.lcd(g, b.x + b.w / 2 - 18, b.y + 9, 22, 14, "bars")
    p.knob(g, b.x + b.w / 2 + 13, b.y + 16, 5, CORMEL)
    p.slots(g, b.x + 14, b.y + 31, b.w - 28, 13, 3, CORMEL)
    return g


def cormelpro_rack():
    g, b = cases.rack(34, CORMEL)
    p.lcd(g, b.x + b.w / 2 - 19, b.y + 6, 38, b.h - 12, "wave")
    for x in (b.x + 6, b.x + b.w - 20):
        p.mesh(g, x, b.y + 7, 15, b.h - 13, CORMEL)
    p.stripe(g, b, b.y + b.h - 4, 3.2, TEAL, side=False)
    return g


# Cormel towers.

def cormel():
    g, b = cases.tower()
    p.panel(g, b.x + 7, b.y + 8, b.w - 14, 50, FACE, 4)
    p.leds(g, b.x + 17, b.y + 17, [GREEN, GREEN, YELLOW, ORANGE], 8, down=True)
    for i in range(4):
        g.rect(b.x + 24, b.y + 16.2 + i * 8, 20 - i * 3, 1.8, 0.9, fill="#6f8294")
    p.key(g, b.x + 12, b.y + 48, b.w - 24, 5.4)
    p.slots(g, b.x + 9, b.y + 68, b.w - 18, 38, 7, CORMEL)
    p.badge(g, b.x + b.w / 2, b.y + 114)
    return g


def cormel_hid():
    g, b = cases.tower(h=118)
    p.panel(g, b.x + 7, b.y + 8, b.w - 14, 52, FACE, 4)
    p.lcd(g, b.x + 11, b.y + 12, b.w - 22, 24, "bars")
    p.knob(g, b.x + 19, b.y + 49, 6, CORMEL)
    cases.usb(g, b.x + b.w - 24, b.y + 46)
    p.bars_vent(g, b.x + 10, b.y + 70, b.w - 20, 34, 7, CORMEL)
    p.badge(g, b.x + b.w / 2, b.y + 111)
    return g


def cormelj():
    g, b = cases.tower(w=54, h=116, tone=SILVER)
    p.panel(g, b.x + 6, b.y + 7, b.w - 12, 34, CORMEL, 4)
    p.leds(g, b.x + 16, b.y + 16, [GREEN, YELLOW, ORANGE], 11)
    p.key(g, b.x + 14, b.y + 27, b.w - 28, 6)
    p.slots(g, b.x + 8, b.y + 52, b.w - 16, 46, 8, SILVER)
    p.badge(g, b.x + b.w / 2, b.y + 107, SLATE)
    return g


def cormellt():
    g = p.picture()
    pack = p.Box(70.5, 84.5, 42, 92, 52)
    unit = p.Box(10.5, 66.5, 50, 110, 52)
    p.ground(g, pack)
    p.ground(g, unit)
    for b in (unit, pack):
        p.feet(g, b, 4)
        p.body(g, b, CORMEL)
    p.panel(g, unit.x + 6, unit.y + 7, unit.w - 12, 46, FACE, 4)
    p.lcd(g, unit.x + 9, unit.y + 10, unit.w - 18, 20, "bars")
    p.knob(g, unit.x + unit.w / 2, unit.y + 41, 6.5, CORMEL)
    p.slots(g, unit.x + 8, unit.y + 62, unit.w - 16, 32, 6, CORMEL)
    p.badge(g, unit.x + unit.w / 2, unit.y + 102)
    cases.battery_mark(g, pack.x + pack.w / 2, pack.y + 24)
    p.slots(g, pack.x + 7, pack.y + 44, pack.w - 14, 38, 7, CORMEL)
    return g


def cormelpro():
    g, b = cases.tower(h=130)
    p.panel(g, b.x + 6, b.y + 7, b.w - 12, 66, FACE, 4)
    p.lcd(g, b.x + 10, b.y + 11, b.w - 20, 36, "wave")
    for i in range(3):
        p.key(g, b.x + 11 + i * 13, b.y + 55, 10, 5)
    p.leds(g, b.x + 20, b.y + 67, [GREEN, YELLOW, ORANGE], 9)
    p.mesh(g, b.x + 8, b.y + 81, b.w - 16, 32, CORMEL)
    p.stripe(g, b, b.y + 120, 4, TEAL)
    return g


def cormelxl():
    g, b = cases.start(66, 136, 62, bottom=172)
    p.casters(g, b)
    p.body(g, b, CORMEL)
    p.side_vents(g, b, CORMEL, 0.68, 5)
    p.panel(g, b.x + 8, b.y + 8, b.w - 16, 44, FACE, 4)
    p.lcd(g, b.x + 12, b.y + 12, 30, 22, "bars")
    p.knob(g, b.x + b.w - 17, b.y + 23, 6, CORMEL)
    p.leds(g, b.x + 16, b.y + 43, [GREEN, YELLOW, ORANGE], 10)
    for top in (60, 97):
        p.slots(g, b.x + 9, b.y + top, b.w - 18, 30, 6, CORMEL)
        p.seam(g, b.x + 1.5, b.y + top - 4, b.x + b.w - 1.5, b.y + top - 4, CORMEL)
    return g


def cormelrt():
    return cases.convertible(CORMEL, darker(CORMEL, 0.35), 0)


def cormelrt_xl():
    return cases.convertible(CORMEL, darker(CORMEL, 0.35), 1)


def cormelmeridian():
    g, b = cases.start(62, 148, 56, bottom=172)
    p.casters(g, b)
    p.body(g, b, CORMEL)
    p.side_vents(g, b, CORMEL, 0.74, 4)
    p.panel(g, b.x + 5, b.y + 6, b.w - 10, 62, FACE, 3)
    p.lcd(g, b.x + 9, b.y + 10, b.w - 18, 38, "mimic")
    p.leds(g, b.x + 14, b.y + 59, [GREEN, YELLOW, ORANGE], 7)
    p.key(g, b.x + b.w - 25, b.y + 56.5, 13, 5)
    p.stripe(g, b, b.y + 74, 3.4, TEAL)
    p.mesh(g, b.x + 8, b.y + 84, b.w - 16, 54, CORMEL, 4.6, 1.3)
    return g


# Online double-conversion units.

def tarvex():
    g, b = cases.tower(w=56, h=128, tone=GRAPHITE)
    p.panel(g, b.x + 6, b.y + 7, b.w - 12, 54, FACE, 3)
    p.lcd(g, b.x + 10, b.y + 11, b.w - 20, 28, "wave")
    p.leds(g, b.x + 13, b.y + 51, [GREEN, YELLOW, ORANGE], 6.5)
    p.key(g, b.x + b.w - 22, b.y + 48, 12, 5.5)
    p.stripe(g, b, b.y + 66, 4, TEAL)
    p.slots(g, b.x + 8, b.y + 77, b.w - 16, 36, 7, GRAPHITE)
    p.badge(g, b.x + b.w / 2, b.y + 119)
    return g


def tarvexrt():
    return cases.convertible(GRAPHITE, FACE, 0, "wave", TEAL)


def tarvexrt_6_10():
    return cases.convertible(GRAPHITE, FACE, 1, "wave", TEAL)


def tarvexrtplus6_10():
    g, (unit, pack) = cases.stacked([34, 40], GRAPHITE)
    p.lcd(g, unit.x + 6, unit.y + 6, 30, unit.h - 12, "mimic")
    p.leds(g, unit.x + 42, unit.y + 10, [GREEN, YELLOW, ORANGE], 6)
    p.key(g, unit.x + 41, unit.y + 18, 14, 6)
    p.mesh(g, unit.x + 60, unit.y + 6, 22, unit.h - 11, GRAPHITE)
    p.stripe(g, unit, unit.y + unit.h - 4.4, 3.4, TEAL, side=False)
    cases.battery_mark(g, pack.x + 20, pack.y + pack.h / 2)
    p.mesh(g, pack.x + 36, pack.y + 7, 46, pack.h - 13, GRAPHITE)
    return g


def tarvex_rt_plus():
    g, b = cases.rack(36, GRAPHITE)
    p.panel(g, b.x + 4, b.y + 4, b.w - 8, b.h - 12, FACE, 3)
    p.lcd(g, b.x + b.w / 2 - 17, b.y + 6.5, 34, b.h - 17, "wave")
    p.leds(g, b.x + 10, b.y + 16, [GREEN, YELLOW, ORANGE], 6)
    p.knob(g, b.x + b.w - 15, b.y + 16, 6, GRAPHITE)
    p.stripe(g, b, b.y + b.h - 4.4, 3.4, TEAL, side=False)
    return g


def tarvex_rt_pro_1k_3k():
    g, b = cases.rack(34, GRAPHITE)
    for x in (b.x + 4, b.x + b.w - 7.4):
        p.handle(g, x, b.y + 6, b.h - 12)
    p.lcd(g, b.x + 12, b.y + 6, 24, b.h - 12, "bars")
    p.mesh(g, b.x + 41, b.y + 6, 36, 14, GRAPHITE)
    p.leds(g, b.x + 44, b.y + 27, [GREEN, YELLOW, ORANGE], 6)
    p.key(g, b.x + 63, b.y + 24, 13, 5.4)
    return g


def tarvex_kombi_10k_20k():
    g, b = cases.start(66, 140, 60, bottom=172)
    p.casters(g, b)
    p.body(g, b, GRAPHITE)
    p.side_vents(g, b, GRAPHITE, 0.7, 5)
    p.panel(g, b.x + 6, b.y + 7, b.w - 12, 40, FACE, 3)
    p.lcd(g, b.x + 10, b.y + 11, 32, 26, "mimic")
    p.leds(g, b.x + b.w - 15, b.y + 15, [GREEN, YELLOW, ORANGE], 8, down=True)
    p.stripe(g, b, b.y + 52, 4, TEAL)
    for row in range(3):
        top = b.y + 61 + row * 26
        p.panel(g, b.x + 6, top, b.w - 12, 22, lighter(GRAPHITE, 0.08), 2)
        p.slots(g, b.x + 16, top + 5, b.w - 32, 14, 3, GRAPHITE)
        for x in (b.x + 8.5, b.x + b.w - 11.9):
            p.handle(g, x, top + 5, 12)
    return g


def tarvex_noir():
    g, b = cases.tower(w=58, h=132, tone=BLACK)
    gloss = g.linear([(0, "#3a4149"), (0.45, "#14181c"), (1, "#0b0d10")], 0, 0, 0.7, 1)
    g.rect(b.x + 5, b.y + 6, b.w - 10, b.h - 12, 3, fill=gloss, stroke="#4b545d", stroke_width=HAIRLINE)
    p.lcd(g, b.x + 10, b.y + 14, b.w - 20, 30, "wave", "#dfe9f2")
    g.line(b.x + 14, b.y + 52, b.x + b.w - 14, b.y + 52, stroke=TEAL, stroke_width=2, stroke_linecap="round")
    p.knob(g, b.x + b.w / 2, b.y + 67, 6.5, BLACK, "#dfe9f2")
    p.mesh(g, b.x + 11, b.y + 82, b.w - 22, 32, "#05070a", 4.6, 1)
    p.badge(g, b.x + b.w / 2, b.y + 120)
    return g


# Cabinets.

def tarvex33():
    g, b = cases.cabinet(TEAL)
    for top in (69, 104):
        p.slots(g, b.x + 13, b.y + top, b.w - 30, 28, 6, LIGHT)
    return g


def tarvex33verde():
    g, b = cases.cabinet(LEAF, "#2c4a42")
    g.rect(b.x + 9, b.y + 65, 6, b.h - 81, 1.5, fill=LEAF)
    p.mesh(g, b.x + 20, b.y + 67, b.w - 40, b.h - 84, LIGHT, 4.8, 1.3)
    return g


def tarvex_dual31():
    g = p.picture()
    b = p.box_between(92, 140, 46, bottom=174)
    p.ground(g, b)
    p.body(g, b, GRAPHITE)
    half = b.w / 2
    p.seam(g, b.x + half, b.y + 1.5, b.x + half, b.y + b.h - 9, GRAPHITE)
    for i in range(2):
        x = b.x + i * half
        p.panel(g, x + 5, b.y + 7, half - 10, 46, FACE, 3)
        p.lcd(g, x + 8, b.y + 11, half - 16, 24, "wave")
        p.leds(g, x + half / 2 - 7, b.y + 44, [GREEN, YELLOW, ORANGE], 7)
        p.slots(g, x + 8, b.y + 70, half - 16, 52, 9, GRAPHITE)
    p.stripe(g, b, b.y + 58, 4, TEAL)
    g.rect(b.x, b.y + b.h - 8, b.w, 8, fill=darker(GRAPHITE, 0.5), stroke=INK, stroke_width=OUTLINE)
    return g


def hedrix():
    g, b = cases.start(84, 156, 46, bottom=176)
    p.body(g, b, SLATE)
    p.panel(g, b.x + 6, b.y + 6, b.w - 12, 32, FACE, 2)
    p.lcd(g, b.x + 22, b.y + 9, 40, 26, "mimic")
    for row in range(6):
        top = b.y + 42 + row * 17
        p.panel(g, b.x + 6, top, b.w - 12, 15, "#5d6c7b", 1.4)
        for x in (b.x + 9, b.x + b.w - 12.4):
            p.handle(g, x, top + 2.6, 10)
        p.mesh(g, b.x + 18, top + 3, 38, 10, "#5d6c7b", 3.8, 1.05)
        p.leds(g, b.x + 61, top + 7.5, [GREEN, GREEN], 5)
    g.rect(b.x, b.y + b.h - 8, b.w, 8, fill=darker(SLATE, 0.5), stroke=INK, stroke_width=OUTLINE)
    return g


def borel():
    g = p.picture()
    tone = "#41617f"
    base = p.Box(9.5, 151.5, 96, 13, 58)
    b = p.Box(9.5, 81.5, 96, 70, 58)
    p.ground(g, base)
    p.body(g, base, "#3a424b")
    for x in (base.x + 18, base.x + base.w - 34):
        g.rect(x, base.y + 3.6, 16, 6, 1, fill=INK)
    p.body(g, b, tone)
    _exhaust(g, b)
    cases.door(g, b.x + 5, b.y + 6, 29, b.h - 12, tone)
    p.lcd(g, b.x + 9, b.y + 12, 20, 14, "wave")
    p.leds(g, b.x + 11.5, b.y + 32.5, [GREEN, YELLOW, ORANGE], 5.5)
    g.circle(b.x + 19, b.y + 53, 4.6, fill=RED, stroke=INK, stroke_width=HAIRLINE)
    g.circle(b.x + 19, b.y + 53, 7, fill="none", stroke=YELLOW, stroke_width=1.4)
    p.panel(g, b.x + 37, b.y + 6, 54, 12, tone, 1.6)
    p.badge(g, b.x + 64, b.y + 12)
    p.slots(g, b.x + 39, b.y + 23, 50, 41, 8, tone)
    g.open_group(transform=b.side_plane())
    g.rect(b.d * 0.14, 12, b.d * 0.72, b.h - 24, 2, fill=darker(tone, 0.62))
    for i in range(7):
        g.line(b.d * 0.14, 17 + i * 6, b.d * 0.86, 17 + i * 6, stroke=tone, stroke_width=1.4)
    g.close_group()
    return g


def _exhaust(g, b):
    x, y = b.x + b.w - 16, b.y - b.dy * 0.5
    pipe = g.linear([(0, "#c3ccd5"), (1, "#5f6b77")], 0, 0, 1, 0)
    edge = dict(stroke=INK, stroke_width=OUTLINE, stroke_linejoin="round")
    g.ellipse(x + 5, y, 9, 3.6, fill=darker("#41617f", 0.35))
    g.path(f"M{x:.2f} {y:.2f} v-25 h10 v25 a5 2 0 0 1 -10 0z", fill=pipe, **edge)
    g.polygon([(x - 2, y - 25), (x + 2, y - 30), (x + 16, y - 30), (x + 12, y - 25)], fill="#7c8894", **edge)


def virtual_device():
    """Three equal units in a row, tied by one bus: many devices that are shown as one."""
    g = p.picture()
    boxes = [p.Box(12.5 + i * 36, 74.5, 34, 98, 42) for i in range(3)]
    for b in boxes:
        p.ground(g, b, 2)
    for b in boxes:
        p.body(g, b, SLATE)
        p.panel(g, b.x + 4, b.y + 6, b.w - 8, 34, FACE, 3)
        p.lcd(g, b.x + 6, b.y + 8.5, b.w - 12, 19, "bars")
        p.leds(g, b.x + 11, b.y + 34, [GREEN, GREEN, GREEN], 6)
        p.slots(g, b.x + 6, b.y + 48, b.w - 12, 40, 7, SLATE)
    tops = [(b.x + (b.w + b.dx) / 2, b.y - b.dy / 2) for b in boxes]
    bus = 32
    (left, top), (middle, _), (right, _) = tops
    route = (f"M{left:.1f} {top:.1f} V{bus + 4} q0 -4 4 -4 H{right - 4:.1f} q4 0 4 4 V{top:.1f} "
             f"M{middle:.1f} {top:.1f} V{bus}")
    for stroke, width in ((INK, 4.6), (TEAL, 2.4)):
        g.path(route, fill="none", stroke=stroke, stroke_width=width, stroke_linecap="round", stroke_linejoin="round")
    for x, y in tops:
        g.ellipse(x, y, 5, 3.2, fill=TEAL, stroke=INK, stroke_width=HAIRLINE)
    g.circle(middle, bus, 6.5, fill=TEAL, stroke=INK, stroke_width=OUTLINE)
    g.circle(middle, bus, 2.4, fill=WHITE)
    return g


FAMILIES = {f.__name__: f for f in (
    tarvex, tarvex33, tarvex33verde, tarvex_noir, tarvex_dual31, tarvex_kombi_10k_20k, tarvexrt, tarvexrt_6_10,
    tarvexrtplus6_10, tarvex_rt_plus, tarvex_rt_pro_1k_3k, cormel, cormelmeridian, cormel_hid, cormel_hid_rack,
    cormelj, cormellt, cormelpro, cormelpro_rack, cormel_rack, cormelrt, cormelrt_xl, cormelxl, cormelxl_rack,
    lumolcd, lumopro, lumopro_avr, lumopro_avr_rack, lumopro_rack, fenna_avr, fennaiipro, fennapro, quenta,
    hedrix, borel, virtual_device)}
