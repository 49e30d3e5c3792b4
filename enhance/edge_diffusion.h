#pragma once

#include <cstddef>
#include <memory>

#include "enhance/edge_kernels.h"
#include "enhance/qm_image.h"

/// Halftones a grey image to 0 (black) and 255 (white: strictly above `threshold`) by error
/// diffusion with six cells, two of them negative. A white dot inside the page takes less off
/// the error for each black neighbour above and to the left, which keeps lines from bleeding.
/// The principle is that of Floyd and Steinberg, "An adaptive algorithm for spatial grayscale",
/// Proc. SID 17, 1976; about 6 % of the error is dropped at every dot.
QMImage edf_cus(const QMImage& src, int threshold);

/// The same for a page that comes in bands of rows.
///
/// The rows of a band are worked on at once, each some columns behind the row above it, so that
/// every pixel has all shares of the row above before it gets the first one of its own row: the
/// order, and with it every rounding, is that of going through the page pixel by pixel.
class EdgeDiffusion {
public:
    static constexpr int rows = EdgeBands::rows;  ///< of a band

    EdgeDiffusion(int width, int height, int threshold);

    /// Decides the dots of the next band from its levels; of the last band as many rows as the
    /// page has left. Rows lie `levelStride` and `dotStride` bytes apart.
    void diffuseBand(const unsigned char* levels, std::ptrdiff_t levelStride, unsigned char* dots,
                     std::ptrdiff_t dotStride);

private:
    std::unique_ptr<EdgeBands> bands_;
};
