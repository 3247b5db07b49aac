#include "designs/catalogue/design_lines.h"

namespace {

constexpr design_key keys[] = {
    {"Name=", &design_record::name},
    {"File=", &design_record::file},
    {"Style=", &design_record::style},
    {"Design=", &design_record::design},
    {"Background=", &design_record::background},
    {"Ratio=", &design_record::ratio},
    {"Distort=", &design_record::distort},
    {"Sample=", &design_record::sample},
    {"Help Tip=", &design_record::help_tip},
    {"Description=", &design_record::description},
    {"System=", &design_record::system},
    {"Count=", &design_record::count},
    {"Turn BG=", &design_record::turn_bg},
    {"BG Image=", &design_record::bg_image},
    {"BG Color=", &design_record::bg_color},
    {"Match=", &design_record::match},
    {"Resize=", &design_record::resize},
    {"Caption=", &design_record::caption},
    {"Frames=", &design_record::frames},
    {"Shadows=", &design_record::shadows},
    {"Block=", &design_record::block},
    {"Soft Edge=", &design_record::soft_edge},
    {"Caption Color=", &design_record::caption_color},
    {"Caption Clear=", &design_record::caption_clear},
    {"Frame Color=", &design_record::frame_color},
    {"Shadow Color=", &design_record::shadow_color},
    {"Flip=", &design_record::flip},
    {"Borders=", &design_record::borders},
    {"Quick Shape=", &design_record::quick_shape},
};

constexpr std::size_t section_length = 9;  // "Design600"

}  // namespace

std::span<const design_key> design_keys()
{
    return keys;
}

std::string split_key_value(std::string & line)
{
    const std::size_t sign = line.find('=');
    if (sign == std::string::npos)
        return {};
    std::string value = line.substr(sign + 1);
    line.erase(sign + 1);
    return value;
}

std::optional<std::string> design_section(std::string_view line)
{
    if (!line.starts_with("[Design"))
        return std::nullopt;
    return std::string(line.substr(1, section_length));
}

void read_design_line(design_record & record, std::string line)
{
    const std::string value = split_key_value(line);
    for (const design_key & key : keys)
        if (line == key.text)
            record.*key.value = value;
}
