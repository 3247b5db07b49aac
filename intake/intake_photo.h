#pragma once

#include "intake/picture_kind.h"
#include "support/MFreeImage.h"

#include <string>

/// What a photo needs before a collage can have it.
enum class photo_need : std::uint8_t {
    nothing,   ///< the collage takes it as it is, upright and in its colours
    copy,      ///< the picture is right, only its name or remarks aren't
    decoding,  ///< it is turned, of another format or of other colours
    refusal    ///< no picture, or one that can't be used
};

struct intake_photo {
    std::string path;
    picture_kind kind = picture_kind::none;
    photo_need need = photo_need::refusal;
    std::string why{};    ///< why it is refused, "it is damaged"; empty where it isn't
    picture_size size{};  ///< upright; known of JPEGs from the start, of others when they are prepared
    std::string ready{};  ///< the file that a collage takes; empty where there is none
};
