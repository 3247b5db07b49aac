#pragma once

#include "session/windows.h"

#include <memory>
#include <string>

/// A desktop on which nothing is seen and every question is answered with no.
class silent_desktop : public desktop {
public:
    std::string file_to_choose;

    void message(const std::string &, const std::string &) override {}
    answer ask(const question &) override { return answer::no; }
    void show(form &) override {}
    void hide(form &) override {}
    void show_modal(form &) override {}
    void pump() override {}
    void busy_pointer(bool) override {}
    std::optional<std::string> choose_folder(const std::string &) override { return std::nullopt; }
    std::vector<std::string> choose_files(const file_request &) override { return {}; }
    std::optional<std::string> choose_file(const file_request &) override { return file_to_choose; }
    std::optional<std::string> choose_save(const file_request &) override { return std::nullopt; }
    std::optional<std::uint32_t> choose_color(std::uint32_t) override { return std::nullopt; }
    bool open_document(const std::string &) override { return false; }
    print_report print(const bitmap &, orientation) override { return {}; }
    picture_size screen_room() override { return {.width = 1280, .height = 960}; }
    std::vector<std::string> font_names() override { return {}; }
    bitmap draw_text(const text_request &) override { return {}; }
};

/// A session over a data folder of its own, which goes with the process. `precious` beside it has to stay as
/// it is whatever happens.
class fuzz_session {
public:
    fuzz_session();
    fuzz_session(const fuzz_session &) = delete;
    fuzz_session & operator=(const fuzz_session &) = delete;
    ~fuzz_session();

    /// Brings the data folder back to its start.
    void lay_out();
    /// Ends the process with a find when something outside the data folder has changed, or the catalogue is
    /// gone.
    void expect_unharmed() const;
    /// A path below the folder that holds all of it.
    std::string at(const std::string & name) const;
    void write(const std::string & name, const std::string & bytes) const;

    silent_desktop desk;
    std::unique_ptr<windows> all;

private:
    std::string place;
};

/// One for all runs of a process.
fuzz_session & session_of_process();
