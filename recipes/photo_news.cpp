#include "recipes/photo_news.h"

#include "support/files/inner_path.h"

#include <algorithm>

namespace {

constexpr std::size_t most_in_a_box = 10;  // of a kind: more lines than that leave the screen

std::string lines_of(const std::vector<std::string> & paths)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(paths.size(), most_in_a_box); ++i)
        text += "\r\n" + shown_in_message(paths[i]);
    if (paths.size() > most_in_a_box)
        text += "\r\nand " + std::to_string(paths.size() - most_in_a_box) + " more";
    return text;
}

}  // namespace

std::string question_of_gone(const found_photos & found, std::size_t all)
{
    return std::to_string(found.gone.size()) + " of the " + std::to_string(all) +
           " photos of this flurn are not where they were:" + lines_of(found.gone) +
           "\r\n\r\nDo you want to look for them in another folder?";
}

std::string news_of(const found_photos & found)
{
    std::string text;
    if (!found.gone.empty())
        text = "These photos of the flurn are not there any more and were left out:" + lines_of(found.gone);
    if (!found.changed.empty())
        text += (text.empty() ? "" : "\r\n\r\n") +
                ("These photos have changed since the flurn was made:" + lines_of(found.changed));
    return text + "\r\n\r\nThe flurn is laid out with the photos as they are now.";
}

std::string none_is_there(const std::string & file)
{
    return "None of the photos of this flurn is there any more:\r\n" + file +
           "\r\n\r\nPut them back in their place, and open it again.";
}
