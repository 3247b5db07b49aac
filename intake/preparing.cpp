#include "intake/preparing.h"

#include "intake/jpeg_header.h"
#include "intake/look.h"
#include "support/files/text_file.h"
#include "support/platform_error.h"

#include <algorithm>
#include <thread>

namespace {

void refuse(intake_photo & photo, const std::string & why)
{
    photo.need = photo_need::refusal;
    photo.why = why;
    photo.ready.clear();
}

// Byte for byte, but for what tells of a person.
std::string copied_jpeg(const std::string & path)
{
    const std::string file = read_file(path);
    const byte_view bytes = bytes_of_text(file);
    const std::optional<jpeg_header> header = read_jpeg_header(bytes);
    const bool is_bare = header && !header->has_remarks && end_of_picture(bytes, *header) == bytes.size();
    return is_bare ? file : without_remarks(bytes).value_or("");
}

picture_size size_in(const std::string & jpeg)
{
    const std::optional<jpeg_header> header = read_jpeg_header(bytes_of_text(jpeg));
    return header ? header->size : picture_size{};
}

}  // namespace

preparing::preparing(std::vector<intake_photo> wanted, prepared_shelf & copies, decoder program,
                     worker_pool & workers)
    : all(std::move(wanted)), shelf(copies), used(std::move(program)), pool(workers)
{
    for (std::size_t i = 0; i < all.size(); ++i)
        if (all[i].need == photo_need::copy || all[i].need == photo_need::decoding)
            todo.push_back(i);
    engage();
}

preparing::~preparing()
{
    stop();
    for (std::future<void> & worker : engaged)
        worker.wait();
}

// Where the pool is full of other work the rest is asked for later.
void preparing::engage()
{
    const std::size_t most = std::min(todo.size(), static_cast<std::size_t>(std::max(pool.count(), 1)));
    while (engaged.size() < most && pool.has_room())
        engaged.push_back(pool.begin([this] { work(); }));
}

bool preparing::is_over_within(std::chrono::milliseconds longest)
{
    engage();
    const auto latest = std::chrono::steady_clock::now() + longest;
    if (engaged.empty() && !todo.empty()) {
        std::this_thread::sleep_until(latest);
        return false;
    }
    return std::ranges::all_of(engaged, [&](std::future<void> & worker) {
        return worker.wait_until(latest) == std::future_status::ready;
    });
}

void preparing::work()
{
    for (;;) {
        const std::size_t mine = next++;
        if (mine >= todo.size())
            return;
        prepare(all[todo[mine]]);
        ++done_count;
    }
}

void preparing::prepare(intake_photo & photo)
{
    if (stopping)
        return refuse(photo, told(decode_fault::stopped));
    try {
        with_platform_errors([&] { photo.ready = copy_of(photo).value_or(""); });
        if (!photo.ready.empty())
            photo.size = looked_at(photo.ready).size;
    } catch (const platform_error & error) {
        refuse(photo, "its copy can't be made: " + told(error));
    }
}

std::optional<std::string> preparing::copy_of(intake_photo & photo)
{
    const std::optional<photo_identity> identity = identity_of(photo.path);
    if (!identity) {
        refuse(photo, "there is no such file any more");
        return std::nullopt;
    }
    if (const std::optional<std::string> copy = shelf.found(*identity))
        return copy;
    const std::optional<std::string> jpeg = jpeg_for(photo);
    if (!jpeg || stopping)
        return std::nullopt;
    ++made_count;
    return shelf.put(*identity, *jpeg);
}

// A photo that is only copied is decoded as well: a damaged one would leave a grey part on the poster.
std::optional<std::string> preparing::jpeg_for(intake_photo & photo)
{
    decoder_answer answer = answer_for(used, photo.path, photo.kind, stopping);
    if (!answer.fault && size_in(answer.jpeg) == picture_size{})
        answer.fault = decode_fault::broken_down;
    if (answer.fault) {
        refuse(photo, told(*answer.fault));
        return std::nullopt;
    }
    without_sandbox = without_sandbox || answer.kept_by == sandbox::none;
    return photo.need == photo_need::copy ? copied_jpeg(photo.path) : std::move(answer.jpeg);
}
