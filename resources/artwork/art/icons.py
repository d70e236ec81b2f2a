# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""State icons, button glyphs and pictures of column headers. Each state has a shape and a sign of its own, so
that it can be told without its colour; the shapes are laid out on the pixel grid of the smallest size they are
used at."""

import math

from .svg import (GREEN, GREY, INK, ORANGE, RED, SLATE, TEAL, TEAL_LIGHT, WHITE, YELLOW, Drawing, darker, lighter)

ROUND = dict(stroke_linecap="round", stroke_linejoin="round")


def _fill(g, colour):
    return g.linear([(0, lighter(colour, 0.18)), (1, colour)], 0, 0, 0.6, 1)


def _edge(colour, width):
    return dict(stroke=darker(colour, 0.38), stroke_width=width, stroke_linejoin="round")


# State signs on a field of 16 units.

def _running(g, edge):
    g.circle(8, 8, 6.5, fill=_fill(g, GREEN), **_edge(GREEN, edge))
    g.polyline([(4.9, 8.3), (7.1, 10.5), (11.2, 5.9)], stroke=WHITE, stroke_width=2, **ROUND)


def _battery(g, edge):
    g.rect(1.5, 2.5, 13, 11, 2.5, fill=_fill(g, YELLOW), **_edge(YELLOW, edge))
    g.rect(4, 6, 7, 4, 0, fill="none", stroke=INK, stroke_width=1.4)
    g.rect(11.7, 7, 1.3, 2, fill=INK)
    g.rect(5, 7, 2, 2, fill=INK)


def _attention(g, edge, colour=ORANGE):
    g.polygon([(8, 1.5), (14.8, 13.6), (1.2, 13.6)], fill=_fill(g, colour), **_edge(colour, edge + 0.3))
    g.rect(7, 5, 2, 4.5, 0.6, fill=WHITE if colour == ORANGE else INK)
    g.rect(7, 10.6, 2, 2, 0.6, fill=WHITE if colour == ORANGE else INK)


def _lost(g, edge):
    cut = 6.6 * math.tan(math.pi / 8)
    far = 6.6
    g.polygon([(8 - cut, 8 - far), (8 + cut, 8 - far), (8 + far, 8 - cut), (8 + far, 8 + cut),
               (8 + cut, 8 + far), (8 - cut, 8 + far), (8 - far, 8 + cut), (8 - far, 8 - cut)],
              fill=_fill(g, RED), **_edge(RED, edge))
    for x in (1, -1):
        g.line(8 - 2.6 * x, 5.4, 8 + 2.6 * x, 10.6, stroke=WHITE, stroke_width=2, stroke_linecap="round")


def _waiting(g, edge):
    g.circle(8, 8, 6.5, fill=_fill(g, GREY), **_edge(GREY, edge))
    for x in (4, 7, 10):
        g.rect(x, 7, 2, 2, 0.4, fill=WHITE)


def _question(g, colour, width=1.8):
    g.path("M5.7 6.3 C5.7 3.6 10.3 3.6 10.3 6.2 C10.3 8 8 7.9 8 9.7", fill="none", stroke=colour,
           stroke_width=width, **ROUND)
    g.circle(8, 12, 1.1, fill=colour)


def _no_model(g, edge):
    """A hollow, dashed square: something is there, but its kind isn't known."""
    g.rect(1.5, 1.5, 13, 13, 2.5, fill="#f4f6f8", stroke=darker(GREY, 0.35), stroke_width=edge,
           stroke_dasharray="2.6 1.4")
    _question(g, darker(GREY, 0.5))


def _doubt(g, edge):
    g.circle(8, 8, 6.5, fill=_fill(g, GREY), **_edge(GREY, edge))
    g.open_group(transform="translate(1.1 0.7) scale(0.87)")
    _question(g, WHITE, 2)
    g.close_group()


def _crown(g):
    """The leader's badge at the top right: a crown of whole pixels with a light rim that parts it from
    the sign below and from a selected row."""
    shape = "M7 0 H8 V1 H9 V2 H10 V1 H11 V0 H12 V1 H13 V2 H14 V1 H15 V0 H16 V4 H15 V5 H8 V4 H7 Z"
    g.path(shape, fill=WHITE, stroke=WHITE, stroke_width=1.6, stroke_linejoin="round")
    g.path(shape, fill=SLATE)


_SIGNS = {"green": _running, "yellow": _battery, "orange": _attention, "red": _lost, "grey": _waiting}


def _sign(size, sign, edge=1.0, leader=False):
    g = Drawing(size, size, (0, 0, 16, 16))
    if leader:
        g.open_group(transform="translate(-1 4) scale(0.8125)")
        sign(g, edge * 1.1)
        g.close_group()
        _crown(g)
    else:
        sign(g, edge)
    return g


def indicators():
    drawings = {}
    for name, sign in _SIGNS.items():
        drawings[name] = _sign(16, sign)
        drawings[f"{name}_m"] = _sign(16, sign, leader=True)
    drawings["unknown"] = _sign(16, _no_model)
    return drawings


def _clock():
    g = Drawing(21, 21)
    g.circle(10.5, 10.5, 8.5, fill=WHITE, stroke=SLATE, stroke_width=2)
    for angle in range(0, 360, 90):
        x, y = math.sin(math.radians(angle)), math.cos(math.radians(angle))
        g.line(10.5 + 6 * x, 10.5 + 6 * y, 10.5 + 6.9 * x, 10.5 + 6.9 * y, stroke=SLATE, stroke_width=1)
    g.polyline([(10.5, 5.8), (10.5, 10.5), (13.8, 12.6)], stroke=SLATE, stroke_width=1.6, **ROUND)
    g.circle(10.5, 10.5, 1.2, fill=TEAL)
    return g


def _help(size):
    g = Drawing(size, size, (0, 0, 16, 16))
    g.circle(8, 8, 6.9, fill=_fill(g, SLATE), stroke=darker(SLATE, 0.3), stroke_width=0.8)
    g.open_group(transform="translate(0.7 0.4) scale(0.91)")
    _question(g, WHITE, 1.9)
    g.close_group()
    return g


def status():
    """Icons of the status strip, the debug warning, the help buttons, the mail test and questions."""
    return {
        "ok": _sign(21, _running, 0.9),
        "4e2": _sign(21, _lost, 0.9),
        "srv_wrn": _sign(21, _attention, 0.9),
        "unknown": _sign(21, _doubt, 0.9),
        "time": _clock(),
        "small_help": _help(19),
        "warning": _sign(28, lambda g, edge: _attention(g, edge, YELLOW), 0.7),
        "status_ok_48": _sign(48, _running, 0.6),
        "status_err_48": _sign(48, _lost, 0.6),
        "question_48": _help(48),
    }


# Button and menu glyphs: 16 units, strokes of 1.5 in one colour, the moving part in an accent.

class Pen:
    """Draws a glyph's strokes and dots in its two colours."""

    def __init__(self, colour, accent, size=16):
        self.g = Drawing(size, size, (0, 0, 16, 16))
        self.colours = {"base": colour, "accent": accent}

    def stroke(self, data, width=1.5, tint="base"):
        self.g.path(data, fill="none", stroke=self.colours[tint], stroke_width=width, **ROUND)

    def accent(self, data, width=1.8):
        self.stroke(data, width, "accent")

    def ring(self, x, y, r, width=1.5):
        self.g.circle(x, y, r, fill="none", stroke=self.colours["base"], stroke_width=width)

    def dot(self, x, y, r=1.0):
        self.g.circle(x, y, r, fill=self.colours["accent"])


def _login(pen):
    pen.stroke("M6.5 2 H12 Q13.5 2 13.5 3.5 V12.5 Q13.5 14 12 14 H6.5")
    pen.accent("M2 8 H9.5 M6.8 5.2 L9.6 8 L6.8 10.8")


def _logout(pen):
    pen.stroke("M9.5 2 H4 Q2.5 2 2.5 3.5 V12.5 Q2.5 14 4 14 H9.5")
    pen.accent("M6.5 8 H14 M11.3 5.2 L14.1 8 L11.3 10.8")


def _key(pen):
    pen.ring(5, 11, 3.2)
    pen.stroke("M7.4 8.6 L13.8 2.2 M11 5 L13.2 7.2 M9.2 6.8 L10.6 8.2")
    pen.dot(5, 11)


def _connect(pen):
    pen.stroke("M3 2.5 H13 Q14 2.5 14 3.5 V6 Q14 7 13 7 H3 Q2 7 2 6 V3.5 Q2 2.5 3 2.5 Z")
    pen.stroke("M8 7 V13 M3 13 H13")
    pen.dot(11.3, 4.75)
    pen.dot(8, 13, 1.8)


def _exit(pen):
    pen.stroke("M4.6 4.2 A5.5 5.5 0 1 0 11.4 4.2", 1.7)
    pen.accent("M8 1.8 V7.6", 1.9)


def _info(pen):
    pen.ring(8, 8, 6.2)
    pen.stroke("M8 7.5 V11.2", 1.8)
    pen.dot(8, 4.8, 1.1)


def _settings(pen):
    for angle in range(0, 360, 45):
        x, y = math.cos(math.radians(angle)), math.sin(math.radians(angle))
        pen.stroke(f"M{8 + 4.9 * x:.2f} {8 + 4.9 * y:.2f} L{8 + 6 * x:.2f} {8 + 6 * y:.2f}", 2)
    pen.ring(8, 8, 4.4, 1.7)
    pen.dot(8, 8, 1.7)


def _events(pen):
    pen.stroke("M3.4 11.5 Q4.6 10.2 4.6 6.6 A3.4 3.6 0 0 1 11.4 6.6 Q11.4 10.2 12.6 11.5 Z M8 1.6 V2.8")
    pen.accent("M6.6 13.8 H9.4", 1.9)


def _logs(pen):
    pen.stroke("M3 1.8 H10 L13 4.8 V14.2 H3 Z M10 1.8 V4.8 H13", 1.4)
    pen.accent("M5.5 7.6 H10.5 M5.5 10.4 H9", 1.4)


def _help_glyph(pen):
    pen.ring(8, 8, 6.2)
    pen.stroke("M6.1 6.6 C6.1 4.4 9.9 4.4 9.9 6.5 C9.9 7.9 8 7.9 8 9.3")
    pen.dot(8, 11.5)


def _update(pen):
    pen.stroke("M13.5 8.6 A5.6 5.6 0 1 1 11.4 3.6", 1.6)
    pen.accent("M8.6 4.3 H12.1 V0.9", 1.7)


def _about(pen):
    pen.stroke("M4.4 1.8 H11.6 Q14.2 1.8 14.2 4.4 V11.6 Q14.2 14.2 11.6 14.2 H4.4 Q1.8 14.2 1.8 11.6 V4.4"
               " Q1.8 1.8 4.4 1.8 Z")
    pen.stroke("M5 5 L8 11.4", 1.8)
    pen.accent("M8 11.4 L11 5")


_GLYPHS = {"login": _login, "logout": _logout, "key": _key, "connect": _connect, "exit": _exit, "info": _info,
           "settings": _settings, "events": _events, "logs": _logs, "help": _help_glyph, "update": _update,
           "about": _about}


def _glyph(name, colour, accent):
    pen = Pen(colour, accent)
    _GLYPHS[name](pen)
    return pen.g


def glyphs():
    """Each glyph in dark, and as "_light" for push buttons and chosen menu entries, whose ground is dark."""
    dark = {name: _glyph(name, SLATE, TEAL) for name in _GLYPHS}
    return {**dark, **{f"{name}_light": _glyph(name, WHITE, TEAL_LIGHT) for name in _GLYPHS}}


# Column headers of the event list: what happens when the event does.

def _show_message(pen):
    pen.stroke("M3.5 2 H12.5 Q14 2 14 3.5 V9 Q14 10.5 12.5 10.5 H8 L4.6 13.8 V10.5"
               " H3.5 Q2 10.5 2 9 V3.5 Q2 2 3.5 2 Z", 1.3)
    pen.accent("M5 5 H11 M5 7.6 H9", 1.3)


def _system_command(pen):
    pen.stroke("M3 2.5 H13 Q14.3 2.5 14.3 3.8 V12.2 Q14.3 13.5 13 13.5 H3"
               " Q1.7 13.5 1.7 12.2 V3.8 Q1.7 2.5 3 2.5 Z", 1.3)
    pen.accent("M4.5 5.6 L7 8 L4.5 10.4 M8.6 10.5 H11.6", 1.4)


def _send_mail(pen):
    pen.stroke("M2.7 3.4 H13.3 Q14.4 3.4 14.4 4.5 V11.5 Q14.4 12.6 13.3 12.6 H2.7 Q1.6 12.6 1.6 11.5 V4.5"
               " Q1.6 3.4 2.7 3.4 Z", 1.3)
    pen.accent("M4 6 L8 9.2 L12 6", 1.4)


def _output_socket(pen):
    pen.ring(8, 8, 6.3, 1.3)
    pen.dot(5.4, 8.4, 1.15)
    pen.dot(10.6, 8.4, 1.15)
    pen.stroke("M8 1.9 V4.6", 1.5)


_HEADERS = {"showmessage": _show_message, "systemcommand": _system_command, "sendmail": _send_mail,
            "powerOff": _exit, "outputsocket": _output_socket}


def headers():
    drawings = {}
    for name, draw in _HEADERS.items():
        pen = Pen(SLATE, TEAL, 24)
        draw(pen)
        drawings[name] = pen.g
    return drawings
