"""Backgrounds from what people do: sports, music, school, cinema, pets."""
import math
import random

from starter_art.celebrations import five_star, line
from starter_art.pages import placed
from starter_art.svg import circle, closed, down_gradient, drawing, ellipse, glow, group, number, path, rectangle, smooth


def football(x, y, size):
    patch = [(0.36 * math.sin(2 * math.pi * at / 5), -0.36 * math.cos(2 * math.pi * at / 5)) for at in range(5)]
    parts = [circle(0, 0, 1, fill="#ffffff", stroke="#2b2f33", stroke_width="0.04"), path(exact(patch), fill="#2b2f33")]
    for at in range(5):
        angle = 2 * math.pi * at / 5
        far = [(0.97 * math.sin(angle - 0.3), -0.97 * math.cos(angle - 0.3)), (0.76 * math.sin(angle - 0.24), -0.76 * math.cos(angle - 0.24)),
               (0.64 * math.sin(angle), -0.64 * math.cos(angle)), (0.76 * math.sin(angle + 0.24), -0.76 * math.cos(angle + 0.24)),
               (0.97 * math.sin(angle + 0.3), -0.97 * math.cos(angle + 0.3))]
        parts += [path(exact(far), fill="#2b2f33"), path(exact([patch[at], far[2]])[:-1], stroke="#2b2f33", stroke_width="0.04")]
    return placed(parts, x, y, size, 12)


def exact(pairs):
    return "M" + " L".join(f"{x:.3f},{y:.3f}" for x, y in pairs) + "Z"


def basketball(x, y, size):
    lines = "M-1,0 H1 M0,-1 V1 M-0.72,-0.7 C-0.3,-0.3 -0.3,0.3 -0.72,0.7 M0.72,-0.7 C0.3,-0.3 0.3,0.3 0.72,0.7"
    return placed([circle(0, 0, 1, fill="#e07b2f"), circle(0, 0, 1, fill="none", stroke="#5b2f16", stroke_width="0.05"),
                   path(lines, fill="none", stroke="#5b2f16", stroke_width="0.05")], x, y, size, 20)


def tennis(x, y, size):
    return placed([circle(0, 0, 1, fill="#d3e04a"), path("M-0.78,-0.62 C-0.2,-0.3 -0.2,0.3 -0.78,0.62 M0.78,-0.62 C0.2,-0.3 0.2,0.3 0.78,0.62",
                                                         fill="none", stroke="#ffffff", stroke_width="0.09")], x, y, size, 35)


def trophy(x, y, scale):
    return placed([path("M-110,-200 H110 C110,-40 60,20 20,30 V90 H-20 V30 C-60,20 -110,-40 -110,-200Z", fill="#e5b93f"),
                   line("M-110,-170 C-200,-170 -190,-50 -84,-40 M110,-170 C200,-170 190,-50 84,-40", "#e5b93f", 24),
                   rectangle(-80, 90, 160, 34, fill="#e5b93f"), rectangle(-100, 120, 200, 60, rx=8, fill="#5a3d22"),
                   path("M-70,-180 C-70,-80 -50,-40 -30,-20 C-50,-80 -52,-130 -50,-180Z", fill="#f8e09a"),
                   five_star(0, -100, 46, "#f8e09a")], x, y, scale)


def sports():
    parts = [rectangle(0, 0, 3000, 2000, fill="#5fa052")]
    parts += [rectangle(at * 500, 0, 250, 2000, fill="#6aad5c") for at in range(6)]
    chalk = dict(fill="none", stroke="#ffffff", stroke_width="12", stroke_opacity="0.75")
    parts += [rectangle(70, 70, 2860, 1860, **chalk), path("M1500,70 V1930", **chalk), circle(1500, 1000, 330, **chalk),
              rectangle(70, 520, 420, 960, **chalk), rectangle(2510, 520, 420, 960, **chalk),
              path("M490,800 A240,240 0 0 1 490,1200 M2510,800 A240,240 0 0 0 2510,1200", **chalk)]
    for x, y, size in ((280, 1730, 170), (2740, 260, 160)):
        parts.append(ellipse(x + 20, y + size * 0.9, size * 0.9, size * 0.22, fill="#000000", fill_opacity="0.2"))
    parts += [football(280, 1730, 170), basketball(2740, 260, 160), tennis(560, 1820, 84), tennis(2500, 170, 76),
              trophy(2740, 1720, 1.05), trophy(260, 270, 0.9)]
    return drawing(3000, 2000, parts)


def note(x, y, scale, degrees, double, color):
    parts = [ellipse(-2, 0, 52, 38, transform="rotate(-22)"), rectangle(34, -220, 14, 214)]
    if double:
        parts += [ellipse(168, -22, 52, 38, transform="rotate(-22 168 -22)"), rectangle(204, -244, 14, 214), path("M34,-224 L218,-250 V-206 L34,-180Z")]
    else:
        parts.append(path("M48,-220 C60,-150 130,-140 118,-60 C110,-110 80,-120 48,-124Z"))
    return placed(parts, x, y, scale, degrees, fill=color)


def music():
    chance = random.Random(6)
    parts = [down_gradient("paper", (0, "#fbf3e2"), (1, "#f2dfc0")), rectangle(0, 0, 2000, 3000, fill="url(#paper)")]
    for base, swing, color in ((250, 110, "#9a6b4f"), (2480, 100, "#9a6b4f")):
        for staff in range(5):
            points = [(x, base + staff * 38 + swing * math.sin(x / 2000 * 2 * math.pi + 0.4)) for x in range(-100, 2200, 100)]
            parts.append(line(smooth(points), color, 5, stroke_opacity="0.55"))
        for at, x in enumerate(range(130, 1950, 235)):
            y = base + 90 + swing * math.sin(x / 2000 * 2 * math.pi + 0.4) + chance.choice([-38, 0, 38])
            parts.append(note(x, y, 0.78, chance.uniform(-8, 8), at % 3 == 1, chance.choice(["#7c2f3b", "#33475b", "#3f6b57", "#a5632a"])))
    white = 2000 / 21
    for key in range(21):
        parts.append(rectangle(key * white, 2760, white, 260, rx=8, fill="#fffdf8", stroke="#33302c", stroke_width="5"))
    for key in range(21):
        if key % 7 in (0, 1, 3, 4, 5):
            parts.append(rectangle((key + 1) * white - 29, 2760, 58, 150, rx=6, fill="#2a2724"))
    parts.append(rectangle(0, 2742, 2000, 24, fill="#7c2f3b"))
    return drawing(2000, 3000, parts)


def pencil(x, y, length, degrees, color):
    return placed([rectangle(0, -34, length, 68, fill=color), rectangle(0, -11, length, 22, fill="#ffffff", fill_opacity="0.3"),
                   path(f"M{length},-34 L{length + 96},0 L{length},34Z", fill="#eccf9f"), path(f"M{length + 66},-11 L{length + 96},0 L{length + 66},11Z", fill="#33302c"),
                   rectangle(-34, -34, 40, 68, fill="#c3c6cb"), rectangle(-84, -34, 54, 68, rx=16, fill="#e98c97")], x, y, 1, degrees)


def apple(x, y, scale):
    return placed([path("M0,-70 C60,-120 160,-90 150,20 C140,120 70,170 0,140 C-70,170 -140,120 -150,20 C-160,-90 -60,-120 0,-70Z", fill="#d23a38"),
                   line("M0,-72 C0,-110 14,-136 34,-150", "#5a3d22", 15), path("M16,-112 C50,-170 110,-160 128,-150 C110,-100 60,-90 16,-112Z", fill="#6fa84a"),
                   path("M-108,-10 C-104,-50 -80,-66 -56,-68", fill="none", stroke="#ffffff", stroke_width="20", stroke_opacity="0.5", stroke_linecap="round")], x, y, scale)


def school():
    chalk = dict(fill="none", stroke="#f2f4ee", stroke_width="9", stroke_opacity="0.55", stroke_linecap="round", stroke_linejoin="round")
    parts = [rectangle(0, 0, 3000, 2000, fill="#b98551"), rectangle(26, 26, 2948, 1948, rx=14, fill="#a06f3f"),
             rectangle(70, 70, 2860, 1740, rx=6, fill="#2f4f43"), glow("dust", (0, "#ffffff", 0.13), (1, "#ffffff", 0)),
             ellipse(900, 700, 1000, 600, fill="url(#dust)"), ellipse(2300, 1200, 900, 560, fill="url(#dust)"),
             rectangle(0, 1830, 3000, 170, fill="#c79662"), rectangle(0, 1826, 3000, 22, fill="#8c5f34")]
    doodles = ["M150,220 v-70 M150,150 l-24,22 M210,190 h56 M238,162 v56 M310,160 c44,-30 70,20 0,58 h62 M420,176 h60 M420,204 h60 "
               "M540,154 c50,-24 66,26 20,32 c56,2 40,66 -24,40",
               "M2560,230 l90,-110 l90,110Z M2790,130 h100 v100 h-100Z",
               "M2700,1640 a70,70 0 1 1 1,0 M2700,1450 v-36 M2700,1690 v-36 M2590,1570 h-36 M2846,1570 h-36 M2622,1492 l-26,-26 M2778,1648 l26,26 M2622,1648 l-26,26 M2778,1492 l26,-26",
               "M160,1660 c60,-120 120,-120 120,0 s60,120 120,0 s60,-120 120,0",
               "M1440,150 q60,-70 120,0 q60,-70 120,0 M1300,180 l26,26 M1326,180 l-26,26 M1790,166 m-26,0 a26,26 0 1 1 52,0 a26,26 0 1 1 -52,0"]
    parts += [path(doodle, **chalk) for doodle in doodles]
    parts += [pencil(300, 1900, 420, 3, "#e9b53c"), pencil(900, 1918, 330, -2, "#4f86c6"), pencil(1760, 1910, 380, 2, "#cc5b4f"),
              apple(2700, 1868, 0.72), rectangle(1340, 1882, 190, 36, rx=14, fill="#f6f4ec"), rectangle(1560, 1894, 110, 32, rx=14, fill="#f3dfa0")]
    return drawing(3000, 2000, parts)


def strip(x, width, color):
    """A strip of film from top to bottom, with holes along both sides."""
    parts = [rectangle(x, 0, width, 3000, fill=color)]
    for y in range(18, 3000, 66):
        parts += [rectangle(left, y, 36, 40, rx=9, fill="#5a1420") for left in (x + 18, x + width - 54)]
    return parts


def cinema():
    parts = [down_gradient("velvet", (0, "#4d0f1a"), (0.5, "#6b1824"), (1, "#3c0b14")), rectangle(0, 0, 2000, 3000, fill="url(#velvet)")]
    for fold in range(13):
        parts.append(rectangle(fold * 160, 0, 70, 3000, fill="#000000", fill_opacity="0.13"))
        parts.append(rectangle(fold * 160 + 100, 0, 26, 3000, fill="#ffffff", fill_opacity="0.05"))
    parts += strip(90, 860, "#17120f") + strip(1050, 860, "#17120f")
    return drawing(2000, 3000, parts)


def print_of(x, y, scale, degrees, color):
    return placed([path("M0,-10 C52,-10 84,44 70,86 C56,124 26,102 0,102 C-26,102 -56,124 -70,86 C-84,44 -52,-10 0,-10Z"),
                   *(ellipse(px, py, 26, 36) for px, py in ((-92, -14), (-36, -68), (36, -68), (92, -14)))], x, y, scale, degrees, fill=color)


def bone(x, y, scale, degrees):
    return placed([rectangle(-90, -26, 180, 52), circle(-96, -30, 40), circle(-96, 30, 40), circle(96, -30, 40), circle(96, 30, 40)],
                  x, y, scale, degrees, fill="#f7efe0", stroke="#d9c6a8", stroke_width="0")


def cat(x, y, scale, color):
    return placed([path("M-120,0 C-160,-150 -120,-260 -70,-300 C-110,-340 -120,-400 -112,-470 L-50,-420 C-20,-432 20,-432 50,-420 L112,-470 "
                        "C120,-400 110,-340 70,-300 C120,-260 160,-150 120,0Z", fill=color),
                   line("M110,-20 C260,0 290,-120 220,-190", color, 44),
                   ellipse(-38, -366, 15, 20, fill="#f4d35e"), ellipse(38, -366, 15, 20, fill="#f4d35e"),
                   ellipse(-38, -366, 6, 18, fill="#2a2320"), ellipse(38, -366, 6, 18, fill="#2a2320"),
                   path("M-12,-338 h24 l-12,14Z", fill="#e59aa0"), line("M-40,-322 l-74,-12 M-40,-314 l-70,12 M40,-322 l74,-12 M40,-314 l70,12", "#f3e8dc", 4)], x, y, scale)


def dog(x, y, scale, color, dark):
    return placed([path("M-130,0 C-160,-140 -140,-230 -90,-280 H90 C140,-230 160,-140 130,0Z", fill=color), ellipse(0, -370, 128, 122, fill=color),
                   path("M-110,-440 C-190,-440 -200,-300 -160,-240 C-120,-250 -100,-330 -92,-400Z", fill=dark),
                   path("M110,-440 C190,-440 200,-300 160,-240 C120,-250 100,-330 92,-400Z", fill=dark),
                   ellipse(0, -322, 70, 56, fill="#fbf3e6"), ellipse(0, -350, 26, 19, fill="#2a2320"), circle(-48, -400, 14, fill="#2a2320"),
                   circle(48, -400, 14, fill="#2a2320"), line("M0,-330 v18 M-26,-304 q26,20 52,0", "#2a2320", 7),
                   path("M-16,-298 q16,50 32,0Z", fill="#e57f86"), ellipse(0, -110, 70, 96, fill="#fbf3e6"),
                   path("M-92,-262 q92,44 184,0 l6,34 q-98,46 -196,0Z", fill="#c9404a"), circle(0, -212, 20, fill="#e5b93f")], x, y, scale)


def pets():
    parts = [down_gradient("floor", (0, "#fbf0df"), (1, "#f0d9b8")), rectangle(0, 0, 2000, 3000, fill="url(#floor)")]
    for at in range(13):
        x, y = 110 + at * 155, 190 + 90 * math.sin(at * 0.75)
        parts.append(print_of(x, y + (70 if at % 2 else -70), 0.62, 78 + 14 * math.cos(at * 0.75), "#d8b78d"))
    for x, y, scale, turn in ((640, 2740, 0.55, -20), (1050, 2760, 0.5, 16)):
        parts.append(bone(x, y, scale, turn))
    parts += [path("M0,2900 C500,2860 1400,2860 2000,2900 V3000 H0Z", fill="#c98f5f"), dog(300, 2960, 0.86, "#d59a5a", "#8d5a30"),
              cat(1660, 2955, 0.86, "#4a4350"), circle(1370, 2880, 70, fill="#c9404a"),
              line("M1306,2862 q64,-50 128,6 M1304,2890 q70,-40 132,14 M1330,2934 q60,-60 40,-122 M1380,2948 q60,-80 10,-136 M1420,2920 q70,70 160,30", "#a42f38", 6)]
    return drawing(2000, 3000, parts)
