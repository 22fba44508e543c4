#!/usr/bin/python3
"""Write the drawn pictures of Tonebench into the folder pictures/.

Usage: /usr/bin/python3 art/make_pictures.py [FOLDER]

One picture is one SVG file whose view box is its size in logical pixels.
Only plain rectangles, circles, ellipses, paths and gradients are used.
Edges lie on whole pixels; one-pixel strokes lie on half pixels.
"""

import math
import os
import sys

panel = "#1b1d21"
ground = "#121316"
printing = "#e9e6dc"
amber = "#f0a030"
teal = "#3fb8a8"
ink = "#08090a"
bright = "#fffdf4"
ivory = ("#fffdf4", "#e4e0d3", "#b4b0a3")
ivory_down = ("#b9b5a8", "#cfcbbe", "#dad6c9")


# ---------------------------------------------------------------------------
# The sheet on which one picture is drawn.
# ---------------------------------------------------------------------------

def number(value):
    """A coordinate as short text."""
    return f"{value:.3f}".rstrip("0").rstrip(".")


def attributes(pairs):
    """The given pairs as XML attributes; _ in a name stands for -."""
    text = ""
    for name, value in pairs.items():
        if value is None:
            continue
        if isinstance(value, (int, float)):
            value = number(value)
        text += f' {name.replace("_", "-")}="{value}"'
    return text


class sheet:
    """Collects the elements of one picture."""

    def __init__(self, width, height):
        self.width = width
        self.height = height
        self.paints = []
        self.shapes = []

    def add(self, element, **pairs):
        self.shapes.append(f"<{element}{attributes(pairs)}/>")

    def rect(self, x, y, width, height, fill, round_by=None, **more):
        self.add("rect", x=x, y=y, width=width, height=height,
                 rx=round_by, ry=round_by, fill=fill, **more)

    def frame(self, x, y, width, height, colour, round_by=None, **more):
        """A one-pixel frame inside the given box."""
        self.add("rect", x=x + 0.5, y=y + 0.5, width=width - 1,
                 height=height - 1, rx=round_by, ry=round_by,
                 fill="none", stroke=colour, **more)

    def circle(self, x, y, radius, fill, **more):
        self.add("circle", cx=x, cy=y, r=radius, fill=fill, **more)

    def ring(self, x, y, radius, colour, width=1.0):
        self.circle(x, y, radius, "none", stroke=colour, stroke_width=width)

    def ellipse(self, x, y, across, down, fill, **more):
        self.add("ellipse", cx=x, cy=y, rx=across, ry=down, fill=fill, **more)

    def path(self, data, fill, **more):
        self.add("path", d=data, fill=fill, **more)

    def line(self, data, colour, width=1.0, **more):
        self.add("path", d=data, fill="none", stroke=colour,
                 stroke_width=width, **more)

    def stops(self, colours):
        """Colours evenly spread; an item may be (offset, colour, opacity)."""
        text = ""
        last = max(1, len(colours) - 1)
        for place, colour in enumerate(colours):
            opacity = None
            offset = place / last
            if isinstance(colour, tuple):
                offset, colour, opacity = colour
            text += "<stop" + attributes(dict(
                offset=offset, stop_color=colour, stop_opacity=opacity)) + "/>"
        return text

    def down(self, top, bottom, colours):
        """A paint that runs from top to bottom."""
        return self.slope(0, top, 0, bottom, colours)

    def slope(self, x1, y1, x2, y2, colours):
        """A paint that runs along a line."""
        name = f"p{len(self.paints)}"
        pairs = dict(id=name, gradientUnits="userSpaceOnUse",
                     x1=x1, y1=y1, x2=x2, y2=y2)
        self.paints.append(f"<linearGradient{attributes(pairs)}>"
                           f"{self.stops(colours)}</linearGradient>")
        return f"url(#{name})"

    def glow(self, x, y, radius, colours):
        """A paint that runs outward from a point."""
        name = f"p{len(self.paints)}"
        pairs = dict(id=name, gradientUnits="userSpaceOnUse",
                     cx=x, cy=y, r=radius)
        self.paints.append(f"<radialGradient{attributes(pairs)}>"
                           f"{self.stops(colours)}</radialGradient>")
        return f"url(#{name})"

    def text(self):
        """The whole SVG file."""
        lines = ['<?xml version="1.0" encoding="UTF-8"?>',
                 '<svg xmlns="http://www.w3.org/2000/svg" version="1.2" '
                 f'baseProfile="tiny" width="{self.width}" '
                 f'height="{self.height}" '
                 f'viewBox="0 0 {self.width} {self.height}">']
        if self.paints:
            lines += ["<defs>"] + self.paints + ["</defs>"]
        return "\n".join(lines + self.shapes + ["</svg>"]) + "\n"


# ---------------------------------------------------------------------------
# Thumbs of switches and sliders.
# ---------------------------------------------------------------------------

def switch_thumb(to_left, lit):
    """A cap with a pointed nose; lit is the second blink picture."""
    s = sheet(16, 16)

    def across(x):
        return number(x if to_left else 16 - x)

    def outline(tip, shoulder, back, top):
        low = number(16 - top)
        top = number(top)
        return (f"M{across(tip)},8 L{across(shoulder)},{top} "
                f"L{across(back)},{top} L{across(back)},{low} "
                f"L{across(shoulder)},{low} Z")

    def bar(x, y, width, height, colour, **more):
        s.rect(x if to_left else 16 - x - width, y, width, height, colour,
               **more)

    if lit:
        s.path(outline(0, 6, 16, 2), ink)
        s.path(outline(1, 6.5, 14.5, 2.5), "#1d1a14", stroke=amber,
               stroke_width=1, stroke_linejoin="miter")
        bar(6, 6, 6, 4, amber)
        bar(7, 7, 4, 2, bright)
    else:
        s.path(outline(0, 6, 16, 2), ink)
        s.path(outline(1.4, 6.4, 15, 3), s.down(3, 13, ivory))
        bar(6, 3, 9, 1, "#ffffff")
        bar(6, 12, 9, 1, "#8d897d")
        bar(3, 7, 5, 2, "#26272a")
        bar(10, 5, 1, 6, "#77746a")
        bar(11, 5, 1, 6, "#ffffff", fill_opacity=0.8)
        bar(12, 5, 1, 6, "#77746a")
        bar(13, 5, 1, 6, "#ffffff", fill_opacity=0.8)
    return s


def slider_thumb(lit):
    """A fader cap with its line at y = 8; lit is the second blink picture."""
    s = sheet(16, 16)
    s.rect(0, 2, 16, 12, ink, 2)
    if lit:
        s.rect(1, 3, 14, 10, "#1d1a14", 1)
        s.frame(1, 3, 14, 10, amber, 1)
        s.rect(3, 6, 10, 4, amber)
        s.rect(4, 7, 8, 2, bright)
    else:
        s.rect(1, 3, 14, 10, s.down(3, 13, [
            (0, "#fffdf4", None), (0.30, "#ece8dc", None),
            (0.42, "#bcb8ab", None), (0.58, "#dedacd", None),
            (0.80, "#cfcbbe", None), (1, "#8f8b80", None)]), 1)
        s.rect(2, 3, 12, 1, "#ffffff")
        s.rect(1, 7, 14, 2, "#17181b")
    return s


# ---------------------------------------------------------------------------
# The knob and its dot.
# ---------------------------------------------------------------------------

def knob_dot(lit):
    """The dot that shows a knob's value; lit is the second blink picture."""
    s = sheet(4, 4)
    if lit:
        s.rect(0, 0, 4, 4, amber)
        s.rect(1, 1, 2, 2, "#000000")
    else:
        s.circle(2, 2, 2, "#ffffff")
    return s


def knob_body():
    """The round knob, centred at (14,12), without a pointer."""
    s = sheet(28, 26)
    s.ellipse(14, 14.5, 13.5, 11.5, s.glow(14, 14.5, 13.5, [
        (0.0, "#000000", 0.9), (0.72, "#000000", 0.8),
        (1.0, "#000000", 0.0)]))
    s.circle(14, 12, 11.5, ink)
    s.circle(14, 12, 10.75, s.down(1, 23, [
        "#d9dce1", "#8b9098", "#5a5e66", "#6f747c"]))
    for step in range(18):
        angle = math.radians(step * 20 + 10)
        near, far = 9.0, 10.2
        s.line(f"M{number(14 + near * math.cos(angle))},"
               f"{number(12 + near * math.sin(angle))} "
               f"L{number(14 + far * math.cos(angle))},"
               f"{number(12 + far * math.sin(angle))}",
               ink, 1.2, stroke_opacity=0.55)
    s.circle(14, 12, 9.25, ink)
    s.circle(14, 12, 8.5, s.down(3.5, 20.5, ["#6a6f78", "#3a3d44", "#2a2d32"]))
    s.circle(14, 12, 7.6, s.down(4.4, 19.6, ["#3d4047", "#34373d", "#42464e"]))
    return s


# ---------------------------------------------------------------------------
# The keyboard button and the pads of the sequencer keyboard.
# ---------------------------------------------------------------------------

def keyboard_button(pressed):
    """One octave: seven keys of five pixels with one pixel between."""
    s = sheet(43, 22)
    move = 1 if pressed else 0
    s.rect(0, 0, 43, 22, ink)
    s.frame(0, 0, 43, 22, "#3a3d43" if pressed else "#6d7077")
    top, end = 1 + move, 21
    white = s.down(top, end, ("#8f8b80", "#b3afa3", "#bdb9ad") if pressed
                   else ("#d8d4c7", "#f6f3e8", "#fffdf4"))
    lip = "#85817a" if pressed else "#a8a498"
    black = s.down(top, top + 12, ("#101113", "#232529") if pressed
                   else ("#26282c", "#3c3f45"))
    for key in range(7):
        x = 1 + 6 * key
        s.rect(x, top, 5, end - top - (0 if pressed else 1), white)
        s.rect(x, end - 1, 5, 1, lip)
    for gap in (6, 12, 24, 30, 36):
        s.rect(gap - 1, top, 3, 12, ink)
        s.rect(gap, top, 1, 11, black)
    if pressed:
        s.rect(1, 1, 41, 1, "#000000")
        s.rect(1, 2, 41, 2, "#000000", fill_opacity=0.35)
    return s


def sequencer_key(black, pressed):
    """One lying key of the sequencer, one note a row."""
    s = sheet(38, 12)
    s.rect(0, 0, 38, 12, ink)
    width = 26 if black else 37
    if black:
        body = ("#4b5059", "#363a41", "#2a2d32")
        shine, lip = "#80858f", "#191b1e"
    else:
        body = ("#fffdf4", "#efebdf", "#dad6c9")
        shine, lip = "#ffffff", "#a8a498"
    if pressed:
        body = ("#8a5a14", "#c98322", amber) if black else \
               ("#c98322", amber, "#ffc060")
        shine, lip = "#5a3a0c", "#ffd694"
    s.rect(0, 0, width, 11, s.down(0, 11, body))
    s.rect(0, 0, width, 1, shine)
    s.rect(0, 10, width, 1, lip)
    s.rect(width - 1, 1, 1, 9, lip)
    if black:
        s.rect(27, 0, 10, 11, "#a8a498")
    if pressed:
        s.rect(width - 8, 4, 4, 3, ink)
    return s


def sequencer_cell(state):
    """A cell of the matrix, or a running light: empty, light, loud, soft.
    Loud fills the cell, soft leaves a rim: they differ without colour too."""
    s = sheet(11, 11)
    s.rect(0, 0, 11, 11, ink, 1.5)
    if state == "empty":
        s.rect(1, 1, 9, 9, "#2b2e34", 1)
        s.rect(1, 1, 9, 1, "#202227")
    elif state == "light":
        s.rect(0, 0, 11, 11, amber, 1.5, fill_opacity=0.5)
        s.rect(1, 1, 9, 9, s.down(1, 10, ["#fff2cc", "#ffc060", amber]), 1)
    elif state == "loud":
        s.rect(1, 1, 9, 9, s.down(1, 10, ["#b9f5ea", "#6fe3d2", teal]), 1)
    else:
        s.rect(1, 1, 9, 9, "#2b2e34", 1)
        s.frame(1, 1, 9, 9, "#2f8478", 1)
        s.rect(4, 4, 3, 3, "#8fe6da", 0.5)
    return s


# ---------------------------------------------------------------------------
# Lamps.
# ---------------------------------------------------------------------------

def lamp(colours, lit):
    """A round lamp; colours run from the core to the rim of the glass."""
    s = sheet(14, 14)
    core, middle, edge = colours
    if lit:
        s.circle(7, 7, 7, s.glow(7, 7, 7, [
            (0.0, middle, 0.9), (0.7, middle, 0.55), (1.0, middle, 0.0)]))
        s.circle(7, 7, 5, ink)
        s.circle(7, 7, 4.6, s.glow(7, 6.5, 4.6, [core, core, middle, edge]))
        s.ellipse(7, 5.4, 2, 1.3, "#ffffff", fill_opacity=0.85)
    else:
        s.circle(7, 7, 5.5, ink)
        s.ring(7, 7, 5.25, s.down(1.5, 12.5, ["#7d8087", "#3b3e44"]), 0.9)
        s.circle(7, 7, 4.4, s.glow(7, 7.5, 4.4, [core, middle, edge]))
        s.ellipse(6.5, 5.2, 1.7, 1.0, "#ffffff", fill_opacity=0.28)
    return s


# ---------------------------------------------------------------------------
# Push buttons and their symbols.
# ---------------------------------------------------------------------------

def push_button(width, height, pressed, round_by=2):
    """A dark grey button with a bevel, raised or pressed in."""
    s = sheet(width, height)
    s.rect(0, 0, width, height, ink, round_by + 1)
    inner_width, inner_height = width - 2, height - 2
    if pressed:
        s.rect(1, 1, inner_width, inner_height,
               s.down(1, height - 1, ["#1f2125", "#2b2e33", "#34373d"]),
               round_by)
        s.rect(2, 1, width - 4, 2, "#000000", fill_opacity=0.5)
        s.rect(1, 2, 2, height - 4, "#000000", fill_opacity=0.3)
        s.rect(3, height - 2, width - 6, 1, "#5a5e66")
    else:
        s.rect(1, 1, inner_width, inner_height,
               s.down(1, height - 1, ["#5a5e66", "#484b52", "#393c42"]),
               round_by)
        s.rect(2, 1, width - 4, 1, "#8d929b")
        s.rect(1, 2, 1, height - 4, "#6a6e76")
        s.rect(width - 2, 2, 1, height - 4, "#2b2d32")
        s.rect(2, height - 2, width - 4, 1, "#232529")
    return s


def play_symbol(enabled):
    """A triangle; the symbols are centred at (8,8), the button's middle."""
    s = sheet(14, 14)
    s.path("M5,3 L13,8 L5,13 Z", "#6fe39a" if enabled else "#6c7077")
    return s


def stop_symbol(enabled):
    s = sheet(14, 14)
    s.rect(4, 4, 8, 8, bright if enabled else "#6c7077")
    return s


def record_symbol():
    s = sheet(14, 14)
    s.circle(8, 8, 4.5, "#ff4438")
    return s


def folder(s, x, y, width, height, fill, open_by=0):
    """A folder with its tab; an open one leans its front out."""
    s.path(f"M{x},{y + 1.5}a1,1 0 0 1 1,-1h{width * 0.3:g}l1.5,1.5"
           f"h{width * 0.7 - 3.5:g}a1,1 0 0 1 1,1v{height - 3}"
           f"a1,1 0 0 1 -1,1h-{width - 2}a1,1 0 0 1 -1,-1z", fill)
    if open_by:
        s.path(f"M{x + open_by},{y + 4.5}h{width - 1}l-{open_by},"
               f"{height - 4.5}h-{width - 1}z", ivory[0],
               stroke=panel, stroke_width=0.8, stroke_linejoin="round")


def up_symbol():
    """Out of a folder and up; centred at (8,8) like all symbols."""
    s = sheet(14, 14)
    s.line("M12.5,12 H6.5 V4.5", printing, 1.8, stroke_linejoin="miter")
    s.path("M2.8,7 L6.5,2.6 L10.2,7 Z", printing)
    return s


def new_folder_symbol():
    s = sheet(14, 14)
    folder(s, 2, 4, 11, 9, amber)
    s.line("M10.5,1.2 V6.8 M7.7,4 H13.3", ink, 3.4)
    s.line("M10.5,1.6 V6.4 M8.1,4 H12.9", "#6fe39a", 1.8)
    return s


def delete_symbol():
    s = sheet(14, 14)
    s.line("M4,4 L12,12 M12,4 L4,12", "#ff6a5c", 2.2, stroke_linecap="round")
    return s


def folder_icon(opened):
    s = sheet(16, 14)
    folder(s, 1, 1.5, 13 if opened else 14, 11,
           "#b97a1c" if opened else amber, 1.5 if opened else 0)
    return s


def drive_icon():
    s = sheet(16, 14)
    s.rect(1, 4, 14, 7, "#5a5e66", 1.5)
    s.frame(1, 4, 14, 7, "#8d929b", 1.5)
    s.rect(3, 8, 6, 1, ink)
    s.circle(12, 7.5, 1.1, "#6fe39a")
    return s


def cell(fill, rim):
    """One cell in the small picture of a sequence."""
    s = sheet(7, 7)
    s.rect(0, 0, 7, 7, rim, 1)
    s.rect(1, 1, 5, 5, fill, 0.5)
    return s


def lamp_off():
    """A lamp that cannot be switched: flat glass, no metal round it."""
    s = sheet(14, 14)
    s.circle(7, 7, 5.5, ink)
    s.ring(7, 7, 5.25, "#3b3e44", 0.9)
    s.circle(7, 7, 3.6, "#26292e")
    return s


# ---------------------------------------------------------------------------
# Check boxes and option buttons.
# ---------------------------------------------------------------------------

def check_box(checked, pressed):
    """A sunk box with an amber tick."""
    s = sheet(13, 13)
    s.rect(0, 0, 13, 13, "#3a3d43" if pressed else ink, 2)
    s.frame(0, 0, 13, 13, "#6c7077" if pressed else "#b9b6ac", 1.5)
    if checked:
        s.line("M3.2,6.6 L5.5,9 L9.9,3.6", "#9a9a94" if pressed else amber,
               2, stroke_linejoin="miter", stroke_linecap="butt")
    return s


def option_button(chosen, pressed):
    """A sunk ring with an amber dot."""
    s = sheet(12, 12)
    s.circle(6, 6, 5.75, "#3a3d43" if pressed else ink)
    s.ring(6, 6, 5.4, "#6c7077" if pressed else "#b9b6ac", 1.1)
    if chosen:
        s.circle(6, 6, 3, "#9a9a94" if pressed else amber)
    return s


# ---------------------------------------------------------------------------
# Letters.  A letter is drawn in the box of its centre lines.
# ---------------------------------------------------------------------------

def bent(points, r):
    """A line through points (x, y) whose corners are rounded by r."""
    data = f"M{number(points[0][0])},{number(points[0][1])}"
    for before, at, after in zip(points, points[1:], points[2:]):
        near = toward(at, before, r)
        far = toward(at, after, r)
        data += (f" L{number(near[0])},{number(near[1])}"
                 f" Q{number(at[0])},{number(at[1])}"
                 f" {number(far[0])},{number(far[1])}")
    return data + f" L{number(points[-1][0])},{number(points[-1][1])}"


def toward(start, goal, distance):
    """The point at a distance from start on the way to goal."""
    dx, dy = goal[0] - start[0], goal[1] - start[1]
    length = math.hypot(dx, dy)
    distance = min(distance, length)
    return start[0] + dx * distance / length, start[1] + dy * distance / length


def slant(x1, y1, x2, y2, width):
    """A filled slanting stroke with level ends."""
    half = width / 2
    corners = [(x1 - half, y1), (x1 + half, y1), (x2 + half, y2),
               (x2 - half, y2)]
    places = " L".join(f"{number(x)},{number(y)}" for x, y in corners)
    return f"M{places} Z"


def letter(s, name, x, y, w, h, pen, colour):
    """Draw one letter; (x, y, w, h) is the box of its centre lines."""
    r = min(w, h) * 0.42
    right, low, half = x + w, y + h, pen / 2
    middle = y + (h // 2)
    over, under = y - half, low + half
    left_stem = bent([(x, low), (x, y)], r)
    right_stem = bent([(right, low), (right, y)], r)
    strokes, fills = [], []
    if name == "T":
        strokes = [bent([(x, y), (right, y)], r),
                   bent([(x + w / 2, y), (x + w / 2, low)], r)]
    elif name == "O":
        strokes = [bent([(x + w / 2, y), (right, y), (right, low), (x, low),
                         (x, y), (x + w / 2, y)], r) + " Z"]
    elif name == "N":
        strokes = [left_stem, right_stem]
        fills = [slant(x + 0.1 * pen, over, right - 0.1 * pen, under,
                       pen * 1.2)]
    elif name == "M":
        strokes = [left_stem, right_stem]
        deep = y + h * 0.62
        fills = [slant(x + 0.1 * pen, over, x + w / 2, deep, pen * 1.2),
                 slant(right - 0.1 * pen, over, x + w / 2, deep, pen * 1.2)]
    elif name == "W":
        high = y + h * 0.38
        fills = [slant(x + 0.1 * pen, under, x + w / 2, high, pen * 1.2),
                 slant(right - 0.1 * pen, under, x + w / 2, high, pen * 1.2)]
        strokes = [bent([(x, y), (x, low)], r), bent([(right, y), (right, low)], r)]
    elif name == "E":
        strokes = [bent([(right, y), (x, y)], r), left_stem,
                   bent([(x, low), (right, low)], r),
                   bent([(x, middle), (right - 1, middle)], r)]
    elif name == "B":
        turn = min(r, (middle - y) / 2)
        strokes = [bent([(x, y), (right, y), (right, middle),
                         (x, middle)], turn),
                   bent([(x, middle), (right, middle), (right, low),
                         (x, low)], turn), left_stem]
    elif name == "C":
        arm = h * 0.22
        strokes = [bent([(right, y + arm), (right, y), (x, y), (x, low),
                         (right, low), (right, low - arm)], r)]
    elif name == "G":
        arm = h * 0.22
        strokes = [bent([(right, y + arm), (right, y), (x, y), (x, low),
                         (right, low), (right, middle)], r),
                   bent([(right, middle), (x + w / 2 + half, middle)], r)]
    elif name == "H":
        strokes = [left_stem, right_stem,
                   bent([(x, middle), (right, middle)], r)]
    elif name == "A":
        strokes = [bent([(x, low), (x, y), (right, y), (right, low)], r),
                   bent([(x, middle + pen), (right, middle + pen)], r)]
    elif name in "PR":
        turn = min(r, (middle - y) / 2)
        strokes = [bent([(x, y), (right, y), (right, middle), (x, middle)],
                        turn), left_stem]
        if name == "R":
            fills = [slant(x + w * 0.4, middle, right - pen * 0.1, under,
                           pen * 1.2)]
    elif name == "K":
        strokes = [left_stem]
        meet = y + h * 0.56
        fills = [slant(right, over, x + half, meet + half, pen * 1.35),
                 slant(x + w * 0.36, middle - half, right + half / 2, under,
                       pen * 1.3)]
    elif name == "a":
        strokes = [bent([(x + 0.5, y), (right, y), (right, low)], r),
                   bent([(right, middle), (x, middle), (x, low),
                         (right, low)], (low - middle) / 2)]
    elif name == "n":
        strokes = [left_stem,
                   bent([(x, y), (right, y), (right, low)], r)]
    elif name == "c":
        strokes = [bent([(right, y), (x, y), (x, low), (right, low)], r)]
    elif name == "e":
        strokes = [bent([(right, low), (x, low), (x, y), (right, y),
                         (right, middle), (x, middle)], r * 0.9)]
    elif name == "l":
        strokes = [left_stem]
    if strokes:
        s.line(" ".join(strokes), colour, pen, stroke_linecap="square",
               stroke_linejoin="miter")
    for data in fills:
        s.path(data, colour)


def word(s, letters, x, y, h, pen, gap, colour):
    """Draw letters given as (name, width, lowered); x, y: outer corner."""
    for name, width, lowered in letters:
        half = pen / 2
        letter(s, name, x + half, y + half + lowered, width, h - pen - lowered,
               pen, colour)
        x += width + pen + gap


# ---------------------------------------------------------------------------
# Pictures with words.
# ---------------------------------------------------------------------------

def caption_ok():
    s = sheet(51, 20)
    word(s, [("O", 8, 0), ("K", 7, 0)], 18, 5, 13, 2, 3, printing)
    return s


def caption_cancel():
    s = sheet(51, 20)
    word(s, [("C", 6, 0), ("a", 5, 3), ("n", 5, 3), ("c", 4, 3), ("e", 5, 3),
             ("l", 0, 0)], 4, 5, 13, 2, 2, printing)
    return s


def tone_symbol(name):
    """The letter of a tone, on its push button; centred like the symbols."""
    s = sheet(14, 14)
    word(s, [(name, 6, 0)], 4, 3, 10, 2, 2, printing)
    return s


def caption_new():
    """The word NEW, for the key over the sequencer's keys."""
    s = sheet(22, 7)
    word(s, [("N", 4, 0), ("E", 3, 0), ("W", 6, 0)], 0, 0, 7, 1, 2, ink)
    return s


def sign():
    """The word PROGRAMMER."""
    s = sheet(79, 14)
    widths = dict(P=4, R=5, O=5, G=5, A=5, M=6, E=4)
    word(s, [(name, widths[name], 0) for name in "PROGRAMMER"],
         0, 2, 10, 1, 2, printing)
    return s


def mark(s, x, y, width, height):
    """A wave that turns into steps."""
    middle, swing = y + height / 2, height / 2
    half = width // 2
    smooth = []
    for place in range(half + 1):
        angle = place * 3 * math.pi / width
        smooth.append((x + place, middle - swing * math.sin(angle)))
    s.line("M" + " L".join(f"{number(px)},{number(py)}" for px, py in smooth),
           teal, 2, stroke_linejoin="round")
    step = 5
    level = round(smooth[-1][1])
    data = f"M{x + half - 1},{level}"
    for place in range(half, width, step):
        angle = (place + step / 2) * 3 * math.pi / width
        level = round(middle - swing * math.sin(angle))
        data += f" V{level} H{x + place + step}"
    s.line(data, amber, 2, stroke_linejoin="miter")


def logo():
    """The name plate."""
    s = sheet(110, 50)
    s.rect(0, 0, 110, 50, panel)
    mark(s, 5, 7, 100, 16)
    widths = dict(T=8, O=8, N=8, E=6, B=7, C=7, H=8)
    word(s, [(name, widths[name], 0) for name in "TONEBENCH"],
         5, 31, 13, 2, 2, printing)
    return s


# ---------------------------------------------------------------------------
# The ground.
# ---------------------------------------------------------------------------

def ground_tile():
    """A quiet weave that repeats every four pixels."""
    s = sheet(64, 64)
    s.rect(0, 0, 64, 64, ground)
    light, dark = "", ""
    for row in range(0, 64, 4):
        for column in range(0, 64, 4):
            x = column + (2 if row % 8 else 0)
            light += f"M{x},{row}h1v1h-1z"
            dark += f"M{x},{row + 1}h1v1h-1z"
    s.path(light, "#191b1f")
    s.path(dark, "#0d0e10")
    return s


# ---------------------------------------------------------------------------
# The list of pictures.
# ---------------------------------------------------------------------------

def all_pictures():
    """File stem -> finished sheet."""
    pictures = {
        "buttons_0": switch_thumb(True, False),
        "buttons_1": switch_thumb(True, True),
        "buttons_2": switch_thumb(False, False),
        "buttons_3": switch_thumb(False, True),
        "buttons_4": knob_dot(False),
        "buttons_5": knob_dot(True),
        "buttons_6": slider_thumb(False),
        "buttons_7": slider_thumb(True),
        "buttons_8": knob_body(),
        "buttons_9": keyboard_button(False),
        "buttons_10": keyboard_button(True),
        "led_0": lamp(("#6a1a16", "#4a0f0d", "#2a0706"), False),
        "led_1": lamp(("#ffd9d0", "#ff3a2c", "#d81410"), True),
        "led_2": lamp(("#e2ffe6", "#3fe070", "#12a544"), True),
        "led_3": lamp(("#fff2cc", "#ffb030", "#d97c08"), True),
        "led_4": lamp(("#d4fff8", "#2fd8c8", "#109488"), True),
        "led_5": lamp_off(),
        "fd_symbols_0": up_symbol(),
        "fd_symbols_1": new_folder_symbol(),
        "fd_symbols_2": delete_symbol(),
        "fd_icons_0": folder_icon(False),
        "fd_icons_1": folder_icon(True),
        "fd_icons_2": drive_icon(),
        "fd_seq_pics_0": cell("#1f2226", "#2b2f35"),
        "fd_seq_pics_1": cell("#1f2226", "#6c7077"),
        "fd_seq_pics_2": cell("#ffb030", "#ffd694"),
        "fd_seq_pics_3": cell("#8a5a14", "#a8741f"),
        "button_up3d": push_button(22, 22, False),
        "button_dn3d": push_button(22, 22, True),
        "start_enabled": play_symbol(True),
        "start_disabled": play_symbol(False),
        "stop_enabled": stop_symbol(True),
        "stop_disabled": stop_symbol(False),
        "record": record_symbol(),
        "dlg2_up": push_button(65, 34, False, 3),
        "dlg2_dn": push_button(65, 34, True, 3),
        "dlg2_ok": caption_ok(),
        "dlg2_cancel": caption_cancel(),
        "tone_a_pic": tone_symbol("A"),
        "tone_b_pic": tone_symbol("B"),
        "seq_pics_0": sequencer_cell("empty"),
        "seq_pics_1": sequencer_cell("light"),
        "seq_pics_2": sequencer_cell("loud"),
        "seq_pics_3": sequencer_cell("soft"),
        "seq_new": caption_new(),
        "back_pic": ground_tile(),
        "pic_tonebench": logo(),
        "pic_sign": sign(),
    }
    for place in range(4):
        first, second = place % 2 == 1, place >= 2
        pictures[f"seq_keys_{place}"] = sequencer_key(first, second)
        pictures[f"cb_pics_{place}"] = check_box(first, second)
        pictures[f"ob_pics_{place}"] = option_button(first, second)
    return pictures


def main():
    beside = os.path.join(os.path.dirname(os.path.abspath(__file__)),
                          "pictures")
    folder = sys.argv[1] if len(sys.argv) > 1 else beside
    os.makedirs(folder, exist_ok=True)
    for stem, picture in sorted(all_pictures().items()):
        path = os.path.join(folder, stem + ".svg")
        with open(path, "w", encoding="utf-8", newline="\n") as file:
            file.write(picture.text())


main()
