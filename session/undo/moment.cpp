#include "session/undo/moment.h"

#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>

namespace {

// What belongs to the program's menus, to a run or to the choosing stage.
bool is_kept(const frmMain & main, const control & each)
{
    for (const control * without : std::initializer_list<const control *>{
             &main.cmdFlurn, &main.cmdCancel, &main.cmdHelp, &main.txtDoing, &main.barDoing, &main.picSplash})
        if (&each == without)
            return false;
    return dynamic_cast<const menu_entry *>(&each) == nullptr;
}

std::string template_file(const frmMain & main)
{
    return work_path(main, "designs/__quick");
}

std::string selection_file(const frmMain & main)
{
    return work_path(main, "piclists/last_photos.pls");
}

template <typename Value>
bool is_same(const std::shared_ptr<const Value> & one, const std::shared_ptr<const Value> & other)
{
    return one == other || (one && other && *one == *other);
}

template <typename Value>
std::shared_ptr<const Value> shared(Value value, const std::shared_ptr<const Value> & before)
{
    return before && *before == value ? before : std::make_shared<const Value>(std::move(value));
}

kept_file content_of(const std::string & path, const kept_file & before)
{
    try {
        return file_exists(path) ? shared(read_file(path), before) : nullptr;
    } catch (const platform_error &) {
        return nullptr;
    }
}

kept_photos photos_of(const photo_table & table)
{
    const int count = std::clamp(table.last_photo + 1, 0, photo_table::capacity);
    return {.photos = {table.photos.begin(), table.photos.begin() + count},
            .last_photo = table.last_photo,
            .beyond = table.beyond,
            .landscape_count = table.landscape_count,
            .portrait_count = table.portrait_count,
            .orientation_list = table.orientation_list};
}

void put_photos_back(photo_table & table, const kept_photos & kept)
{
    std::ranges::copy(kept.photos, table.photos.begin());
    table.last_photo = kept.last_photo;
    table.beyond = kept.beyond;
    table.landscape_count = kept.landscape_count;
    table.portrait_count = kept.portrait_count;
    table.orientation_list = kept.orientation_list;
}

// A full-size run leaves its collage in the same file, which is no preview and isn't shown here.
kept_file preview_of(const frmMain & main, const moment & before)
{
    const bool is_new = main.picSample.load_count() != before.loads;
    const std::string path = finished_path(main);
    return is_new && main.picSample.file() == path ? content_of(path, before.preview) : before.preview;
}

void put_selection_back(const frmMain & main, const kept_file & wanted)
{
    if (wanted)
        replace_file(selection_file(main), *wanted);
    else
        delete_file(selection_file(main));
}

// A template that wasn't there yet may stay: each preview writes its own.
void put_files_back(const frmMain & main, const moment & wanted, const moment & present)
{
    if (wanted.preview)
        write_file(finished_path(main), *wanted.preview);
    if (wanted.quick_template)
        write_file(template_file(main), *wanted.quick_template);
    if (!is_same(wanted.selection, present.selection))
        put_selection_back(main, wanted.selection);
}

// The selection is the last one, so it never has to.
void take_files_back(const frmMain & main, const moment & present)
{
    try {
        if (present.preview)
            write_file(finished_path(main), *present.preview);
        if (present.quick_template)
            write_file(template_file(main), *present.quick_template);
    } catch (const platform_error &) {
        return;  // the first failure is the one to be told
    }
}

void put_controls_back(const frmMain & main, const std::vector<control_state> & states)
{
    auto next = states.begin();
    for (control * each : kept_controls(main)) {
        if (state_of(*each) != *next)
            take_state(*each, *next);
        ++next;
    }
}

}  // namespace

std::vector<control *> kept_controls(const frmMain & main)
{
    std::vector<control *> kept = main.controls();
    std::erase_if(kept, [&](const control * each) { return !is_kept(main, *each); });
    return kept;
}

bool moment::operator==(const moment & other) const
{
    return controls == other.controls && shown_file == other.shown_file && is_same(photos, other.photos) &&
           is_same(preview, other.preview);
}

moment moment_of(frmMain & main, const moment & before)
{
    moment now{.controls = {},
               .beside_controls = held_beside_controls(main),
               .width = main.width(),
               .height = main.height(),
               .photos = shared(photos_of(main.table), before.photos),
               .quick_template = content_of(template_file(main), before.quick_template),
               .selection = content_of(selection_file(main), before.selection),
               .shown_file = main.picSample.file(),
               .preview = preview_of(main, before),
               .loads = main.picSample.load_count()};
    for (const control * each : kept_controls(main))
        now.controls.push_back(state_of(*each));
    return now;
}

void put_back(frmMain & main, const moment & wanted, const moment & present)
{
    try {
        put_files_back(main, wanted, present);
    } catch (...) {
        take_files_back(main, present);
        throw;
    }
    const left_out_photos known = main.left_out;
    held_beside_controls(main) = wanted.beside_controls;
    // What has become of the photos meanwhile isn't undone.
    if (is_same(wanted.photos, present.photos))
        main.left_out = known;
    put_photos_back(main.table, *wanted.photos);
    put_controls_back(main, wanted.controls);
    main.resize(wanted.width, wanted.height);  // which looks at the orientation
    main.picSample.load(wanted.shown_file);
}
