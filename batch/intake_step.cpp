#include "batch/intake_step.h"

#include "batch/given_photos.h"
#include "intake/gathered.h"
#include "intake/preparing.h"
#include "photos/prepared_photos.h"
#include "support/platform_error.h"

#include <cstdio>

namespace {

std::vector<std::string> paths_of(const std::vector<intake_photo> & photos)
{
    std::vector<std::string> paths;
    for (const intake_photo & photo : photos)
        paths.push_back(photo.path);
    return paths;
}

std::vector<std::string> ready_ones(const std::vector<intake_photo> & photos)
{
    std::vector<std::string> ready;
    for (const intake_photo & photo : photos)
        if (photo.ready.empty())
            std::fprintf(stderr, "%s is left out: %s.\n", photo.path.c_str(), photo.why.c_str());
        else
            ready.push_back(photo.ready);
    return ready;
}

}  // namespace

std::vector<std::string> prepared_for_collage(frmMain & main, const batch_arguments & arguments)
{
    std::vector<intake_photo> seen = gathered(arguments.photos, walk::one_folder);
    check_is_none_of(paths_of(seen), arguments.out);
    prepared_shelf & shelf = copies_of_session(main);
    preparing work(std::move(seen), shelf, decoder_in(main.install_folder), main.workers);
    while (!work.is_over_within(std::chrono::seconds(1))) {}
    shelf.clear_to(usual_room);
    if (work.ran_without_sandbox())
        std::fputs(
            "This system can't shut the decoders of photos in; take photos from people you trust only.\n",
            stderr);
    std::vector<std::string> ready = ready_ones(work.photos());
    if (ready.empty())
        throw platform_error(error_number::file_not_found, "There is no photo that could be used.",
                             arguments.photos.front());
    return ready;
}
