"""A scatter's last easing: the middle third of every photo, where faces are, comes free of the photos above it.

It begins with a scatter that covers its poster well, and lets more of the rest of a photo be hidden for it. All sizes in
pixels of the upright poster.
"""
import random
from dataclasses import replace

from quick_tables.eased import SIZED, Easing, over
from quick_tables.judged import judged
from quick_tables.prints import photo_of

ALLOWED, ALLOWED_TURNED, ALLOWED_MIDDLE_TURNED = 0.37, 0.4, 0.08  # shares: what is hidden beyond them counts
MARGIN = 0.7          # points about a middle that have to be free too, since a corner comes between points
COVERED = 150         # how much a covered middle weighs, however little of it is
COVERED_TURNED = (60, 150)  # the same of the worst number of turns: rounds take them by turns
MOST_BARE, MOST_BARE_TURNED = 0.045, 0.1  # shares of the poster: what is bare beyond them weighs more
BARE, BARE_TURNED = 100, 50               # and so much

STAGES = ((14, 0), (16, 0.2), (19, 0.1), (22, 0.1))  # points along a photo, the longest step in photos
BEGINNINGS = (0.5, 0.3, 0.2, 0.15)                   # the longest step in the first of them, in rounds by turns
STEPS = 120           # for each photo
ROUNDS = {41: 2, 25: 4, 3: 16}  # from so many photos on
MOST_ROUNDS = {41: 8, 3: 40}  # where something still lies over a middle
GOOD = 0.1            # flaws that end the search


class Clearing(Easing):
    def __init__(self, photos, height, tilts, chance, points, covered_turned):
        self.covered_turned = covered_turned
        super().__init__(photos, height, tilts, chance, points)

    def middle(self, photo):
        middle, margin = photo.middle(), MARGIN * self.raster.step_x
        return replace(middle, width=middle.width + 2 * margin, height=middle.height + 2 * margin)

    def harm(self, hidden, middle, hidden_turned, middle_turned):
        return (400 * (over(hidden, ALLOWED) + over(hidden_turned, ALLOWED_TURNED)) + COVERED * middle
                + 300 * (middle ** 2 + over(middle_turned, ALLOWED_MIDDLE_TURNED)) + self.covered_turned * middle_turned)

    def cost_of_bare(self, bare):
        stands, *turned = (points.bit_count() / self.raster.all.bit_count() for points in bare)
        beyond = BARE * max(0, stands - MOST_BARE) + BARE_TURNED * max(0, max(turned) - MOST_BARE_TURNED)
        return super().cost_of_bare(bare) / self.weight + beyond * self.raster.all.bit_count()


def rank(scatter):
    """Sorts scatters, the best first."""
    return not scatter.is_clear(), scatter.flaws_when_cleared()


def cleared(scatter):
    """The best of what comes of a scatter in some rounds: of it and of the best so far by turns."""
    total, best = len(scatter.places), scatter
    tilts = sorted({place.rotation for place in scatter.places})
    rounds, most = (next(count for least, count in counts.items() if total >= least) for counts in (ROUNDS, MOST_ROUNDS))
    for attempt in range(most):
        photos = [photo_of(place) for place in (best if attempt % 2 else scatter).places]
        for stage, (points, far) in enumerate(STAGES):
            chance = random.Random(f"{scatter.name} cleared {attempt} {stage}")
            easing = Clearing(photos, scatter.height, tilts, chance, points, COVERED_TURNED[attempt % 2])
            photos = easing.run(STEPS * total * (3 if total <= SIZED else 1), far or BEGINNINGS[attempt // 2 % 4])
            best = min(best, judged(scatter.name, scatter.height, [photo.place() for photo in photos]), key=rank)
        if best.is_clear() and (attempt + 1 >= rounds or best.flaws_when_cleared() < GOOD):
            break
    return best
