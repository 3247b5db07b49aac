#include "frames/sets/frame_field.h"

#include "frames/sets/frame_sets.h"
#include "session/windows.h"
#include "support/files/paths.h"
#include "support/files/profile.h"
#include "support/files/text_file.h"

namespace {

constexpr std::string_view section = "Frame Design";
constexpr std::size_t longest_value = 254;

bool continues_letter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

std::string get_frame_field(const frmMain & main, std::string_view key)
{
    line_source lines(joined(frame_set_folder(main, main.collage.frame_set_name), "design.ini"));
    const std::string wanted = std::string(key) + "=";
    while (!lines.at_end()) {
        const std::string line = lines.read_line();
        if (line.starts_with(wanted))
            return line.substr(wanted.size());
    }
    return {};
}

std::string GetFrameSetting(const frmMain & main, std::string_view key)
{
    const profile settings(joined(frame_set_folder(main, main.all->custom.edit_frame_name), "design.ini"));
    std::string value = settings.value(section, key, "", longest_value + 2);
    if (value.size() <= longest_value)
        return value;
    std::size_t end = longest_value;
    while (end > 0 && continues_letter(value[end]))
        --end;
    return value.substr(0, end);
}

void SetFrameSetting(std::string & design, std::string_view key, std::string_view value)
{
    design = with_profile_value(design, section, key, value);
}
