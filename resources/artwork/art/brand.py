# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""Application icon, logo plate and splash screen."""

import math

from . import lettering
from .svg import SLATE, SLATE_DARK, TEAL, TEAL_LIGHT, WHITE, Drawing, darker, lighter

ICON_SIZES = (16, 24, 32, 48, 64, 128, 256)


def _mark(g, x, y, size, small=False, tile=True):
    """The mark on a field of `size` px: a V in the opening of a ring. Small sizes drop the ring and
    thicken the V, which is all that is left to see there."""
    g.open_group(transform=f"translate({x} {y}) scale({size / 64})")
    if tile:
        g.rect(2, 2, 60, 60, 14, fill=g.linear([(0, lighter(SLATE, 0.16)), (1, darker(SLATE, 0.25))], 0, 0, 0.7, 1),
               stroke=SLATE_DARK, stroke_width=2)
    stroke = dict(fill="none", stroke_linecap="round", stroke_linejoin="round")
    if small:
        g.path("M16 18 L32 48", stroke=WHITE, stroke_width=9.5, **stroke)
        g.path("M32 48 L48 18", stroke=TEAL_LIGHT, stroke_width=9.5, **stroke)
    else:
        g.path("M13.6 23.4 A20.5 20.5 0 1 0 50.4 23.4", stroke=TEAL, stroke_width=4.4, **stroke)
        g.path("M20.5 13.5 L32 42", stroke=WHITE, stroke_width=6.6, **stroke)
        g.path("M32 42 L43.5 13.5", stroke=TEAL_LIGHT, stroke_width=6.6, **stroke)
    g.close_group()


def icon(size):
    g = Drawing(size, size)
    _mark(g, 0, 0, size, small=size < 32)
    return g


def logo():
    """The plate at the head of dialogs: the mark and the word on a transparent ground."""
    g = Drawing(180, 40)
    _mark(g, 2, 2, 36)
    lettering.write(g, "VELMORA", 50, 11, 16, 6.2, 2.7, SLATE)
    right = 50 + lettering.width("VELMORA", 16, 6.2)
    g.line(50, 33.5, right, 33.5, stroke=TEAL, stroke_width=1.5, stroke_linecap="round")
    return g


def _grid(g, w, h):
    for x in range(24, w, 24):
        g.line(x, 1, x, h - 1, stroke=WHITE, stroke_opacity=0.035, stroke_width=1)
    for y in range(20, h, 24):
        g.line(1, y, w - 1, y, stroke=WHITE, stroke_opacity=0.035, stroke_width=1)


def _trace(g, w, y, lift, colour, width, opacity):
    """A run of mains voltage that swells and settles into a straight line at both ends."""
    curve = [(x, y - lift * math.exp(-((x - w / 2) / 88) ** 2) * math.cos((x - w / 2) / 76 * math.tau))
             for x in range(0, w + 1, 3)]
    g.polyline(curve, stroke=colour, stroke_width=width, stroke_opacity=opacity, stroke_linejoin="round")


def splash():
    w, h = 480, 280
    g = Drawing(w, h)
    g.rect(0, 0, w, h, fill=g.linear([(0, lighter(SLATE, 0.06)), (1, darker(SLATE, 0.42))], 0, 0, 0.5, 1))
    _grid(g, w, h)
    _trace(g, w, 212, 44, TEAL_LIGHT, 7, 0.1)
    _trace(g, w, 212, 44, TEAL_LIGHT, 1.8, 0.85)
    _mark(g, 42, 52, 92, tile=False)
    lettering.write(g, "VELMORA", 152, 74, 32, 12.5, 5, WHITE)
    right = 152 + lettering.width("VELMORA", 32, 12.5)
    gap = (right - 153 - lettering.width("PROFESSIONAL", 11, 0)) / 11
    lettering.write(g, "PROFESSIONAL", 153, 122, 11, gap, 1.5, TEAL_LIGHT)
    g.rect(0, h - 5, w, 5, fill=TEAL)
    g.rect(0.5, 0.5, w - 1, h - 1, fill="none", stroke=SLATE_DARK, stroke_width=1)
    return g


def drawings():
    named = {f"appicon_{size}": icon(size) for size in ICON_SIZES}
    return {**named, "ondara_logo_s": logo(), "splashscreen": splash()}
