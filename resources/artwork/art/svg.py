# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""A small SVG writer and the palette that all drawings share."""

SLATE = "#2f4a66"
SLATE_DARK = "#1c2f43"
SLATE_LIGHT = "#7f97b0"
INK = "#18242f"
TEAL = "#1aa3a3"
TEAL_LIGHT = "#56d0cc"
GREEN = "#2e9e4f"
YELLOW = "#e0b000"
ORANGE = "#e8760a"
RED = "#c62828"
GREY = "#8a8f98"
WHITE = "#ffffff"

OUTLINE = 1.2
HAIRLINE = 0.8


def mix(first, second, share):
    """The colour `share` (0 to 1) of the way from `first` to `second`, both "#rrggbb"."""
    pairs = ((int(first[i:i + 2], 16), int(second[i:i + 2], 16)) for i in (1, 3, 5))
    return "#" + "".join(f"{round(a + (b - a) * share):02x}" for a, b in pairs)


def lighter(colour, share):
    return mix(colour, WHITE, share)


def darker(colour, share):
    return mix(colour, "#0a1016", share)


def number(value):
    """A coordinate with at most two decimals, so that files stay small and equal on every machine."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def points(pairs):
    return " ".join(f"{number(x)},{number(y)}" for x, y in pairs)


class Drawing:
    """One SVG document. Shapes are added in painting order; keyword arguments become attributes
    ("stroke_width" gives "stroke-width"), numbers are rounded."""

    def __init__(self, width, height, view=None):
        self.width = width
        self.height = height
        self.view = view or (0, 0, width, height)
        self.body = []
        self.defs = []

    def add(self, tag, **attributes):
        self.body.append(f"<{tag}{self._attributes(attributes)}/>")

    def open_group(self, **attributes):
        self.body.append(f"<g{self._attributes(attributes)}>")

    def close_group(self):
        self.body.append("</g>")

    def rect(self, x, y, w, h, r=0, **attributes):
        if r:
            attributes["rx"] = r
        self.add("rect", x=x, y=y, width=w, height=h, **attributes)

    def circle(self, x, y, r, **attributes):
        self.add("circle", cx=x, cy=y, r=r, **attributes)

    def ellipse(self, x, y, rx, ry, **attributes):
        self.add("ellipse", cx=x, cy=y, rx=rx, ry=ry, **attributes)

    def line(self, x1, y1, x2, y2, **attributes):
        self.add("line", x1=x1, y1=y1, x2=x2, y2=y2, **attributes)

    def polygon(self, pairs, **attributes):
        self.add("polygon", points=points(pairs), **attributes)

    def polyline(self, pairs, **attributes):
        attributes.setdefault("fill", "none")
        self.add("polyline", points=points(pairs), **attributes)

    def path(self, data, **attributes):
        self.add("path", d=data, **attributes)

    def linear(self, stops, x1=0, y1=0, x2=0, y2=1):
        """A linear gradient over the painted shape; `stops` are (offset, colour[, opacity]).
        Returns the value for `fill`."""
        return self._gradient("linearGradient", stops, x1=x1, y1=y1, x2=x2, y2=y2)

    def radial(self, stops):
        return self._gradient("radialGradient", stops)

    def text(self):
        """The document's text."""
        x, y, w, h = (number(v) for v in self.view)
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{number(self.width)}" '
                f'height="{number(self.height)}" viewBox="{x} {y} {w} {h}">')
        lines = ['<?xml version="1.0" encoding="UTF-8"?>',
                 "<!-- SPDX-FileCopyrightText: 2026 The Velmora developers -->",
                 "<!-- SPDX-License-Identifier: MIT -->", head]
        if self.defs:
            lines += ["<defs>", *self.defs, "</defs>"]
        return "\n".join([*lines, *self.body, "</svg>", ""])

    def _gradient(self, tag, stops, **attributes):
        inner = "".join(
            f'<stop offset="{number(s[0])}" stop-color="{s[1]}"'
            + (f' stop-opacity="{number(s[2])}"' if len(s) > 2 else "") + "/>" for s in stops)
        text = f"{self._attributes(attributes)}>{inner}</{tag}>"
        for index, known in enumerate(self.defs):
            if known.endswith(text) and known.startswith(f"<{tag} "):
                return f"url(#g{index})"
        name = f"g{len(self.defs)}"
        self.defs.append(f'<{tag} id="{name}"{text}')
        return f"url(#{name})"

    @staticmethod
    def _attributes(attributes):
        def value(v):
            return number(v) if isinstance(v, (int, float)) else v
        return "".join(f' {k.replace("_", "-")}="{value(v)}"' for k, v in attributes.items())
