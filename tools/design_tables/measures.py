"""What a design is judged by beside the eye: figures of its layout in one orientation, and of its ground."""
from dataclasses import dataclass

from design_tables import captions, pixels
from design_tables.views import corners, covered_shares, covers, size_of

RASTER = 60  # pixels of the poster from one point to the next
THIRD = 1 / 3


@dataclass
class Figures:
    ground: float      # the share of the poster on which no photo lies
    hole: int          # the side of the largest square without a photo, in pixels
    hidden: float      # of the photo that is hidden most
    middle: float      # of the middle third of the photo whose middle is hidden most: faces are there
    smallest: int      # the shorter side of the smallest photo
    margins: tuple     # from the outermost photos to the poster's edges: left, top, right, bottom; below 0 they hang over
    contrast: dict     # of white letters at the top and at the bottom; nothing where the ground is the user's
    banding: float     # the share of the ground that lies in visible rings


def bare_points(view):
    width, height = view.size
    wide = width > height
    photos = [place for place in view.places if place.photo()]
    return [[not any(covers(place, (x + 0.5) * RASTER, (y + 0.5) * RASTER, wide) for place in photos)
             for x in range(width // RASTER)] for y in range(height // RASTER)]


def largest_square(bare):
    best, above = 0, [0] * len(bare[0])
    for row in bare:
        found = []
        for at, empty in enumerate(row):
            side = min(above[at], above[at - 1], found[at - 1]) + 1 if at and empty else int(empty)
            found.append(side)
            best = max(best, side)
        above = found
    return best * RASTER


def margins_of(view):
    spots = [spot for place in view.places if place.photo() for spot in corners(place, view.size[0] > view.size[1])]
    xs, ys = zip(*spots)
    return round(min(xs)), round(min(ys)), round(view.size[0] - max(xs)), round(view.size[1] - max(ys))


def figures(view, ground=None):
    """`ground` is the path of the picture that the design brings along."""
    bare = bare_points(view)
    photos = [place for place in view.places if place.photo()]
    seen = pixels.read(ground, 4) if ground else None
    return Figures(sum(map(sum, bare)) / (len(bare) * len(bare[0])), largest_square(bare),
                   max((share for _, share in covered_shares(view)), default=0.0),
                   max((share for _, share in covered_shares(view, THIRD)), default=0.0),
                   min(min(size_of(place)) for place in photos), margins_of(view),
                   {where: pixels.white_over(seen, captions.band_share(view, where)) for where in captions.PLACES} if seen else {},
                   pixels.ringed(pixels.read(ground)) if ground else 0.0)
