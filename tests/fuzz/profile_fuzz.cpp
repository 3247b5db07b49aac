#include "support/files/profile.h"
#include "tests/fuzz/fuzz_session.h"
#include "tests/fuzz/fuzzed.h"

#include <cstdlib>

// A sectioned text file; the first line is also asked for, as section and as key.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * bytes, std::size_t count)
{
    const fuzz_session & session = session_of_process();
    const std::string text = fuzzed_text(bytes, count);
    session.write("data/fuzzed.ini", text);
    ignoring_refusals([&] {
        const profile settings(session.at("data/fuzzed.ini"));
        const std::string first = text.substr(0, text.find('\n'));
        for (const std::string & section : {std::string("Frame Design"), std::string("Design600"), first})
            for (const std::string & key : {std::string("Name"), std::string("Icon"), first})
                if (settings.value(section, key, "", 9).size() > 8)
                    std::abort();
        if (profile_text(text).size() > 254)
            std::abort();
    });
    return 0;
}
