#include "frames/frame_sets.h"

#include "support/paths.h"

namespace {

constexpr const char * unnamed_set = "_named_.not";

}  // namespace

std::vector<std::string> start_custom_frames(const frmMain & main)
{
    const std::string frames = joined(main.data_folder, "frames");
    std::vector<std::string> sets;
    for (const std::string & name : folders_in(frames))
        if (name == unnamed_set)
            delete_folder(joined(frames, name));
        else
            sets.push_back(name);
    return sets;
}

void delete_folder(const std::string & path)
{
    for (const std::string & name : files_in(path))
        delete_file(joined(path, name));
    remove_folder(path);
}
