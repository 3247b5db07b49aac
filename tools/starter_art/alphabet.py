"""The letters and digits that photos show through, in three alphabets: rounded, sturdy, serif.

Each is drawn in a box of 500 by 500 and fills it, since boxes stand side by side with little between them: narrow ones wear
bars or serifs. Strokes are as broad as their letter bears, those that lie thinner than those that stand.
"""
from starter_art import built_letters, rounded_letters
from starter_art.built_letters import all_built
from starter_art.letter_parts import SERIF, STURDY
from starter_art.rounded_letters import all_rounded
from starter_art.svg import drawing, group

# The rounded ones lie in the folder of letters itself, which is what a lettering without a choice shows.
FOLDERS = {"": all_rounded, "sturdy/": lambda: all_built(STURDY), "serif/": lambda: all_built(SERIF)}


def all_characters():
    """Their files below the folder of letters."""
    return {folder + name: text for folder, letters in FOLDERS.items() for name, text in letters().items()}


SHOWN, COLOR = "abc", "#f3e6cf"


def samples():
    """The first letters of each alphabet, for the window that asks for one."""
    kinds = {"rounded": lambda name: rounded_letters.shown(name, COLOR), "sturdy": lambda name: built_letters.shown(name, STURDY),
             "serif": lambda name: built_letters.shown(name, SERIF)}
    return {kind: drawing(1583, 500, [group([draw(name)], transform=f"translate({at * 541},0)", fill=COLOR)
                                      for at, name in enumerate(SHOWN)]) for kind, draw in kinds.items()}
