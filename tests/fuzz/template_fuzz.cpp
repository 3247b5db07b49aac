#include "designs/templates/template_reader.h"
#include "tests/fuzz/fuzz_session.h"
#include "tests/fuzz/fuzzed.h"

// A template, read as a list of places and as a grid, then bent.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t * bytes, std::size_t count)
{
    fuzz_session & session = session_of_process();
    frmMain & main = session.all->main;
    session.write("data/designs/fuzzed", fuzzed_text(bytes, count));
    for (const char * style : {"Place", "Matrix"}) {
        main.design_record = {};
        main.design_record.file = "fuzzed";
        main.design_record.system = "No";
        main.design_record.style = style;
        ignoring_refusals([&] {
            read_template(main, run_size::full);
            turn_locations(main);
            stretch_locations(main);
        });
    }
    return 0;
}
