#pragma once

#include <string>

/// The current section of the design catalogue: all values are text, each user converts as needed. The
/// defaults are those of a key that the section doesn't have.
struct design_record {
    std::string section{};
    std::string name{}, file{}, style{}, design{}, background{};
    std::string ratio = "2x3", distort = "No";
    std::string sample{}, help_tip = "No information available", description{};
    std::string system{}, count{}, turn_bg = "Yes";
    std::string bg_image = "Either", bg_color{}, match = "Yes", resize = "Crop";
    std::string caption{}, frames = "Yes", shadows = "Yes", block = "Choose", soft_edge = "Choose";
    std::string caption_color{}, caption_clear{}, frame_color{}, shadow_color{};
    std::string flip = "Yes", borders{}, quick_shape{};
    bool operator==(const design_record &) const = default;
};
