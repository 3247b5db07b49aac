#include "photos/prepared_photos.h"

#include "intake/look.h"
#include "intake/preparing.h"
#include "session/windows.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/for_now.h"
#include "support/platform_error.h"

#include <algorithm>

namespace {

constexpr std::size_t most_told = 10;

bool wants_copies(frmMain & main, const std::vector<intake_photo> & seen)
{
    const auto usable = std::ranges::count_if(
        seen, [](const intake_photo & photo) { return photo.need != photo_need::refusal; });
    return main.desk.ask(
               {.title = "P r e p a r e   P h o t o s",
                .text = question_of_copies(count_of_needing(seen), static_cast<std::size_t>(usable)),
                .offered = answers::yes_no}) == answer::yes;
}

void show_progress(frmMain & main, const preparing & work)
{
    main.all->photo_count.lblCount.set_caption("Preparing " + std::to_string(work.done()) + "  of  " +
                                               std::to_string(work.wanted()) + "  photos");
    main.desk.breathe();
}

// Closing the small window stops it. True when all was done.
bool is_done_with_progress(frmMain & main, preparing & work)
{
    frmPhotoCnt & window = main.all->photo_count;
    const busy pointer(main.desk);
    main.desk.show(window);
    const afterwards gone([&] { main.desk.hide(window); });
    bool stopped = false;
    const for_now closing(window.on_query_unload, std::function<bool()>([&] {
                              stopped = true;
                              work.stop();
                              return false;
                          }));
    show_progress(main, work);
    while (!work.is_over_within(between_breaths))
        show_progress(main, work);
    return !stopped;
}

bool is_left_to_the_collage(const intake_photo & photo)
{
    return lower_case(photo.path).ends_with(".jpg");
}

void tell_refused(frmMain & main, const std::vector<intake_photo> & photos)
{
    std::string text;
    std::size_t count = 0;
    for (const intake_photo & photo : photos)
        if (photo.ready.empty() && !is_left_to_the_collage(photo) && ++count <= most_told)
            text += "\r\n" + photo.path + ": " + photo.why;
    if (count > most_told)
        text += "\r\nand " + std::to_string(count - most_told) + " more";
    if (count > 0)
        main.desk.message("No copy can be made of these photos; they are left out:\r\n" + text, {});
}

std::vector<std::string> files_of(const std::vector<intake_photo> & photos)
{
    std::vector<std::string> files;
    for (const intake_photo & photo : photos)
        if (!photo.ready.empty())
            files.push_back(photo.ready);
        else if (is_left_to_the_collage(photo))
            files.push_back(photo.path);
    return files;
}

// Raises 61, 70, 75, 76 where copies have no place.
std::optional<std::vector<intake_photo>> prepared(frmMain & main, std::vector<intake_photo> seen)
{
    prepared_shelf & shelf = copies_of_session(main);
    preparing work(std::move(seen), shelf, decoder_in(main.install_folder), main.workers);
    if (!is_done_with_progress(main, work))
        return std::nullopt;
    shelf.clear_to(usual_room);
    return work.photos();
}

}  // namespace

std::string question_of_copies(std::size_t needing, std::size_t all)
{
    const std::string some = std::to_string(needing) + " of the " + std::to_string(all) + " photos ";
    return some + (needing == 1 ? "is turned or in another format. Prepare a copy that fits?"
                                : "are turned or in another format. Prepare copies that fit?");
}

prepared_shelf & copies_of_session(frmMain & main)
{
    if (!main.copies)
        main.copies = std::make_shared<prepared_shelf>(main.data_folder);
    return *main.copies;
}

std::optional<std::vector<std::string>> photos_with_copies(frmMain & main, std::vector<intake_photo> seen,
                                                           copies_wanted wanted)
{
    if (count_of_needing(seen) == 0 || (wanted == copies_wanted::asked && !wants_copies(main, seen)))
        return std::nullopt;
    seen.resize(std::min(seen.size(), static_cast<std::size_t>(photo_table::capacity)));
    try {
        const auto photos = prepared(main, std::move(seen));
        if (!photos)
            return std::nullopt;
        tell_refused(main, *photos);
        return files_of(*photos);
    } catch (const platform_error & error) {
        main.desk.message("The copies can't be made: " + told(error), {});
        return std::nullopt;
    }
}

std::optional<std::vector<intake_photo>> copies_made_again(frmMain & main, std::vector<intake_photo> seen)
{
    try {
        return prepared(main, seen);
    } catch (const platform_error & error) {
        for (intake_photo & photo : seen)
            if (photo.ready.empty() && photo.why.empty())
                photo.why = "its copy can't be made: " + told(error);
        return seen;
    }
}

std::vector<std::string> chosen_files_with_copies(frmMain & main, const std::vector<std::string> & files)
{
    std::vector<intake_photo> seen;
    for (const std::string & file : files)
        seen.push_back(looked_at(file));
    return photos_with_copies(main, std::move(seen), copies_wanted::asked).value_or(files);
}
