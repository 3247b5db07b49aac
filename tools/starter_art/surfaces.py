"""Grounds that photos lie or hang on: wood, cloth, cork, felt, paper, painted walls. What they are of is drawn by the pixel when
they are rendered (tools/seed_art/textures.h); here stand what to take for it, the light and what lies over it. What turns has a
square page, which is stretched by half either way, so its pattern stands it."""
import random

from starter_art.svg import circle, closed, drawing, group, number, path, rectangle

TALL, WIDE, SQUARE = (2000, 3000), (3000, 2000), (2400, 2400)
LIT_FROM = (0.36, 0.3)  # the light's place on a page, in shares of it


def washed(size, color, light="#ffffff", shine=0.28, shade=0.3, at=(0.45, 0.38)):
    """A page of plain paper with light on it, as what lies below and what lies above."""
    return [stuff("paper", seed=51, color=color)], lights(size, light, shine, shade, at)


def lights(size, light="#ffffff", shine=0.12, shade=0.34, at=LIT_FROM):
    """The light on a page: bright about a point, darker towards the corners."""
    def round_gradient(name, reach, stops):
        listed = "".join(f'<stop offset="{number(100 * where)}%" stop-color="{tone}" stop-opacity="{opacity}"/>'
                         for where, tone, opacity in stops)
        return f'<radialGradient id="{name}" cx="{at[0]}" cy="{at[1]}" r="{reach}">{listed}</radialGradient>'
    whole = (0, 0, *size)
    return [round_gradient("shine", 0.7, [(0, light, shine), (1, light, 0)]),
            round_gradient("shade", 0.95, [(0.2, "#000000", 0), (0.5, "#000000", 0.16 * shade), (0.75, "#000000", 0.5 * shade),
                                           (1, "#000000", shade)]),
            rectangle(*whole, fill="url(#shine)"), rectangle(*whole, fill="url(#shade)")]


def stuff(kind, **values):
    """What a page is of, in the words that its rendering reads."""
    return "<desc>" + " ".join([kind] + [f"{name}={','.join(value) if isinstance(value, list) else value}"
                                         for name, value in values.items()]) + "</desc>"


OAK = ["#7c5832", "#74502c", "#85603a", "#6e4c2b", "#7e5b36"]
WALNUT = ["#654434", "#6e4b3a", "#5b3e2e", "#74513f", "#62402f"]
DRIFTWOOD = ["#65615b", "#6d6961", "#5e5a53", "#69655e", "#615e57"]
WOODS = {"oak": (270, OAK, "#3a2410", 3), "walnut": (270, WALNUT, "#20120b", 5), "driftwood": (200, DRIFTWOOD, "#2f2c28", 9)}


def wood(size, board, tones, seam, seed):
    """Boards that run across the page."""
    words = stuff("wood", seed=seed, board=number(size[1] / round(size[1] / board)), tones=tones, seam=seam)
    return drawing(*size, [words] + lights(size, "#fff2d8", 0.1, 0.4))


CLOTHS = {"linen": dict(seed=2, pitch=9, warp="#6f634b", weft="#655b48"), "slate": dict(seed=4, pitch=10, warp="#566473", weft="#4d5a69"),
          "denim": dict(seed=6, pitch=6, twill=1, warp="#2c426b", weft="#596c94"), "sage": dict(seed=8, pitch=9, warp="#596952", weft="#52604b"),
          "blush": dict(seed=12, pitch=9, warp="#815753", weft="#764f4b"),
          "gingham": dict(seed=7, pitch=6, checks=120, warp="#9c5048", weft="#6a2420")}  # a picnic blanket of two reds


def cloth(size, **threads):
    """A woven cloth."""
    return drawing(*size, [stuff("cloth", **threads)] + lights(size))


WALLS = {"stone_wall": ("#676561", 41), "blue_wall": ("#4a6075", 43), "green_wall": ("#536959", 45), "charcoal": ("#38383a", 46),
         "ink": ("#28374e", 47), "wine": ("#532c36", 48), "forest": ("#2b4236", 49), "sand": ("#71624c", 50)}


def wall(size, color, seed):
    """A painted wall in the light of a lamp."""
    return drawing(*size, [stuff("wall", seed=seed, color=color)] + lights(size, "#fff6e0", 0.12, 0.42))


def cork(size, rim=44):
    """A board of cork in a wooden frame."""
    words = stuff("cork", seed=15, tones=["#7b5833", "#6f4d2b", "#85613b", "#5f4021", "#52351b", "#916d44"])
    wide, high = size
    edge = [rectangle(rim / 2, rim / 2, wide - rim, high - rim, fill="none", stroke="#6f4726", stroke_width=number(rim)),
            rectangle(rim / 4, rim / 4, wide - rim / 2, high - rim / 2, fill="none", stroke="#8a5c34", stroke_width=number(rim / 2)),
            rectangle(rim / 2, rim / 2, wide - rim, high - rim, fill="none", stroke="#4a2c14", stroke_width="2", stroke_opacity="0.7"),
            rectangle(1.5, 1.5, wide - 3, high - 3, fill="none", stroke="#b98655", stroke_width="3", stroke_opacity="0.6")]
    shade = [path(f"M{rim},{rim}H{wide - rim}V{rim + reach}H{rim + reach}V{high - rim}H{rim}Z", fill="#1c0f05", fill_opacity="0.075")
             for reach in range(2, 34, 4)]
    return drawing(*size, [words] + lights(size, shine=0.08, shade=0.3) + shade + edge)


def felt(size):
    """The green cloth of a card table, with its edge of wood."""
    words = stuff("felt", seed=21, color="#275a44", hairs=["#1a4433", "#568f74", "#225440"])
    wide, high = size
    edge = [rectangle(24, 24, wide - 48, high - 48, fill="none", stroke="#4a2b18", stroke_width="48"),
            rectangle(14, 14, wide - 28, high - 28, fill="none", stroke="#6d4326", stroke_width="18"),
            rectangle(3, 3, wide - 6, high - 6, fill="none", stroke="#9a6a42", stroke_width="5", stroke_opacity="0.7"),
            rectangle(92, 92, wide - 184, high - 184, fill="none", stroke="#d9c37a", stroke_width="5", stroke_opacity="0.25", rx="40")]
    shade = [path(f"M48,48H{wide - 48}V{48 + reach}H{48 + reach}V{high - 48}H48Z", fill="#000000", fill_opacity="0.07")
             for reach in range(2, 34, 4)]
    return drawing(*size, [words] + lights(size, "#e2f0e6", 0.1, 0.46) + shade + edge)


def kraft(size):
    """Brown wrapping paper."""
    words = stuff("paper", seed=27, color="#82653d", flecks=["#5f4525", "#a88a62", "#4f381c", "#6b5030"])
    return drawing(*size, [words] + lights(size, shine=0.08, shade=0.32))


LOBE = "C-9,-5 -16,-12 -15,-21 C-14,-29 -4,-31 0,-24 C4,-31 14,-29 15,-21 C16,-12 9,-5 0,0Z"
CLOVER = [part for turn in (0, 118, 243) for part in (
    path("M2,4 " + LOBE, fill="#0b2110", fill_opacity="0.5", transform=f"rotate({turn})"),
    path("M0,0 " + LOBE, fill="#376f3a", transform=f"rotate({turn})"),
    path("M-9,-17Q0,-11 9,-17", fill="none", stroke="#a9cf98", stroke_width="3", stroke_opacity="0.3", transform=f"rotate({turn})"))]


def lawn(size):
    """Grass seen from above, with clover in it."""
    chance = random.Random(33)
    words = stuff("lawn", seed=33, color="#18301d", blades=["#345f36", "#467144", "#2c5531", "#587d4a", "#6b884f", "#3f6a3c"])
    clover = []
    for _ in range(150):
        turn, scale = chance.uniform(0, 360), chance.uniform(0.5, 0.95)
        clover.append(group(CLOVER, transform=f"translate({number(chance.uniform(0, size[0]))},{number(chance.uniform(0, size[1]))}) "
                                              f"rotate({number(turn)}) scale({scale:.2f})"))
    return drawing(*size, [words] + clover + lights(size, "#d9f0b8", 0.12, 0.42))


def wallpaper(size):
    """Striped wallpaper with small sprigs, and a rail above the skirting board."""
    chance = random.Random(51)
    below, above = washed(size, "#3f5350", light="#a9c4bf", shine=0.2, shade=0.34)
    wide, high = size
    stripes = [rectangle(x, 0, 100, high, fill="#475d5a", fill_opacity="0.8") for x in range(0, wide, 200)]
    sprig = [path("M0,46 C-6,16 6,-14 0,-44", fill="none", stroke="#7d928a", stroke_width="5")]
    for side in (-1, 1):
        for y, reach in ((26, 26), (2, 24), (-22, 20)):
            sprig.append(path(f"M0,{y} C{side * reach * 0.5:g},{y - 20} {side * reach:g},{y - 18} {side * reach:g},{y - 26} "
                              f"C{side * reach * 0.6:g},{y - 4} {side * reach * 0.3:g},{y} 0,{y}Z", fill="#7d928a"))
    sprig.append(circle(0, -52, 8, fill="#9a7a6a"))
    defined = ['<defs><g id="sprig">' + "".join(sprig) + "</g></defs>"]
    for column, x in enumerate(range(50, wide, 100)):
        for y in range(90 + (column % 2) * 120, high, 240):
            turn = chance.uniform(-4, 4)
            defined.append(f'<use xlink:href="#sprig" opacity="0.6" transform="translate({x},{y}) rotate({number(turn)})"/>')
    board = [rectangle(0, high - 96, wide, 96, fill="#3d4a48"), rectangle(0, high - 104, wide, 12, fill="#566663"),
             rectangle(0, high - 112, wide, 8, fill="#000000", fill_opacity="0.16"),
             rectangle(0, high - 30, wide, 5, fill="#2b3533")]
    return drawing(*size, below + stripes + defined + above + board)


def stock_page(size):
    """A dark page of a stamp album: fine squares inside a double line."""
    below, above = washed(size, "#2f3a40", shine=0.1, shade=0.25)
    wide, high = size
    step = 40
    squares = "".join(f"M{x},90V{high - 90}" for x in range(100, wide - 80, step)) + "".join(
        f"M90,{y}H{wide - 90}" for y in range(100, high - 80, step))
    edge = [rectangle(60, 60, wide - 120, high - 120, fill="none", stroke="#86764f", stroke_width="5"),
            rectangle(78, 78, wide - 156, high - 156, fill="none", stroke="#86764f", stroke_width="2")]
    return drawing(*size, below + [path(squares, fill="none", stroke="#9fb0b8", stroke_width="2", stroke_opacity="0.14")] + edge + above)


def argyle(size):
    """Diamonds of two blues with fine lines across."""
    below, above = washed(size, "#243a5e", light="#a9c8ff", shine=0.26, shade=0.42, at=(0.5, 0.5))
    wide, high = size
    across, down, parts = 200, 300, []
    for row, y in enumerate(range(0, high + down, down // 2)):
        for column, x in enumerate(range((row % 2) * across // 2, wide + across, across)):
            corners = [(x, y - down / 2), (x + across / 2, y), (x, y + down / 2), (x - across / 2, y)]
            if row % 2 == 0:
                parts.append(path(closed(corners), fill="#2f4c7a" if column % 2 else "#1c2f4e", fill_opacity="0.8"))
    lines = []
    for row, y in enumerate(range(0, high + down, down // 2)):
        for x in range((row % 2) * across // 2, wide + across, across):
            lines.append(f"M{x - across // 2},{y - down // 2}L{x + across // 2},{y + down // 2}"
                         f"M{x + across // 2},{y - down // 2}L{x - across // 2},{y + down // 2}")
    return drawing(*size, below + parts + [path("".join(lines[::2]), fill="none", stroke="#d9c37a", stroke_width="2.5",
                                                stroke_opacity="0.35", stroke_dasharray="14 10")] + above)


def ground(name, size):
    if name in WOODS:
        return wood(size, *WOODS[name])
    if name in CLOTHS:
        return cloth(size, **CLOTHS[name])
    return wall(size, *WALLS[name]) if name in WALLS else OTHERS[name](size)


OTHERS = {"cork": cork, "felt": felt, "kraft": kraft, "lawn": lawn, "stock_page": stock_page}
# A square page is for designs that turn; one that stays has its ground in its own shape.
TURNING = ("oak", "walnut", "linen", "slate", "denim", "sage", "blush", "gingham", "kraft", "lawn", "stone_wall", "green_wall", "stock_page",
           "charcoal", "sand")
STANDING = ("oak", "walnut", "slate", "sage", "cork", "felt", "kraft", "blush", "stone_wall", "blue_wall", "green_wall", "charcoal", "ink",
            "wine", "forest")
LYING = ("driftwood", "slate", "felt", "blush", "blue_wall", "charcoal", "ink", "wine", "forest", "sage", "sand")
SHARED = {"wallpaper": wallpaper(TALL), "argyle": argyle(TALL), **{name: ground(name, SQUARE) for name in TURNING},
          **{f"{name}_tall": ground(name, TALL) for name in STANDING}, **{f"{name}_wide": ground(name, WIDE) for name in LYING}}
