# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""Frames of the busy animations: an arc that runs round a pale track."""

import math

from .svg import SLATE, TEAL, Drawing

FRAMES = 18


def _arc(g, centre, radius, start, sweep, **attributes):
    def at(angle):
        return centre + radius * math.sin(math.radians(angle)), centre - radius * math.cos(math.radians(angle))
    x1, y1 = at(start)
    x2, y2 = at(start + sweep)
    g.path(f"M{x1:.2f} {y1:.2f} A{radius} {radius} 0 {int(sweep > 180)} 1 {x2:.2f} {y2:.2f}", fill="none", **attributes)


def frame(size, weight, turn, inner):
    """One frame of `size` px with the arc turned by `turn` degrees; `inner` adds a second, counter-running arc."""
    g = Drawing(size, size)
    centre = size / 2
    radius = (size - weight) / 2 - 0.75
    g.circle(centre, centre, radius, fill="none", stroke="#c3cbd3", stroke_width=weight)
    _arc(g, centre, radius, turn, 105, stroke=TEAL, stroke_width=weight, stroke_linecap="round")
    if inner:
        _arc(g, centre, radius - weight * 1.9, -turn - 60, 130, stroke=SLATE, stroke_width=weight * 0.72,
             stroke_linecap="round")
    return g


def frames(size, weight, inner):
    return [frame(size, weight, 360 * i / FRAMES, inner) for i in range(FRAMES)]


# File stem: size in px, stroke in px, second arc.
ANIMATIONS = {"45": (45, 5, True), "loading_spinner": (21, 3, False), "spinner_2_48": (48, 5, False)}
