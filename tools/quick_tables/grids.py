"""Quick matrix: a grid of rows and columns for a number of cells, with gaps and margins.

A portrait takes one cell and a landscape two side by side. A cell of 1 to the root of 2 would suit both; from 1.2 to
1.6 both are cut a little. Where rows and columns don't give that, wider margins do.

All columns are even in number: rows of two landscapes and more come out full, and a last portrait that is left over costs
one cell. In an odd row a cell stays without a photo of its own as soon as the portraits run out, one in each row.
"""
from dataclasses import dataclass

MOST_ASKED = 2 * 499  # cells, for landscapes alone
MOST_CELLS = 1020


@dataclass(frozen=True)
class Grid:
    rows: int
    columns: int
    row_gap: int
    column_gap: int
    side: int
    top: int
    bottom: int

    @property
    def cells(self):
        return self.rows * self.columns

    def line(self):
        numbers = (self.cells, self.rows, self.columns, self.row_gap, self.column_gap, self.side, self.top,
                   self.bottom)
        return ":".join(str(number) for number in numbers)

    def cell(self, height):
        """Width and height of a cell on a poster 2000 wide."""
        return ((2000 - 2 * self.side - (self.columns - 1) * self.column_gap) / self.columns,
                (height - self.top - self.bottom - (self.rows - 1) * self.row_gap) / self.rows)


def gap(cells):
    """Wide enough that frames of the usual 10 pixels, which lie around the photos, stay apart, up to 160 cells."""
    return 40 if cells <= 24 else 34 if cells <= 70 else 22 if cells <= 160 else 12 if cells <= 320 else 8


def margins(cells):
    """The least margin that looks well, the same on all four sides but for a little more at the bottom."""
    return 90 if cells <= 24 else 72 if cells <= 70 else 54 if cells <= 160 else 50


def filled(cells):
    """The least part of the poster that goes to photos; four pairs on an upright poster can't have half of it."""
    return 0.47 if cells <= 8 else 0.5


def fitted(rows, columns, height):
    """The grid with its margins: the least ones, and more on two sides until the cells have the shape of a photo."""
    cells = rows * columns
    space, least = gap(cells), margins(cells)
    for extra in range(0, 601, 10):
        for side, ends in ((extra, 0), (0, extra)):
            grid = Grid(rows, columns, space, space, least + side, least + ends, least + ends + least // 3)
            across, down = grid.cell(height)
            if min(across, down) > 0 and 1.2 <= down / across <= 1.6 and (2 * across + space) / down <= 1.7:
                return (extra, grid) if cells * across * down >= filled(cells) * 2000 * height else None
    return None


def best(cells, height):
    """The grid of exactly so many cells that needs the least extra margin; None where none has sensible cells."""
    ways = [fitted(cells // columns, columns, height) for columns in range(2, cells + 1, 2) if cells % columns == 0]
    ways = [(extra, grid.rows, grid) for extra, grid in filter(None, ways)]
    return min(ways)[-1] if ways else None


def grids(height):
    """Up to the first that has room for all that can be asked for."""
    found = [grid for grid in (best(cells, height) for cells in range(3, MOST_CELLS + 1)) if grid]
    return [grid for number, grid in enumerate(found) if number == 0 or found[number - 1].cells < MOST_ASKED]


def table():
    """The lines of quick_matrix.ini."""
    return (["# cells : rows : columns : row gap : column gap : side margin : top margin : bottom margin"]
            + [grid.line() for grid in grids(3000)] + ["#SQUARE"] + [grid.line() for grid in grids(2000)])
