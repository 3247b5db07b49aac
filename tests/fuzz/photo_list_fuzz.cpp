#include "photos/lists/photo_list.h"
#include "tests/fuzz/fuzz_session.h"
#include "tests/fuzz/fuzzed.h"

#include <cstdlib>

// A photo list, read into the table and written on.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * bytes, std::size_t count)
{
    fuzz_session & session = session_of_process();
    frmMain & main = session.all->main;
    session.write("data/piclists/fuzzed.pls", fuzzed_text(bytes, count));
    main.txtPhotos.tag = session.at("data/piclists/fuzzed.pls");
    ignoring_refusals([&] {
        get_photos(main);
        if (main.table.last_photo > 1000)
            std::abort();
        append_photos(main.txtPhotos.tag, {"/photos/a.jpg"});
    });
    return 0;
}
