#pragma once

#include <cstdint>

/// Colours that the session gives to its own windows, in the order of controls: red in the low byte.

/// The dark neutral of the about window, which the main window takes over once a collage has been begun.
inline constexpr std::uint32_t about_background = 0x2B2826;

/// Text on it.
inline constexpr std::uint32_t text_color = 0xECEAE9;

/// The stage on which the start picture stands.
inline constexpr std::uint32_t stage_background = 0;
