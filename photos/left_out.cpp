#include "photos/left_out.h"

#include "photos/thumbnails/thumbnail_path.h"
#include "photos/unfinished_photo.h"
#include "support/MFreeImage.h"
#include "support/files/beside.h"
#include "support/files/paths.h"
#include "support/jpeg_end.h"
#include "support/platform_error.h"

#include <algorithm>
#include <span>

namespace {

constexpr std::size_t most_in_a_box = 20;  // more lines than that leave the screen

std::string reason(photo_fault fault)
{
    switch (fault) {
        case photo_fault::gone:
            return "it isn't there any more";
        case photo_fault::closed:
            return "there is no permission to read it";
        case photo_fault::cut_short:
            return "it was cut short or is still being copied";
        case photo_fault::too_large:
            return "it has more than 32767 pixels in one direction";
        case photo_fault::too_long:
            return "it is too long for its width";
        default:
            return "it can't be read as a JPEG photo";
    }
}

std::string remedy(std::span<const left_out_photo> photos)
{
    const auto any = [&](photo_fault fault) {
        return std::ranges::any_of(photos,
                                   [&](const left_out_photo & photo) { return photo.fault == fault; });
    };
    std::string text;
    if (any(photo_fault::gone))
        text += "\r\nPut what is missing back in its place.";
    if (any(photo_fault::closed))
        text += "\r\nAllow what is closed to be read.";
    if (any(photo_fault::unreadable))
        text += "\r\nSave what can't be read as a JPEG again.";
    if (any(photo_fault::cut_short))
        text += "\r\nCopy what was cut short to its place again, or wait until it is there.";
    if (any(photo_fault::too_large))
        text += "\r\nMake what has too many pixels smaller.";
    if (any(photo_fault::too_long))
        text += "\r\nCut what is too long in two.";
    return text + "\r\nThen choose your photos again.";
}

std::string heading(const frmMain & main, std::size_t count)
{
    if (!has_usable_photo(main))
        return "None of your photos can be used:";
    return count == 1 ? "This photo was left out:" : "These photos were left out:";
}

std::string box_text(const frmMain & main, std::span<const left_out_photo> photos)
{
    std::string text = heading(main, photos.size());
    for (const left_out_photo & photo : photos.first(std::min(photos.size(), most_in_a_box)))
        text += "\r\n" + line_of(photo);
    if (photos.size() > most_in_a_box)
        text += "\r\nand " + std::to_string(photos.size() - most_in_a_box) + " more";
    return text + "\r\n" + remedy(photos);
}

void note_told(left_out_photos & left_out)
{
    left_out.told = left_out.photos.size();
    left_out.told_in_this_run = true;
}

}  // namespace

photo_fault fault_of(const std::string & photo)
{
    if (is_closed_to_user(photo))
        return photo_fault::closed;
    if (!file_exists(photo))
        return photo_fault::gone;
    try {
        jpeg_size(photo);
    } catch (const platform_error &) {
        return photo_fault::too_large;
    }
    const bool may_come = is_cut_short(photo) || is_unfinished(photo);
    return may_come ? photo_fault::cut_short : photo_fault::unreadable;
}

void forget_left_out(frmMain & main)
{
    main.left_out = {.told_by = main.left_out.told_by,
                     .photos = {},
                     .told = 0,
                     .in_this_run = {},
                     .told_in_this_run = false};
}

void leave_out(frmMain & main, const std::string & path)
{
    leave_out(main, path, beside(main.desk, main.workers, [&] { return fault_of(photo_path(path)); }));
}

void leave_out(frmMain & main, const std::string & path, photo_fault fault)
{
    left_out_photos & left_out = main.left_out;
    const std::string photo = photo_path(path);
    left_out.in_this_run.insert(photo);
    if (std::ranges::find(left_out.photos, photo, &left_out_photo::path) == left_out.photos.end())
        left_out.photos.push_back({.path = photo, .fault = fault});
}

bool is_left_out(const frmMain & main, int index)
{
    const std::set<std::string> & without = main.left_out.in_this_run;
    return !without.empty() && without.contains(photo_path(main.table[index]));
}

bool has_usable_photo(const frmMain & main)
{
    for (int index = 0; index <= main.table.last_photo; ++index)
        if (!is_left_out(main, index))
            return true;
    return false;
}

void tell_left_out(frmMain & main)
{
    left_out_photos & left_out = main.left_out;
    if (left_out.told_by == left_out_photos::teller::caller || left_out.told == left_out.photos.size())
        return;
    const std::string text = box_text(main, std::span(left_out.photos).subspan(left_out.told));
    note_told(left_out);
    main.desk.message(text);
}

void tell_none_usable(frmMain & main)
{
    left_out_photos & left_out = main.left_out;
    const bool this_run_told_all = left_out.told_in_this_run && left_out.told == left_out.photos.size();
    if (left_out.told_by == left_out_photos::teller::caller || this_run_told_all)
        return;
    note_told(left_out);
    main.desk.message(box_text(main, left_out.photos));
}

void tell_no_match(frmMain & main, const std::string & text)
{
    left_out_photos & left_out = main.left_out;
    const bool all_told = left_out.told == left_out.photos.size();
    const bool why_is_told_elsewhere = left_out.told_by == left_out_photos::teller::caller;
    if (why_is_told_elsewhere || (has_usable_photo(main) && all_told))
        return main.desk.message(text);
    if (main.in_preview && all_told)
        return;
    // Photos that were left out are why no other one matches: one cause, one box.
    const std::size_t first = has_usable_photo(main) ? left_out.told : 0;
    note_told(left_out);
    main.desk.message(text + "\r\n\r\n" + box_text(main, std::span(left_out.photos).subspan(first)));
}

std::string line_of(const left_out_photo & photo)
{
    std::string path = photo.path;
    std::ranges::replace_if(
        path, [](char sign) { return static_cast<unsigned char>(sign) < 32; }, '?');
    return path + ": " + reason(photo.fault);
}
