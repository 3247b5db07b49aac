#pragma once

#include "session/frmMain.h"
#include "support/platform_error.h"

#include <chrono>
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

/// Its data belongs to the user and lies apart from the program, but where a file named "portable" lies
/// beside the program: there all is in the program's own folder. The NT family goes by its version as well.
folder_choice choose_data_folder(const platform_version & version, const std::string & install_folder,
                                 const std::string & public_folder);

/// Another session has the data folder: a window is open on it.
struct data_folder_in_use {
    std::string data_folder;
};

/// Settles `main.data_folder`, from `main.install_folder`, and fills it, for a session that has it for
/// itself: it holds the lock of the folder from here on. Shows the welcome on a first start. A damaged
/// catalogue is mended, and designs of a newer program are added to it. Throws data_folder_in_use, and
/// end_of_program after its message when a path is blocked; raises 53, 61, 70, 75 when a copy fails, and
/// where nothing can be written though all is there.
void prepare_data_folder(frmMain & main, const folder_choice & choice);

/// What failed there, on which file, and what helps where that isn't plain.
std::string told_at_start(const platform_error & error);

/// The same for a session that only reads the data folder and keeps what it writes in `work_folder`: only a
/// data folder that isn't there, or isn't whole, is filled, by one program at a time. The catalogue is read
/// as it is now, with the designs of a newer program, whatever others write to it later.
void share_data_folder(frmMain & main, const folder_choice & choice, const std::string & work_folder);

/// Taken by whoever brings the data folder into being, for only so long; others wait for it, since they need
/// the same. Throws end_of_program after its message when that takes too long.
folder_lock filling_lock(frmMain & main, std::chrono::milliseconds longest);

enum class outcome { made, was_there };

/// Makes a folder, and those on the way to it. A file of that name ends the program with the message of that
/// code.
outcome make_data_subfolder(frmMain & main, const std::string & path, int code);

/// Makes the three work folders that an installation doesn't bring along.
void check_base_folders(frmMain & main);

/// Brings what a data folder apart from the program holds into being: its folders, the catalogue and the
/// icons. An older catalogue, one without the marker of this release, is dropped.
void prepare_public_folder(frmMain & main);

/// Installs the frame sets when the marker of this release is missing, with the welcome.
void check_install_marker(frmMain & main);

/// Replaces the supplied files of the five frame sets, once: the marker is written last, so an interrupted
/// run is repeated. Files that the user added to a set stay.
void install_frame_sets(frmMain & main);

void first_run_notice(frmMain & main);

/// What comes with the package and not with the start-up: letter and puzzle pictures for a data folder apart,
/// the empty folders for the program's own. Only what is missing is made.
void supply_package_folders(frmMain & main);

/// Deletes the matrix work file and disables saving.
void clear_matrix_design(frmMain & main);
