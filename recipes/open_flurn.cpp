#include "recipes/open_flurn.h"

#include "recipes/bring_back.h"
#include "recipes/found_photos.h"
#include "recipes/photo_news.h"
#include "recipes/read_recipe.h"
#include "recipes/recipe_shelf.h"
#include "support/files/paths.h"
#include "support/platform_error.h"

namespace {

// What the question was answered with, or what could be found without asking.
found_photos found_with_help(frmMain & main, recipe & wanted)
{
    found_photos found = look_for(main, wanted.photos);
    while (!found.gone.empty() && !found.is_stopped) {
        const question asked{
            .title = "", .text = question_of_gone(found, wanted.photos.size()), .offered = answers::yes_no};
        if (main.desk.ask(asked) != answer::yes)
            break;
        const std::optional<std::string> folder = main.desk.choose_folder("Select a folder and click OK");
        if (!folder || folder->empty())
            break;
        wanted.photos = looked_for_in(main, *folder, std::move(wanted.photos));
        found = look_for(main, wanted.photos);
    }
    return found;
}

void lay_out(frmMain & main, const std::string & file, recipe wanted)
{
    const found_photos found = found_with_help(main, wanted);
    if (found.is_stopped)
        return;
    if (found.there.empty()) {
        main.desk.message(none_is_there(file, found));
        return;
    }
    wanted.photos = found.there;
    const bool unchanged = found.are_those_of_then();
    bring_back(
        main, wanted,
        {.is_unchanged = unchanged, .preview = unchanged ? preview_of(main, file, wanted) : std::string()});
    if (!unchanged)
        main.desk.message(news_of(found));
}

void tell_fault(const frmMain & main, const std::string & file, const std::string & why)
{
    main.desk.message("This flurn can't be opened:\r\n" + file + "\r\n\r\n" + why);
}

// Half a stage is none.
void leave_stage(frmMain & main)
{
    if (!main.menus_shown)
        main.cmdCancel.click();
}

}  // namespace

void open_flurn(frmMain & main, const std::string & file)
{
    const std::string path = absolute_path(file);
    try {
        with_platform_errors([&] {
            recipe wanted = read_recipe(main, path);
            check_recipe(main, wanted);
            lay_out(main, path, std::move(wanted));
        });
    } catch (const recipe_fault & fault) {
        tell_fault(main, path, fault.what);
    } catch (const platform_error & error) {
        leave_stage(main);
        tell_fault(main, path, error.path == path ? error.what() : told(error));
    }
}
