# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""The letters of the word mark, drawn as strokes, so that no installed font decides the look."""

# Each letter: its advance and its strokes on a body 10 units high (y from 0 at the cap line to 10 at the base).
_LETTERS = {
    "V": (8.6, "M0 0 L4.3 10 L8.6 0"),
    "E": (6.2, "M6.2 0 H0 V10 H6.2 M0 5 H5.4"),
    "L": (5.8, "M0 0 V10 H5.8"),
    "M": (9.4, "M0 10 V0 L4.7 7 L9.4 0 V10"),
    "O": (9.6, "M4.8 0 A4.8 5 0 0 1 4.8 10 A4.8 5 0 0 1 4.8 0 Z"),
    "R": (6.8, "M0 10 V0 H3.8 A2.75 2.75 0 0 1 3.8 5.5 H0 M3.4 5.5 L6.8 10"),
    "A": (8.6, "M0 10 L4.3 0 L8.6 10 M1.7 6.6 H6.9"),
    "P": (6.6, "M0 10 V0 H3.8 A2.8 2.8 0 0 1 3.8 5.6 H0"),
    "F": (6.0, "M6 0 H0 V10 M0 5 H5.2"),
    "S": (6.4, "M6 1.5 C5.4 0.5 4.4 0 3.2 0 C1.4 0 0.3 1 0.3 2.5 C0.3 5.9 6.4 3.9 6.4 7.4"
               " C6.4 9 5 10 3.2 10 C1.7 10 0.6 9.4 0 8.3"),
    "I": (0.0, "M0 0 V10"),
    "N": (7.8, "M0 10 V0 L7.8 10 V0"),
}


def width(text, height, spacing):
    """Width of `text` in px at a cap height of `height`, with `spacing` px between letters."""
    scale = height / 10
    return sum(_LETTERS[c][0] * scale for c in text) + spacing * (len(text) - 1)


def write(drawing, text, x, y, height, spacing, weight, colour):
    """Writes `text` with its top left corner at (x, y); `weight` is the stroke's width in px."""
    scale = height / 10
    drawing.open_group(fill="none", stroke=colour, stroke_width=weight / scale,
                       stroke_linejoin="round", stroke_linecap="round")
    for letter in text:
        advance, strokes = _LETTERS[letter]
        drawing.path(strokes, transform=f"translate({x:.2f} {y:.2f}) scale({scale:.3f})")
        x += advance * scale + spacing
    drawing.close_group()
