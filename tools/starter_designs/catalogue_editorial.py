"""The supplied designs of calm pages, from number 155 on."""
from starter_designs import editorial
from starter_designs.catalogue import ANY_SHAPE, FITTING, design, on

TURNS = {**FITTING, "Turn BG": "Yes"}
STAYS = {**FITTING, "Turn BG": "No"}
ANY = {**ANY_SHAPE, "Turn BG": "No"}
ANY_TURNS = {**ANY_SHAPE, "Turn BG": "Yes"}
WIDE = {**STAYS, "Borders": "No"}
ANY_WIDE = {**ANY, "Borders": "No"}
MATS = {"Frames": "45"}

PAGES = [
    design(155, "Title page", "Block", "Portrait", "A large photo, four small ones and room for a title",
           "A large photo and four small ones; the upper fourth of the page waits for large letters.", editorial.title_page, {**ANY, **on("ink")}),
    design(156, "Quiet page", "Block", "Portrait", "Three photos in broad margins", "A landscape, two portraits and a lot of air.",
           editorial.quiet_page, {**TURNS, **on("charcoal")}),
    design(157, "Gallery sheet", "Block", "Portrait", "One large photo, three small ones", "One large landscape and three small portraits below it.",
           editorial.gallery_sheet, {**ANY, **on("stone_wall")}),
    design(158, "Left column", "Block", "Portrait", "A tall photo with small ones at two sides", "A tall photo, four landscapes beside it and three photos below.",
           editorial.left_column, {**STAYS, **on("forest")}),
    design(159, "Contact strip", "Block", "Portrait", "Five small photos between two large ones", "A strip of five small portraits between two large landscapes.",
           editorial.contact_strip, {**ANY, **on("charcoal")}),
    design(160, "Broadsheet", "Block", "Portrait", "Ten photos like a large newspaper", "Ten photos in four rows, like the columns of a large newspaper.",
           editorial.broadsheet, {**TURNS, **on("stone_wall")}),
    design(161, "Double portrait", "Block", "Portrait", "Two large portraits above six small photos", "Two large portraits and two rows of three below them.",
           editorial.double_portrait, {**STAYS, **on("wine")}),
    design(162, "Lookbook", "Block", "Portrait", "Six portraits of one size", "Six tall portraits in two rows.", editorial.lookbook, {**ANY_TURNS, **on("sand")}),
    design(163, "Nine squares", "Block", "Portrait", "Nine squares with room above", "Nine squares, three by three, and room for a title.",
           editorial.nine_squares, {**ANY_TURNS, **on("ink")}),
    design(164, "Sixteen squares", "Block", "Portrait", "Sixteen squares with room above", "Sixteen squares, four by four, and room for a title.",
           editorial.sixteen_squares, {**ANY_TURNS, **on("charcoal")}),
    design(165, "Long weekend", "Block", "Portrait", "Fifteen photos in five rows", "Five rows of three photos: from Friday to Monday.",
           editorial.long_weekend, {**STAYS, **on("slate")}),
    design(166, "Twelve months", "Block", "Portrait", "A square for each month", "Twelve squares, a month each, and room for the year above.",
           editorial.twelve_months, {**ANY, **on("forest")}),
    design(167, "Twelve months, wide", "Block", "Landscape", "A square for each month", "Twelve squares in two rows, a month each, and room for the year above.",
           editorial.twelve_months_wide, {**ANY_WIDE, **on("forest")}),
    design(168, "First year", "Block", "Portrait", "Twelve months and a large photo of today", "A square for each month of the first year, below a large photo of today.",
           editorial.first_year, {**ANY, **on("blush")}),
    design(169, "First year, wide", "Block", "Landscape", "Twelve months and a large photo of today",
           "A square for each month of the first year, beside a large photo of today.", editorial.first_year_wide, {**ANY_WIDE, **on("blush")}),
    design(170, "Calendar page", "Block", "Portrait", "The picture of the month and one for each day", "A large photo of the month and thirty-one small ones, seven a week.",
           editorial.calendar_page, {**ANY, **on("ink")}),
    design(171, "Team page", "Block", "Portrait", "The whole team and eight of its members", "The whole team above, eight of its members in two rows below.",
           editorial.team_page, {**ANY, **on("slate")}),
    design(172, "Team page, wide", "Block", "Landscape", "The whole team and six of its members", "The whole team at the left, six of its members in two rows beside it.",
           editorial.team_page_wide, {**ANY_WIDE, **on("slate")}),
    design(173, "Four panoramas", "Block", "Portrait", "Four photos three times as wide as high", "Four real panoramas, one below the other.",
           editorial.panoramas_four, {**ANY, **on("charcoal")}),
    design(174, "Panorama and portraits", "Block", "Portrait", "Two panoramas among eight photos", "Panoramas between a row of portraits and a row of landscapes.",
           editorial.panorama_and_portraits, {**ANY, **on("stone_wall")}),
    design(175, "Wide panorama", "Block", "Landscape", "A panorama over the whole width", "A panorama over the whole width and two more below it.",
           editorial.panoramas_wide, {**ANY_WIDE, **on("charcoal")}),
    design(176, "Before and after", "Block", "Portrait", "Three pairs of squares", "Three pairs of squares: how it was at the left, how it became at the right.",
           editorial.before_and_after, {**ANY, **on("stone_wall")}),
    design(177, "Mats on charcoal", "Block", "Portrait", "Four photos in broad white frames", "Four photos in broad frames of a fixed size, in strict order.",
           editorial.mats_on_charcoal, {**ANY, **MATS, **on("charcoal")}),
    design(178, "Black frames", "Block", "Portrait", "Five photos in black frames on a wall", "Five photos in black frames, hung with care.",
           editorial.black_frames, {**TURNS, **on("stone_wall"), "Frames": "20", "Frame Color": "Black"}),
    design(179, "Triptych", "Block", "Landscape", "Three tall photos side by side", "Three tall photos side by side, the middle one the widest.",
           editorial.triptych, {**ANY_WIDE, **on("wine")}),
    design(180, "Story board", "Block", "Landscape", "A large picture and six small ones", "A large picture and the six small ones that led to it.",
           editorial.story_board, {**ANY_WIDE, **on("ink")}),
    design(181, "Family row", "Block", "Landscape", "Four portraits above four landscapes", "Four portraits in a row, four landscapes below them.",
           editorial.family_row, {**WIDE, **on("sage")}),
    design(182, "Travel notes", "Block", "Landscape", "Fifteen photos in three rows", "Fifteen photos in three rows, tall and wide in turn.",
           editorial.travel_notes, {**WIDE, **on("sand")}),
]
