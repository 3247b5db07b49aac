#include "recipes/bring_back.h"
#include "recipes/read_recipe.h"
#include "recipes/recipe_text.h"
#include "tests/fuzz/fuzz_session.h"
#include "tests/fuzz/fuzzed.h"

#include <cstdlib>
#include <filesystem>

// A recipe: what is read can be written and read again, leads to no place but those that it may name, and
// brings the window to a stage without touching anything outside the data folder.

namespace {

const known_folders & folders()
{
    static const known_folders known{
        .here = "/nowhere/here", .program = "/nowhere/program", .data = "/nowhere/data"};
    return known;
}

void expect_plain(const std::string & path)
{
    const std::filesystem::path read = path;
    if (!read.is_absolute() || read.lexically_normal() != read)
        std::abort();
}

void bring_back_in(const fuzz_session & session, recipe wanted)
{
    frmMain & main = session.all->main;
    check_recipe(main, wanted);
    session.write("data/photo.jpg", "none");
    for (recipe_photo & photo : wanted.photos)
        photo.path = session.at("data/photo.jpg");
    if (!main.menus_shown)
        main.cmdCancel.click();
    bring_back(main, wanted, {.is_unchanged = true, .draws = way_back::drawing::left_out});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * bytes, std::size_t count)
{
    fuzz_session & session = session_of_process();
    ignoring_refusals([&] {
        try {
            const recipe read = recipe_of_text(fuzzed_text(bytes, count), folders());
            for (const recipe_photo & photo : read.photos) {
                expect_plain(photo.path);
                expect_plain(own_path(photo));
            }
            if (recipe_of_text(recipe_text(read, folders()), folders()) != read)
                std::abort();
            bring_back_in(session, read);
        } catch (const recipe_fault &) {
            return;
        }
    });
    session.expect_unharmed();
    return 0;
}
