# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""Border images of buttons and value fields. The outer 4 px are the border and keep their size; what
lies inside is stretched, so it holds nothing but a plain or a vertical run of colour."""

from .svg import SLATE, SLATE_DARK, TEAL, TEAL_LIGHT, WHITE, Drawing, darker, lighter

SIZE = 32


def _plate(top, bottom, edge, sheen=0.0, inner=None):
    g = Drawing(SIZE, SIZE)
    g.rect(0.5, 0.5, SIZE - 1, SIZE - 1, 3, fill=g.linear([(0, top), (1, bottom)]), stroke=edge, stroke_width=1)
    if sheen:
        g.line(3.5, 1.5, SIZE - 3.5, 1.5, stroke=WHITE, stroke_opacity=sheen, stroke_width=1)
    if inner:
        g.rect(1.75, 1.75, SIZE - 3.5, SIZE - 3.5, 2, fill="none", stroke=inner, stroke_width=1.5)
    return g


def _pressed():
    g = _plate(darker(SLATE, 0.42), darker(SLATE, 0.26), darker(SLATE, 0.7))
    g.line(2.5, 1.5, SIZE - 2.5, 1.5, stroke="#0a1016", stroke_opacity=0.35, stroke_width=1)
    g.line(2.5, 2.5, SIZE - 2.5, 2.5, stroke="#0a1016", stroke_opacity=0.18, stroke_width=1)
    return g


def _field():
    """A sunken field: dark along the top and left, a light lip along the bottom."""
    g = Drawing(SIZE, SIZE)
    tone = "#33475b"
    g.rect(0.5, 0.5, SIZE - 1, SIZE - 1, 2, fill=tone, stroke=SLATE_DARK, stroke_width=1)
    g.line(2, 1.5, SIZE - 2, 1.5, stroke="#0a1016", stroke_opacity=0.3, stroke_width=1)
    g.line(1.5, 2, 1.5, SIZE - 2, stroke="#0a1016", stroke_opacity=0.18, stroke_width=1)
    g.line(2, SIZE - 1.5, SIZE - 2, SIZE - 1.5, stroke=WHITE, stroke_opacity=0.14, stroke_width=1)
    return g


def drawings():
    return {
        "button_normal": _plate(lighter(SLATE, 0.1), darker(SLATE, 0.1), darker(SLATE, 0.5), 0.22),
        "button_focused": _plate(lighter(SLATE, 0.1), darker(SLATE, 0.1), darker(TEAL, 0.45), 0, TEAL_LIGHT),
        "button_pressed": _pressed(),
        "button_disabled": _plate("#8f9ba7", "#85919d", "#76828e", 0.25),
        "control_background": _field(),
    }
