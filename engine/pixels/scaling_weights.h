#pragma once

#include <span>
#include <vector>

/// Which pixels of a line make one pixel of the scaled line, and how much each of them counts.
struct scaling_window {
    int first = 0;
    std::span<const double> weights;  ///< of the pixels from `first` on
};

/// The windows of a scaled line. Their weights are to the last bit those of the image library's bilinear
/// filter: its sums, in its order, round to the same bytes.
class scaling_weights {
public:
    scaling_weights() = default;
    /// For a line of `source` pixels that becomes `target` pixels; both at least 1.
    scaling_weights(int source, int target);

    int size() const { return static_cast<int>(windows.size()); }
    scaling_window operator[](int index) const;

    /// True where every pixel is the pixel of the same index.
    bool is_identity() const { return identity; }

    /// Pixels of the longest window.
    int longest() const { return most; }

private:
    struct part {
        int first = 0, count = 0;
    };
    std::vector<part> windows;
    std::vector<double> weights;
    int room = 0;  // weights between one window's first and the next one's
    int most = 0;
    bool identity = false;
};
