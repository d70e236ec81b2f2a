# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""The cases that device families share, each on its shadow, and their materials."""

from . import parts as p
from .svg import GREEN, HAIRLINE, INK, ORANGE, OUTLINE, SLATE, TEAL, YELLOW, darker, lighter

CHARCOAL = "#434b54"
SILVER = "#b4bdc6"
CORMEL = "#3b5a7a"
GRAPHITE = "#39424c"
BLACK = "#1d2227"
LIGHT = "#cdd4da"
FACE = "#1f2a35"
LEAF = "#3aa655"


def start(w, h, d, bottom=176, shift=0):
    g = p.picture()
    b = p.box_between(w, h, d, bottom, shift)
    p.ground(g, b)
    return g, b


def desktop(w=58, h=104, d=72, tone=CHARCOAL, rows=5):
    g, b = start(w, h, d, bottom=164)
    p.feet(g, b)
    p.body(g, b, tone)
    p.side_vents(g, b, tone, 0.58, rows)
    return g, b


def rack(h, tone, bottom=None, d=66):
    """A unit with mounting ears; `h` of 14 per height unit."""
    g, b = start(86, h, d, bottom=bottom or 122 + h / 2)
    p.body(g, b, tone)
    g.open_group(transform=b.top_plane())
    for row in range(2):
        for i in range(9):
            g.rect(b.w * 0.12 + i * b.w * 0.088, b.d * (0.56 + row * 0.16), 2.4, 6, 1, fill=darker(tone, 0.55))
    g.line(0, b.d * 0.34, b.w, b.d * 0.34, stroke=darker(tone, 0.3), stroke_width=HAIRLINE)
    g.close_group()
    p.ears(g, b)
    return g, b


def usb(g, x, y):
    g.rect(x, y, 9, 5.6, 1, fill="#c8d0d8", stroke=INK, stroke_width=0.7)
    g.rect(x + 1.8, y + 1.6, 5.4, 1.6, fill=INK)


def tower(w=58, h=124, d=66, tone=CORMEL, bottom=174, shift=0):
    g, b = start(w, h, d, bottom, shift)
    p.feet(g, b)
    p.body(g, b, tone)
    p.side_vents(g, b, tone, 0.66, 5)
    return g, b


def battery_mark(g, cx, cy, colour="#dfe6ec"):
    g.rect(cx - 8, cy - 5, 15, 10, 1.6, fill="none", stroke=colour, stroke_width=1.3)
    g.rect(cx + 7.6, cy - 2, 2, 4, 0.6, fill=colour)
    for i in range(3):
        g.rect(cx - 5.8 + i * 4, cy - 2.8, 2.6, 5.6, 0.4, fill=TEAL)


def standing(g, b, tone, face=None):
    """A narrow convertible unit on its stand, grips at the top and the bottom of the front."""
    for x in (b.x - 5, b.x + b.w - 5):
        g.polygon([(x, b.y + b.h + 4), (x + 10, b.y + b.h + 4), (x + 8, b.y + b.h - 5), (x + 2, b.y + b.h - 5)],
                  fill=INK)
    p.body(g, b, tone)
    if face:
        p.panel(g, b.x + 3, b.y + 3, b.w - 6, b.h - 6, face, 3)


def convertible(tone, face, packs, content="bars", stripe=None):
    """A convertible unit standing up, with `packs` battery packs of the same form on its right."""
    g = p.picture()
    w, h, d, step = 34, 122, (84 if packs == 0 else 62), 44
    total = w + packs * step + d * p.DEPTH_X
    left = round((p.WIDTH - total) / 2) + 0.5
    boxes = [p.Box(left + i * step, 172.5 - h, w, h, d) for i in range(packs + 1)]
    for b in boxes:
        p.ground(g, b)
    for b in boxes:
        standing(g, b, tone, face)
        if stripe:
            g.rect(b.x + 3, b.y + b.h - 22, b.w - 6, 3, fill=stripe)
    for pack in boxes[1:]:
        battery_mark(g, pack.x + pack.w / 2, pack.y + 20)
        p.mesh(g, pack.x + 7, pack.y + 36, pack.w - 14, 58, face)
    unit = boxes[0]
    p.lcd(g, unit.x + 6, unit.y + 8, unit.w - 12, 30, content)
    for i in range(2):
        p.key(g, unit.x + 7.5 + i * 11, unit.y + 43, 8, 4.4)
    p.leds(g, unit.x + 10.5, unit.y + 54, [GREEN, YELLOW, ORANGE], 6.5)
    p.mesh(g, unit.x + 7, unit.y + 62, unit.w - 14, 34, face)
    p.badge(g, unit.x + unit.w / 2, unit.y + 109)
    return g


def stacked(heights, tone):
    """Rack units lying on one another, the lowest last."""
    g = p.picture()
    total = sum(heights)
    base = p.box_between(86, heights[-1], 66, bottom=116 + total / 2)
    p.ground(g, base)
    boxes = []
    bottom = base.y + base.h
    for h in reversed(heights):
        boxes.append(p.Box(base.x, bottom - h, base.w, h, base.d))
        bottom -= h
    for b in boxes:
        p.body(g, b, tone)
        p.ears(g, b)
    return g, boxes[::-1]


def door(g, x, y, w, h, tone, hinge_left=True):
    p.panel(g, x, y, w, h, tone, 1.6)
    grip = x + w - 5 if hinge_left else x + 2.6
    g.rect(grip, y + h * 0.4, 2.4, 13, 1.2, fill="#56626e", stroke=INK, stroke_width=0.6)


def cabinet(accent, frame=SLATE):
    g, b = start(78, 150, 54, bottom=174)
    p.body(g, b, LIGHT)
    p.side_vents(g, b, LIGHT, 0.1, 4)
    g.rect(b.x, b.y + b.h - 8, b.w, 8, fill=darker(frame, 0.35), stroke=INK, stroke_width=OUTLINE)
    p.panel(g, b.x + 5, b.y + 5, b.w - 10, 46, frame, 2)
    p.lcd(g, b.x + 20, b.y + 10, 38, 27, "mimic", lighter(accent, 0.35))
    p.leds(g, b.x + 30, b.y + 44, [GREEN, YELLOW, ORANGE], 9)
    g.rect(b.x + 5, b.y + 54, b.w - 10, 3.6, fill=accent)
    door(g, b.x + 5, b.y + 61, b.w - 10, b.h - 73, LIGHT)
    return g, b
