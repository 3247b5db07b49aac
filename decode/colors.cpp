#include "decode/colors.h"

#include "intake/color_profile.h"

#include <lcms2.h>
#include <memory>

namespace {

struct profile_closer {
    void operator()(void * profile) const { cmsCloseProfile(profile); }
};
using open_profile = std::unique_ptr<void, profile_closer>;

struct curve_closer {
    void operator()(cmsToneCurve * curve) const { cmsFreeToneCurve(curve); }
};

cmsUInt32Number format_of(const samples & picture)
{
    const bool wide = picture.bytes_each == 2;
    switch (picture.model) {
        case sample_model::grey:
            return wide ? TYPE_GRAY_16 : TYPE_GRAY_8;
        case sample_model::cmyk:
            return wide ? TYPE_CMYK_16 : TYPE_CMYK_8;
        case sample_model::cmyk_inverted:
            return wide ? TYPE_CMYK_16_REV : TYPE_CMYK_8_REV;
        default:
            return wide ? TYPE_RGB_16 : TYPE_RGB_8;
    }
}

cmsColorSpaceSignature space_of(sample_model model)
{
    if (model == sample_model::grey)
        return cmsSigGrayData;
    return model == sample_model::rgb ? cmsSigRgbData : cmsSigCmykData;
}

// The nearest of 256 levels.
std::uint8_t in_8_bits(const samples & picture, std::size_t i)
{
    if (picture.bytes_each == 1)
        return picture.values[i];
    constexpr unsigned most = 65535, levels = 255;
    return static_cast<std::uint8_t>(
        (reinterpret_cast<const std::uint16_t *>(picture.values.data())[i] * levels + most / 2) / most);
}

rgb_triple plain_color(const samples & picture, std::size_t at)
{
    const auto value = [&](std::size_t i) { return in_8_bits(picture, at + i); };
    if (picture.model == sample_model::grey)
        return {.red = value(0), .green = value(0), .blue = value(0)};
    if (picture.model == sample_model::rgb)
        return {.red = value(0), .green = value(1), .blue = value(2)};
    const auto left_by_ink = [&](std::size_t i) {
        const unsigned rest = picture.model == sample_model::cmyk ? 255U - value(i) : value(i);
        const unsigned black = picture.model == sample_model::cmyk ? 255U - value(3) : value(3);
        return static_cast<std::uint8_t>((rest * black + 127U) / 255U);
    };
    return {.red = left_by_ink(0), .green = left_by_ink(1), .blue = left_by_ink(2)};
}

samples without_profile(samples picture)
{
    if (picture.model == sample_model::rgb && picture.bytes_each == 1)
        return picture;
    samples plain = made_samples(picture.size, sample_model::rgb, 1);
    const auto step = static_cast<std::size_t>(samples_a_pixel(picture.model));
    for (std::size_t to = 0, from = 0; to < plain.values.size(); to += 3, from += step) {
        const rgb_triple color = plain_color(picture, from);
        plain.values[to] = color.red;
        plain.values[to + 1] = color.green;
        plain.values[to + 2] = color.blue;
    }
    return plain;
}

open_profile profile_of(const samples & picture)
{
    open_profile profile(
        cmsOpenProfileFromMem(picture.profile.data(), static_cast<cmsUInt32Number>(picture.profile.size())));
    if (profile && cmsGetColorSpace(profile.get()) != space_of(picture.model))
        profile.reset();
    return profile;
}

samples converted(const samples & picture, cmsHTRANSFORM transform)
{
    samples result = made_samples(picture.size, sample_model::rgb, 1);
    const auto width = static_cast<std::size_t>(picture.size.width);
    const std::size_t row =
        width * static_cast<std::size_t>(samples_a_pixel(picture.model) * picture.bytes_each);
    for (std::size_t y = 0; y < static_cast<std::size_t>(picture.size.height); ++y)
        cmsDoTransform(transform, &picture.values[y * row], &result.values[y * width * 3],
                       static_cast<cmsUInt32Number>(width));
    return result;
}

std::string bytes_of(cmsHPROFILE profile)
{
    cmsUInt32Number count = 0;
    if (profile == nullptr || !cmsSaveProfileToMem(profile, nullptr, &count))
        return {};
    std::string bytes(count, '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &count);
    return bytes;
}

cmsToneCurve * made_curve(light_curve kind)
{
    const std::array<double, 5> srgb{2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
    const std::array<double, 5> video{1 / 0.45, 1 / 1.099, 0.099 / 1.099, 1 / 4.5, 0.081};
    constexpr int with_straight_start = 4;
    switch (kind) {
        case light_curve::srgb:
            return cmsBuildParametricToneCurve(nullptr, with_straight_start, srgb.data());
        case light_curve::video:
            return cmsBuildParametricToneCurve(nullptr, with_straight_start, video.data());
        case light_curve::gamma_22:
            return cmsBuildGamma(nullptr, 2.2);
        case light_curve::adobe:
            return cmsBuildGamma(nullptr, 563.0 / 256.0);
        case light_curve::gamma_28:
            return cmsBuildGamma(nullptr, 2.8);
        default:
            return cmsBuildGamma(nullptr, 1.0);
    }
}

}  // namespace

samples in_srgb(samples picture)
{
    const bool is_plain = picture.profile.empty() ||
                          (picture.model == sample_model::rgb && is_srgb(bytes_of_text(picture.profile)));
    const open_profile source = is_plain ? nullptr : profile_of(picture);
    const open_profile target(cmsCreate_sRGBProfile());
    // For 16 bits the library would go by a table, and miss dark colours by several levels.
    const cmsUInt32Number way = picture.bytes_each == 2 ? cmsFLAGS_NOOPTIMIZE : 0;
    cmsHTRANSFORM transform = source ? cmsCreateTransform(source.get(), format_of(picture), target.get(),
                                                          TYPE_RGB_8, INTENT_PERCEPTUAL, way)
                                     : nullptr;
    const int orientation = picture.orientation;
    const std::string taken = picture.taken;
    samples result = transform ? converted(picture, transform) : without_profile(std::move(picture));
    if (transform)
        cmsDeleteTransform(transform);
    result.orientation = orientation;
    result.taken = taken;
    result.profile.clear();
    return result;
}

std::string made_profile(const std::array<chromaticity, 3> & primaries, light_curve curve)
{
    const cmsCIExyY white{.x = 0.3127, .y = 0.3290, .Y = 1};
    const auto lit = [&](std::size_t i) {
        return cmsCIExyY{.x = primaries.at(i).x, .y = primaries.at(i).y, .Y = 1};
    };
    const cmsCIExyYTRIPLE all{.Red = lit(0), .Green = lit(1), .Blue = lit(2)};
    const std::unique_ptr<cmsToneCurve, curve_closer> made(made_curve(curve));
    const std::array<cmsToneCurve *, 3> curves{made.get(), made.get(), made.get()};
    return bytes_of(open_profile(cmsCreateRGBProfile(&white, &all, curves.data())).get());
}

std::string adobe_rgb_profile()
{
    return made_profile({{{.x = 0.64, .y = 0.33}, {.x = 0.21, .y = 0.71}, {.x = 0.15, .y = 0.06}}},
                        light_curve::adobe);
}
