"""Quick blocks: which counts get a block of their own, the search for it, and the two tables."""
import random

from quick_tables import looks
from quick_tables.limits import LANDSCAPE, POSTERS, allowed_pairs
from quick_tables.tiling import filled_by_counts, filled_by_sizes, in_pixels, turned_about

FEW = 16          # up to here, a landscape counted as two, each pair has its own block
CUTS_AT_MOST = 11 # beyond it, so many cuts lead from one block to the next


def own_pairs(poster):
    """The pairs that get a block of their own, in the order of the list: a pair before those that reach it by cuts."""
    chains = {}
    for portraits, landscapes in allowed_pairs(poster):
        chains.setdefault(portraits + 2 * landscapes, []).append((portraits, landscapes))
    found = []
    for units, chain in sorted(chains.items()):
        chain.sort()
        if units > FEW:
            steps = -(-len(chain) // CUTS_AT_MOST)
            chain = sorted({chain[at * len(chain) // steps] for at in range(steps)})
        found += reversed(chain)
    return found


# ---- few photos: cells of any size

def small_tilings(poster, portraits, landscapes, chance):
    cut = portraits + 2 * landscapes > FEW
    for most in (1.62, 1.68) if cut else (1.62, 1.72, 1.85, 2.02, 2.3):
        found = []
        for columns, rows in rasters_for_few(poster, portraits + landscapes):
            module = poster.width / columns, poster.height / rows
            for cells in filled_by_counts(columns, rows, module, {"P": portraits, "L": landscapes},
                                          (1.2 if cut else 1.03, most), chance):
                found.append(in_pixels(cells, columns, rows, poster.width, poster.height))
        if found:
            return found
    raise LookupError(f"{poster.section} {portraits} {landscapes}")


def rasters_for_few(poster, photos):
    fine = 6 if photos < 5 else 8 if photos < 8 else 10
    return [(max(2, round(size * poster.width / 2000)), max(2, round(size * poster.height / 2000)))
            for size in (fine, fine + 1, fine + 2, fine + 3)]


# ---- many photos: landscapes of k by k modules, portraits of k by 2 k

def rasters(poster, portraits, landscapes):
    """Rasters whose modules have the shape of a landscape, as (columns, rows)."""
    units, found = portraits + 2 * landscapes, []
    for columns in range(2, 40):
        for rows in range(2, 60):
            shape = poster.width / columns / (poster.height / rows)
            if 1.27 <= shape <= 1.58 and 1.35 * units <= columns * rows <= 3.6 * units and (
                    rows % 2 == 0 or portraits < 2 * landscapes):
                found.append((columns, rows))
    return found


def dealt_sizes(area, portraits, landscapes, chance):
    """Sizes drawn so that the modules are used up, as {(width, height, kind): how many}; None for one in the style of
    a table."""
    few = portraits + landscapes <= 34
    p3, l4 = (chance.randint(0, min(count, 2)) if few else 0 for count in (portraits, landscapes))
    p2 = chance.randint(0, min(portraits - p3, 12))
    l3 = chance.randint(0, min(landscapes - l4, 10))
    p1, rest = portraits - p3 - p2, landscapes - l4 - l3
    large = 18 * p3 + 8 * p2 + 16 * l4 + 9 * l3
    l2, odd = divmod(area - large - 2 * p1 - rest, 3)
    l1 = rest - l2
    if odd or not 0 <= l1 <= 0.5 * landscapes + 1 or l2 < 0 or not 0.18 * area <= large <= 0.62 * area:
        return None
    return {(1, 1, "L"): l1, (2, 2, "L"): l2, (3, 3, "L"): l3, (4, 4, "L"): l4,
            (1, 2, "P"): p1, (2, 4, "P"): p2, (3, 6, "P"): p3}


def dealt_tall_sizes(area, portraits, landscapes, chance):
    """The same for pages of portraits, in modules of a portrait: "S" is one with two landscapes in it, one above the
    other."""
    l2, stacks = chance.randint(0, min(landscapes, 3)), chance.randint(0, landscapes // 4)
    p3 = chance.randint(0, min(portraits, 2))
    l1, free = landscapes - l2 - 2 * stacks, area - 8 * l2 - stacks - 9 * p3
    p2, odd = divmod(free - 2 * l1 - (portraits - p3), 3)
    p1, large = portraits - p3 - p2, 8 * l2 + 9 * p3 + 4 * p2
    if odd or min(l1, p1, p2) < 0 or not 0.18 * area <= large <= 0.62 * area:
        return None
    return {(1, 1, "P"): p1, (2, 2, "P"): p2, (3, 3, "P"): p3, (2, 1, "L"): l1, (4, 2, "L"): l2, (1, 1, "S"): stacks}


def unstacked(cells):
    """From modules of a portrait to those of a landscape."""
    found = []
    for x, y, w, h, kind in cells:
        if kind == "S":
            found += [(x, 2 * y, 1, 1, "L"), (x, 2 * y + 1, 1, 1, "L")]
        else:
            found.append((x, 2 * y, w, 2 * h, kind))
    return found


def half(pieces):
    return {piece: count // 2 for piece, count in pieces.items()}


def filled(columns, rows, pieces, chance):
    """A tiling; where the counts allow it, often one whose lower half is the upper one turned about."""
    if rows % 2 == 0 and all(count % 2 == 0 for count in pieces.values()):
        upper = filled_by_sizes(columns, rows // 2, half(pieces), chance)
        if upper:
            return upper + turned_about(upper, columns, rows)
    return filled_by_sizes(columns, rows, pieces, chance)


def one_large_tiling(poster, columns, rows, portraits, landscapes, chance):
    if portraits >= landscapes and rows % 2 == 0 and chance.random() < 0.8:
        pieces = dealt_tall_sizes(columns * rows // 2, portraits, landscapes, chance)
        cells = pieces and filled(columns, rows // 2, pieces, chance)
        return cells and unstacked(cells)
    pieces = dealt_sizes(columns * rows, portraits, landscapes, chance)
    return pieces and filled(columns, rows, pieces, chance)


def large_tilings(poster, portraits, landscapes, chance, wanted=6, tries=1200, more=6000):
    found, choices = [], rasters(poster, portraits, landscapes)
    for tried in range(more if choices else 0):
        if found and tried > tries:
            break
        columns, rows = chance.choice(choices)
        cells = one_large_tiling(poster, columns, rows, portraits, landscapes, chance)
        if cells:
            found.append(in_pixels(cells, columns, rows, poster.width, poster.height))
        if len(found) == wanted:
            break
    return found


def best_tiling(poster, portraits, landscapes):
    chance = random.Random(f"{poster.letter} {portraits} {landscapes}")
    found = []
    if portraits + landscapes >= 8:
        found += large_tilings(poster, portraits, landscapes, chance)
    if portraits + landscapes <= 9 or not found:
        found += small_tilings(poster, portraits, landscapes, chance)
    return min(found, key=lambda cells: looks.flaws(cells, poster.width, poster.height))


# ---- the order of the lines

def spread_out(cells):
    """The cells in such an order that each stands as far as can be from those before it."""
    waiting = sorted(cells)
    if not waiting:
        return []
    middle = lambda cell: (cell[0] + cell[2] / 2, cell[1] + cell[3] / 2)
    ordered = [waiting.pop(0)]
    near = {cell: distance(middle(cell), middle(ordered[0])) for cell in waiting}
    while waiting:
        chosen = max(waiting, key=lambda cell: (near[cell], cell))
        waiting.remove(chosen)
        ordered.append(chosen)
        for cell in waiting:
            near[cell] = min(near[cell], distance(middle(cell), middle(chosen)))
    return ordered


def distance(one, other):
    return (one[0] - other[0]) ** 2 + (one[1] - other[1]) ** 2


def in_order_of_cuts(cells):
    """Landscapes first, since those are cut: the ones of middle size, then the large ones, the small ones last."""
    wide = [cell for cell in cells if cell[4] == "L"]
    mean = sum(w * h for _, _, w, h, _ in cells) / len(cells)
    classes = {"middle": [], "large": [], "small": []}
    for cell in wide:
        share = cell[2] * cell[3] / mean
        classes["small" if share < 0.6 else "middle" if share < 2 else "large"].append(cell)
    tall = sorted((cell for cell in cells if cell[4] == "P"), key=lambda cell: (cell[1], cell[0]))
    return sum((spread_out(group) for group in classes.values()), []) + tall


# ---- the tables

def upright(poster, cell):
    """The cell as (top, left, height, width) of the tables: a landscape poster is turned by the program."""
    x, y, w, h, _ = cell
    return (3000 - x - w, y, w, h) if poster is LANDSCAPE else (y, x, h, w)


def widened(poster, cells):
    """How many cells are written as the half that the program doubles: the largest portrait of a page of few photos,
    on a landscape poster the largest landscape. That cell comes first."""
    kind = "L" if poster is LANDSCAPE else "P"
    largest = max(cells, key=lambda cell: cell[2] * cell[3])
    others = [cell for cell in cells if cell is not largest]
    if largest[4] != kind or not others or largest[2] * largest[3] < 1.5 * max(w * h for _, _, w, h, _ in others):
        return 0, cells
    return 1, [largest] + others


def block(poster, portraits, landscapes):
    """The fields of the entry behind its count, and the lines of the block."""
    cells, doubled = in_order_of_cuts(best_tiling(poster, portraits, landscapes)), 0
    if portraits + 2 * landscapes <= FEW:
        doubled, cells = widened(poster, cells)
    lines = []
    for index, cell in enumerate(cells):
        top, left, height, width = upright(poster, cell)
        lines.append(f"{top}:{left}:{height // 2 if index < doubled else height}:{width}")
    return doubled, lines, cells


def tables():
    """The lines of quick_block.ini and of block_templates, and the cells by block name for who wants to look."""
    entries = ["# Which block suits which count: portraits X landscapes : block : cells to widen : cells to cut"]
    templates = ["# The blocks, upright: top : left : height : width"]
    seen = {}
    for poster in POSTERS:
        entries.append(poster.section)
        for portraits, landscapes in own_pairs(poster):
            name = f"{poster.letter}{portraits:02}x{landscapes:02}"
            doubled, lines, cells = block(poster, portraits, landscapes)
            entries.append(f"{portraits:02}X{landscapes:02}:{name}:{doubled}:0")
            templates += [f"[{name}]"] + lines
            seen[name] = (poster, cells)
    return entries + ["#END"], templates, seen
