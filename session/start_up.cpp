#include "session/start_up.h"

#include "support/archive.h"
#include "support/numbers.h"
#include "support/paths.h"
#include "support/platform_error.h"

namespace {

constexpr int nt_family = 2;
constexpr std::string_view release_marker = "3_1_install";

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

// Copied beside its place and renamed, so that a copy that broke off isn't taken for the folder next time.
void copy_seed_folder(frmMain & main, std::string_view name)
{
    const std::string target = in_data(main, name);
    const std::string beside = target + ".part";
    remove_tree(beside);
    copy_folder(in_install(main, name), beside);
    rename_folder(beside, target);
}

void supply_catalogue(frmMain & main)
{
    const std::string path = in_data(main, "designs.ini");
    if (file_exists(path))
        return;
    if (folder_exists(path))
        end_with(main, "Error 27:    " + path + "    is a folder.");
    copy_seed_file(main, "designs.ini", "designs.ini");
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
    const bool apart =
        version.platform_id == nt_family ? is_nt_six(version) : !folder_writable(install_folder);
    return {.use_public_folder = apart, .public_folder = public_folder};
}

void prepare_data_folder(frmMain & main, const folder_choice & choice)
{
    main.data_folder = main.install_folder;
    if (choice.use_public_folder) {
        main.data_folder = choice.public_folder;
        prepare_public_folder(main);
    } else {
        check_base_folders(main);
        check_install_marker(main);
    }
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
    if (make_data_subfolder(main, main.data_folder, 21) == outcome::made)
        first_run_notice(main);
    int code = 22;
    for (const char * name :
         {"tmp", "designs", "descriptions", "samples", "piclists", "user_images", "frames"})
        make_data_subfolder(main, in_data(main, name), code++);
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
    extract_zip(in_install(main, "frames.zip"), in_data(main, "frames"));
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
    if (main.data_folder == main.install_folder)
        return;
    for (const char * name : {"alpha", "puzzle"})
        if (folder_exists(in_install(main, name)) && !folder_exists(in_data(main, name)))
            copy_seed_folder(main, name);
}

void clear_matrix_design(frmMain & main)
{
    delete_file(joined(in_data(main, "designs"), "__matrix"));
    main.mnuSaveDesign.enable(false);
    main.matrix_session = false;
}
