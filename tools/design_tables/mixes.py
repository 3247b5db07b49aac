"""Plays which photos a design shows when it asks for those of a place's orientation."""
import math
import random
from dataclasses import dataclass

from design_tables.views import size_of

TIMES, UPRIGHT = (1, 1.25, 1.5, 2), (0.34, 0.42, 0.5, 0.58, 0.66)
FRAMES_TIMES = (2, 2.5, 3, 4)  # frames are drawn for a kind: with fewer photos one kind may run out
COUNT = len(TIMES) * len(UPRIGHT)
PORTRAIT, LANDSCAPE = "P", "L"


@dataclass
class Shown:
    photos: list    # the index of each photo, in the order of the places
    twice: int      # how often one was shown that had been shown before
    out: int        # how many were never shown


def orientations(places):
    return [PORTRAIT if size_of(place)[0] > size_of(place)[1] else LANDSCAPE for place in places if place.photo()]


def mixes(places, times=TIMES):
    """Twenty folders for that many places: so many times as many photos, a third to two thirds of them upright."""
    chance = random.Random(places)
    for most in times:
        for share in UPRIGHT:
            count = math.ceil(places * most)
            tall = round(count * share)
            folder = [PORTRAIT] * tall + [LANDSCAPE] * (count - tall)
            chance.shuffle(folder)
            yield folder


def played(wanted, folder, matches):
    """As the engine does it: from where the last photo of that orientation was found; where there is none, one after the other
    from the second on."""
    cursor, shown, index = {PORTRAIT: 0, LANDSCAPE: 0}, [], 0
    for wish in wanted:
        if matches and wish not in folder:
            matches, index = False, 0
        if matches:
            at = cursor[wish]
            while folder[at % len(folder)] != wish:
                at += 1
            shown.append(at % len(folder))
            cursor[wish] = at % len(folder) + 1
        else:
            shown.append(index % len(folder))
            index += 1
    return Shown(shown, len(shown) - len(set(shown)), len(folder) - len(set(shown)))


def spoiled(wanted, matches, times=TIMES):
    """How many of the mixes show a photo twice while another stays out."""
    return sum(1 for folder in mixes(len(wanted), times) if (shown := played(wanted, folder, matches)).twice and shown.out)
