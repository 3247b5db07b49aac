#include "designs/package/manifest.h"
#include "pack/package_check.h"
#include "support/files/text_file.h"
#include "tests/fuzz/fuzzed.h"

#include <cstdlib>
#include <filesystem>

// A manifest: every place that it may use lies below the data folder.

namespace {

void expect_inside(const std::optional<std::string> & place)
{
    if (!place)
        return;
    const std::filesystem::path path = std::filesystem::path(*place).lexically_normal();
    if (path.empty() || path.is_absolute() || *path.begin() == ".." || path == "." || path.string() != *place)
        std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * bytes, std::size_t count)
{
    ignoring_refusals([&] {
        const text_lines lines = lines_of_text(fuzzed_text(bytes, count));
        for (const manifest_command & command : commands_of_manifest(lines)) {
            expect_inside(payload_place(command.target, {"own"}));
            expect_inside(folder_place(command.target));
            with_section({"[Design600]", "[Design602]"}, command.number, command.lines);
        }
        manifest_problems(lines,
                          {.names = {"abcdef"}, .bytes = [](const std::string &) { return std::string(); }});
    });
    return 0;
}
