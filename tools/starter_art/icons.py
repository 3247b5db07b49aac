"""The small pictures that may sit in the corner of a frame, in a box of 90 by 80.

The colour of their ground is the key: what is nearer to it than 110 in all three channels would become a hole. It is dark, so that
what the program mixes of it and an outline, where it makes an icon smaller, is no light rim. Dark outlines keep icons whole on bands of
any colour.
"""
import math

from starter_art.svg import circle, closed, drawing, ellipse, group, path, points, rectangle

WIDTH, HEIGHT = 90, 80
KEY = "#00d000"
# It would take out what is green, or green where two colours meet.
OTHER_KEYS = {"leaf": "#0000d0", "tree": "#d000d0", "camera": "#d000d0"}
LINE = dict(stroke="#3b2a20", stroke_width="3", stroke_linejoin="round", stroke_linecap="round")


def rays(x, y, inner, outer, count, first=-90):
    found = []
    for step in range(2 * count):
        reach, angle = (outer, inner)[step % 2], math.radians(first + 180 * step / count)
        found.append((x + reach * math.cos(angle), y + reach * math.sin(angle)))
    return closed(found)


def stroke(shape, color="#3b2a20", width="4"):
    return path(shape, fill="none", stroke=color, stroke_width=width, stroke_linecap="round", stroke_linejoin="round")


def heart():
    return [path("M45,72 C20,52 8,38 8,24 C8,12 17,5 27,5 C35,5 42,10 45,18 C48,10 55,5 63,5 C73,5 82,12 82,24 "
                 "C82,38 70,52 45,72Z", fill="#d8213f", **LINE), stroke("M18,25 C18,19 22,15 27,14", "#ff8090", "5")]


def star():
    return [path(rays(45, 42, 15, 38, 5), fill="#ffb800", **LINE)]


def flower():
    petals = [circle(45 + 20 * math.cos(math.radians(60 * i)), 40 + 20 * math.sin(math.radians(60 * i)), 13,
                     fill="#e0459b", **LINE) for i in range(6)]
    return petals + [circle(45, 40, 13, fill="#ffc21a", **LINE)]


def sun():
    return [path(rays(45, 40, 24, 37, 12), fill="#ff8c00", **LINE), circle(45, 40, 19, fill="#ffc400", **LINE)]


def moon():
    return [path("M58,6 A35,35 0 1 0 78,58 A30,30 0 0 1 58,6Z", fill="#f2b705", **LINE)]


def snowflake():
    arms = []
    for turn in range(6):
        arms.append(group([stroke("M0,0 V-35 M-9,-30 L0,-21 L9,-30 M-8,-17 L0,-10 L8,-17", "#1769b5", "5")],
                          transform=f"translate(45,40) rotate({60 * turn})"))
    return arms


def fir():
    return [rectangle(40, 62, 10, 13, fill="#7a4a21", **LINE),
            path("M45,4 L63,28 H54 L70,47 H58 L76,65 H14 L32,47 H20 L36,28 H27Z", fill="#1f7a3d", **LINE),
            circle(38, 40, 4, fill="#ffb800"), circle(54, 56, 4, fill="#e3342f"), circle(30, 57, 4, fill="#2f7fe3")]


def leaf():
    return [path("M12,66 C4,30 34,6 80,8 C80,46 58,76 24,64", fill="#3f8f2e", **LINE), stroke("M8,74 C24,52 42,36 62,24"),
            stroke("M32,47 L33,32 M44,37 L60,40", width="3")]


def cake():
    return [path("M14,42 H76 V72 H14Z", fill="#b5651d", **LINE),
            path("M14,42 Q14,34 22,34 H68 Q76,34 76,42 V48 Q70,58 64,48 Q58,58 52,48 Q45,58 38,48 Q32,58 26,48 Q20,58 14,48Z",
                 fill="#ff6fa5", **LINE),
            *(rectangle(x - 2.5, 18, 5, 16, fill="#2f7fe3", **LINE) for x in (29, 45, 61)),
            *(ellipse(x, 10, 3, 5.5, fill="#ff9d00") for x in (29, 45, 61))]


def gift():
    return [rectangle(15, 36, 60, 38, fill="#7b3fc4", **LINE), rectangle(10, 25, 70, 14, fill="#8f55d8", **LINE),
            rectangle(40, 25, 10, 49, fill="#ffc21a", **LINE),
            path("M45,25 C20,22 22,3 33,6 C41,8 45,18 45,25 C45,18 49,8 57,6 C68,3 70,22 45,25Z", fill="#ffc21a", **LINE)]


def balloons():
    found = [stroke("M30,44 C34,56 44,60 45,76 M60,42 C56,56 47,60 45,76", width="2.5")]
    for x, y, color in ((29, 26, "#e3342f"), (61, 24, "#2f7fe3")):
        found += [path(closed([(x, y + 18), (x - 5, y + 25), (x + 5, y + 25)]), fill=color, **LINE),
                  ellipse(x, y, 17, 21, fill=color, **LINE)]
    return found


def boat():
    return [path("M8,54 H82 L70,72 H20Z", fill="#b8322a", **LINE), stroke("M45,6 V52"),
            path("M41,10 V48 H14Z", fill="#2f7fe3", **LINE), path("M50,16 V48 H74Z", fill="#ffb800", **LINE)]


def paw():
    return [path("M45,36 C60,36 70,52 66,64 C62,75 52,69 45,69 C38,69 28,75 24,64 C20,52 30,36 45,36Z", fill="#7a4a21"),
            *(ellipse(x, y, 8, 11, fill="#7a4a21") for x, y in ((17, 38), (34, 19), (56, 19), (73, 38)))]


def note():
    return [stroke("M32,60 V14 L70,7 V52", "#20255e", "6"), stroke("M32,20 L70,13", "#20255e", "9"),
            ellipse(24, 62, 11, 9, fill="#20255e"), ellipse(62, 54, 11, 9, fill="#20255e")]


def ball():
    return [circle(45, 40, 34, fill="#e8741e", **LINE), stroke("M45,6 V74 M11,40 H79", width="3"),
            stroke("M20,18 C34,30 34,50 20,62 M70,18 C56,30 56,50 70,62", width="3")]


def cap():
    return [path("M24,40 V58 C34,70 56,70 66,58 V40", fill="#20255e", **LINE),
            path("M45,12 L84,32 L45,52 L6,32Z", fill="#2c3588", **LINE), stroke("M45,32 L76,38 V58", "#f2a900", "4"),
            circle(76, 61, 5, fill="#f2a900")]


def camera():
    return [rectangle(10, 20, 70, 50, rx=8, fill="#37474f", **LINE), path("M32,20 L37,10 H53 L58,20Z", fill="#37474f", **LINE),
            circle(45, 45, 19, fill="#0d8ecf", **LINE), circle(45, 45, 10, fill="#0a3f66"),
            rectangle(64, 26, 10, 7, fill="#ffb800")]


def butterfly():
    wings = "M45,36 C54,8 84,2 82,24 C81,38 68,42 58,43 C72,46 76,60 66,68 C56,74 48,56 45,46Z"
    return [path(wings, fill="#2456c8", **LINE), group([path(wings, fill="#2456c8", **LINE)], transform="matrix(-1 0 0 1 90 0)"),
            *(circle(x, 24, 6, fill="#ff9d00") for x in (25, 65)), stroke("M45,28 V62", width="6"),
            stroke("M45,28 L37,14 M45,28 L53,14", width="2.5")]


ALL = {"heart": heart, "star": star, "flower": flower, "sun": sun, "moon": moon, "snowflake": snowflake, "tree": fir,
       "leaf": leaf, "cake": cake, "gift": gift, "balloons": balloons, "boat": boat, "paw": paw, "note": note,
       "ball": ball, "cap": cap, "camera": camera, "butterfly": butterfly}


def key_of(name):
    """Its first pixel, from which all that nothing is drawn on takes its colour."""
    return rectangle(0, 0, 1, 1, fill=OTHER_KEYS.get(name, KEY))


def all_icons():
    within = "translate(3.5,4.5) scale(0.9)"  # the outermost pixels aren't copied to a frame
    return {name: drawing(WIDTH, HEIGHT, [key_of(name), group(draw(), transform=within)]) for name, draw in ALL.items()}


def listing():
    """The list that the program reads: a name, a blank, a file."""
    return "".join(f"{name.capitalize()} {name}.bmp\r\n" for name in ALL)
