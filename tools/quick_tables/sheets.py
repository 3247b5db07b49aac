"""Contact sheets, to look at what the tables hold: SVG pages of small posters."""
import math

from starter_art.svg import drawing, group, rectangle

COLORS = {"P": ["#8fb8de", "#6f9fcf", "#a9cbe8"], "L": ["#f2c38f", "#e8ab66", "#f7d7b2"]}


def poster(cells, width, height, label):
    """`cells` are (left, top, width, height, kind) or have a tilt behind it."""
    parts = [rectangle(0, 0, width, height, fill="#444444")]
    for index, (x, y, w, h, kind, *tilt) in enumerate(cells):
        turn = {"transform": f"rotate({tilt[0]} {x} {y})"} if tilt else {}
        parts.append(rectangle(x, y, w, h, fill=COLORS[kind][index % 3], stroke="#333333", stroke_width="10", **turn))
        if index < 3:
            parts.append(f'<text x="{x + 20}" y="{y + 110}" font-size="110">{index + 1}</text>')
    return parts + [f'<text x="0" y="{height + 130}" font-size="130">{label}</text>']


def sheet(posters, columns=8, cell=260):
    """`posters` holds (cells, width, height, label)."""
    parts, lines = [], math.ceil(len(posters) / columns)
    for index, one in enumerate(posters):
        x, y = index % columns * cell + 10, index // columns * cell + 10
        parts.append(group(poster(*one), transform=f"translate({x},{y}) scale({(cell - 36) / 3000:.4f})"))
    return drawing(columns * cell + 10, lines * cell + 10, [rectangle(0, 0, columns * cell + 10, lines * cell + 10,
                                                                      fill="#ffffff")] + parts)
