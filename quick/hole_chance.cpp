#include "quick/hole_chance.h"

#include <memory>

namespace {

random_source noting(frmMain & main)
{
    main.collage.holes_shown.clear();
    return {.next =
                [&main] {
                    main.collage.holes_shown.push_back(main.random.next());
                    return main.collage.holes_shown.back();
                },
            .reseed = [&main] { main.random.reseed(); }};
}

random_source repeating(frmMain & main)
{
    const auto given = std::make_shared<std::size_t>(0);
    return {.next =
                [&main, given] {
                    const std::vector<double> & shown = main.collage.holes_shown;
                    return *given < shown.size() ? shown[(*given)++] : main.random.next();
                },
            .reseed = [&main] { main.random.reseed(); }};
}

}  // namespace

random_source hole_chance(frmMain & main, run_size size)
{
    return size == run_size::preview && !main.collage.keeps_turns ? noting(main) : repeating(main);
}
