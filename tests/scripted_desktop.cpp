#include "tests/scripted_desktop.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

template <typename Value>
Value taken(std::deque<Value> & queue, const std::string & what)
{
    if (queue.empty()) {
        ADD_FAILURE() << "not scripted: " << what;
        return Value{};
    }
    Value value = std::move(queue.front());
    queue.pop_front();
    return value;
}

double pixels_of(const text_request & request)
{
    return request.font.size * 96 / 72;
}

}  // namespace

scripted_desktop::~scripted_desktop()
{
    EXPECT_TRUE(answers.empty()) << answers.size() << " answers were not asked for";
    EXPECT_TRUE(folders.empty()) << "a folder was not asked for";
    EXPECT_TRUE(files.empty()) << "a file was not asked for";
    EXPECT_TRUE(saves.empty()) << "a file to save was not asked for";
    EXPECT_TRUE(file_lists.empty()) << "files were not asked for";
    EXPECT_TRUE(colors.empty()) << "a colour was not asked for";
    EXPECT_TRUE(modal_plays.empty()) << modal_plays.size() << " windows were not opened";
    if (!keeps_messages && !messages.empty())
        ADD_FAILURE() << "a message was not expected: " << messages.front();
}

std::string scripted_desktop::next_message()
{
    return taken(messages, "a message");
}

void scripted_desktop::message(const std::string & text, const std::string & title)
{
    messages.push_back(text);
    titles.push_back(title);
}

answer scripted_desktop::ask(const question & asked)
{
    questions.push_back(asked);
    return taken(answers, "the question " + asked.text);
}

void scripted_desktop::show(form & window)
{
    window.load();
    shown_windows.push_back(window.name());
}

void scripted_desktop::hide(form & window)
{
    hidden_windows.push_back(window.name());
    window.unload();
}

void scripted_desktop::show_modal(form & window)
{
    window.load();
    shown_windows.push_back(window.name());
    if (modal_plays.empty()) {
        ADD_FAILURE() << "not scripted: the window " << window.name();
    } else {
        const modal_play play = taken(modal_plays, window.name());
        EXPECT_EQ(play.type, typeid(window).name()) << "another window was expected";
        if (play.type == typeid(window).name())
            play.act(window);
    }
    window.unload();
}

void scripted_desktop::breathe()
{
    ++breaths;
    if (on_breath)
        on_breath();
}

void scripted_desktop::pump()
{
    ++pumps;
    const auto found = pump_acts.find(pumps);
    if (found != pump_acts.end())
        found->second();
}

void scripted_desktop::busy_pointer(bool on)
{
    busy_depth += on ? 1 : -1;
    busy_count += on ? 1 : 0;
    if (on)
        fire(on_busy);
}

std::optional<std::string> scripted_desktop::choose_folder(const std::string & title)
{
    return taken(folders, "the folder chooser " + title);
}

std::vector<std::string> scripted_desktop::choose_files(const file_request & asked)
{
    return taken(file_lists, "the chooser " + asked.title);
}

std::optional<std::string> scripted_desktop::choose_file(const file_request & asked)
{
    return taken(files, "the chooser " + asked.title);
}

std::optional<std::string> scripted_desktop::choose_save(const file_request & asked)
{
    save_requests.push_back(asked);
    return taken(saves, "the save chooser " + asked.title);
}

std::optional<std::uint32_t> scripted_desktop::choose_color(std::uint32_t)
{
    return taken(colors, "the colour chooser");
}

bool scripted_desktop::open_document(const std::string & target)
{
    opened_documents.push_back(target);
    return opens_documents;
}

print_report scripted_desktop::print(const bitmap & image, orientation page)
{
    printed_sizes.push_back({.width = image.width(), .height = image.height()});
    printed_pages.push_back(page);
    return next_print;
}

picture_size scripted_desktop::text_size(const text_request & request)
{
    if (request.text.empty())
        return {};
    const int step = static_cast<int>(std::lround(pixels_of(request) * 0.7));
    return {.width = step * static_cast<int>(request.text.size()) + request.extra_width,
            .height = static_cast<int>(std::lround(pixels_of(request)))};
}

bitmap scripted_desktop::draw_text(const text_request & request)
{
    drawn_texts.push_back(request);
    if (request.text.empty())
        return {};
    const double pixels = pixels_of(request);
    const int step = static_cast<int>(std::lround(pixels * 0.7));
    const auto [width, height] = text_size(request);
    bitmap image(width, height);
    fill(image, request.background);
    for (std::size_t i = 0; i < request.text.size(); ++i)
        if (request.text[i] != ' ')
            for (int y = 0; y < lround(pixels * 0.8); ++y)
                for (int x = 0; x < lround(pixels * 0.6); ++x)
                    set_pixel(image, static_cast<int>(i) * step + x,
                              height - 1 - static_cast<int>(lround(pixels * 0.1)) - y, request.color);
    return image;
}
