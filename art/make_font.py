#!/usr/bin/python3
r"""Write the display face of Tonebench, a TrueType font named JX8P.

Usage: /usr/bin/python3 art/make_font.py OUTPUT.FNT

Every character is one cell of a fourteen-segment display:

       .---- a ----.
       |\    |    /|
       f  i  j  k  b
       |   \ | /   |
       |--g--*--h--|
       |   / | \   |
       e  l  m  n  c
       |/    |    \|
       '---- d ----'   p

  a d      top and bottom bar
  f e      left side, upper and lower
  b c      right side, upper and lower
  g h      middle bar, left and right
  j m      centre stroke, upper and lower
  i k      upper slanting strokes, left and right
  l n      lower slanting strokes, left and right
  p        the point

The cell is 768 of 1280 units wide: 12 pixels at a size of 20 pixels.
"""

import math
import sys

from fontTools.fontBuilder import FontBuilder
from fontTools.misc import sstruct
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib.tables.O_S_2f_2 import Panose, panoseFormat

family = "JX8P"
units = 1280
advance = 768
ascent, descent = 1088, 192

# The upright cell.  At a size of 20 pixels one pixel is 64 units.
left, right = 44, 640
bottom, top = 0, 896
centre, middle = (left + right) / 2, (bottom + top) / 2
bar = 112           # height of the top and bottom bars
waist = 100         # height of the middle bar
side = 102          # width of the four sides
stroke = 84         # width of the centre strokes
gap = 22            # clear space between two segments
point = 112         # height of the point
lean = math.tan(math.radians(6))

# Seconds from 1904 to the day the face was drawn; the file never varies.
drawn_on = 3786912000

all_segments = "abcdefghijklmnp"
all_lit = 0xE000


# ---------------------------------------------------------------------------
# Characters and their segments.
# ---------------------------------------------------------------------------

printable = {
    # sign  segments        sign  segments        sign  segments
    " ": "",              "!": "bcp",           '"': "bf",
    "#": "bcdghjm",       "$": "acdfghjm",      "%": "cfkl",
    "&": "acdegijn",      "'": "k",             "(": "kn",
    ")": "il",            "*": "ghijklmn",      "+": "ghjm",
    ",": "l",             "-": "gh",            ".": "p",
    "/": "kl",            ":": "jm",            ";": "jl",
    "<": "kn",            "=": "dgh",           ">": "il",
    "?": "abhm",          "@": "abdefhj",       "[": "adef",
    "\\": "in",           "]": "abcd",          "^": "ln",
    "_": "d",             "`": "i",             "{": "adgil",
    "|": "bc",            "}": "adhkn",         "~": "fik",
    # ---- digits -----------------------------------------------------------
    "0": "abcdefkl",      "1": "bck",           "2": "abdegh",
    "3": "abcdh",         "4": "bcfgh",         "5": "adfgn",
    "6": "acdefgh",       "7": "abc",           "8": "abcdefgh",
    "9": "abcdfgh",
    # ---- capital letters --------------------------------------------------
    "A": "abcefgh",       "B": "abcdhjm",       "C": "adef",
    "D": "abcdjm",        "E": "adefg",         "F": "aefg",
    "G": "acdefh",        "H": "bcefgh",        "I": "adjm",
    "J": "bcde",          "K": "efgkn",         "L": "def",
    "M": "bcefik",        "N": "bcefin",        "O": "abcdef",
    "P": "abefgh",        "Q": "abcdefn",       "R": "abefghn",
    "S": "acdfgh",        "T": "ajm",           "U": "bcdef",
    "V": "efkl",          "W": "bcefln",        "X": "ikln",
    "Y": "ikm",           "Z": "adkl",
    # ---- small letters ----------------------------------------------------
    "a": "degm",          "b": "defgn",         "c": "degh",
    "d": "bcdhl",         "e": "degl",          "f": "ghkm",
    "g": "bcdhk",         "h": "efgm",          "i": "m",
    "j": "bcd",           "k": "jkmn",          "l": "ef",
    "m": "ceghm",         "n": "egm",           "o": "cdegh",
    "p": "efgi",          "q": "bchk",          "r": "eg",
    "s": "dgn",           "t": "defg",          "u": "cde",
    "v": "el",            "w": "celn",          "x": "ikln",
    "y": "bcdhj",         "z": "dhl",
}

signs = {
    # The upper half of the table, U+00A0 to U+00BF, and the two arithmetic
    # signs among the accented letters.
    "\u00a0": "",         "\u00a1": "bcp",      "\u00a2": "deghjm",
    "\u00a3": "adghjm",   "\u00a4": "cdeghik",  "\u00a5": "dghikm",
    "\u00a6": "bc",       "\u00a7": "acdfgh",   "\u00a8": "bf",
    "\u00a9": "adef",     "\u00aa": "degm",     "\u00ab": "kn",
    "\u00ac": "cgh",      "\u00ad": "gh",       "\u00ae": "abefghn",
    "\u00af": "a",        "\u00b0": "abfgh",    "\u00b1": "dghjm",
    "\u00b2": "abdegh",   "\u00b3": "abcdh",    "\u00b4": "k",
    "\u00b5": "befgh",    "\u00b6": "abcfgjm",  "\u00b7": "p",
    "\u00b8": "l",        "\u00b9": "bck",      "\u00ba": "abfgh",
    "\u00bb": "il",       "\u00bc": "fkl",      "\u00bd": "fkl",
    "\u00be": "fkl",      "\u00bf": "degj",     "\u00d7": "ikln",
    "\u00f7": "ghkl",
    # Letters that are more than a letter with an accent.
    "\u00c6": "adefghjm", "\u00d0": "abcdgjm",  "\u00d8": "abcdefkl",
    "\u00de": "abefgh",   "\u00df": "adefkn",   "\u00e6": "deghlm",
    "\u00f0": "bcdhl",    "\u00f8": "cdeghl",   "\u00fe": "efgi",
    # The characters that Windows-1252 puts at codes 128 to 159.
    "\u20ac": "adefgh",   "\u201a": "l",        "\u0192": "ghkm",
    "\u201e": "ln",       "\u2026": "dp",       "\u2020": "ghjm",
    "\u2021": "aghjm",    "\u02c6": "ln",       "\u2030": "cfkl",
    "\u2039": "kn",       "\u0152": "adefhjm",  "\u2018": "i",
    "\u2019": "k",        "\u201c": "fi",       "\u201d": "bk",
    "\u2022": "ghijklmn", "\u2013": "gh",       "\u2014": "gh",
    "\u02dc": "fik",      "\u2122": "ajm",      "\u203a": "il",
    "\u0153": "cdeghm",
}

# Accented letters are drawn as the plain letter.
plain_letters = {
    "A": "\u00c0\u00c1\u00c2\u00c3\u00c4\u00c5",
    "C": "\u00c7",
    "E": "\u00c8\u00c9\u00ca\u00cb",
    "I": "\u00cc\u00cd\u00ce\u00cf",
    "N": "\u00d1",
    "O": "\u00d2\u00d3\u00d4\u00d5\u00d6",
    "S": "\u0160",
    "U": "\u00d9\u00da\u00db\u00dc",
    "Y": "\u00dd\u0178",
    "Z": "\u017d",
    "a": "\u00e0\u00e1\u00e2\u00e3\u00e4\u00e5",
    "c": "\u00e7",
    "e": "\u00e8\u00e9\u00ea\u00eb",
    "i": "\u00ec\u00ed\u00ee\u00ef",
    "n": "\u00f1",
    "o": "\u00f2\u00f3\u00f4\u00f5\u00f6",
    "s": "\u0161",
    "u": "\u00f9\u00fa\u00fb\u00fc",
    "y": "\u00fd\u00ff",
    "z": "\u017e",
}


def character_table():
    """Code point -> segments, for every character of the face."""
    table = {ord(sign): lit for sign, lit in printable.items()}
    table.update({ord(sign): lit for sign, lit in signs.items()})
    for plain, accented in plain_letters.items():
        for sign in accented:
            table[ord(sign)] = printable[plain]
    table[all_lit] = all_segments
    return table


# ---------------------------------------------------------------------------
# The shape of each segment, upright.
# ---------------------------------------------------------------------------

def mirrored(points):
    """The same shape on the other side of the centre stroke."""
    return [(left + right - x, y) for x, y in points]


def turned_over(points):
    """The same shape on the other side of the middle bar."""
    return [(x, bottom + top - y) for x, y in points]


def top_bar():
    """The top bar; its ends are mitred."""
    return [(left + gap, top), (right - gap, top),
            (right - side - gap / 2, top - bar),
            (left + side + gap / 2, top - bar)]


def upper_side():
    """The upper left side; it is mitred at the top and beside the bar g."""
    foot = middle + gap / 2
    return [(left, top - gap / 2), (left, foot), (left + side / 2, foot),
            (left + side, foot + waist / 2), (left + side, top - bar - gap)]


def middle_bar():
    """The left half of the middle bar; both ends are pointed."""
    start, end = left + side / 2 + gap, centre - gap / 2
    high, low = middle + waist / 2, middle - waist / 2
    return [(start, middle), (start + side / 2, high),
            (end - stroke / 2, high), (end, middle),
            (end - stroke / 2, low), (start + side / 2, low)]


def centre_stroke():
    """The upper centre stroke; its lower end is pointed."""
    high, low = top - bar - gap, middle + gap
    near, far = centre - stroke / 2, centre + stroke / 2
    return [(near, high), (far, high), (far, low + waist / 2),
            (centre, low), (near, low + waist / 2)]


def slanting_stroke():
    """The upper left slanting stroke, cut to the corners of its field."""
    start, end = left + side + gap, centre - stroke / 2 - gap
    high, low = top - bar - gap, middle + waist / 2 + gap * 0.6
    wide, deep = (end - start) * 0.62, (high - low) * 0.42
    return [(start, high), (start + wide, high), (end, low + deep),
            (end, low), (end - wide, low), (start, high - deep)]


def point_shape():
    """The point, to the right of the cell's foot."""
    start, end = right + gap, right + gap + side * 0.85
    return [(start, 0), (end, 0), (end, point), (start, point)]


def upright_shapes():
    """Segment name -> its points."""
    shapes = {"a": top_bar(), "f": upper_side(), "g": middle_bar(),
              "j": centre_stroke(), "i": slanting_stroke(),
              "p": point_shape()}
    for name, source in (("b", "f"), ("h", "g"), ("k", "i")):
        shapes[name] = mirrored(shapes[source])
    for name, source in (("d", "a"), ("e", "f"), ("c", "b"),
                         ("m", "j"), ("l", "i"), ("n", "k")):
        shapes[name] = turned_over(shapes[source])
    return shapes


# ---------------------------------------------------------------------------
# From shapes to glyphs.
# ---------------------------------------------------------------------------

def leaning(points):
    """The points slanted to the right and rounded to whole units."""
    return [(round(x + y * lean), round(y)) for x, y in points]


def clockwise(points):
    """The points in the order that TrueType fills."""
    area = sum(x1 * y2 - x2 * y1 for (x1, y1), (x2, y2)
               in zip(points, points[1:] + points[:1]))
    return points if area < 0 else points[::-1]


def draw_glyph(lit, shapes):
    """The glyph that shows the lit segments."""
    pen = TTGlyphPen(None)
    for name in sorted(lit):
        points = shapes[name]
        pen.moveTo(points[0])
        for place in points[1:]:
            pen.lineTo(place)
        pen.closePath()
    return pen.glyph()


def glyph_name(code):
    return "space" if code == 0x20 else f"uni{code:04X}"


def build_font(table):
    """The whole face."""
    shapes = {name: clockwise(leaning(points))
              for name, points in upright_shapes().items()}
    codes = sorted(table)
    glyphs = {".notdef": draw_glyph("abcdef", shapes)}
    for code in codes:
        glyphs[glyph_name(code)] = draw_glyph(table[code], shapes)

    builder = FontBuilder(units, isTTF=True)
    builder.setupGlyphOrder(list(glyphs))
    builder.setupCharacterMap({code: glyph_name(code) for code in codes})
    builder.setupGlyf(glyphs)
    boxes = builder.font["glyf"]
    builder.setupHorizontalMetrics(
        {name: (advance, getattr(boxes[name], "xMin", 0)) for name in glyphs})
    builder.setupHorizontalHeader(ascent=ascent, descent=-descent)
    builder.setupNameTable(dict(
        familyName=family, styleName="Regular",
        uniqueFontIdentifier=family + " Regular 1.0",
        fullName=family, psName=family + "-Regular", version="Version 1.0"))
    builder.setupOS2(
        sTypoAscender=ascent, sTypoDescender=-descent, sTypoLineGap=0,
        usWinAscent=ascent, usWinDescent=descent, sCapHeight=top,
        sxHeight=top // 2, xAvgCharWidth=advance, usWeightClass=400,
        fsSelection=0x40)
    builder.font["OS/2"].panose = fixed_pitch_panose()
    builder.setupPost(isFixedPitch=1)
    builder.font["head"].created = drawn_on
    builder.font["head"].modified = drawn_on
    builder.font.recalcTimestamp = False
    return builder.font


def fixed_pitch_panose():
    """The classification of a face whose cells are all equally wide."""
    panose = Panose()
    for name in sstruct.getformat(panoseFormat)[1]:
        setattr(panose, name, 0)
    panose.bFamilyType = 2
    panose.bSerifStyle = 11
    panose.bWeight = 5
    panose.bProportion = 9
    return panose


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: make_font.py OUTPUT.FNT")
    build_font(character_table()).save(sys.argv[1])


if __name__ == "__main__":
    main()
