#pragma once

#include "support/desktop.h"

#include <QString>

#include <map>
#include <string>

struct print_job {
    std::string queue;  ///< the printer's name
    std::string title;
    std::map<std::string, std::string> options;  ///< as the print server names them: "copies", "media" …
};

/// Hands a file to the print server and waits until it has all of it. `held` when the printer stands still,
/// so that the job waits for it; `failed` with the server's words when it doesn't take the job.
print_report send_to_queue(const print_job & job, const QString & path);
