#include "decode/decoded_file.h"

#include <cstdlib>
#include <new>

// A picture file of the kind that this program is built for: what comes of it is a JPEG, or a fault.
#ifndef FUZZED_KIND
#define FUZZED_KIND "jpeg"
#endif

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * bytes, std::size_t count)
{
    try {
        const std::string jpeg = decoded_file({bytes, count}, kind_of_word(FUZZED_KIND).value());
        if (!jpeg.starts_with("\xFF\xD8"))
            std::abort();
    } catch (decode_fault) {
        return 0;
    } catch (const std::bad_alloc &) {
        return 0;
    }
    return 0;
}
