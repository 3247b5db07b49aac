#pragma once

#include "batch/arguments.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// A list of collages to be made: a table whose columns are separated by tabs. The first line names the
/// columns, by the options that they stand for; `photos` and `set` may stand there several times. Each
/// further line is a job. An empty cell leaves its option out; empty lines, and those that begin with "#",
/// are passed over.

struct batch_job {
    int line = 0;  ///< of the list, from 1
    batch_arguments arguments;
};

/// The jobs of the list. What is asked for beside the list (`common`) holds for each, as far as its line says
/// nothing else: photos, and design or quick style, take the place of the common ones, settings come behind
/// them. Throws bad_arguments, which names the line, for columns that don't exist, cells that can't be
/// followed, jobs that lack something, an `out` of another name than a JPEG's and one that two jobs share.
std::vector<batch_job> parse_jobs(std::string_view text, const batch_arguments & common);

/// Runs `step`; the bad_arguments that it throws come out with the line of the job.
void told_with_line(const batch_job & job, const std::function<void()> & step);
