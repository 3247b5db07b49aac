#pragma once

#include "batch/batch_session.h"
#include "batch/job_run.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "tests/pictures.h"
#include "tests/temporary_folder.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

/// The supplied data, a data folder that all tests share, as all jobs do, and a folder of small photos of
/// both orientations.
class batch_program : public testing::Test {
protected:
    temporary_folder place;
    batch_folders folders = folders_of(shared_data_folder());

    batch_folders folders_of(const std::string & data) const
    {
        return {.install_folder = BUILT_SEED,
                .data = {.use_public_folder = true, .public_folder = data},
                .scratch = joined(place.path(), "scratch")};
    }
    static const std::string & shared_data_folder()
    {
        static const temporary_folder shared;
        static const std::string data = shared.at("data/home");
        return data;
    }
    /// A data folder for a test that changes it.
    void use_data_of_its_own()
    {
        folders = folders_of(place.at("data/home"));
        start_once();
    }
    /// The welcome of a first start is over.
    void SetUp() override { start_once(); }

    std::string photos(int count = 6) const
    {
        for (int i = 0; i < count; ++i) {
            const rgb_triple color{static_cast<std::uint8_t>(40 * i), 120,
                                   static_cast<std::uint8_t>(250 - 40 * i)};
            const bool wide = i % 2 == 0;
            const std::string photo = place.at("photos/" + std::to_string(i) + ".jpg");
            if (!file_exists(photo))
                save_jpeg(plain(wide ? 360 : 270, wide ? 270 : 360, color), photo);
        }
        return joined(place.path(), "photos");
    }
    std::string out() const { return joined(place.path(), "out.jpg"); }

    exit_status run(const std::vector<std::string> & words) const
    {
        const batch_arguments arguments = parse_arguments(words);
        return arguments.wanted == batch_arguments::task::jobs ? run_jobs(arguments, folders)
                                                               : run_batch(arguments, folders);
    }
    /// What goes to standard error while it runs and ends in that status.
    std::string told(const std::vector<std::string> & words, exit_status expected) const
    {
        testing::internal::CaptureStderr();
        EXPECT_EQ(run(words), expected);
        return testing::internal::GetCapturedStderr();
    }
    std::string noted(const std::vector<std::string> & words) const { return told(words, exit_status::made); }
    std::string printed(const std::vector<std::string> & words) const
    {
        testing::internal::CaptureStdout();
        run(words);
        return testing::internal::GetCapturedStdout();
    }
    /// Why the words can't be followed; empty when they can.
    std::string refusal(const std::vector<std::string> & words) const
    {
        try {
            run(words);
            return {};
        } catch (const bad_arguments & fault) {
            return fault.what;
        }
    }

private:
    void start_once() const
    {
        testing::internal::CaptureStderr();
        printed({"--list"});
        testing::internal::GetCapturedStderr();
    }
};

/// The rows and cells of a printed table.
inline std::vector<std::vector<std::string>> table_of(const std::string & text)
{
    std::vector<std::vector<std::string>> rows;
    for (line_source lines = line_source::of_text(text); !lines.at_end();)
        rows.push_back(split(lines.read_line(), '\t', 99));
    return rows;
}
