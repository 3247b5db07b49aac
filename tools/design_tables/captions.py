"""Where the caption of a collage stands, and what is left of a layout when it makes room: as the engine does it.

Pixels of the full-size poster. A caption is one line; the band is that of about twenty letters of the size it begins with.
"""
from dataclasses import replace

from design_tables.views import View, cells_of, covers, turned

ABOVE = 75                                   # from the poster's upper edge to the letters
BELOW = {"portrait": 80, "landscape": 60}    # from the lower one
LETTERS = 155                                # from the dots of a capital to the end of a descender, at size 100
WIDTH = 1340
PLACES = ("top", "bottom")
STEPS = 24
# A factor and an offset for each number of a location: for what stays as it was drawn, and for what is turned afterwards.
UPRIGHT = {"top": {"top": (0.85, 400), "bottom": (0.85, 50)}, "left": {"top": (0.95, 50), "bottom": (0.95, 50)},
           "height": (0.85, 0.92), "width": (0.95, 0.95)}
TURNED = {"top": {"top": (0.92, 120), "bottom": (0.92, 120)}, "left": {"top": (0.8, 350), "bottom": (0.8, 50)},
          "height": (0.92, 0.92), "width": (0.8, 0.88)}


def band(view, where):
    """Left, top, right and bottom of what the letters may touch."""
    width, height = view.size
    left = (width - WIDTH) // 2
    top = ABOVE if where == "top" else height - BELOW[view.name] - LETTERS
    return left, top, left + WIDTH, top + LETTERS


def band_share(view, where):
    """The same in shares of the width and the height."""
    left, top, right, bottom = band(view, where)
    return left / view.size[0], top / view.size[1], right / view.size[0], bottom / view.size[1]


def share_taken(view, where):
    """The share of the band on which a photo or a picture of the layout lies."""
    left, top, right, bottom = band(view, where)
    wide = view.size[0] > view.size[1]
    spots = [(left + (right - left) * (x + 0.5) / STEPS, top + (bottom - top) * (y + 0.5) / 6)
             for x in range(STEPS) for y in range(6)]
    return sum(any(covers(place, x, y, wide) for place in view.places) for x, y in spots) / len(spots)


def moved(place, room, at, where, block):
    factor, offset = room["top"][where]
    aside, away = room["left"][where]
    if at == "gap":
        offset = away = 0
    tall, across = room["height"][not block], room["width"][not block]
    found = replace(place, top=round(factor * place.top + offset), left=round(aside * place.left + away))
    if at == "start":
        return found
    return replace(found, height=round(tall * place.height), width=round(across * place.width))


def cleared(design, places, view, where):
    """The view with the strip that a cleared caption asks for."""
    drawn_wide = design["Background"] == "Landscape"
    own = view.name == ("landscape" if drawn_wide else "portrait")
    room = UPRIGHT if own else TURNED
    roles = [("start", "gap")[at % 2] if design.grid() else "place" for at in range(len(places))]
    found = [moved(place, room, role, where, design["Design"] == "Block") for place, role in zip(places, roles)]
    if design.grid():
        found = cells_of(found)
    if not own:
        found = [turned(place, 2000 if drawn_wide else 3000) for place in found]
    return View(view.name, view.size, found)
