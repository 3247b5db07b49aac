#include "pack/arguments.h"
#include "pack/package_check.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"
#include "versions/archive_version.h"
#include "versions/version.h"

#include <cstdio>

namespace {

int check(const std::string & package)
{
    const text_lines problems = package_problems(package);
    for (const std::string & problem : problems)
        std::printf("%s\n", problem.c_str());
    return problems.empty() ? 0 : 1;
}

int run(const std::vector<std::string> & words)
{
    const pack_arguments arguments = parse_pack_arguments(words);
    switch (arguments.wanted) {
        case pack_arguments::task::help:
            std::printf("%s", pack_usage().c_str());
            return 0;
        case pack_arguments::task::version:
            std::printf("%s", version_told("tessaloom-pack", {archive_version()}).c_str());
            return 0;
        case pack_arguments::task::check:
            return check(arguments.file);
        default:
            replace_file(arguments.file, package_bytes(arguments.request));
            return 0;
    }
}

int complain(int status, const std::string & text)
{
    std::fprintf(stderr, "tessaloom-pack: %s\n", text.c_str());
    return status;
}

}  // namespace

int main(int count, char ** words)
{
    try {
        return run({words + 1, words + count});
    } catch (const bad_pack_arguments & fault) {
        return complain(2, fault.what);
    } catch (const not_packed & fault) {
        return complain(1, fault.what);
    } catch (const platform_error & error) {
        return complain(1, error.path.empty() ? error.what() : error.path + ": " + error.what());
    }
}
