#include "tests/designs/crash_scene.h"

#include "designs/catalogue/catalogue_lines.h"
#include "designs/templates/unfinished.h"
#include "support/files/file_steps.h"
#include "support/files/paths.h"
#include "support/platform_error.h"
#include "tests/sweep_stride.h"

#include <algorithm>
#include <cerrno>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

bool changes_nothing_on_a_full_disk(file_step step)
{
    return step == file_step::rename || step == file_step::remove;
}

// Counts the steps of the child and lets the mishap happen.
class fate_gate {
public:
    fate_gate(int at_step, mishap fate) : target(at_step), kind(fate) {}

    bool happened() const { return has_happened; }
    int operator()(file_step step, const std::string & path)
    {
        if (count++ >= target) {
            has_happened = true;
            if (kind == mishap::killed || kind == mishap::power_cut)
                die();
            if (kind == mishap::no_permission)
                return EACCES;
            if (!changes_nothing_on_a_full_disk(step))
                return ENOSPC;
        }
        note(step, path);
        return 0;
    }

private:
    void note(file_step step, const std::string & path)
    {
        if (step == file_step::write)
            unflushed.insert(path);
        if (step == file_step::flush)
            unflushed.erase(path);
        if (step == file_step::flush_all)
            std::erase_if(unflushed, [&](const std::string & each) { return is_under(each, path); });
        const auto beside = std::ranges::find_if(unflushed, [&](const std::string & written) {
            return written.starts_with(path + ".") && written.ends_with(part_ending);
        });
        if (step == file_step::rename && beside != unflushed.end()) {
            unflushed.erase(beside);
            unflushed.insert(path);
        }
    }
    [[noreturn]] void die()
    {
        std::error_code ignored;
        if (kind == mishap::power_cut)
            for (const std::string & path : unflushed)
                fs::resize_file(path, fs::file_size(path, ignored) / 2, ignored);
        ::_exit(broken_off);
    }

    int target, count = 0;
    bool has_happened = false;
    mishap kind;
    std::set<std::string> unflushed;
};

// Backups hold an older state; the work folder holds what the next run makes anew.
bool is_kept_between_runs(const std::string & name)
{
    return !name.starts_with("tmp") && !name.ends_with(".bbb");
}

// Those of the sections that the catalogue has.
std::vector<int> saved_numbers(const text_lines & catalogue)
{
    constexpr std::string_view head = "[Design";
    std::vector<int> numbers;
    for (const std::string & line : catalogue)
        if (line.starts_with(head))
            numbers.push_back(std::stoi(line.substr(head.size())));
    return numbers;
}

bool held_there(const folder_image & image, const std::string & name, const std::string & bytes)
{
    const auto found = image.find(name);
    return found != image.end() && found->second == bytes;
}

}  // namespace

crash_scene::crash_scene()
{
    lay_out();
}

// A catalogue of more than one piece, so that it is written in several steps.
void crash_scene::lay_out()
{
    std::string text;
    for (const int number : {500, 600, 601, 605}) {
        const std::string own = "saved" + std::to_string(number);
        text += "[Design" + std::to_string(number) + "]\r\nName=d" + std::to_string(number) +
                "\r\nFile=" + own + "\r\nSystem=No\r\nSample=" + own + ".jpg\r\nDescription=" + own +
                "\r\nHelp Tip=" + std::string(2500, 'x') + "\r\n\r\n";
        for (const std::string & name : {"designs/" + own, "samples/" + own + ".jpg", "descriptions/" + own})
            session.folder.write("data/" + name, "bytes of " + name);
    }
    session.catalogue(text);
    session.finished(200, 300);
    for (const char * name : {"frames/Team/design.ini", "frames/Team/captions", "frames/Team/pframe00.jpg",
                              "icons/star.bmp", "user_images/a.jpg", "3_1_install"})
        session.folder.write(std::string("data/") + name, std::string("bytes of ") + name);
    session.folder.write("data/piclists/summer.pls", "L /a.jpg\r\n");
    session.folder.write("data/piclists/last_photos.pls", "L /b.jpg\r\n");
    before = image_of(session.at(""));
}

int ended_at(int step, mishap fate, const std::function<void()> & act)
{
    const pid_t child = ::fork();
    if (child == 0) {
        fate_gate decides(step, fate);
        const gated_files gate(std::ref(decides));
        try {
            act();
        } catch (const platform_error &) {
            ::_exit(stumbled);  // what the window would show
        }
        ::_exit(decides.happened() ? stumbled : went_through);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int crash_scene::run_child(int step, mishap fate, const std::function<void(package_session &)> & act)
{
    return ended_at(step, fate, [&] { act(session); });
}

void crash_scene::expect_whole(const folder_image & after)
{
    remove_leftovers(session.main);
    const folder_image now = image_of(session.at(""));
    for (const auto & [name, bytes] : now) {
        const bool is_known = held_there(before, name, bytes) || held_there(after, name, bytes);
        EXPECT_TRUE(is_known || !is_kept_between_runs(name)) << name;
    }
    for (const auto & [name, bytes] : before)
        EXPECT_TRUE(now.contains(name) || !after.contains(name) || !is_kept_between_runs(name)) << name;
    const text_lines catalogue = lines_of_file(session.at("designs.ini"));
    for (const int number : saved_numbers(catalogue))
        for (const std::string & file : files_of_design(catalogue, number))
            EXPECT_TRUE(now.contains(file)) << file;
    EXPECT_TRUE(!now.contains("tmp/unfinished") && !now.contains("designs.new"));
}

namespace {

void put_back(const std::string & folder, const folder_image & image)
{
    for (const auto & entry : fs::directory_iterator(folder))
        fs::remove_all(entry.path());
    for (const auto & [name, bytes] : image) {
        const fs::path path = fs::path(folder) / name;
        if (bytes == "folder")
            fs::create_directories(path);
        else {
            fs::create_directories(path.parent_path());
            std::ofstream(path, std::ios::binary) << bytes;
        }
    }
}

// A step is a process of its own, whose beginning costs a quarter of a second under the sanitizers.
constexpr int step_stride = sweep_stride * sweep_stride;

}  // namespace

int crash_scene::break_off(const std::string & name, mishap fate,
                           const std::function<void(package_session &)> & act)
{
    const std::string data = session.main.data_folder;
    put_back(data, before);
    EXPECT_EQ(run_child(1'000'000, mishap::killed, act), went_through) << name;
    const folder_image after = image_of(data);
    EXPECT_NE(after, before) << name;
    int step =
        static_cast<int>(fate) * sweep_stride % step_stride;  // where not each: other ones with each mishap
    for (int ended = broken_off; ended != went_through; step += step_stride) {
        SCOPED_TRACE(name + ", step " + std::to_string(step));
        put_back(data, before);
        ended = run_child(step, fate, act);
        const bool dies = fate == mishap::killed || fate == mishap::power_cut;
        EXPECT_TRUE(ended == went_through || ended == (dies ? broken_off : stumbled)) << ended;
        expect_whole(after);
        if (testing::Test::HasFailure() || step > 2000)
            break;
    }
    return step - step_stride;
}
