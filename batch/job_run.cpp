#include "batch/job_run.h"

#include "batch/job_list.h"
#include "batch/output_file.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <cstdio>
#include <iostream>
#include <iterator>

namespace {

struct job_counts {
    int made = 0, done_before = 0, not_made = 0;
};

std::string text_of_list(const std::string & path)
{
    if (path != standard_stream)
        return read_file(path);
    std::string text(std::istreambuf_iterator<char>(std::cin), {});
    if (std::ferror(stdin) != 0)
        throw bad_arguments{
            "the list of jobs on the standard input can't be read to its end; nothing was begun"};
    return text;
}

// One session finds what is wrong in any line before the first job is begun. A file that can't be read is
// told with its job: the job may be done already, and the others don't need that file.
void check_jobs(const std::vector<batch_job> & jobs, const batch_arguments & common,
                const batch_folders & folders)
{
    open_session looking(common, folders);
    for (const batch_job & job : jobs)
        tried([&] { told_with_line(job, [&] { check_against(looking.all.main, job.arguments); }); });
}

// A collage is put in its place whole and in one step, so one that is there was finished.
bool is_done(const batch_job & job, const batch_arguments & common)
{
    return !common.again && file_exists(job.arguments.out);
}

batch_arguments arguments_of(const batch_job & job)
{
    batch_arguments arguments = job.arguments;
    if (!arguments.keep.empty())
        arguments.keep = joined(arguments.keep, std::to_string(job.line));
    return arguments;
}

bool is_made(const batch_job & job, const batch_folders & folders)
{
    try {
        return run_batch(arguments_of(job), folders) == exit_status::made;
    } catch (const bad_arguments & fault) {
        std::fprintf(stderr, "%s\n", in_one_line(fault.what).c_str());
    } catch (const platform_error & error) {
        std::fprintf(stderr, "%s\n", in_one_line(told(error)).c_str());
    }
    return false;
}

void tell(const batch_job & job, const char * outcome)
{
    std::fprintf(stderr, "line %d: %s %s\n", job.line, job.arguments.out.c_str(), outcome);
}

void work_off(const batch_job & job, const batch_arguments & common, const batch_folders & folders,
              job_counts & counts)
{
    if (is_done(job, common)) {
        ++counts.done_before;
        tell(job, "is there");
    } else if (is_made(job, folders)) {
        ++counts.made;
        tell(job, "made");
    } else {
        ++counts.not_made;
        tell(job, "NOT made");
    }
}

}  // namespace

exit_status run_jobs(const batch_arguments & arguments, const batch_folders & folders)
{
    const std::vector<batch_job> jobs = parse_jobs(text_of_list(arguments.jobs), arguments);
    check_jobs(jobs, arguments, folders);
    job_counts counts;
    for (const batch_job & job : jobs)
        work_off(job, arguments, folders, counts);
    std::fprintf(stderr, "%d made, %d there before, %d not made\n", counts.made, counts.done_before,
                 counts.not_made);
    return counts.not_made == 0 ? exit_status::made : exit_status::not_made;
}
