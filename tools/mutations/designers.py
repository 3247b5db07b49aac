"""The matrix grid, the lettering, the puzzle."""
from .row import Row

ROWS = [
    Row("designers/lettering/lettering_plan.cpp", "extra * 0.9)", "extra * 0.8)", "capitals stand too low on their line"),
    Row("designers/lettering/lettering_plan.cpp", "(count - 1) * std::max(gap, 0)", "(count - 1) * gap",
        "overlapping letters are centred as if blanks overlapped too, twice"),
    Row("designers/lettering/lettering_plan.cpp", 'return "alpha/sturdy/";', 'return "alpha/serif/";',
        "sturdy letters have serifs"),
    Row("engine/photo/mask_path.cpp", "return file_exists(supplied) ? supplied : path;", "return path;",
        "letters are missing from a data folder of an earlier version"),
    Row("designers/lettering/lettering_text.cpp", "countdown = length > limit ? grace : 0;",
        "countdown = length >= limit ? grace : 0;", "lines are broken a letter early"),
    Row("designers/puzzle/puzzle_plan.cpp", "choices.edges && index == count - 1", "choices.edges && index == count",
        "the last row of a puzzle has knobs over the edge"),
    Row("designers/puzzle/puzzle_plan.cpp", "draw(each + 1);", "draw(each);", "the last piece of a run is never missing"),
    Row("designers/matrix/matrix_layout.cpp", "photo <= frames.captions ? photo : 0", "photo < frames.captions ? photo : 0",
        "the last captioned photo has the frame of none"),
    Row("designers/matrix/matrix_fit.cpp", "lying ? long_side : short_side);", "lying ? short_side : long_side);",
        "columns are counted for photos that lie the other way"),
    Row("designers/matrix/matrix_sample.cpp", "photo % photos_to_a_double == 1", "photo % photos_to_a_double == 0",
        "other cells of the sample are double"),
    Row("designers/lettering/lettering_plan.cpp", "-30, 60,  -75, 0,", "-30, 60,  -70, 0,",
        "one shift of letters that leave their line"),
    Row("designers/matrix/matrix_layout.cpp", "{35, 0.75}", "{35, 0.7}", "the room for shaking of 36 to 45 photos"),
    Row("designers/puzzle/puzzle_plan.cpp", '{"2", 0.638}', '{"2", 0.63}',
        "every second column of a puzzle stands too near"),
]
