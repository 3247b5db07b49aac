#pragma once

#include "engine/pixels/scaling_weights.h"

#include <cstdint>

/// Weights of 16 bits, with which many pixels are weighed at once. A sum of them comes near the true one; how
/// near is known, so that it either settles the byte or leaves it in doubt.

/// One window: the sum of its weights times bytes, divided by 2 to the power of `bits`, is the scaled pixel
/// but for `doubt` of these parts.
struct coarse_window {
    int first = 0;
    std::span<const std::int16_t> weights;  ///< a multiple of four; behind the window's own there are zeros
    int bits = 0, doubt = 0;
};

class coarse_weights {
public:
    /// Weights a window is filled up to a multiple of.
    static constexpr int group = 4;

    coarse_weights() = default;
    explicit coarse_weights(const scaling_weights & exact);

    coarse_window operator[](int index) const;

private:
    struct part {
        int first = 0, bits = 0, doubt = 0;
        std::size_t start = 0, count = 0;
    };
    void add(const scaling_window & window);

    std::vector<part> windows;
    std::vector<std::int16_t> weights;
};
