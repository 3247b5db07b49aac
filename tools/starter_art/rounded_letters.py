"""The rounded alphabet: strokes of one broad pen with a round tip, a little lower than it is wide, so that strokes that lie are
thinner than those that stand. Its way is written for a finer pen that would fill the box, and drawn in."""
import re

from starter_art.masks import LIT, RIM
from starter_art.svg import drawing, group, number, path, rectangle

PEN = 136  # how wide strokes are that stand, with their rims
FLAT = 0.86  # of it are those that lie
RIM_WIDTH = 9
IN = (0.96, 0.99)  # what the broad pen leaves of the way across and down

STROKES = {
    "a": ["M70,430 L250,72 L430,430", ("M150,334 H350", 0.82)],
    "b": ["M92,70 V430 H270 C362,430 420,394 420,338 C420,284 362,248 270,248 H92", "M92,70 H262 C346,70 392,106 392,158 C392,212 346,248 262,248"],
    "c": ["M400,136 A182,182 0 1 0 400,364"],
    "d": ["M90,70 H226 C350,70 428,142 428,250 C428,358 350,430 226,430 H90 Z"],
    "e": ["M408,70 H96 V430 H412", ("M96,250 H380", 0.94)],
    "f": ["M412,70 H100 V430", ("M100,258 H372", 0.96)],
    "g": ["M392,124 A182,182 0 1 0 430,276 H300"],
    "h": ["M84,70 V430", "M416,70 V430", "M84,250 H416"],
    "i": ["M126,70 H374", "M126,430 H374", "M250,70 V430"],
    "j": ["M186,70 H392 V286 C392,382 332,430 242,430 C168,430 114,398 90,336"],
    "k": ["M92,70 V430", ("M412,70 L112,268", 0.96), ("M222,204 L416,430", 0.98)],
    "l": ["M112,70 V430 H406"],
    "m": [("M70,430 V72 L250,292 L430,72 V430", 0.92)],
    "n": [("M80,430 V72 L420,428 V70", 0.96)],
    "o": ["M250,70 A182,180 0 1 0 250.1,70 Z"],
    "p": ["M96,430 V70 H272 C368,70 418,118 418,188 C418,258 368,306 272,306 H96"],
    "q": ["M248,70 A180,177 0 1 0 248.1,70 Z", ("M330,334 L424,422", 0.92)],
    "r": ["M94,430 V70 H266 C360,70 408,114 408,182 C408,252 360,296 266,296 H94", ("M270,296 L416,430", 0.98)],
    "s": [("M392,126 C362,90 312,70 250,70 C162,70 100,104 100,158 C100,216 166,234 250,248 C338,263 404,284 404,342 C404,396 338,430 250,430 "
           "C184,430 130,408 100,366", 0.95)],
    "t": ["M70,72 H430", "M250,72 V430"],
    "u": ["M82,70 V258 C82,368 148,430 250,430 C352,430 418,368 418,258 V70"],
    "v": ["M70,70 L250,428 L430,70"],
    "w": [("M60,70 L150,428 L250,140 L350,428 L440,70", 0.84)],
    "x": ["M80,72 L420,428", ("M420,72 L80,428", 0.96)],
    "y": ["M70,70 L250,258 L430,70", "M250,258 V430"],
    "z": ["M88,72 H412 L88,428 H412"],
    "0": ["M250,70 C346,70 404,140 404,250 C404,360 346,430 250,430 C154,430 96,360 96,250 C96,140 154,70 250,70 Z"],
    "1": ["M142,164 L264,74 V430", "M132,430 H396"],
    "2": ["M102,172 C108,106 168,70 248,70 C342,70 402,114 402,182 C402,256 324,306 104,430 H410"],
    "3": ["M106,112 C146,84 194,70 248,70 C336,70 392,104 392,158 C392,212 342,247 252,247 C350,247 408,282 408,340 C408,398 342,430 248,430 "
          "C184,430 132,414 96,378"],
    "4": ["M336,430 V72 L68,328 H430"],
    "5": ["M394,70 H132 L120,232 C160,212 204,202 250,202 C350,204 410,248 410,316 C410,388 342,430 246,430 C186,430 134,416 102,386"],
    "6": ["M378,104 C348,82 310,70 270,70 C150,70 90,160 90,288 C90,380 154,430 250,430 C344,430 410,386 410,318 C410,256 344,222 256,222 "
          "C184,222 120,250 92,300"],
    "7": ["M86,72 H414 C330,180 262,304 234,430"],
    "8": [("M250,70 C334,70 382,104 382,157 C382,211 334,243 250,243 C166,243 118,211 118,157 C118,104 166,70 250,70 Z", 0.96),
          "M250,243 C348,243 408,280 408,338 C408,396 348,430 250,430 C152,430 92,396 92,338 C92,280 152,243 250,243 Z"],
}


def drawn_in(way):
    """The way of the broad pen, before the page is made lower by FLAT."""
    down = IN[1] / FLAT
    found, rest = [], re.findall(r"[A-Z]|-?[0-9.]+", way)
    while rest:
        word = rest.pop(0)
        found.append(word)
        if word == "A":
            wide, high = float(rest.pop(0)), float(rest.pop(0))
            found += [number(wide * IN[0]), number(high * down), *(rest.pop(0) for _ in range(3))]
        across = word != "V"
        while rest and not rest[0].isalpha():
            value = float(rest.pop(0)) - 250
            found.append(number(250 + value * (IN[0] if across else down)))
            across = across if word in "HV" else not across
    return " ".join(found)


def strokes(ways, narrower):
    return [path(drawn_in(way), stroke_width=number(PEN * share - narrower))
            for way, share in (each if isinstance(each, tuple) else (each, 1) for each in ways)]


LOWER = f"translate(0,250) scale(1,{FLAT}) translate(0,-250)"
TIP = dict(fill="none", stroke_linecap="round", stroke_linejoin="round", transform=LOWER)


def letter(ways, **placing):
    """The rims of all strokes lie below the insides of all, so that no rim crosses the letter."""
    rims = group([group(strokes(ways, 0), stroke=RIM, **TIP)], **placing)
    inside = group([group(strokes(ways, 2 * RIM_WIDTH), stroke="#000000", **TIP)], **placing)
    return drawing(500, 500, [rectangle(0, 0, 500, 500, fill="#ffffff"), rims, group([inside], transform=f"translate({LIT},{LIT})")])


def all_rounded():
    found = {f"char_{name}": letter(ways) for name, ways in STROKES.items()}
    found["char_9"] = letter(STROKES["6"], transform="rotate(180 250 250)")
    return found


def shown(name, color):
    """The letter alone, in a colour."""
    return group(strokes(STROKES[name], 2 * RIM_WIDTH), stroke=color, **TIP)
