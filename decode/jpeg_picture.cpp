#include "decode/jpeg_picture.h"

#include "decode/colors.h"
#include "intake/jpeg_header.h"

#include <memory>
#include <turbojpeg.h>

namespace {

constexpr int quality = 95;

struct codec_closer {
    void operator()(void * codec) const { tjDestroy(codec); }
};
using open_codec = std::unique_ptr<void, codec_closer>;

struct buffer_closer {
    void operator()(std::uint8_t * buffer) const { tjFree(buffer); }
};

open_codec checked(tjhandle codec)
{
    if (codec == nullptr)
        throw decode_fault::no_memory;
    return open_codec(codec);
}

// Stray bytes between segments do no harm; what else is warned of leaves a part of the picture grey.
void expect_whole(tjhandle codec, int result)
{
    if (result == 0)
        return;
    const std::string_view told = tjGetErrorStr2(codec);
    if (tjGetErrorCode(codec) != TJERR_WARNING || told.find("extraneous bytes") == std::string_view::npos)
        throw decode_fault::damaged;
}

unsigned long size_of(byte_view file)
{
    return static_cast<unsigned long>(file.size());
}

sample_model model_of(const jpeg_header & header, int color_space)
{
    if (color_space == TJCS_CMYK || color_space == TJCS_YCCK)
        return header.has_adobe_mark ? sample_model::cmyk_inverted : sample_model::cmyk;
    return color_space == TJCS_GRAY ? sample_model::grey : sample_model::rgb;
}

int format_of(sample_model model)
{
    if (model == sample_model::grey)
        return TJPF_GRAY;
    return model == sample_model::rgb ? TJPF_RGB : TJPF_CMYK;
}

int step_for(int orientation)
{
    constexpr int steps[] = {TJXOP_NONE,      TJXOP_NONE,  TJXOP_HFLIP,      TJXOP_ROT180, TJXOP_VFLIP,
                             TJXOP_TRANSPOSE, TJXOP_ROT90, TJXOP_TRANSVERSE, TJXOP_ROT270};
    return steps[orientation];
}

}  // namespace

samples jpeg_picture(byte_view file)
{
    const std::optional<jpeg_header> header = read_jpeg_header(file);
    if (!header)
        throw decode_fault::damaged;
    expect_usable(header->size.width, header->size.height);
    const open_codec codec = checked(tjInitDecompress());
    int width = 0, height = 0, sampling = 0, color_space = 0;
    if (tjDecompressHeader3(codec.get(), file.data(), size_of(file), &width, &height, &sampling,
                            &color_space) != 0)
        throw decode_fault::not_known;
    const sample_model model = model_of(*header, color_space);
    samples picture = made_samples({.width = width, .height = height}, model, 1);
    expect_whole(codec.get(),
                 tjDecompress2(codec.get(), file.data(), size_of(file), picture.values.data(), width, 0,
                               height, format_of(model), TJFLAG_ACCURATEDCT | TJFLAG_LIMITSCANS));
    picture.orientation = header->notes.orientation;
    picture.taken = header->notes.taken;
    picture.profile = header->profile;
    if (picture.profile.empty() && header->notes.is_adobe_rgb)
        picture.profile = adobe_rgb_profile();
    return picture;
}

std::optional<std::string> turned_without_loss(byte_view file, int orientation)
{
    const open_codec codec = checked(tjInitTransform());
    tjtransform wanted{};
    wanted.op = step_for(orientation);
    wanted.options = TJXOPT_PERFECT | TJXOPT_COPYNONE;
    std::uint8_t * turned = nullptr;
    unsigned long size = 0;
    const int result =
        tjTransform(codec.get(), file.data(), size_of(file), 1, &turned, &size, &wanted, TJFLAG_LIMITSCANS);
    const std::unique_ptr<std::uint8_t, buffer_closer> owned(turned);
    if (result != 0 && tjGetErrorCode(codec.get()) == TJERR_FATAL)
        return std::nullopt;
    expect_whole(codec.get(), result);
    return std::string(reinterpret_cast<const char *>(turned), size);
}

std::string jpeg_of_samples(const samples & picture)
{
    const open_codec codec = checked(tjInitCompress());
    std::uint8_t * made = nullptr;
    unsigned long size = 0;
    const int result =
        tjCompress2(codec.get(), picture.values.data(), picture.size.width, 0, picture.size.height, TJPF_RGB,
                    &made, &size, TJSAMP_444, quality, TJFLAG_ACCURATEDCT);
    const std::unique_ptr<std::uint8_t, buffer_closer> owned(made);
    if (result != 0)
        throw decode_fault::no_memory;
    return {reinterpret_cast<const char *>(made), size};
}
