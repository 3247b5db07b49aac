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
        page = {**ANY_SHAPE, **on(file + ending), "Turn BG": "No", "Flip": "No", "Borders": "No", **(keys or {})}
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
    pair(116, "Best wishes", "best_wishes", "Photos with a greeting", "Photos and a line of writing on a cream card with green ribbons. Change the "
         "greeting in the caption box.", {"Caption": "Best wishes"}),
    pair(301, "Birthday", "birthday", "Lights, confetti and photos of the feast", "Photos of the feast among soft lights and falling confetti."),
    pair(302, "Wedding", "wedding", "Ivory paper, roses and few large photos", "Few large photos on ivory paper between two ribbons, with roses in two corners.",
         PRINTS),
    pair(303, "Baby", "baby", "Small photos in the clouds about large ones", "Small photos about large ones, in a pale sky under the stars."),
    pair(304, "Graduation", "graduation", "Laurel, gold and photos of the day", "Photos of the day on deep blue, with laurel in the corners."),
    pair(305, "Spring", "spring", "Columns of photos between boughs in blossom", "Columns that hang at different heights between boughs in blossom, whose petals are in the air."),
    pair(306, "Summer", "summer", "Prints on the sand", "Prints that the wind has spread on a beach, between the sea and the pier."),
    pair(307, "Winter", "winter", "Photos that grow down a slope of snow", "Photos that grow from row to row, down a slope of snow into the woods."),
    pair(308, "Christmas", "christmas", "Twigs of fir and candlelight", "Photos in candlelight, with twigs of fir in the corners."),
    pair(309, "Round the world", "travel", "Prints along a route", "Prints along a route, taped to a bright map of heights that nobody has climbed."),
    pair(310, "Garden", "garden", "Photos framed by leaves", "Photos in a clearing, with leaves growing in from all sides."),
    pair(311, "Sports", "sports", "Photos on the pitch", "Photos on the pitch, the match of the season among them."),
    pair(312, "Music", "music", "Two staves and photos of the concert", "Photos between two staves that swing across the page."),
    pair(313, "School", "school", "Photos in a notebook", "Photos stuck into a notebook with strips of tape, below the edge of the blackboard."),
    pair(314, "Cinema", "cinema", "Two strips of film before a curtain", "Two strips of film before a velvet curtain, landscapes in every frame.",
         {**ANY_SHAPE, "Frames": "No", "Shadows": "No", "Soft Edge": "No"}),
    pair(315, "Space", "space", "Stars, planets and few large photos", "Photos on their way to the stars.", {"Shadows": "No"}),
    pair(316, "Pets", "pets", "A large photo and small ones between tracks of paws", "A large photo and small ones between two tracks of paws and two collars."),
    pair(317, "Family tree", "family_tree", "Three generations and the lines between them",
         "Four grandparents, two parents and the youngest, joined by fine lines.", ANY_SHAPE),
    pair(318, "Valentine", "valentine", "Photos on deep red, with faint hearts", "Photos on deep red, with hearts that one hardly sees."),
    pair(319, "Mountains", "mountains", "Ranges in the haze", "Photos before ranges that fade into the haze, one behind the other.", PRINTS),
    pair(320, "Pumpkin night", "pumpkin_night", "A moon, bats and lanterns", "Photos between the moon and the lanterns. Mind the bats."),
    pair(321, "Anniversary", "anniversary", "Gold, laurel and few large photos", "Few large photos of many years, within a golden line."),
    pair(322, "Mother's Day", "mothers_day", "Roses on blush paper", "Photos on blush paper between two corners full of roses."),
    pair(323, "Father's Day", "fathers_day", "Photos on a cloth of herringbone", "Photos on a cloth of herringbone, with a fine line around them.", PRINTS),
    pair(324, "Easter", "easter", "Prints among boughs in white blossom", "Prints on a pale morning, among boughs in white blossom."),
    pair(325, "New Year", "new_year", "Rockets at midnight", "Photos of the year that ends, and rockets for the one that begins."),
    pair(326, "Milestone", "milestone", "Fifteen photos for a round birthday", "Fifteen photos of ten years or of many more, of many sizes, with golden confetti at the sides."),
    pair(327, "In memory", "memorial", "A quiet lake in the morning", "Few photos above a quiet lake in the morning."),
    pair(328, "Road trip", "road_trip", "A straight road at dusk", "Photos of the way, and the road that leads on."),
    pair(329, "City", "city", "Lit windows at dusk", "Photos of a city, above its roofs at dusk."),
    pair(330, "Open sea", "open_sea", "The moon on the water", "Photos of a voyage, and the moon on the water."),
    pair(331, "Recipe card", "recipe", "The dish, the steps and lines to write on", "A photo of the dish, small ones of the steps, and lines for what goes into it."),
    pair(332, "Book list", "book_list", "Covers on a shelf, with lines to write on", "Covers of books, records or films, with two lines below each for what you thought of it."),
    pair(333, "Cover story", "cover_story", "A large field for the title above four photos", "A deep blue field for the title, one large photo below it and three at its side."),
    pair(334, "Then and now", "before_after", "Pairs of photos, before and after", "Pairs of photos close to each other: how it was at the left, how it became at the right.",
         {"Shadows": "No"}),
    pair(335, "Our class", "our_class", "A class or a team below a blackboard", "A class or a team on squared paper, below a blackboard."),
    pair(336, "Sheet of a month", "month_sheet", "Photos and a month to write in", "Photos of the month, and its five weeks to write in."),
    pair(337, "Year in review", "year_in_review", "Twelve months and a large photo", "A photo for each month and a large one for the year."),
    pair(338, "Month by month", "baby_months", "Twelve small photos about large ones", "A small photo for each month of the first year, around those of today."),
    pair(339, "Photo booth", "photo_booth", "Strips as they come from a booth", "Strips of photos as they come from the booth, before its curtain.", {"Frames": "No", "Shadows": "No", "Soft Edge": "No"}),
    pair(340, "Window panes", "window", "Six panes of a white window", "Six photos in the panes of a white window.", {"Shadows": "No"}),
    pair(341, "Magazine", "magazine", "A photo to the edge, six beside it", "A photo that runs to the edge of the page, and six small ones in columns beside it.", {"Frames": "No", "Shadows": "No"}),
    pair(342, "Postcards", "postcards", "Cards spread on a cloth", "Few large cards, spread on a pale cloth.", {"Frames": "20", "Shadows": "20"}),
    pair(343, "White space", "white_space", "One large photo and two small ones", "One large photo, two small ones, and nothing else but paper.", {"Shadows": "No"}),
    pair(344, "Light table", "light_table", "Slides in their mounts", "Slides in mounts of card on a light table.", {"Frames": "No", "Shadows": "No", "Soft Edge": "No"}),
    pair(345, "Horizon", "panorama_page", "Panoramas from edge to edge", "Panoramas from edge to edge, three times as wide as high, and small photos between them.", {"Frames": "No", "Shadows": "No"}),
    pair(346, "Salon wall", "salon_wall", "Fifteen pictures of many sizes on a white wall", "Fifteen pictures of many sizes on a warm white wall, about a large one.", PRINTS),
]
THEMES = [one for pair_of in OCCASIONS for one in pair_of]

FRAMES = [
    framed_by_set(401, "Framed portraits", "Portrait", "Nine frames in three rows, tall and wide in turn", framed.frames_tall_nine,
                  "hall_tall"),
    framed_by_set(402, "Framed landscapes", "Portrait", "Ten frames in rows of two and three", framed.frames_wide_eight, "green_wall_tall"),
    framed_by_set(403, "Framed family", "Portrait", "Ten frames in four rows, the parents above", framed.frames_family,
                  "green_wall_tall"),
    framed_by_set(405, "Framed shelf", "Landscape", "Three tall frames above three wide ones", framed.frames_shelf,
                  "shelves"),
    framed_by_set(406, "Framed duet", "Landscape", "Tall frames in two rows, with wide ones among them", framed.frames_duet,
                  "hall_wide"),
    framed_by_set(407, "Framed wall", "Landscape", "Eight frames in two rows, wide and tall in turn", framed.frames_wide_nine,
                  "hall_wide"),
    framed_by_set(408, "Framed gallery", "Landscape", "Five tall frames above three wide ones", framed.frames_tall_eight,
                  "blue_wall_wide"),
    framed_by_set(409, "Framed medley", "Landscape", "Fifteen small frames in three rows", framed.frames_medley,
                  "driftwood_wide"),
]
