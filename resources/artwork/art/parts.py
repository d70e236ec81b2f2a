# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""The parts that device pictures are put together from.

Everything stands in one oblique projection: fronts are seen square on, depth runs up and to the right.
Light falls from the top left, so tops are the lightest faces and right sides the darkest."""

from .svg import (GREEN, HAIRLINE, INK, OUTLINE, TEAL, TEAL_LIGHT, WHITE, Drawing, darker, lighter)

WIDTH = 150
HEIGHT = 190
DEPTH_X = 0.62
DEPTH_Y = 0.42

GLASS = "#0f2f3c"


class Box:
    """A cuboid with the front's top left corner at (x, y), `w` wide, `h` high and `d` deep."""

    def __init__(self, x, y, w, h, d):
        self.x, self.y, self.w, self.h, self.d = x, y, w, h, d
        self.dx, self.dy = d * DEPTH_X, d * DEPTH_Y

    def top_plane(self):
        """Transform from the top's own plane: x to the right, y into the depth, origin at the front left."""
        return f"matrix(1 0 {DEPTH_X} {-DEPTH_Y} {self.x:.2f} {self.y:.2f})"

    def side_plane(self):
        """Transform from the right side's own plane: x into the depth, y down, origin at the front top."""
        return f"matrix({DEPTH_X} {-DEPTH_Y} 0 1 {self.x + self.w:.2f} {self.y:.2f})"


def picture():
    return Drawing(WIDTH, HEIGHT)


def box_between(w, h, d, bottom=178, shift=0):
    """A box of the given size, centred on the picture as a whole, its front standing at `bottom`."""
    left = (WIDTH - (w + d * DEPTH_X)) / 2 + shift
    return Box(round(left) + 0.5, bottom - h + 0.5, w, h, d)


def ground(g, b, spread=5):
    """The soft shadow below a box, reaching to the right, away from the light."""
    cx = b.x + (b.w + b.dx) / 2 + 3
    g.ellipse(cx, b.y + b.h - b.dy * 0.3, (b.w + b.dx) / 2 + spread, 6 + b.dy * 0.42,
              fill=g.radial([(0, "#0a1016", 0.42), (0.7, "#0a1016", 0.2), (1, "#0a1016", 0)]))


def body(g, b, tone):
    """The three faces of a box in one material."""
    edge = dict(stroke=INK, stroke_width=OUTLINE, stroke_linejoin="round")
    x, y, w, h, dx, dy = b.x, b.y, b.w, b.h, b.dx, b.dy
    g.polygon([(x + w, y), (x + w + dx, y - dy), (x + w + dx, y + h - dy), (x + w, y + h)],
              fill=g.linear([(0, darker(tone, 0.26)), (1, darker(tone, 0.48))]), **edge)
    g.polygon([(x, y), (x + dx, y - dy), (x + w + dx, y - dy), (x + w, y)],
              fill=g.linear([(0, lighter(tone, 0.38)), (1, lighter(tone, 0.2))], 0, 0, 1, 0), **edge)
    g.rect(x, y, w, h, fill=g.linear([(0, lighter(tone, 0.12)), (1, darker(tone, 0.1))], 0, 0, 0.6, 1), **edge)
    g.polyline([(x + 1.1, y + h - 1.2), (x + 1.1, y + 1.1), (x + w - 1.2, y + 1.1)],
               stroke=WHITE, stroke_opacity=0.35, stroke_width=HAIRLINE)


def panel(g, x, y, w, h, tone, r=2.5):
    """A raised plate on a front."""
    g.rect(x, y, w, h, r, fill=g.linear([(0, lighter(tone, 0.1)), (1, darker(tone, 0.12))]),
           stroke=darker(tone, 0.55), stroke_width=HAIRLINE)
    g.line(x + r, y + 0.9, x + w - r, y + 0.9, stroke=WHITE, stroke_opacity=0.28, stroke_width=HAIRLINE)


def _bars(g, x, y, w, h, colour):
    count = max(3, int(w / 5))
    step = w / count
    for i in range(count):
        rise = h * (0.95 - 0.62 * i / count)
        g.rect(x + i * step, y + h - rise, step * 0.62, rise, fill=colour, fill_opacity=1 - 0.5 * i / count)


def _wave(g, x, y, w, h, colour):
    half = w / 4
    mid = y + h / 2
    g.path(f"M{x:.2f} {mid:.2f} q{half / 2:.2f} {-h * 0.95:.2f} {half:.2f} 0 t{half:.2f} 0 t{half:.2f} 0 t{half:.2f} 0",
           fill="none", stroke=colour, stroke_width=1.1, stroke_linecap="round")


def _mimic(g, x, y, w, h, colour):
    """The one-line diagram of a large unit: rectifier, inverter, load, and the battery below."""
    size = min(h * 0.42, w * 0.2)
    mid = y + h * 0.34
    g.line(x, mid, x + w, mid, stroke=colour, stroke_width=1)
    g.line(x + w / 2, mid, x + w / 2, y + h - size * 0.6, stroke=colour, stroke_width=1)
    for share in (0.24, 0.76):
        g.rect(x + w * share - size / 2, mid - size / 2, size, size, 0.6, fill=GLASS, stroke=colour, stroke_width=1)
    g.rect(x + w / 2 - size * 0.8, y + h - size * 0.75, size * 1.6, size * 0.75, 0.6, fill=colour)


_SCREENS = {"bars": _bars, "wave": _wave, "mimic": _mimic}


def lcd(g, x, y, w, h, content="bars", colour=TEAL_LIGHT):
    """A display: black frame, dark glass, lit content and a reflection from the top left."""
    g.rect(x, y, w, h, 1.8, fill="#101820", stroke=INK, stroke_width=HAIRLINE)
    ix, iy, iw, ih = x + 1.8, y + 1.8, w - 3.6, h - 3.6
    g.rect(ix, iy, iw, ih, 0.8, fill=g.linear([(0, lighter(GLASS, 0.12)), (1, GLASS)]))
    pad = 2.2
    _SCREENS[content](g, ix + pad, iy + pad, iw - 2 * pad, ih - 2 * pad, colour)
    g.polygon([(ix, iy), (ix + iw * 0.5, iy), (ix + iw * 0.18, iy + ih), (ix, iy + ih)], fill=WHITE, fill_opacity=0.08)


def led(g, x, y, colour=GREEN, r=1.5):
    g.circle(x, y, r + 0.8, fill="#0b1118", fill_opacity=0.55)
    g.circle(x, y, r, fill=colour)
    g.circle(x - r * 0.3, y - r * 0.3, r * 0.4, fill=WHITE, fill_opacity=0.75)


def leds(g, x, y, colours, step=5.5, down=False):
    for i, colour in enumerate(colours):
        led(g, x + (0 if down else i * step), y + (i * step if down else 0), colour)


def knob(g, x, y, r, tone, ring=TEAL):
    """A round push button with a lit ring."""
    g.circle(x, y, r, fill=g.linear([(0, lighter(tone, 0.3)), (1, darker(tone, 0.2))], 0, 0, 1, 1),
             stroke=INK, stroke_width=HAIRLINE)
    g.circle(x, y, r * 0.62, fill="none", stroke=ring, stroke_width=1.1)


def key(g, x, y, w=6, h=3.4, tone="#5b6a79"):
    g.rect(x, y, w, h, 1.2, fill=g.linear([(0, lighter(tone, 0.25)), (1, darker(tone, 0.1))]),
           stroke=INK, stroke_width=0.6)


def slots(g, x, y, w, h, count, tone):
    """Horizontal louvres: each a dark slot with a light lower lip."""
    step = h / count
    for i in range(count):
        top = y + i * step
        g.rect(x, top, w, step * 0.5, step * 0.22, fill=darker(tone, 0.62))
        g.line(x + 0.6, top + step * 0.5 + 0.3, x + w - 0.6, top + step * 0.5 + 0.3,
               stroke=WHITE, stroke_opacity=0.22, stroke_width=0.6)


def bars_vent(g, x, y, w, h, count, tone):
    """Upright ventilation slots."""
    step = w / count
    for i in range(count):
        g.rect(x + i * step, y, step * 0.5, h, step * 0.22, fill=darker(tone, 0.62))


def mesh(g, x, y, w, h, tone, pitch=4.0, r=1.15):
    """A perforated sheet, holes staggered."""
    row = 0
    cy = y + r
    while cy <= y + h - r + 0.01:
        cx = x + r + (pitch / 2 if row % 2 else 0)
        while cx <= x + w - r + 0.01:
            g.circle(cx, cy, r, fill=darker(tone, 0.62))
            cx += pitch
        cy += pitch * 0.86
        row += 1


def side_vents(g, b, tone, top=0.5, rows=5):
    """Louvres on the right side of a box."""
    g.open_group(transform=b.side_plane())
    for i in range(rows):
        g.rect(b.d * 0.2, b.h * top + i * 4.6, b.d * 0.6, 2.1, 1, fill=darker(tone, 0.72))
    g.close_group()


def sockets_on_top(g, b, rows, columns):
    """Earthed sockets on the top of a desktop unit."""
    g.open_group(transform=b.top_plane())
    sx, sy = b.w / columns, b.d / rows
    r = min(sx, sy) * 0.4
    for row in range(rows):
        for column in range(columns):
            x, y = (column + 0.5) * sx, (row + 0.5) * sy
            g.circle(x, y, r, fill="#e8ecf0", stroke=INK, stroke_width=0.7)
            g.circle(x, y, r * 0.76, fill="#aab4be")
            for side in (-1, 1):
                g.circle(x + side * r * 0.36, y, r * 0.14, fill=INK)
    g.close_group()


def feet(g, b, inset=6):
    for x in (b.x + inset, b.x + b.w - inset - 8):
        g.rect(x, b.y + b.h, 8, 3.4, 1, fill=INK)


def casters(g, b, inset=5, r=4.2):
    """Wheels: two under the front, one seen at the far end of the right side."""
    places = [(b.x + b.w + b.dx - 5, b.y + b.h - b.dy + 2.2), (b.x + inset + r, b.y + b.h + r - 0.6),
              (b.x + b.w - inset - r, b.y + b.h + r - 0.6)]
    for x, y in places:
        g.circle(x, y, r, fill="#202a34", stroke=INK, stroke_width=HAIRLINE)
        g.circle(x, y, r * 0.42, fill="#93a0ad")


def stripe(g, b, y, h, colour, side=True):
    """An accent band across the front, carried on round the right side unless `side` is false."""
    g.rect(b.x + OUTLINE / 2, y, b.w - OUTLINE, h, fill=colour)
    if not side:
        return
    g.polygon([(b.x + b.w, y), (b.x + b.w + b.dx, y - b.dy), (b.x + b.w + b.dx, y + h - b.dy), (b.x + b.w, y + h)],
              fill=darker(colour, 0.35))


def ears(g, b, tone=None):
    """The mounting flanges of a rack unit, with their slots."""
    tone = tone or "#9aa6b2"
    for x in (b.x - 8, b.x + b.w):
        g.rect(x, b.y, 8, b.h, 0.8, fill=g.linear([(0, lighter(tone, 0.2)), (1, darker(tone, 0.12))]),
               stroke=INK, stroke_width=OUTLINE)
        for y in (b.y + 4.2, b.y + b.h - 4.2):
            g.rect(x + 2.2, y - 1.2, 3.6, 2.4, 1.2, fill=INK)


def handle(g, x, y, h):
    """An upright grip of a rack unit or module."""
    g.rect(x, y, 3.4, h, 1.7, fill=g.linear([(0, "#d5dce3"), (1, "#7f8c99")], 0, 0, 1, 0),
           stroke=INK, stroke_width=0.7)


def badge(g, x, y, colour=TEAL):
    """The maker's mark on a front: a small V of two strokes."""
    g.polyline([(x - 3.2, y - 2.6), (x, y + 3)], stroke="#e6edf3", stroke_width=1.5, stroke_linecap="round")
    g.polyline([(x, y + 3), (x + 3.2, y - 2.6)], stroke=colour, stroke_width=1.5, stroke_linecap="round")


def seam(g, x1, y1, x2, y2, tone):
    """A joint between two sheets: a dark line with a light one beside it."""
    g.line(x1, y1, x2, y2, stroke=darker(tone, 0.5), stroke_width=HAIRLINE)
    off = (0, 0.9) if y1 == y2 else (0.9, 0)
    g.line(x1 + off[0], y1 + off[1], x2 + off[0], y2 + off[1], stroke=WHITE, stroke_opacity=0.25, stroke_width=0.7)


