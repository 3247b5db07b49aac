"""The supplied designs with backgrounds of our own, from number 301 on, and those of custom frames, from 401 on."""
from starter_designs import framed, themes
from starter_designs.catalogue import FITTING, design, on

PRINTS = {"Frames": "14", "Shadows": "14"}  # a fixed shadow takes the size of the frame


def theme(number, name, background, tip, description, layout, keys=None):
    page = {**FITTING, **on(layout.__name__), "Turn BG": "No", "Flip": "No", "Borders": "No"}
    return design(number, name, "Theme", background, tip, description, layout, {**page, **(keys or {})})


def framed_by_set(number, name, background, tip, layout, ground=None):
    """Without a ground the colour is the user's choice, for frames of any colour."""
    description = tip + ".\nThe frames come from a set of your own; their captions are dealt in turn."
    keys = {**FITTING, **(on(ground) if ground else {"BG Image": "Either"}), "Frames": "None", "Shadows": "No", "Block": "No", "Soft Edge": "No",
            "Turn BG": "No", "Flip": "No", "Borders": "No"}
    return design(number, name, "Frame", background, tip, description, layout, keys)


THEMES = [
    theme(301, "Birthday", "Portrait", "Bunting, balloons and eight photos",
          "Bunting above, balloons below, and eight photos of the feast between them.", themes.birthday),
    theme(302, "Wedding", "Portrait", "Roses, rings and five photos",
          "Five photos within a golden line, with roses in two corners.", themes.wedding, PRINTS),
    theme(303, "Baby", "Landscape", "Clouds, ducks and eight photos",
          "Eight photos between hanging stars and two ducks.", themes.baby, {"Shadow Color": "Black"}),
    theme(304, "Graduation", "Landscape", "Caps, diplomas and five photos",
          "One large photo of the day and four more, among flying caps.", themes.graduation),
    theme(305, "Spring", "Portrait", "Blossoms, tulips and seven photos",
          "Seven photos between the blossoms and the tulips.", themes.spring),
    theme(306, "Summer", "Landscape", "Sun, palms and nine photos",
          "Nine photos in the sun, with ices and melons.", themes.summer, {"Frames": "Color", "Shadows": "Color"}),
    theme(307, "Winter", "Portrait", "Snow, firs and seven photos",
          "Seven photos in falling snow. The snowman looks at them all.", themes.winter),
    theme(308, "Christmas", "Portrait", "A garland, parcels and seven photos",
          "Seven photos between the garland and the parcels.", themes.christmas),
    theme(309, "Round the world", "Landscape", "A map, a route and seven photos",
          "Seven photos on a map of lands that nobody has seen, with the route that leads there.", themes.travel, PRINTS),
    theme(310, "Garden", "Portrait", "A fence, sunflowers and seven photos",
          "Seven photos above the garden fence. Mind the bees.", themes.garden),
    theme(311, "Sports", "Landscape", "A pitch, balls, cups and seven photos",
          "Seven photos on the pitch, the match of the season in the middle.", themes.sports),
    theme(312, "Music", "Portrait", "Notes, keys and five photos",
          "Five photos between two lines of music and a keyboard.", themes.music),
    theme(313, "School", "Landscape", "A blackboard and eight photos",
          "Eight photos on the blackboard. One and two is still three.", themes.school),
    theme(314, "Cinema", "Portrait", "Two strips of film with twelve pictures",
          "Two strips of film before a velvet curtain, six landscapes on each.", themes.cinema,
          {"Frames": "No", "Shadows": "No", "Soft Edge": "No"}),
    theme(315, "Space", "Portrait", "Planets, a rocket and six photos",
          "Six photos on their way to the stars, with frames that glow green.", themes.space,
          {"Frames": "Color", "Frame Color": "Green", "Shadows": "No"}),
    theme(316, "Pets", "Portrait", "Paws, a dog, a cat and six photos",
          "Five photos of what they did today, and one of what they really look like.", themes.pets),
    theme(317, "Family tree", "Portrait", "A tree with eleven photos",
          "Ten photos in the crown of a tree, and the whole family before its trunk.", themes.family_tree),
    theme(318, "Valentine", "Landscape", "A large heart and nine portraits",
          "One portrait before a large heart, four more on each side.", themes.valentine),
    theme(319, "Mountains", "Landscape", "Peaks, firs, a trail and ten photos",
          "Ten photos above the peaks. The tent is already up.", themes.mountains, PRINTS),
    theme(320, "Pumpkin night", "Portrait", "A moon, bats, pumpkins and seven photos",
          "Seven photos between the moon and the lanterns. Mind the bats.", themes.pumpkin_night),
]

FRAMES = [
    framed_by_set(401, "Framed portraits", "Portrait", "Nine tall frames in three rows", framed.frames_tall_nine,
                  "hall_tall"),
    framed_by_set(402, "Framed landscapes", "Portrait", "Eight wide frames in pairs", framed.frames_wide_eight),
    framed_by_set(403, "Framed family", "Portrait", "A large frame above four others", framed.frames_family,
                  "green_wall_tall"),
    framed_by_set(404, "Framed staircase", "Portrait", "Tall and wide frames in turn", framed.frames_staircase,
                  "white_wall_tall"),
    framed_by_set(405, "Framed shelf", "Landscape", "Three tall frames above three wide ones", framed.frames_shelf,
                  "shelves"),
    framed_by_set(406, "Framed duet", "Landscape", "Two large frames and two small ones", framed.frames_duet,
                  "hall_wide"),
    framed_by_set(407, "Framed wall", "Landscape", "Nine wide frames in three rows", framed.frames_wide_nine),
    framed_by_set(408, "Framed gallery", "Landscape", "Eight tall frames in two rows", framed.frames_tall_eight,
                  "blue_wall_wide"),
    framed_by_set(409, "Framed medley", "Landscape", "A large frame with seven tall ones round it", framed.frames_medley,
                  "whitewash_wide"),
]
