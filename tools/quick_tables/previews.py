"""The ready-made previews of the quick styles, which stand for a collage while the preview is off.

A layout is lines of left, top, width, height and tilt behind one with the poster's size and the width of the frames;
the build draws it with the sample photos. The names are the program's: "p_" for a portrait poster, "l_" for the others;
"nb", "sb", "lb" for blocks with no space between them, a small and a large one; "s" for a scatter; for a matrix "o" or,
rotated, "r", behind an "r" for resized and an "s" for shuffled.
"""
from itertools import product

SPACES = {"nb": 0, "sb": 20, "lb": 45}
BLOCKS = {"p_": "p06x05", "l_": "l06x05"}
SCATTER = "scatter15"

# One for each cell of a matrix in turn: tilt, scale, shift down and right in fiftieths of the cell.
SHAKES = [(-5, 1.1, -2, -2), (10, 0.9, 2, 3), (-10, 1.05, 1, -3), (5, 0.88, -1, 2), (-10, 1.0, 0, 1), (10, 0.95, 1, 2),
          (-5, 1.12, -2, -2), (5, 0.9, 2, 3), (-10, 1.05, -3, -1), (10, 0.88, 2, 3), (5, 1.1, -1, -1)]
ROWS = {"p_": ["112", "211", "112", "121", "211"], "l_": ["1121", "2111", "1112"]}


def text(size, frame, places):
    lines = [f"{size[0]} {size[1]} {frame}"] + [" ".join(str(round(number)) for number in place) for place in places]
    return "\n".join(lines) + "\n"


def block_layout(poster, cells, space):
    places = sorted((x + space, y + space, w - 2 * space, h - 2 * space, 0) for x, y, w, h, _ in cells)
    return text((poster.width, poster.height), 0, places)


def scatter_layout(scatter, turned):
    """A landscape poster is the portrait one turned by a quarter, but for the tilt of the photos."""
    places = [(place.left, place.top, place.width, place.height, place.rotation) for place in scatter.places]
    if turned:
        places = [(3000 - y - h, x - h * tilt * 0.0174, h, w, tilt) for x, y, w, h, tilt in places]
    return text((3000, 2000) if turned else (2000, 3000), 16, places)


def matrix_layout(prefix, shuffled, resized, rotated):
    size = (2000, 3000) if prefix == "p_" else (3000, 2000)
    rows = ROWS[prefix]
    columns = sum(int(digit) for digit in rows[0])
    margin, gap = 150, 24
    width = (size[0] - 2 * margin - (columns - 1) * gap) / columns
    height = (size[1] - 2 * margin - (len(rows) - 1) * gap) / len(rows)
    places = []
    for row, pattern in enumerate(rows):
        column = 0
        for cells in map(int, pattern):
            tilt, scale, down, right = SHAKES[len(places) % len(SHAKES)]
            tilt, scale = tilt if rotated else 0, scale if resized else 1
            shift = max(width, height) / 50 if shuffled else 0
            w, h = (cells * width + (cells - 1) * gap) * scale, height * scale
            x = margin + column * (width + gap) + right * shift - (w - w / scale) / 2
            y = margin + row * (height + gap) + down * shift - (h - h / scale) / 2
            places.append((x - shift_of_corner(h, tilt), y + shift_of_corner(w, tilt), w, h, tilt))
            column += cells
    order = [at for at in range(0, len(places), 2)] + [at for at in range(1, len(places), 2)]
    return text(size, 14, [places[at] for at in order])


def shift_of_corner(length, tilt):
    """How far the corner moves so that the middle stays where it is, near enough."""
    return -length / 2 * tilt * 0.0174


def all_layouts(blocks, scatters):
    """{name: text}, of blocks by name as (poster, cells) and scatters by name."""
    found = {}
    for prefix in ("p_", "l_"):
        for name, space in SPACES.items():
            found[prefix + name] = block_layout(*blocks[BLOCKS[prefix]], space)
        found[prefix + "s"] = scatter_layout(scatters[SCATTER], prefix == "l_")
        for shuffled, resized, rotated in product((False, True), repeat=3):
            name = prefix + "s" * shuffled + "r" * resized + ("r" if rotated else "o")
            found[name] = matrix_layout(prefix, shuffled, resized, rotated)
    return found
