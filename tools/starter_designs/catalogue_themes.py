"""The supplied designs with pages of our own, from number 301 on, their wide sisters from 351 on, and those of custom frames, from
401 on."""
from starter_designs import framed, themes
from starter_designs.catalogue import ANY_SHAPE, Design, FITTING, design, on

SISTER, OLD_SISTER = 50, 78  # from the number of an upright page to that of its wide one: 351 on, and 191 on
PRINTS = {"Frames": "14", "Shadows": "14"}  # a fixed shadow takes the size of the frame


def pair(number, name, file, tip, description, keys=None):
    """The same occasion for an upright poster and for a wide one, which neither layout nor page are turned for."""
    found = []
    for wide, places in enumerate(themes.PAGES[file]):
        ending = "_wide" if wide else ""
        page = {**FITTING, **on(file + ending), "Turn BG": "No", "Flip": "No", "Borders": "No", **(keys or {})}
        found.append(Design(number + (SISTER if number > 300 else OLD_SISTER) * wide, name + (", wide" if wide else ""), file + ending, "Place", "Theme",
                            "Landscape" if wide else "Portrait", tip, description, places, page))
    return found


def framed_by_set(number, name, background, tip, layout, ground=None):
    """Without a ground the colour is the user's choice, for frames of any colour."""
    description = tip + ".\nThe frames come from a set of your own; their captions are dealt in turn."
    keys = {**FITTING, **(on(ground) if ground else {"BG Image": "Either"}), "Frames": "None", "Shadows": "No", "Block": "No", "Soft Edge": "No",
            "Turn BG": "No", "Flip": "No", "Borders": "No"}
    return design(number, name, "Frame", background, tip, description, layout, keys)


OCCASIONS = [
    pair(113, "At the seaside", "seaside", "Photos where the sea meets the sand",
         "Photos above the shore, where the last waves run out on the sand."),
    pair(114, "Autumn walk", "autumn", "Photos among falling leaves", "Photos on dark earth, with the leaves of six trees around them.",
         {"Shadow Color": "Black"}),
    pair(115, "Starry night", "starry_night", "Photos under the stars", "Photos under a clear night sky, above woods and hills.",
         {"Frames": "Color", "Shadows": "Color"}),
    pair(116, "Best wishes", "best_wishes", "Photos with a greeting", "Photos and a line of writing on a card with a golden edge. Change the "
         "greeting in the caption box.", {"Caption": "Best wishes"}),
    pair(301, "Birthday", "birthday", "Lights, confetti and photos of the feast", "Photos of the feast among soft lights and falling confetti."),
    pair(302, "Wedding", "wedding", "Roses, a golden line and few large photos", "Few large photos within a golden line, with roses in two corners.",
         PRINTS),
    pair(303, "Baby", "baby", "An evening sky with a moon", "Photos above the clouds of an evening sky, where the moon has just risen."),
    pair(304, "Graduation", "graduation", "Laurel, gold and photos of the day", "Photos of the day on deep blue, with laurel in the corners."),
    pair(305, "Spring", "spring", "Photos between boughs in blossom", "Photos between boughs in blossom, whose petals are in the air."),
    pair(306, "Summer", "summer", "The sun above the sea", "Photos before a sun that sinks into the sea."),
    pair(307, "Winter", "winter", "Falling snow and woods in the dusk", "Photos in falling snow, above woods that lie in the dusk."),
    pair(308, "Christmas", "christmas", "Twigs of fir and candlelight", "Photos in candlelight, with twigs of fir in the corners."),
    pair(309, "Round the world", "travel", "A map and a route", "Photos on a map of heights that nobody has climbed, with the route that leads there.",
         PRINTS),
    pair(310, "Garden", "garden", "Photos framed by leaves", "Photos in a clearing, with leaves growing in from all sides."),
    pair(311, "Sports", "sports", "Photos on the pitch", "Photos on the pitch, the match of the season among them."),
    pair(312, "Music", "music", "Two staves and photos of the concert", "Photos between two staves that swing across the page."),
    pair(313, "School", "school", "Photos on a blackboard", "Photos on a blackboard that was wiped before the lesson."),
    pair(314, "Cinema", "cinema", "Two strips of film before a curtain", "Two strips of film before a velvet curtain, landscapes in every frame.",
         {**ANY_SHAPE, "Frames": "No", "Shadows": "No", "Soft Edge": "No"}),
    pair(315, "Space", "space", "Stars, planets and few large photos", "Photos on their way to the stars.", {"Shadows": "No"}),
    pair(316, "Pets", "pets", "Photos between two tracks of paws", "Photos between two tracks of paws: there and back again."),
    pair(317, "Family tree", "family_tree", "Three generations and the lines between them",
         "Four grandparents, two parents and the youngest, joined by fine lines.", ANY_SHAPE),
    pair(318, "Valentine", "valentine", "Photos on deep red, with faint hearts", "Photos on deep red, with hearts that one hardly sees."),
    pair(319, "Mountains", "mountains", "Ranges in the haze", "Photos before ranges that fade into the haze, one behind the other.", PRINTS),
    pair(320, "Pumpkin night", "pumpkin_night", "A moon, bats and lanterns", "Photos between the moon and the lanterns. Mind the bats."),
    pair(321, "Anniversary", "anniversary", "Gold, laurel and few large photos", "Few large photos of many years, within a golden line."),
    pair(322, "Mother's Day", "mothers_day", "Roses in two corners", "Photos between two corners full of roses."),
    pair(323, "Father's Day", "fathers_day", "Photos on a cloth of herringbone", "Photos on a cloth of herringbone, with a fine line around them.", PRINTS),
    pair(324, "Easter", "easter", "Boughs in white blossom", "Photos between boughs in white blossom."),
    pair(325, "New Year", "new_year", "Rockets at midnight", "Photos of the year that ends, and rockets for the one that begins."),
    pair(326, "Milestone", "milestone", "Many photos for a round birthday", "Photos of ten years or of many more, with golden confetti at the sides."),
    pair(327, "In memory", "memorial", "A quiet lake in the morning", "Few photos above a quiet lake in the morning."),
    pair(328, "Road trip", "road_trip", "A straight road at dusk", "Photos of the way, and the road that leads on."),
    pair(329, "City", "city", "Lit windows at dusk", "Photos of a city, above its roofs at dusk."),
    pair(330, "Open sea", "open_sea", "The moon on the water", "Photos of a voyage, and the moon on the water."),
]
THEMES = [one for pair_of in OCCASIONS for one in pair_of]

FRAMES = [
    framed_by_set(401, "Framed portraits", "Portrait", "Nine frames in three rows, tall and wide in turn", framed.frames_tall_nine,
                  "hall_tall"),
    framed_by_set(402, "Framed landscapes", "Portrait", "Ten frames in rows of two and three", framed.frames_wide_eight, "green_wall_tall"),
    framed_by_set(403, "Framed family", "Portrait", "Two frames above, five below", framed.frames_family,
                  "green_wall_tall"),
    framed_by_set(404, "Framed staircase", "Portrait", "Wide frames in three steps, tall ones beside them", framed.frames_staircase,
                  "stone_wall_tall"),
    framed_by_set(405, "Framed shelf", "Landscape", "Three tall frames above three wide ones", framed.frames_shelf,
                  "shelves"),
    framed_by_set(406, "Framed duet", "Landscape", "Three frames above three, tall and wide in turn", framed.frames_duet,
                  "hall_wide"),
    framed_by_set(407, "Framed wall", "Landscape", "Eight frames in two rows, wide and tall in turn", framed.frames_wide_nine,
                  "hall_wide"),
    framed_by_set(408, "Framed gallery", "Landscape", "Five tall frames above three wide ones", framed.frames_tall_eight,
                  "blue_wall_wide"),
    framed_by_set(409, "Framed medley", "Landscape", "Twelve small frames in three rows", framed.frames_medley,
                  "driftwood_wide"),
]
