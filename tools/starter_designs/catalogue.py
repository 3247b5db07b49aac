"""The catalogue: the reserved entries and the starter designs, with what the window should allow for each."""
from dataclasses import dataclass, field

from starter_designs import layouts


@dataclass
class Design:
    number: int
    name: str
    file: str
    style: str
    family: str
    background: str
    tip: str = ""
    description: str = ""
    places: list = field(default_factory=list)
    keys: dict = field(default_factory=dict)

    def count(self):
        """How many photos one collage takes."""
        if self.style in ("Fill", "Matrix"):
            return sum(first.height * first.width for first in self.places[::2])
        return sum(1 for place in self.places
                   if (place.spare == 0 if 0 in (place.height, place.width) else not place.file))

    def section(self):
        lines = [f"[Design{self.number:03}]", f"Name={self.name}", f"File={self.file}", f"Style={self.style}",
                 f"Design={self.family}", "Ratio=2x3", f"Background={self.background}", "System=Yes"]
        if self.places:
            lines += [f"Count={self.count()}", f"Sample={self.file}.jpg", f"Help Tip={self.tip}",
                      f"Description={self.file}"]
        return lines + [f"{key}={value}" for key, value in self.keys.items()]


def design(number, name, family, background, tip, description, layout, keys, style="Place"):
    """A design whose file is named after its layout."""
    return Design(number, name, layout.__name__, style, family, background, tip, description, layout(), keys)


def on(ground):
    """A background of starter_art, which the window then doesn't offer to change. All of them are dark enough for the white
    that a caption begins with."""
    return {"BG Image": f"{ground}.jpg"}


PLAIN_GROUND = {"BG Image": "Either"}
CLEAR = {"Caption Clear": "Yes"}  # offers to move the photos away from the caption
# One that asks for photos of its places' kinds shows some twice while others stay out, unless it happens to get just the mix that it
# has. So none does but grids that keep the order of the photos, and frames, which are drawn for a kind.
FITTING = {"Match": "Yes", **CLEAR}
ANY_SHAPE = {"Match": "No", **CLEAR}
FIXED = {"Turn BG": "No", "Flip": "No"}
# A shape drawn with soft edges or as a card would lose its outline, so the whole group of the frames goes.
SHAPES = {**ANY_SHAPE, "Frames": "None", "Shadows": "No", "Block": "No", "Soft Edge": "No", "Flip": "No"}

RESERVED = [
    Design(1, "Match", "__match", "Place", "Block", "Portrait", keys={**FITTING, **PLAIN_GROUND}),
    Design(2, "Quick matrix", "__quick", "Place", "Block", "Portrait", keys={**FITTING, **PLAIN_GROUND}),
    Design(3, "Matrix grid", "__matrix", "Matrix", "Matrix", "Both", keys={**FITTING, **PLAIN_GROUND}),
    Design(4, "Frame_matrix", "__matrix", "Place", "Frame", "Both",
           keys={**FITTING, **PLAIN_GROUND, "Frames": "None", "Shadows": "No", "Block": "No", "Soft Edge": "No"}),
    Design(5, "Lettering", "__lettering", "Place", "Block", "Both", keys={**SHAPES, **PLAIN_GROUND}),
    # Its lines leave the frame to the window, and a hidden group would still frame the square round each piece.
    Design(6, "Puzzle", "__puzzle", "Place", "Block", "Both", keys={**SHAPES, **PLAIN_GROUND, "Frames": "No"}),
]

STARTERS = [
    Design(101, "Mosaic wall", "mosaic_wall", "Place", "Block", "Portrait",
           "Photos of five sizes, wall to wall",
           "A wall of photos of five sizes that fills the poster from edge to edge. The frames are laid_\n"
           " inside the photos, so that no picture covers its neighbour.",
           layouts.mosaic_wall(), {**ANY_SHAPE, "Frames": "Adjust", "Turn BG": "Yes"}),
    Design(102, "Panorama", "panorama", "Place", "Block", "Landscape",
           "One large photo and twenty-six around it",
           "Your best photo takes the middle; twenty-six more make its frame, wall to wall.",
           layouts.panorama(), {**ANY_SHAPE, "Turn BG": "Yes", "Borders": "No"}),
    Design(103, "Gallery wall", "gallery_wall", "Place", "Block", "Portrait",
           "Rows of different heights with air between the photos",
           "Four rows of photos with room around each, as in a gallery.",
           layouts.gallery_wall(), {**ANY_SHAPE, **on("stone_wall"), "Turn BG": "Yes"}),
    Design(104, "Daydream", "daydream", "Place", "Block", "Portrait",
           "Soft photos that melt into each other",
           "Six photos whose soft edges melt into each other, without frames and shadows.",
           layouts.daydream(), {**ANY_SHAPE, "Soft Edge": "Yes", "Turn BG": "Yes"}),
    Design(105, "Thrown on the table", "thrown", "Place", "Scatter", "Portrait",
           "Photos at every angle that cover the whole poster",
           "A box of photos, emptied on the table. They lie at every angle and cover the whole poster.\n"
           "Try it with a white frame and a little shadow.",
           layouts.thrown(), {**ANY_SHAPE, **on("oak"), "Turn BG": "Yes"}),
    Design(106, "Picnic", "picnic", "Place", "Scatter", "Portrait",
           "Photos spread on a blanket",
           "Photos spread out on a blanket of red checks.",
           layouts.picnic(), {**ANY_SHAPE, **on("gingham"), "Turn BG": "Yes"}),
    Design(107, "Snapshots", "snapshots", "Place", "Scatter", "Portrait",
           "Instant pictures with room to write on",
           "Square pictures on cards, with room below each to write on.\n"
           "The frame colour is the colour of the card.",
           layouts.polaroids(), {**ANY_SHAPE, **on("walnut_tall"), "Block": "Yes", "Turn BG": "No"}),
    Design(108, "White mats", "white_mats", "Place", "Scatter", "Portrait",
           "Few photos in broad frames, some of them askew",
           "Nine photos in broad frames of a fixed size. Somebody should straighten a few of them.",
           layouts.white_mats(), {**ANY_SHAPE, **on("green_wall"), "Frames": "45", "Turn BG": "Yes"}),
    Design(109, "Contact sheet", "contact_sheet", "Matrix", "Block", "Portrait",
           "All photos of a film in seven rows",
           "All photos in the same height, row by row, as they come from the camera; a landscape takes two places.",
           layouts.contact_sheet(), {**FITTING, "Turn BG": "No"}),
    Design(110, "Wide contact sheet", "contact_sheet_wide", "Matrix", "Block", "Landscape",
           "All photos of a film in four long rows",
           "All photos in the same height, row by row, for a landscape poster; a landscape takes two places.",
           layouts.contact_sheet_wide(), {**FITTING, "Turn BG": "No", "Borders": "No"}),
    Design(111, "Three bands", "three_bands", "Fill", "Block", "Portrait",
           "Two large squares between bands of small ones",
           "Two large squares in the middle, and above and below them a band of eight small ones. Photos of any shape will do.",
           layouts.three_bands(), {**ANY_SHAPE, "Turn BG": "No"}),
    Design(112, "Shaken wall", "shaken_wall", "Matrix", "Scatter", "Portrait",
           "A grid of portraits that has been shaken",
           "Twenty portraits that once hung in straight rows. Then somebody slammed the door.",
           layouts.shaken_wall(), {**ANY_SHAPE, **on("wallpaper"), "Turn BG": "No"}),
    Design(117, "Sweethearts", "sweethearts", "Place", "Block", "Portrait",
           "Thirteen hearts filled with photos",
           "Thirteen hearts, each filled with a photo, close to each other.",
           layouts.sweethearts(), {**SHAPES, **on("heart_paper"), "Quick Shape": "Yes", "Turn BG": "Yes"}),
]
