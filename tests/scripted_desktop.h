#pragma once

#include "support/desktop.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <typeinfo>
#include <vector>

/// A desktop played by the test: answers are queued, everything the session does is logged. An unexpected
/// question, chooser or window, and an answer that nobody asked for, fail the test.
class scripted_desktop : public desktop {
public:
    scripted_desktop() = default;
    ~scripted_desktop() override;

    // What the user will do.
    void will_answer(answer given) { answers.push_back(given); }
    void will_choose_folder(std::optional<std::string> folder) { folders.push_back(std::move(folder)); }
    void will_choose_files(std::vector<std::string> paths) { file_lists.push_back(std::move(paths)); }
    void will_choose_file(std::optional<std::string> file) { files.push_back(std::move(file)); }
    void will_choose_save(std::optional<std::string> file) { saves.push_back(std::move(file)); }
    void will_choose_color(std::optional<std::uint32_t> color) { colors.push_back(color); }
    /// Plays the user in the next modal window of that type; it is unloaded afterwards.
    template <typename Form>
    void on_modal(std::function<void(Form &)> play)
    {
        modal_plays.push_back(
            {typeid(Form).name(), [play](form & window) { play(dynamic_cast<Form &>(window)); }});
    }
    /// Runs `act` at the count-th pump from now, counted from 1.
    void on_pump(int count, std::function<void()> act) { pump_acts[pumps + count] = std::move(act); }

    // What the session did. Messages are taken out by `next_message`; one left over fails the test.
    std::deque<std::string> messages;
    std::deque<std::string> titles;
    std::string next_message();
    std::vector<question> questions;
    std::vector<std::string> shown_windows, hidden_windows, opened_documents;
    std::vector<text_request> drawn_texts;
    int pumps = 0, breaths = 0;
    std::function<void()> on_breath;
    int busy_depth = 0;  ///< pointers turned on less those turned off
    print_report next_print = {.result = print_result::cancelled};
    std::vector<orientation> printed_pages;
    std::vector<picture_size> printed_sizes;
    picture_size room{.width = 1280, .height = 960};
    std::vector<file_request> save_requests;
    bool opens_documents = true;
    std::vector<std::string> fonts{"Sans", "Serif"};
    int busy_count = 0;             ///< how often the pointer was turned on
    std::function<void()> on_busy;  ///< runs when it is
    bool keeps_messages = false;    ///< true: messages left over are not an error

    void message(const std::string & text, const std::string & title) override;
    answer ask(const question & asked) override;
    void show(form & window) override;
    void hide(form & window) override;
    void show_modal(form & window) override;
    void pump() override;
    void breathe() override;
    void busy_pointer(bool on) override;
    std::optional<std::string> choose_folder(const std::string & title) override;
    std::vector<std::string> choose_files(const file_request & asked) override;
    std::optional<std::string> choose_file(const file_request & asked) override;
    std::optional<std::string> choose_save(const file_request & asked) override;
    std::optional<std::uint32_t> choose_color(std::uint32_t initial) override;
    bool open_document(const std::string & target) override;
    print_report print(const bitmap & image, orientation page) override;
    picture_size screen_room() override { return room; }
    std::vector<std::string> font_names() override { return fonts; }
    /// Draws each character but the blank as a bar of 0.6 by 0.8 of the size in pixels, 0.1 from the top.
    bitmap draw_text(const text_request & request) override;
    picture_size text_size(const text_request & request) override;

private:
    struct modal_play {
        std::string type;
        std::function<void(form &)> act;
    };
    std::deque<answer> answers;
    std::deque<std::optional<std::string>> folders, files, saves;
    std::deque<std::vector<std::string>> file_lists;
    std::deque<std::optional<std::uint32_t>> colors;
    std::deque<modal_play> modal_plays;
    std::map<int, std::function<void()>> pump_acts;
};
