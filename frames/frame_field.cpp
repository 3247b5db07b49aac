#include "frames/frame_field.h"

#include "support/paths.h"
#include "support/text_file.h"

std::string get_frame_field(const frmMain & main, std::string_view key)
{
    const std::string set = joined(joined(main.data_folder, "frames"), main.frame_set_name);
    line_source lines(joined(set, "design.ini"));
    const std::string wanted = std::string(key) + "=";
    while (!lines.at_end()) {
        const std::string line = lines.read_line();
        if (line.starts_with(wanted))
            return line.substr(wanted.size());
    }
    return {};
}
