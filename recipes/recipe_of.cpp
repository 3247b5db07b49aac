#include "recipes/recipe_of.h"

#include "designs/templates/template_path.h"
#include "designs/templates/template_reader.h"
#include "photos/thumbnails/thumbnail_path.h"
#include "recipes/kept_copies.h"
#include "recipes/kept_forces.h"
#include "recipes/stage_settings.h"
#include "session/undo/moment.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

namespace {

std::vector<std::string> photos_in_use(const frmMain & main)
{
    std::vector<std::string> photos;
    for (int i = 0; i <= main.table.last_photo; ++i)
        photos.push_back(photo_path(main.table[i]));
    return photos;
}

recipe_photo as_it_is(const std::string & path, const std::string & data_folder)
{
    const file_stamp stamp = stamp_of(path).value_or(file_stamp{});
    return {.path = path,
            .bytes = stamp.bytes,
            .changed = stamp.changed,
            .original = original_of_copy(data_folder, path)};
}

// Their folder may be slow to answer.
std::vector<recipe_photo> photos_of(frmMain & main)
{
    return alone_beside(main.desk, main.workers, [photos = photos_in_use(main), data = main.data_folder] {
        std::vector<recipe_photo> kept;
        for (const std::string & photo : photos)
            kept.push_back(as_it_is(photo, data));
        return kept;
    });
}

std::vector<recipe_control> controls_of(const frmMain & main)
{
    std::vector<recipe_control> controls;
    for (const control * each : kept_controls(main))
        controls.push_back({.name = each->name(), .state = state_of(*each)});
    return controls;
}

// A template that can't be read is missed by the run itself.
void add_template(std::vector<recipe_template> & templates, const std::string & name,
                  const std::function<std::string()> & text)
{
    tried([&] { templates.push_back({.name = name, .text = text()}); });
}

std::vector<recipe_template> templates_of(const frmMain & main)
{
    std::vector<recipe_template> templates;
    const std::string & file = main.design_record.file;
    if (main.collage.from_recipe || !file.starts_with("__")) {
        add_template(templates, "__recipe", [&] { return text_of(lines_of_template(main, run_size::full)); });
        return templates;
    }
    for (const std::string & name : {file, file + "_"}) {
        const std::string path = template_path(main, name);
        if (file_exists(path))
            add_template(templates, name, [&] { return read_file(path); });
    }
    return templates;
}

}  // namespace

recipe recipe_of(frmMain & main, const std::string & made)
{
    return {.program = TESSALOOM_VERSION,
            .made = made,
            .design = main.lblDesign.caption(),
            .photos = photos_of(main),
            .settings = settings_of(main),
            .controls = controls_of(main),
            .forces = forces_of(main),
            .templates = templates_of(main),
            .chance = main.random.position ? std::optional(main.random.position()) : std::nullopt};
}

std::shared_ptr<const std::string> preview_on_show(frmMain & main)
{
    recipe_memory & memory = main.recipes;
    const int load = main.picSample.load_count();
    if (load == memory.preview_load)
        return memory.preview;
    memory.preview_load = load;
    memory.preview.reset();
    const std::string path = finished_path(main);
    if (main.picSample.file() == path && file_exists(path))
        tried([&] { memory.preview = std::make_shared<const std::string>(read_file(path)); });
    return memory.preview;
}
