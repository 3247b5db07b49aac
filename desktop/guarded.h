#pragma once

#include <functional>
#include <string>

/// Shows a text in a box.
using error_report = std::function<void(const std::string & text)>;

/// Runs what a user's action started. An error that gets out of it is reported, once, as "Run-time error
/// 'N':", an empty line, and what failed on which file; the toolkit's event loop never sees it. An
/// end_of_program leaves the event loop with its status.
void guarded(const error_report & report, const std::function<void()> & step);

/// The text of that box.
std::string run_time_error(int number, const std::string & told);
