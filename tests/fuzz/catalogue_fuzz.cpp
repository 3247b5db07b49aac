#include "designs/catalogue/catalogue_lines.h"
#include "designs/catalogue/design_lines.h"
#include "support/files/inner_path.h"
#include "support/files/text_file.h"
#include "tests/fuzz/fuzzed.h"

#include <algorithm>
#include <cstdlib>

// The catalogue: read key by key, and rewritten by each of its cores. The first byte chooses the number.

namespace {

void expect(bool holds)
{
    if (!holds)
        std::abort();
}

void read_all(const text_lines & lines)
{
    design_record record;
    for (const std::string & line : lines)
        if (!design_section(line))
            read_design_line(record, line);
}

// How many lines the section has whose header begins so: what stands behind the header makes no difference to
// a merge, but to a search by number it does.
std::ptrdiff_t length_of_section(const text_lines & lines, const std::string & header)
{
    const auto begin =
        std::ranges::find_if(lines, [&](const std::string & line) { return line.starts_with(header); });
    if (begin == lines.end())
        return 0;
    return std::find_if(begin + 1, lines.end(),
                        [](const std::string & line) { return line.starts_with("[Design"); }) -
           begin;
}

void rewrite(const text_lines & lines, int number)
{
    const text_lines without = without_design(lines, number);
    expect(section_of(without, number).empty());
    for (const std::string & file : files_of_design(lines, number))
        expect(!names_file(without, file) && inner_path(file) == file);
    // A merge adds a header and a line, and takes away one section at most.
    if (const auto merged = with_section(lines, number, {"Name=new"}))
        expect(std::ssize(*merged) ==
               std::ssize(lines) - length_of_section(lines, design_header(number)) + 2);
    number_of_design(lines, "new");
    holds_name(lines, "new");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * bytes, std::size_t count)
{
    const std::string text = fuzzed_text(bytes, count);
    const int number = text.empty() ? 600 : 590 + static_cast<unsigned char>(text.front()) % 32;
    ignoring_refusals([&] {
        const text_lines lines = lines_of_text(text);
        read_all(lines);
        rewrite(lines, number);
    });
    return 0;
}
