#include "designs/package/package_import.h"
#include "support/files/archive.h"
#include "tests/fuzz/fuzz_session.h"
#include "tests/fuzz/fuzzed.h"

// A whole package: the bytes of a zip as they are, or a manifest that is packed with two files.

namespace {

std::string package_of(const std::string & bytes)
{
    if (bytes.starts_with("PK"))
        return bytes;
    return zip_bytes({{"manifest", bytes}, {"abcdef", "first"}, {"ghijkl", "second"}});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * bytes, std::size_t count)
{
    fuzz_session & session = session_of_process();
    session.lay_out();
    session.write("package.zip", package_of(fuzzed_text(bytes, count)));
    session.desk.file_to_choose = session.at("package.zip");
    ignoring_refusals([&] { import_package(session.all->main); });
    session.expect_unharmed();
    return 0;
}
