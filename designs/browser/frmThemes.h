#pragma once

#include "designs/browser/theme_designs.h"
#include "support/list_controls.h"
#include "support/numbers.h"

#include <array>
#include <utility>

struct windows;

/// The chooser of designs: the catalogue by pages of fourteen names, with a sample and a description of the
/// one selected. A cancel leaves the tag of the main window's `lblDesign` empty.
struct frmThemes : form {
    frmThemes() : form("frmThemes")
    {
        set_caption("F l u r n   D e s i g n s");
        optPortrait.select();
        picSample.move({432, 30, 300, 450});
        frmButtons.move({152, 520, 458, 52});
    }

    group frmStyle{*this, "frmStyle", "  Style  "};
    option_set style_options;
    option_button optAll{*this, "optAll", style_options, "All"};
    option_button optScatter{*this, "optScatter", style_options, "Scatter"};
    option_button optBlock{*this, "optBlock", style_options, "Solid Block"};
    option_button optTheme{*this, "optTheme", style_options, "Theme"};
    option_button optSaved{*this, "optSaved", style_options, "Saved"};
    option_button optFrames{*this, "optFrames", style_options, "Custom Frame"};

    option_set orientation_options;
    option_button optPortrait{*this, "optPortrait", orientation_options, "Portrait"};
    option_button optLandscape{*this, "optLandscape", orientation_options, "Landscape"};
    entry_box cmbDesign{*this, "cmbDesign"};  ///< photo counts: "Any number", " 7 images", …

    group frmDesigns{*this, "frmDesigns", "  Available Designs  "};
    option_set design_options;
    /// Caption: the name, with the number where others have the same, tag: the section; a slot without a
    /// caption is empty.
    std::array<option_button, slot_count> optDesign =
        design_slots(std::make_index_sequence<static_cast<std::size_t>(slot_count)>());
    /// The sample of each, small, beside its name.
    std::array<picture, slot_count> picDesign =
        small_samples(std::make_index_sequence<static_cast<std::size_t>(slot_count)>());
    button cmdPage_minus{*this, "cmdPage_minus", "<  Page"};
    button cmdPrevious{*this, "cmdPrevious", "Previous"};
    button cmdNext{*this, "cmdNext", "Next"};
    button cmdPage_plus{*this, "cmdPage_plus", "Page  >"};

    check_box chkRandom{*this, "chkRandom", "Random"};
    check_box chkFlip{*this, "chkFlip", "Flip"};
    check_box chkMirror{*this, "chkMirror", "Mirror:"};
    picture picSample{*this, "picSample"};
    text_box txtDescription{*this, "txtDescription"};

    group frmButtons{*this, "frmButtons"};
    button cmdOk{*this, "cmdOk", "Ok"};
    button cmdCancel{*this, "cmdCancel", "Cancel"};
    button cmdHelp{*this, "cmdHelp", "Help"};

    /// The names of the designs in the slots, as they stand in the catalogue.
    std::array<std::string, slot_count> design_names;
    int16 selected_index = -1;  ///< of the selected slot, -1 for none
    /// The first design of the next page once a page is listed, or of the page listed when none follows.
    int16 page_start = 0;
    bool more_pages = false;
    std::int32_t form_width = 0;  ///< that a resize keeps, in 1/15 pixel
    bool settling = false;        ///< the program sets the controls: no listing for each of them

private:
    template <std::size_t... index>
    std::array<option_button, sizeof...(index)> design_slots(std::index_sequence<index...>)
    {
        return {{option_button{*this, "optDesign_" + std::to_string(index), design_options}...}};
    }
    template <std::size_t... index>
    std::array<picture, sizeof...(index)> small_samples(std::index_sequence<index...>)
    {
        return {{picture{*this, "picDesign_" + std::to_string(index)}...}};
    }
};

/// Hooks its handlers.
void connect_frmThemes(windows & all);
