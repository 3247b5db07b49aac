#include "designs/catalogue/saved_design.h"

#include "designs/catalogue/catalogue.h"
#include "designs/catalogue/catalogue_lines.h"
#include "designs/catalogue/last_flurn.h"
#include "designs/templates/unfinished.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/files/profile.h"
#include "support/files/text_file.h"

namespace {

constexpr int first_listed = 500, end_of_listed = 800;
constexpr picture_size wide_sample{.width = 450, .height = 300}, high_sample{.width = 300, .height = 450};

// The collage in that size; empty when it can't be read.
std::string small_collage(const std::string & picture, picture_size size)
{
    const bitmap collage = load_picture(picture_format::jpeg, picture);
    return collage ? jpeg_bytes(rescaled(collage, size.width, size.height)) : std::string();
}

design_to_save::part save_sample(frmMain & main, const flurn_to_save & flurn, design_to_save & design,
                                 const std::string & path)
{
    const bool is_wide = flurn.how.is_landscape;
    const std::string sample = alone_beside(main.desk, main.workers, [&] {
        return small_collage(flurn.picture, is_wide ? wide_sample : high_sample);
    });
    if (sample.empty()) {
        delete_if_exists(path);
        return design_to_save::part::absent;
    }
    design.background = is_wide ? orientation::landscape : orientation::portrait;
    replace_file(path, sample);
    return design_to_save::part::present;
}

design_to_save::part save_description(const std::string & text, const std::string & path)
{
    if (text.empty()) {
        delete_if_exists(path);
        return design_to_save::part::absent;
    }
    replace_file(path, text_of(lines_of_text(text + "\n")));
    return design_to_save::part::present;
}

// A working template that a later preview has made is that of another layout.
void use_up(frmMain & main, const std::string & layout)
{
    const std::string working = working_template(main);
    if (file_exists(working) && read_file(working) == layout)
        delete_file(working);
    forget_last_flurn(main);
}

// The catalogue read anew, so that no walk goes on in what was there before.
void reset_catalogue(frmMain & main)
{
    open_catalogue(main);
    close_catalogue(main);
}

}  // namespace

bool check_design_name(frmMain & main, const std::string & name)
{
    const bool taken = holds_name(lines_of_file(catalogue_path(main)), name);
    if (taken)
        main.desk.message("There already is a design named:\r\n" + name);
    return !taken;
}

bool check_name_text(frmMain & main, std::string_view name)
{
    const bool is_fit = is_one_line(name);
    if (!is_fit)
        main.desk.message("A design's name can't hold line breaks or other control characters.");
    return is_fit && !profile_text(name).empty();
}

void delete_if_exists(const std::string & path)
{
    delete_file(path);
}

void save_design(frmMain & main, const std::string & name, const std::string & description)
{
    const std::string own = "saved" + formatted(main.next_design_number, 3);
    const text_lines files{"designs/" + own, "samples/" + own + ".jpg", "descriptions/" + own};
    const flurn_to_save flurn = last_flurn(main);
    const std::string layout = read_file(flurn.layout);
    design_to_save design{.number = main.next_design_number, .name = name, .kind = flurn.how.layout};
    note_unfinished(main, files);
    replace_file(joined(main.data_folder, files[0]), layout);
    design.sample = save_sample(main, flurn, design, joined(main.data_folder, files[1]));
    design.description = save_description(description, joined(main.data_folder, files[2]));
    close_catalogue(main);
    const std::string path = catalogue_path(main);
    replace_file(path, read_file(path) + text_of(saved_section(design)));
    forget_unfinished(main);
    use_up(main, layout);
    reset_catalogue(main);
}

std::vector<listed_design> own_designs(const frmMain & main)
{
    const profile designs(catalogue_path(main));
    std::vector<listed_design> own;
    for (int number = first_listed; number < end_of_listed; ++number) {
        const std::string section = "Design" + formatted(number, 3);
        const std::string name = designs.value(section, "Name");
        if (!name.empty() && designs.value(section, "System") != "Yes")
            own.push_back({.section = section, .name = name});
    }
    return told_apart(std::move(own));
}

bool delete_design(frmMain & main, const listed_design & design)
{
    close_catalogue(main);
    const std::string path = catalogue_path(main);
    const text_lines catalogue = lines_of_file(path);
    const std::optional<int> number = number_of_design(catalogue, design);
    if (!number)
        return false;
    const text_lines files = files_of_design(catalogue, *number);
    // The files go when no design needs them any more, not before.
    note_unfinished(main, files);
    const std::string rewritten = work_path(main, "tmp/designs.ini");
    replace_file(rewritten, text_of(without_design(catalogue, *number)));
    move_file(rewritten, path);
    for (const std::string & file : files)
        delete_if_exists(joined(main.data_folder, file));
    forget_unfinished(main);
    return true;
}
