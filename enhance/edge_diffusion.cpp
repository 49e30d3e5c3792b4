#include "enhance/edge_diffusion.h"

#include <algorithm>

#include "lanes/choice.h"

EdgeDiffusion::EdgeDiffusion(int width, int height, int threshold)
    : bands_(lanes::best<EdgeKernels>().make(std::max(width, 0), height,
                                             static_cast<float>(threshold))) {}

void EdgeDiffusion::diffuseBand(const unsigned char* levels, std::ptrdiff_t levelStride,
                                unsigned char* dots, std::ptrdiff_t dotStride) {
    bands_->diffuse({levels, levelStride, dots, dotStride});
}

QMImage edf_cus(const QMImage& src, int threshold) {
    QMImage out(src.width, src.height, QM_IMG_GRAY);
    EdgeDiffusion diffusion(src.width, src.height, threshold);
    for (int y = 0; y < src.height; y += EdgeDiffusion::rows) {
        const std::ptrdiff_t start = std::ptrdiff_t{y} * src.width;
        diffusion.diffuseBand(src.data + start, src.width, out.data + start, src.width);
    }
    return out;
}
