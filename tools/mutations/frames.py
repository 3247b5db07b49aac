"""Frame sets, their captions and icons."""
from .row import Row

ROWS = [
    Row("frames/sets/deal_frames.cpp", "? caption + 1 : 1;", "? caption + 1 : 0;",
        "captions end after their last instead of beginning anew"),
    Row("frames/sets/deal_frames.cpp", "in_section = in_section && !line", "in_section = !line",
        "frames are dealt to the designs behind the chosen one"),
    Row("frames/sets/frame_layout.cpp", "(band.width - text.width()) / 2.0 + band.shift",
        "(band.width - text.width()) / 2.0",
        "a caption beside an icon isn't moved aside"),
    Row("frames/sets/frame_layout.cpp", "constexpr int left_out_of_icon = 2;", "constexpr int left_out_of_icon = 1;",
        "an icon is laid one row and column larger"),
    Row("frames/sets/frame_layout.cpp", "std::abs(color.red - key.red) <= key_tolerance",
        "std::abs(color.red - key.red) < key_tolerance", "the edge of what shows through an icon"),
    Row("frames/sets/frame_rendering.cpp", "pixel_at(icon, 1, 1)", "pixel_at(icon, 0, 0)",
        "the corner that says what shows through a smaller icon"),
    Row("frames/icons/icon_list.cpp", "editor.icon_files.size() > last_taken", "editor.icon_files.size() >= last_taken",
        "one icon fewer is offered"),
    Row("frames/captions/frmCaptions.cpp", "index + 1 < all.captions.caption_boxes",
        "index + 2 < all.captions.caption_boxes",
        "the keyboard never comes to the last caption"),
    Row("frames/sets/frame_layout.cpp", ".fit_margin = 140", ".fit_margin = 139", "a caption across may be a pixel wider"),
]
