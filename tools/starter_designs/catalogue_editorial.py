"""The supplied designs of calm pages, from number 155 on."""
from starter_designs import editorial
from starter_designs.catalogue import ANY_SHAPE, design, on

TURNS = {**ANY_SHAPE, "Turn BG": "Yes"}
STAYS = {**ANY_SHAPE, "Turn BG": "No"}
ANY = {**ANY_SHAPE, "Turn BG": "No"}
ANY_TURNS = {**ANY_SHAPE, "Turn BG": "Yes"}
WIDE = {**STAYS, "Borders": "No"}
ANY_WIDE = {**ANY, "Borders": "No"}
MATS = {"Frames": "45"}


def page(number, name, background, tip, description, layout, keys):
    """Its ground in the shape of its poster, unless it turns."""
    ground = keys["BG Image"].removesuffix(".jpg")
    if keys["Turn BG"] == "No":
        keys = {**keys, **on(ground + ("_wide" if background == "Landscape" else "_tall"))}
    return design(number, name, "Block", background, tip, description, layout, keys)


PAGES = [
    page(155, "Title page", "Portrait", "A large photo, four small ones and room for a title",
         "A large photo and four small ones; the upper fourth of the page waits for large letters.", editorial.title_page, {**ANY, **on("ink")}),
    page(156, "Quiet page", "Portrait", "Three photos in broad margins", "A large photo, two smaller ones and a lot of air.",
         editorial.quiet_page, {**TURNS, **on("charcoal")}),
    page(157, "Gallery sheet", "Portrait", "One large photo, three small ones", "One large photo and three small ones below it.",
         editorial.gallery_sheet, {**ANY, **on("stone_wall")}),
    page(158, "Left column", "Portrait", "A tall photo with small ones at two sides", "A tall photo, three small ones beside it and three below.",
         editorial.left_column, {**STAYS, **on("forest")}),
    page(159, "Contact strip", "Portrait", "Five small photos between four large ones", "A strip of five small photos between two pairs of large ones.",
         editorial.contact_strip, {**ANY, **on("charcoal")}),
    page(160, "Broadsheet", "Portrait", "Ten photos like a large newspaper", "Ten photos in four rows, like the columns of a large newspaper.",
         editorial.broadsheet, {**TURNS, **on("stone_wall")}),
    page(161, "Double portrait", "Portrait", "Two large portraits above six small photos", "Two large portraits and two rows of three below them.",
         editorial.double_portrait, {**STAYS, **on("wine")}),
    page(162, "Lookbook", "Portrait", "Six photos of one size", "Six photos of one size in three rows.", editorial.lookbook, {**ANY_TURNS, **on("sand")}),
    page(163, "Nine squares", "Portrait", "Nine squares with room above", "Nine squares, three by three, and room for a title.",
         editorial.nine_squares, {**ANY, **on("ink")}),
    page(164, "Sixteen squares", "Portrait", "Sixteen squares with room above", "Sixteen squares, four by four, and room for a title.",
         editorial.sixteen_squares, {**ANY, **on("charcoal")}),
    page(165, "Long weekend", "Portrait", "Fifteen photos in five rows", "Five rows of three photos: from Friday to Monday.",
         editorial.long_weekend, {**STAYS, **on("slate")}),
    page(183, "Ten squares", "Landscape", "Ten squares in two rows", "Ten squares in two rows of five, and room for a title.",
         editorial.ten_squares, {**ANY_WIDE, **on("charcoal")}),
    page(166, "Twelve months", "Portrait", "A square for each month", "Twelve squares, a month each, and room for the year above.",
         editorial.twelve_months, {**ANY, **on("forest")}),
    page(167, "Twelve months, wide", "Landscape", "A square for each month", "Twelve squares in two rows, a month each, and room for the year above.",
         editorial.twelve_months_wide, {**ANY_WIDE, **on("forest")}),
    page(168, "First year", "Portrait", "Twelve months and a large photo of today", "A square for each month of the first year, below a large photo of today.",
         editorial.first_year, {**ANY, **on("blush")}),
    page(169, "First year, wide", "Landscape", "Twelve months and a large photo of today",
         "A square for each month of the first year, beside a large photo of today.", editorial.first_year_wide, {**ANY_WIDE, **on("blush")}),
    page(170, "Calendar page", "Portrait", "The picture of the month and one for each day", "A large photo of the month and thirty-one small ones, seven a week.",
         editorial.calendar_page, {**ANY, **on("ink")}),
    page(171, "Team page", "Portrait", "The whole team and eight of its members", "The whole team above, eight of its members in two rows below.",
         editorial.team_page, {**ANY, **on("slate")}),
    page(172, "Team page, wide", "Landscape", "The whole team and six of its members", "The whole team at the left, six of its members in two rows beside it.",
         editorial.team_page_wide, {**ANY_WIDE, **on("slate")}),
    page(173, "Four panoramas", "Portrait", "Four photos three times as wide as high", "Four real panoramas, one below the other.",
         editorial.panoramas_four, {**ANY, **on("charcoal")}),
    page(174, "Panorama and portraits", "Portrait", "Two panoramas among eight photos", "Panoramas between rows of small photos.",
         editorial.panorama_and_portraits, {**ANY, **on("stone_wall")}),
    page(175, "Wide panorama", "Landscape", "A panorama over the whole width", "A panorama over the whole width and two more below it.",
         editorial.panoramas_wide, {**ANY_WIDE, **on("charcoal")}),
    page(176, "Before and after", "Portrait", "Three pairs of squares", "Three pairs of squares: how it was at the left, how it became at the right.",
         editorial.before_and_after, {**ANY, **on("stone_wall")}),
    page(177, "Mats on charcoal", "Portrait", "Four photos in broad white frames", "Four photos in broad frames of a fixed size, in strict order.",
         editorial.mats_on_charcoal, {**ANY, **MATS, **on("charcoal")}),
    page(178, "Black frames", "Portrait", "Six photos in black frames on a wall", "Six photos in black frames, hung with care.",
         editorial.black_frames, {**TURNS, **on("stone_wall"), "Frames": "20", "Frame Color": "Black"}),
    page(179, "Triptych", "Landscape", "Three tall photos side by side", "Three tall photos side by side, the middle one the widest.",
         editorial.triptych, {**ANY_WIDE, **on("wine")}),
    page(180, "Story board", "Landscape", "A large picture and eleven small ones", "A large picture and the eleven small ones that led to it.",
         editorial.story_board, {**ANY_WIDE, **on("ink")}),
    page(181, "Family row", "Landscape", "Four large photos above five small ones", "Four photos in a row, five smaller ones below them.",
         editorial.family_row, {**WIDE, **on("sage")}),
    page(182, "Travel notes", "Landscape", "Sixteen photos in three rows", "Sixteen photos in three rows, tall and wide in turn.",
         editorial.travel_notes, {**WIDE, **on("sand")}),
]
