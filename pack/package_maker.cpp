#include "pack/package_maker.h"

#include "designs/catalogue/catalogue_lines.h"
#include "designs/catalogue/design_lines.h"
#include "pack/package_check.h"
#include "pack/package_files.h"
#include "support/files/inner_path.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <algorithm>

namespace {

// Above every number that a catalogue gives, so that the design replaces none of whoever takes it in.
constexpr const char * behind_all = "999";

std::string in_data(const package_request & request, const std::string & name)
{
    return joined(request.data_folder, name);
}

[[noreturn]] void give_up(const std::string & what, const std::string & name, const std::string & why)
{
    throw not_packed{"the " + what + " \"" + name + "\" " + why};
}

std::string ending_of(const std::string & path)
{
    const std::string name = name_of(path);
    const std::size_t point = name.rfind('.');
    return point == std::string::npos ? std::string() : name.substr(point);
}

// ---- one design

// A name stands for one design; where several have it, the lists show it with a number, and so it is asked
// for.
std::optional<int> number_shown(const text_lines & catalogue, const std::string & name)
{
    std::optional<int> shared = number_of_design(catalogue, name);
    for (const listed_design & design : designs_of_users(catalogue)) {
        if (design.shown == name)
            return number_of_design(catalogue, design);
        if (shared && design.name == name)
            give_up("design", name, "stands more than once: ask for \"" + design.shown + "\"");
    }
    return shared;
}

class design_packer {
public:
    design_packer(package_files & all, const package_request & wanted, const text_lines & read_catalogue,
                  const std::string & wanted_name)
        : files(all), request(wanted), catalogue(read_catalogue), name(wanted_name)
    {}

    // The lines of its section, with the names that its files have in the package.
    text_lines run()
    {
        const std::optional<int> number = number_shown(catalogue, name);
        if (!number)
            give_up("design", name, "is none of your own");
        text_lines section = section_of(catalogue, *number);
        design_record record;
        for (const std::string & line : section)
            read_design_line(record, line);
        if (record.system == "Yes")
            give_up("design", name, "came with the program");
        pack(record);
        section.erase(section.begin());
        for (std::string & line : section)
            rename_file(line, record);
        section.insert(section.begin(), "[Design" + std::string(behind_all) + "]");
        return section;
    }

private:
    void pack(const design_record & record)
    {
        const std::string layout = in_data(request, "designs/" + record.file);
        if (!is_plain_name(record.file) || !file_exists(layout))
            give_up("design", name, "has no template of its own");
        const text_lines lines = lines_of_file(layout);
        mark = "pk_" + mark_of(record.name + text_of(lines));
        files.add(text_of(with_own_pictures(lines)), "designs/" + mark);
        if (has(record.sample, "samples/"))
            files.add(read_file(in_data(request, "samples/" + record.sample)), "samples/" + mark + ".jpg");
        if (has(record.description, "descriptions/"))
            files.add(read_file(in_data(request, "descriptions/" + record.description)),
                      "descriptions/" + mark);
    }
    bool has(const std::string & file, const std::string & folder) const
    {
        return is_plain_name(file) && file_exists(in_data(request, folder + file));
    }
    void rename_file(std::string & line, const design_record & record)
    {
        if (line.starts_with("File="))
            line = "File=" + mark;
        else if (line.starts_with("Sample="))
            line = has(record.sample, "samples/") ? "Sample=" + mark + ".jpg" : "Sample=";
        else if (line.starts_with("Description="))
            line = has(record.description, "descriptions/") ? "Description=" + mark : "Description=";
        else if (line.starts_with("BG Image=") && record.bg_image.starts_with("user_images"))
            line = "BG Image=" + own_picture(record.bg_image);
    }
    // A location line keeps its numbers; a picture of the user's travels along under a name of its own.
    text_lines with_own_pictures(const text_lines & lines)
    {
        constexpr std::size_t fields_of_a_location = 9;
        text_lines changed;
        for (const std::string & line : lines) {
            std::vector<std::string> fields = split(line, ':', fields_of_a_location);
            if (fields.size() == fields_of_a_location && !line.starts_with('#') && !line.starts_with('['))
                changed.push_back(line.substr(0, line.size() - fields.back().size()) +
                                  picture_in_package(fields.back()));
            else
                changed.push_back(line);
        }
        return changed;
    }
    std::string picture_in_package(const std::string & path)
    {
        if (path == "custom_shape.gif")
            return own_picture("user_images/custom_shape.gif");
        const std::optional<std::string> inner = inner_path(path);
        const bool travels = inner && (inner->starts_with("user_images/") || inner->starts_with("frames/"));
        return travels ? own_picture(path) : path;
    }
    std::string own_picture(const std::string & path)
    {
        const std::optional<std::string> inner = inner_path(path);
        if (!inner || !file_exists(in_data(request, *inner)))
            give_up("design", name, "needs the picture " + shown_in_message(path) + ", which isn't there");
        std::string bytes = read_file(in_data(request, *inner));
        const std::string target = "user_images/pk_" + mark_of(bytes) + ending_of(*inner);
        if (std::ranges::find(pictures, target) == pictures.end())
            files.add(std::move(bytes), target);
        pictures.push_back(target);
        return target;
    }

    package_files & files;
    const package_request & request;
    const text_lines & catalogue;
    const std::string & name;
    std::string mark;
    text_lines pictures;  // that are packed already
};

// ---- frame sets and icons

// The photo list of a set stays at home: it names photos that lie elsewhere.
std::string settings_without_list(const std::string & path)
{
    text_lines lines = lines_of_file(path);
    for (std::string & line : lines)
        if (lower_case(line).starts_with("picture list"))
            line = "Picture List=None";
    return text_of(lines);
}

void pack_frame_set(package_files & files, const package_request & request, const std::string & set)
{
    const std::string folder = in_data(request, "frames/" + set);
    if (!is_plain_name(set) || !file_exists(joined(folder, "design.ini")))
        give_up("frame set", set, "isn't there");
    files.add_line("$$$ NEW  frames\\" + set);
    std::vector<std::string> names = files_in(folder);
    std::ranges::sort(names);
    for (const std::string & name : names) {
        const std::string path = joined(folder, name);
        if (is_plain_name(name) && !name.ends_with(part_ending))
            files.add(name == "design.ini" ? settings_without_list(path) : read_file(path),
                      "frames/" + set + "/" + name);
    }
}

void pack_icon(package_files & files, const package_request & request, const std::string & icon)
{
    for (const std::string & line : lines_of_file(in_data(request, "icons/icons"))) {
        if (!line.starts_with(icon + " "))
            continue;
        const std::string file = line.substr(icon.size() + 1);
        if (!is_plain_name(file) || !file_exists(in_data(request, "icons/" + file)))
            give_up("icon", icon, "has no picture");
        std::string bytes = read_file(in_data(request, "icons/" + file));
        const std::string target = "pk_" + mark_of(bytes) + ".bmp";
        files.add(std::move(bytes), "icons/" + target);
        files.add_line("$$$ icons");
        files.add_line(icon + " " + target);
        return;
    }
    give_up("icon", icon, "isn't in the list");
}

std::string title_of(const package_request & request)
{
    for (const auto * names : {&request.designs, &request.frames, &request.icons})
        if (request.title.empty() && !names->empty())
            return names->front();
    return request.title;
}

}  // namespace

std::string package_bytes(const package_request & request)
{
    package_files files;
    files.add_line("$$$ MSG " + title_of(request));
    for (const std::string & set : request.frames)
        pack_frame_set(files, request, set);
    for (const std::string & icon : request.icons)
        pack_icon(files, request, icon);
    const text_lines catalogue = lines_of_file(in_data(request, "designs.ini"));
    for (const std::string & name : request.designs) {
        const text_lines section = design_packer(files, request, catalogue, name).run();
        files.add_line("$$$ designs.ini " + std::string(behind_all));
        for (const std::string & line : section)
            files.add_line(line);
        files.add_line("$$$");
    }
    std::string bytes = zip_bytes(files.entries());
    if (const text_lines problems = problems_of_bytes(bytes); !problems.empty())
        throw not_packed{"the import would refuse this package: " + problems.front()};
    return bytes;
}
