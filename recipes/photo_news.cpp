#include "recipes/photo_news.h"

#include "support/files/inner_path.h"

#include <algorithm>

namespace {

constexpr std::size_t most_in_a_box = 10;  // of a kind: more lines than that leave the screen

std::string lines_of(const std::vector<std::string> & texts)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(texts.size(), most_in_a_box); ++i)
        text += "\r\n" + texts[i];
    if (texts.size() > most_in_a_box)
        text += "\r\nand " + std::to_string(texts.size() - most_in_a_box) + " more";
    return text;
}

std::vector<std::string> shown(const std::vector<std::string> & paths)
{
    std::vector<std::string> lines;
    for (const std::string & path : paths)
        lines.push_back(shown_in_message(path));
    return lines;
}

std::vector<std::string> shown(const std::vector<refused_photo> & photos)
{
    std::vector<std::string> lines;
    for (const refused_photo & photo : photos)
        lines.push_back(shown_in_message(photo.path) + ": " + photo.why);
    return lines;
}

void add_part(std::string & text, const std::string & heading, const std::vector<std::string> & lines)
{
    if (!lines.empty())
        text += (text.empty() ? "" : "\r\n\r\n") + heading + lines_of(lines);
}

}  // namespace

std::string question_of_gone(const found_photos & found, std::size_t all)
{
    const bool is_one = found.gone.size() == 1;
    return std::to_string(found.gone.size()) + " of the " + std::to_string(all) + " photos of this flurn " +
           (is_one ? "is not where it was:" : "are not where they were:") + lines_of(shown(found.gone)) +
           "\r\n\r\nDo you want to look for " + (is_one ? "it" : "them") + " in another folder?";
}

std::string news_of(const found_photos & found)
{
    std::string text;
    add_part(text, "These photos of the flurn are not there any more and were left out:", shown(found.gone));
    add_part(text, "No copy can be made any more of these photos; they were left out:", shown(found.refused));
    add_part(text, "These photos have changed since the flurn was made:", shown(found.changed));
    return text + "\r\n\r\nThe flurn is laid out with the photos as they are now.";
}

std::string none_is_there(const std::string & file, const found_photos & found)
{
    std::string text = "None of the photos of this flurn is there any more:\r\n" + file;
    if (!found.refused.empty())
        text = "None of the photos of this flurn can be used any more:\r\n" + file;
    add_part(text, "No copy can be made any more of these photos:", shown(found.refused));
    return text + "\r\n\r\nPut them back in their place, and open it again.";
}
