#include "designs/catalogue_lines.h"
#include "designs/design_lines.h"
#include "support/text_file.h"
#include "tests/fuzz/fuzzed.h"

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

void rewrite(const text_lines & lines, int number)
{
    const text_lines without = without_design(lines, number);
    expect(section_of(without, number).empty());
    for (const std::string & file : files_of_design(lines, number))
        expect(!names_file(without, file) && file.find("..") == std::string::npos);
    const auto merged = with_section(lines, number, {"Name=new"});
    if (merged)
        expect(merged->size() >= without.size());
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
