// Puts the sample photos into a folder: sample_photos FOLDER TAKEN [NAME]. What lies in TAKEN under a photo's
// name is copied, the others are drawn. Always the same bytes.
#include "scenes.h"

#include <FreeImage.h>
#include <atomic>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <thread>

namespace {

constexpr int long_side = 1620, short_side = 1080;
constexpr int quality = 88;

BYTE level(float light)
{
    return static_cast<BYTE>(std::lround(clamped(light) * 255));
}

void save(const canvas & photo, const std::string & path)
{
    const std::unique_ptr<FIBITMAP, void (*)(FIBITMAP *)> image(
        FreeImage_Allocate(photo.width(), photo.height(), 24),
        [](FIBITMAP * owned) { FreeImage_Unload(owned); });
    for (int y = 0; y < photo.height(); ++y) {
        BYTE * to = FreeImage_GetScanLine(image.get(), photo.height() - 1 - y);
        for (int x = 0; x < photo.width(); ++x, to += 3) {
            const colour & c = photo.at(x, y);
            to[FI_RGBA_RED] = level(c.r);
            to[FI_RGBA_GREEN] = level(c.g);
            to[FI_RGBA_BLUE] = level(c.b);
        }
    }
    if (!FreeImage_Save(FIF_JPEG, image.get(), path.c_str(), quality))
        throw std::runtime_error(path + ": can't be written");
}

void draw(const scene & shot, const std::filesystem::path & file)
{
    const bool wide = shot.held == format::landscape;
    canvas photo(wide ? long_side : short_side, wide ? short_side : long_side);
    shot.draw(photo);
    save(photo, file.string());
}

void provide(const scene & shot, const std::filesystem::path & folder, const std::filesystem::path & taken)
{
    const std::string name = shot.name + ".jpg";
    if (std::filesystem::exists(taken / name))
        std::filesystem::copy_file(taken / name, folder / name,
                                   std::filesystem::copy_options::overwrite_existing);
    else
        draw(shot, folder / name);
}

}  // namespace

int main(int count, char ** arguments)
{
    if (count < 3) {
        std::fprintf(stderr, "sample_photos FOLDER TAKEN [NAME]\n");
        return 1;
    }
    const std::filesystem::path folder = arguments[1], taken = arguments[2];
    std::filesystem::create_directories(folder);
    std::vector<scene> scenes = all_scenes();
    if (count > 3)
        std::erase_if(scenes,
                      [&](const scene & one) { return one.name.find(arguments[3]) == std::string::npos; });
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> failed = false;
    std::vector<std::thread> workers;
    for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i) {
        workers.emplace_back([&] {
            for (std::size_t at = next++; at < scenes.size(); at = next++) {
                try {
                    provide(scenes[at], folder, taken);
                } catch (const std::exception & error) {
                    std::fprintf(stderr, "sample_photos: %s\n", error.what());
                    failed = true;
                }
            }
        });
    }
    for (std::thread & worker : workers)
        worker.join();
    return failed ? 1 : 0;
}
