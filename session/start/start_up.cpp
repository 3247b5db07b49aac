#include "session/start/start_up.h"

#include "session/start/damaged_catalogue.h"
#include "session/start/displaced.h"
#include "session/start/filling_work.h"
#include "session/start/supplied_catalogue.h"
#include "support/files/archive.h"
#include "support/files/copies.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/numbers.h"
#include "support/platform_error.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <thread>

namespace {

constexpr int nt_family = 2;
constexpr std::string_view release_marker = "3_1_install";
constexpr std::string_view session_lock = "lock", lock_of_filling = "filling";
constexpr std::array public_folders{"tmp",      "designs",     "descriptions", "samples",
                                    "piclists", "user_images", "frames"};
constexpr std::array folders_of_packages{"alpha", "puzzle"};
constexpr std::chrono::minutes longest_filling{1};
constexpr std::chrono::milliseconds filling_pause{20};

std::string in_data(const frmMain & main, std::string_view name)
{
    return joined(main.data_folder, name);
}

std::string in_install(const frmMain & main, std::string_view name)
{
    return joined(main.install_folder, name);
}

[[noreturn]] void end_with(frmMain & main, const std::string & text)
{
    main.desk.message(text);
    throw end_of_program{};
}

void copy_seed_file(frmMain & main, std::string_view name, std::string_view to)
{
    copy_file(in_install(main, name), in_data(main, to));
}

int files_below(const std::string & folder)
{
    int files = 0;
    with_platform_errors([&] {
        for (const auto & entry : std::filesystem::recursive_directory_iterator(folder))
            files += entry.is_directory() ? 0 : 1;
    });
    return files;
}

// Copied beside its place and renamed once the disk has it, so that a copy that broke off isn't taken for the
// folder next time.
void copy_seed_folder(frmMain & main, std::string_view name)
{
    const std::string source = in_install(main, name), target = in_data(main, name);
    const std::string beside = target + ".part";
    remove_tree(beside);
    fill_by(main, files_below(source), [&](std::atomic<int> & done) {
        fill_folder(source, beside, [&] { ++done; });
        flush_below(beside);
    });
    rename_folder(beside, target);
}

void supply_catalogue(frmMain & main)
{
    const std::string path = in_data(main, "designs.ini");
    if (file_exists(path))
        return;
    if (folder_exists(path))
        end_with(main, "Error 27:    " + path + "    is a folder.");
    copy_file(seed_catalogue_path(main), path);
    copy_file(path, in_data(main, supplied_catalogue));
}

void supply_folder(frmMain & main, std::string_view name)
{
    const std::string path = in_data(main, name);
    if (folder_exists(path))
        return;
    if (file_exists(path))
        end_with(main, "Error 28:    " + path + "    is a file.");
    copy_seed_folder(main, name);
}

bool is_own_folder(const frmMain & main)
{
    return main.data_folder == main.install_folder;
}

bool lacks_package_folder(const frmMain & main, const char * name)
{
    return folder_exists(in_install(main, name)) && !folder_exists(in_data(main, name));
}

std::string chosen_folder(const frmMain & main, const folder_choice & choice)
{
    return choice.use_public_folder ? choice.public_folder : main.install_folder;
}

outcome settle_data_folder(frmMain & main, const folder_choice & choice)
{
    main.data_folder = chosen_folder(main, choice);
    return choice.use_public_folder ? make_data_subfolder(main, main.data_folder, 21) : outcome::was_there;
}

void make_data_folders(frmMain & main)
{
    int code = 22;
    for (const char * name : public_folders)
        make_data_subfolder(main, in_data(main, name), code++);
}

// A folder in the place of a lock is one that nobody can hold, so it may be moved without one.
void make_way_for_lock(const frmMain & main, std::string_view name)
{
    if (folder_exists(in_data(main, name)))
        set_displaced_aside(main);
}

void fill_data_folder(frmMain & main, const folder_choice & choice)
{
    if (choice.use_public_folder) {
        prepare_public_folder(main);
    } else {
        check_base_folders(main);
        make_data_folders(main);  // a program folder comes without those that only data stands in
        check_install_marker(main);
    }
    supply_package_folders(main);
}

// Nothing is left to be made in it.
bool is_filled(const frmMain & main)
{
    const auto has_folder = [&](const char * name) { return folder_exists(in_data(main, name)); };
    const auto lacks = [&](const char * name) {
        return !is_own_folder(main) && lacks_package_folder(main, name);
    };
    return file_exists(in_data(main, release_marker)) && file_exists(in_data(main, "designs.ini")) &&
           std::ranges::all_of(public_folders, has_folder) && has_folder("icons") &&
           std::ranges::none_of(folders_of_packages, lacks);
}

// Each preview goes through a file of this folder. Nothing is in the file that is tried: a disk may be full
// and a window be of use. The folder is what a user knows.
void expect_place_to_write(const frmMain & main)
{
    const std::string folder = in_data(main, "tmp");
    const std::string tried_file = joined(folder, "may_be_written");
    try {
        write_file(tried_file, "");
        delete_file(tried_file);
    } catch (platform_error & error) {
        error.path = folder;
        throw;
    }
}

void delete_supplied_frames(frmMain & main)
{
    for (const char * set : {"basketball", "cardinals", "colts", "rams", "soccer"})
        for (const char * file : {"captions", "design.ini", "lframe00.jpg", "pframe00.jpg"})
            delete_file(joined(joined(in_data(main, "frames"), set), file));
}

}  // namespace

bool is_nt_six(const platform_version & version)
{
    return version.platform_id == nt_family && version.major == 6;
}

folder_choice choose_data_folder(const platform_version & version, const std::string & install_folder,
                                 const std::string & public_folder)
{
    const bool is_portable = file_exists(joined(install_folder, "portable"));
    const bool keeps_apart = version.platform_id != nt_family || is_nt_six(version);
    return {.use_public_folder = keeps_apart && !is_portable, .public_folder = public_folder};
}

void prepare_data_folder(frmMain & main, const folder_choice & choice)
{
    main.work_folder.clear();
    main.data_lock = {};
    const outcome made = settle_data_folder(main, choice);
    make_way_for_lock(main, session_lock);
    std::optional<folder_lock> own = folder_lock::taken(main.data_folder, session_lock);
    if (!own)
        throw data_folder_in_use{main.data_folder};
    main.data_lock = std::move(*own);
    set_displaced_aside(main);
    if (made == outcome::made)
        first_run_notice(main);
    const folder_lock filling = filling_lock(main, longest_filling);
    fill_data_folder(main, choice);
    mend_catalogue(main);
    take_newer_designs(main);
    expect_place_to_write(main);
}

std::string told_at_start(const platform_error & error)
{
    const bool is_refused = error.number == error_number::permission_denied;
    return told(error) + (is_refused
                              ? "\n\nTessaloom keeps your designs, your lists and what it shows there. "
                                "Allow it to write in that\nfolder, then start it again."
                              : "");
}

void share_data_folder(frmMain & main, const folder_choice & choice, const std::string & work_folder)
{
    main.data_folder = chosen_folder(main, choice);
    if (!is_filled(main)) {
        if (settle_data_folder(main, choice) == outcome::made)
            first_run_notice(main);
        make_way_for_lock(main, lock_of_filling);
        const folder_lock filling = filling_lock(main, longest_filling);
        set_displaced_aside(main);
        fill_data_folder(main, choice);
    }
    main.work_folder = work_folder;
    for (const char * name : {"tmp", "designs", "piclists"})
        make_folders(joined(work_folder, name));
    write_file(joined(work_folder, "designs.ini"), text_of(newer_catalogue(main, readable_catalogue(main))));
}

folder_lock filling_lock(frmMain & main, std::chrono::milliseconds longest)
{
    for (auto waited = filling_pause; waited <= longest; waited += filling_pause) {
        if (std::optional<folder_lock> taken = folder_lock::taken(main.data_folder, lock_of_filling))
            return std::move(*taken);
        main.desk.pump();
        std::this_thread::sleep_for(filling_pause);
    }
    end_with(main, "Another program is still preparing the data folder\r\n" + main.data_folder +
                       "\r\nPlease try again when it has finished.");
}

outcome make_data_subfolder(frmMain & main, const std::string & path, int code)
{
    if (folder_exists(path))
        return outcome::was_there;
    if (file_exists(path))
        end_with(main, "Error " + formatted(code, 2) + ":   " + path + "   is a file.");
    // On a fresh account the folders on the way may be missing as well.
    make_folders(path);
    return outcome::made;
}

void check_base_folders(frmMain & main)
{
    make_data_subfolder(main, in_data(main, "designs"), 30);
    make_data_subfolder(main, in_data(main, "descriptions"), 31);
    make_data_subfolder(main, in_data(main, "frames"), 32);
}

void prepare_public_folder(frmMain & main)
{
    if (!file_exists(in_data(main, release_marker)))
        delete_file(in_data(main, "designs.ini"));
    make_data_folders(main);
    supply_catalogue(main);
    supply_folder(main, "icons");
    supply_folder(main, "frames");
    install_frame_sets(main);
}

void check_install_marker(frmMain & main)
{
    if (file_exists(in_data(main, release_marker)))
        return;
    first_run_notice(main);
    install_frame_sets(main);
}

void install_frame_sets(frmMain & main)
{
    if (file_exists(in_data(main, release_marker)))
        return;
    delete_supplied_frames(main);
    // A program without these frame sets is still a program: whatever comes of it, the start goes on.
    fill_by(main, 0, [&](std::atomic<int> &) {
        if (extract_zip(in_install(main, "frames.zip"), in_data(main, "frames"), unpack_flush::by_caller))
            flush_below(in_data(main, "frames"));  // before the marker says that they are there
    });
    copy_seed_file(main, "quick_scatter.ini", release_marker);
    copy_seed_file(main, "quick_scatter.ini", "4_2_install");
}

void first_run_notice(frmMain & main)
{
    main.desk.message(
        "\r\nWelcome to Tessaloom\r\n\r\n\r\nThis appears to be the first time you have used this "
        "application and we\r\nneed to do a final configuration.\r\n\r\nClick the OK and give us a few "
        "seconds to get things ready.",
        "T e s s a l o o m   C o n f i g u r a t i o n");
}

void supply_package_folders(frmMain & main)
{
    if (is_own_folder(main))
        for (const char * name : {"tmp", "samples", "piclists", "user_images"})
            make_folders(in_data(main, name));
    else
        for (const char * name : folders_of_packages)
            if (lacks_package_folder(main, name))
                copy_seed_folder(main, name);
}

void clear_matrix_design(frmMain & main)
{
    delete_file(work_path(main, "designs/__matrix"));
    main.mnuSaveDesign.enable(false);
    main.collage.matrix_session = false;
}
