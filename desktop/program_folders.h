#pragma once

#include "session/start/start_up.h"

#include <string>

/// Where this program lies and where it keeps the user's data. A QCoreApplication has to be there.

/// The folder of the program file, links followed: an installed program is reached through a link in `bin`.
std::string program_folder();

/// Where the environment names no home (a service's, an empty one), has it name the one that the system knows
/// of for the user, if it does: the toolkit would take the root of the disk. Called first in `main`, before
/// there are threads.
void take_home_of_user();

/// The user's own data folder is `tessaloom4` under the user's data home; choose_data_folder says when it is
/// used.
folder_choice data_folder_choice();

/// The user's pictures folder, or the home folder when there is none: where choosers open first.
std::string pictures_folder();
