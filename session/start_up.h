#pragma once

#include "session/frmMain.h"

#include <string>

/// Start-up: where the user's data lives, and bringing it into being.

/// Version of the platform, replaced by tests.
struct platform_version {
    int platform_id = 0, major = 0;
};

/// True only for platform id 2 and major version 6: neither older nor newer. It decides the folder scheme.
bool is_nt_six(const platform_version & version);

/// Where this start keeps its data.
struct folder_choice {
    bool use_public_folder = false;
    std::string public_folder;
};

/// The choice for this program: the NT family goes by its version alone, every other system by whether the
/// user can write the program's folder.
folder_choice choose_data_folder(const platform_version & version, const std::string & install_folder,
                                 const std::string & public_folder);

/// Settles `main.data_folder`, from `main.install_folder`, and fills it. Shows the welcome on a first start.
/// Throws end_of_program after its message when a path is blocked; raises 53, 61, 70, 75 when a copy fails.
void prepare_data_folder(frmMain & main, const folder_choice & choice);

enum class outcome { made, was_there };

/// Makes a folder, and those on the way to it. A file of that name ends the program with the message of that
/// code.
outcome make_data_subfolder(frmMain & main, const std::string & path, int code);

/// Makes the three work folders that an installation doesn't bring along.
void check_base_folders(frmMain & main);

/// Brings a data folder apart from the program into being: its folders, the catalogue and the icons. An older
/// catalogue, one without the marker of this release, is dropped.
void prepare_public_folder(frmMain & main);

/// Installs the frame sets when the marker of this release is missing, with the welcome.
void check_install_marker(frmMain & main);

/// Replaces the supplied files of the five frame sets, once: the marker is written last, so an interrupted
/// run is repeated. Files that the user added to a set stay.
void install_frame_sets(frmMain & main);

void first_run_notice(frmMain & main);

/// Copies the letter and puzzle pictures when they are missing and the data folder isn't the program's own.
/// Done after prepare_data_folder.
void supply_package_folders(frmMain & main);

/// Deletes the matrix work file and disables saving.
void clear_matrix_design(frmMain & main);
