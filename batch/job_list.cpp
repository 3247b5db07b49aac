#include "batch/job_list.h"

#include "batch/output_kind.h"
#include "support/files/paths.h"
#include "support/files/text_file.h"

#include <algorithm>
#include <map>

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr std::size_t most_columns = 2000;

struct table_line {
    int number = 0;
    std::vector<std::string> cells;
};

[[noreturn]] void refuse(int line, const std::string & why)
{
    throw bad_arguments{"line " + std::to_string(line) + " of the job list: " + why};
}

void on_line(int line, const std::function<void()> & step)
{
    try {
        step();
    } catch (const bad_arguments & fault) {
        refuse(line, fault.what);
    }
}

std::vector<table_line> lines_of_table(std::string_view text)
{
    if (text.starts_with(byte_order_mark))
        text.remove_prefix(byte_order_mark.size());
    std::vector<table_line> lines;
    int number = 0;
    for (const std::string & line : lines_of_text(std::string(text))) {
        ++number;
        if (!line.empty() && !line.starts_with('#'))
            lines.push_back({.number = number, .cells = split(line, '\t', most_columns)});
    }
    return lines;
}

bool may_stand_twice(const std::string & column)
{
    return column == "photos" || column == "set";
}

void check_columns(const table_line & header)
{
    const auto & columns = header.cells;
    for (auto each = columns.begin(); each != columns.end(); ++each) {
        on_line(header.number, [&] { check_job_column(*each); });
        if (!may_stand_twice(*each) && std::find(columns.begin(), each, *each) != each)
            refuse(header.number, "the column \"" + *each + "\" stands there twice");
    }
    if (std::ranges::find(columns, "out") == columns.end())
        refuse(header.number, "there is no column \"out\"");
}

// What a line says itself takes the place of what is said for all.
batch_arguments without_what_is_named(batch_arguments common, const table_line & header,
                                      const table_line & job)
{
    for (std::size_t i = 0; i < job.cells.size(); ++i) {
        if (job.cells[i].empty())
            continue;
        if (header.cells[i] == "photos")
            common.photos.clear();
        if (header.cells[i] == "design" || header.cells[i] == "quick" || header.cells[i] == "recipe") {
            common.design.clear();
            common.quick.clear();
            common.recipe.clear();
        }
        if (header.cells[i] == "recipe") {
            common.frames.clear();
            common.orientation.clear();
            common.seed.reset();
        }
    }
    return common;
}

batch_arguments arguments_of(const batch_arguments & common, const table_line & header,
                             const table_line & job)
{
    if (job.cells.size() > header.cells.size())
        throw bad_arguments{"it has more cells than the list has columns"};
    batch_arguments read = without_what_is_named(common, header, job);
    for (std::size_t i = 0; i < job.cells.size(); ++i)
        if (!job.cells[i].empty())
            read_job_option(read, header.cells[i], job.cells[i]);
    read.wanted = batch_arguments::task::make;
    check_complete(read);
    if (read.out == standard_stream)
        throw bad_arguments{"--out has to name a file"};
    check_output_kind(read);
    return read;
}

}  // namespace

std::vector<batch_job> parse_jobs(std::string_view text, const batch_arguments & common)
{
    const std::vector<table_line> lines = lines_of_table(text);
    if (lines.empty())
        throw bad_arguments{"the job list is empty; its first line names the columns"};
    check_columns(lines.front());
    std::vector<batch_job> jobs;
    std::map<std::string, int> writers;
    for (auto line = lines.begin() + 1; line != lines.end(); ++line) {
        batch_job job{.line = line->number, .arguments = {}};
        on_line(line->number, [&] { job.arguments = arguments_of(common, lines.front(), *line); });
        const auto [writer, is_first] = writers.emplace(absolute_path(job.arguments.out), line->number);
        if (!is_first)
            refuse(line->number, "\"" + job.arguments.out + "\" is made by line " +
                                     std::to_string(writer->second) + " already");
        jobs.push_back(std::move(job));
    }
    return jobs;
}

void told_with_line(const batch_job & job, const std::function<void()> & step)
{
    on_line(job.line, step);
}
