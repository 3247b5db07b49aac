#include "frames/sets/frames_template.h"

#include "designs/templates/template_path.h"
#include "frames/sets/deal_frames.h"
#include "frames/sets/frame_field.h"
#include "frames/sets/frame_sets.h"
#include "photos/lists/pls_line.h"
#include "photos/lists/saved_lists.h"
#include "photos/photo_orientation.h"
#include "support/MFreeImage.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

namespace {

// The photo list that the set is tied to, empty for none.
std::string list_of_set(const frmMain & main)
{
    const std::string list = get_frame_field(main, "Picture List");
    return list == "None" ? std::string() : list;
}

// A list that was gathered without a look at its photos calls all of them landscape.
std::string letter_of(const std::string & line)
{
    const std::string letter = lower_case(line.substr(0, 1));
    const bool is_looked_at = letter != "l";
    const auto size = is_looked_at ? std::nullopt : usable_jpeg_size(photo_of_line(line));
    return counted_orientation(size) == orientation::portrait ? "p" : letter;
}

// The orientation letters of the photos of a list.
std::string order_of(const std::string & path)
{
    std::string letters;
    for (line_source lines(path); !lines.at_end();)
        letters += letter_of(lines.read_line());
    return letters;
}

void read_rest(line_source & lines, std::vector<std::string> & into)
{
    while (!lines.at_end())
        into.push_back(lines.read_line());
}

// The design's lines: of the supplied designs from its section on, of the user's own the whole file.
std::vector<std::string> design_source(const frmMain & main)
{
    std::vector<std::string> source;
    line_source supplied(joined(main.install_folder, "design_list"));
    const std::string header = "[" + main.design_record.file + "]";
    while (!supplied.at_end())
        if (supplied.read_line() == header) {
            read_rest(supplied, source);
            return source;
        }
    const std::string own = template_path(main, main.design_record.file);
    if (!file_exists(own)) {
        main.desk.message("Could not find that template.");
        return source;
    }
    line_source lines(own);
    read_rest(lines, source);
    return source;
}

frame_deal deal_of(const frmMain & main, const std::string & order)
{
    const std::string folder = frame_set_folder(main, main.collage.frame_set_name);
    return {.set = main.collage.frame_set_name,
            .order = order,
            .has_frame = [folder](const std::string & file) { return file_exists(joined(folder, file)); }};
}

}  // namespace

std::optional<std::string> photo_order_of_set(frmMain & main)
{
    const std::string list = list_of_set(main);
    if (list.empty())
        return std::string();
    const std::string path = saved_list_path(main, list);
    if (file_exists(path))
        return order_of(path);
    main.desk.message("The file.pls index is missing for that photolist.");
    return std::nullopt;
}

bool build_frames_template(frmMain & main)
{
    const auto order = photo_order_of_set(main);
    if (!order)
        return false;
    const dealt_frames dealt = deal_frames(design_source(main), deal_of(main, *order));
    if (dealt.missing) {
        main.lblDesign.set_tool_tip("");
        main.desk.message("This photo list doesn't have any " +
                          std::string(*dealt.missing == 'l' ? "landscape" : "portrait") + " photos.");
        return false;
    }
    write_file(work_path(main, "designs/__frames"), text_of(dealt.lines));
    return true;
}

void offer_list_of_frame_set(frmMain & main)
{
    const std::string list = list_of_set(main);
    if (list.empty() || !file_exists(saved_list_path(main, list)))
        return;
    main.txtPhotos.tag = saved_list_path(main, list);
    main.txtPhotos.set_text(list);
    main.lblPhotos.set_caption("Photo List:");
    set_photo_source_kind(main, photo_source::list);
}
