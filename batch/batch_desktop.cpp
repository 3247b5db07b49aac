#include "batch/batch_desktop.h"

#include "desktop/text_drawing.h"

#include <cstdio>
#include <string_view>
#include <unistd.h>

namespace {

// The box in which a run and the reader of templates tell what they could not do.
constexpr std::string_view words_of_an_error = "CAUGHT AN ERROR";

}  // namespace

std::string in_one_line(const std::string & text)
{
    std::string line;
    for (const char sign : text) {
        const bool blank = sign == ' ' || sign == '\r' || sign == '\n' || sign == '\t';
        if (!blank)
            line += sign;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    if (line.ends_with(' '))
        line.pop_back();
    return line;
}

void batch_desktop::message(const std::string & text, const std::string &)
{
    ++messages;
    if (text.find(words_of_an_error) != std::string::npos)
        ++errors;
    clear_progress();
    std::fprintf(stderr, "%s\n", in_one_line(text).c_str());
}

answer batch_desktop::ask(const question & asked)
{
    clear_progress();
    std::fprintf(stderr, "%s %s\n", in_one_line(asked.text).c_str(), always == answer::yes ? "Yes." : "No.");
    return always;
}

void batch_desktop::show_modal(form & window)
{
    window.load();
    if (on_modal)
        on_modal(window);
    window.unload();
}

void batch_desktop::pump()
{
    if (!progress || ::isatty(STDERR_FILENO) == 0)
        return;
    const std::string now = progress();
    if (now == shown_progress)
        return;
    clear_progress();
    std::fprintf(stderr, "%s", now.c_str());
    std::fflush(stderr);
    shown_progress = now;
}

void batch_desktop::clear_progress()
{
    if (shown_progress.empty())
        return;
    std::fprintf(stderr, "\r%*s\r", static_cast<int>(shown_progress.size()), "");
    shown_progress.clear();
}

std::vector<std::string> batch_desktop::font_names()
{
    return installed_fonts();
}

bitmap batch_desktop::draw_text(const text_request & request)
{
    return drawn_text(request);
}

picture_size batch_desktop::text_size(const text_request & request)
{
    return size_of_text(request);
}
