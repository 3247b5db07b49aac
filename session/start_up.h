#pragma once

#include "session/frmMain.h"

#include <functional>
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

/// Settles `main.data_folder` and fills it. Shows the welcome on a first start. Throws end_of_program after
/// its message when a path is blocked; raises 53, 61, 70, 75 when a copy fails.
void prepare_data_folder(frmMain & main, const folder_choice & choice);

enum class outcome { made, was_there };

/// Makes a folder. A file of that name ends the program with the message of that code.
outcome make_data_subfolder(frmMain & main, const std::string & path, int code);

void check_base_folders(frmMain & main);
void prepare_public_folder(frmMain & main);
void check_install_marker(frmMain & main);
void install_frame_sets(frmMain & main);
void first_run_notice(frmMain & main);

/// Copies the letter and puzzle pictures when they are missing and the data folder isn't the program's own.
void supply_package_folders(frmMain & main);

/// Deletes the matrix work file and disables saving.
void clear_matrix_design(frmMain & main);
