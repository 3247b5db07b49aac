"""What the quick styles can ask for: the counts that are left when theirs have been lowered to the limits."""
from dataclasses import dataclass


@dataclass(frozen=True)
class Poster:
    """A poster as it hangs on the wall. The tables hold a landscape poster upright, see `blocks.upright`."""
    section: str
    letter: str
    width: int
    height: int
    most_portraits: int
    most_landscapes: int
    budget: int


PORTRAIT = Poster("#PORTRAIT", "p", 2000, 3000, 88, 46, 46)
LANDSCAPE = Poster("#LANDSCAPE", "l", 3000, 2000, 88, 46, 46)
SQUARE = Poster("#SQUARE", "s", 2000, 2000, 40, 25, 25)
POSTERS = (PORTRAIT, LANDSCAPE, SQUARE)
FEWEST = 3


def allowed(poster, portraits, landscapes):
    """Whether a block has to be there for these counts."""
    if portraits + landscapes < FEWEST or portraits > poster.most_portraits or landscapes > poster.most_landscapes:
        return False
    room = (poster.budget - landscapes) * 2
    return room >= portraits if poster is LANDSCAPE else portraits == 0 or room > portraits


def allowed_pairs(poster):
    return [(portraits, landscapes) for portraits in range(poster.most_portraits + 1)
            for landscapes in range(poster.most_landscapes + 1) if allowed(poster, portraits, landscapes)]


MOST_OF_A_KIND = 64
MOST_ALONG = [65] * 30 + [63, 61, 59, 57, 55, 53, 52, 51] + list(range(49, 0, -2)) + [0]
MOST_CROSS = [65 - at // 2 if at % 2 == 0 else 63 - at // 2 for at in range(66)]


def scattered(along, cross):
    """The two counts as the scatter lowers them."""
    along, cross = min(along, MOST_OF_A_KIND), min(cross, MOST_OF_A_KIND)
    if along > cross:
        return min(along, MOST_ALONG[cross]), cross
    return along, min(cross, MOST_CROSS[along])


def scatter_totals():
    """Every number of photos that a scatter can be asked for, ascending."""
    kinds = range(MOST_OF_A_KIND + 1)
    most = max(sum(scattered(along, cross)) for along in kinds for cross in kinds)
    return range(FEWEST, most + 1)
