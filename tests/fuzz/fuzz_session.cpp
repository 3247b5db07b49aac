#include "tests/fuzz/fuzz_session.h"

#include "support/files/paths.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

std::string content(const std::string & path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::size_t entries_in(const std::string & folder)
{
    std::size_t count = 0;
    for ([[maybe_unused]] const auto & entry : fs::directory_iterator(folder))
        ++count;
    return count;
}

}  // namespace

fuzz_session::fuzz_session() : place((fs::temp_directory_path() / "tessaloom_fuzz_XXXXXX").string())
{
    if (::mkdtemp(place.data()) == nullptr)
        std::abort();
    all = std::make_unique<windows>(desk, random_source{.next = [] { return 0.5; }, .reseed = [] {}});
    all->main.data_folder = at("data");
    all->main.install_folder = at("install");
    fs::create_directories(at("install"));
    write("precious", "x");
    lay_out();
}

fuzz_session::~fuzz_session()
{
    std::error_code ignored;
    fs::remove_all(place, ignored);
}

std::string fuzz_session::at(const std::string & name) const
{
    return joined(place, name);
}

void fuzz_session::write(const std::string & name, const std::string & bytes) const
{
    fs::create_directories(fs::path(at(name)).parent_path());
    std::ofstream(at(name), std::ios::binary) << bytes;
}

void fuzz_session::lay_out()
{
    fs::remove_all(at("data"));
    for (const char * folder :
         {"tmp", "designs", "samples", "descriptions", "piclists", "user_images", "frames/mine"})
        fs::create_directories(at(std::string("data/") + folder));
    write("data/designs.ini",
          "[Design600]\r\nName=a\r\nFile=saved600\r\nSystem=No\r\n[Design700]\r\nName=b\r\n");
    write("data/icons/icons", "sun sun.bmp\r\n");
    write("data/designs/saved600", "0:0:9:9:0:0:0:0:\r\n");
}

void fuzz_session::expect_unharmed() const
{
    const bool catalogue =
        fs::is_regular_file(at("data/designs.ini")) && fs::is_regular_file(at("data/icons/icons"));
    // precious, install, data and the package, which may be used up
    const std::size_t beside = entries_in(place);
    if (!catalogue || content(at("precious")) != "x" || entries_in(at("install")) != 0 || beside < 3 ||
        beside > 4)
        std::abort();
}

fuzz_session & session_of_process()
{
    static fuzz_session session;
    return session;
}
