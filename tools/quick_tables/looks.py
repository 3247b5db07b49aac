"""How well a tiling looks, as a number: 0 is perfect. All sizes in pixels."""
import math
from collections import Counter

BEST_RATIO = math.sqrt(2)  # a landscape of this shape, cut in two, gives two portraits of the same shape


def ratio(cell):
    return max(cell[2], cell[3]) / min(cell[2], cell[3])


def stretched_share(cells):
    """How far the cells are from the shape of a photo."""
    return sum(abs(math.log(ratio(cell) / BEST_RATIO)) for cell in cells) / len(cells)


def crossings_share(cells):
    """Points at which four cells meet: a table has one for each cell."""
    corners = Counter()
    for x, y, w, h, _ in cells:
        corners.update([(x, y), (x + w, y), (x, y + h), (x + w, y + h)])
    return sum(1 for count in corners.values() if count == 4) / len(cells)


def twins_share(cells):
    """Cells that stand beside or below one of the same size, edge to edge."""
    spots = {cell[:4] for cell in cells}
    return sum(((x + w, y, w, h) in spots) + ((x, y + h, w, h) in spots) for x, y, w, h, _ in cells) / len(cells)


def longest_seam(cells, width, height):
    """Share of the poster that the longest straight seams inside cross, across and down together."""
    def longest(edges, whole):
        best = 0
        for spans in edges.values():
            start = end = None
            for low, high in sorted(spans):
                if end is None or low > end:
                    start, end = low, high
                end = max(end, high)
                best = max(best, (end - start) / whole)
        return best
    level, upright = {}, {}
    for x, y, w, h, _ in cells:
        if y:
            level.setdefault(y, []).append((x, x + w))
        if x:
            upright.setdefault(x, []).append((y, y + h))
    return longest(level, width) + longest(upright, height)


def imbalance(cells, width, height):
    """How far the weight of the large cells is from the middle."""
    weights = [(w * h) ** 1.5 for _, _, w, h, _ in cells]
    x = sum(weight * (cell[0] + cell[2] / 2) for weight, cell in zip(weights, cells)) / sum(weights)
    y = sum(weight * (cell[1] + cell[3] / 2) for weight, cell in zip(weights, cells)) / sum(weights)
    return math.hypot(x / width - 0.5, y / height - 0.5)


def spread(cells):
    """Standard deviation of the logarithm of the areas: 0 for a table, 0.7 for a lively page."""
    logs = [math.log(w * h) for _, _, w, h, _ in cells]
    mean = sum(logs) / len(logs)
    return math.sqrt(sum((value - mean) ** 2 for value in logs) / len(logs))


def is_plain(cells):
    """True for a bare grid: all cells of a kind as large as each other."""
    sizes = Counter((kind, round(w / 12), round(h / 12)) for _, _, w, h, kind in cells)
    return len(sizes) == len({kind for kind, _, _ in sizes})


def flaws(cells, width, height):
    sizes = spread(cells)
    return (crossings_share(cells) + 0.7 * twins_share(cells) + 1.5 * imbalance(cells, width, height)
            + 0.25 * longest_seam(cells, width, height) + 2.5 * stretched_share(cells)
            + 2 * max(0, 0.45 - sizes) + 1.5 * max(0, sizes - 0.75))
