// The stencils against the plain reference, byte for byte.
#include <gtest/gtest.h>

#include <string>

#include "enhance/tattoo_dithering.h"
#include "tests/reference/stencil.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::bytesOf;
using stencil_pages::GreyPage;
using stencil_pages::imageOf;

using MakePage = GreyPage (*)(int width, int height, std::uint32_t seed);

class StencilsOf : public testing::TestWithParam<MakePage> {
protected:
    void expectAsReference(int width, int height, std::uint32_t seed) {
        const GreyPage page = GetParam()(width, height, seed);
        for (const bool x8 : {false, true}) {
            SCOPED_TRACE(testing::Message() << width << " x " << height << ", X8 " << x8);
            const QMImage image = imageOf(page);
            ASSERT_EQ(bytesOf(x8 ? qmTattooDitheringX8(image) : qmTattooDithering(image)),
                      reference::stencil(static_cast<std::size_t>(width),
                                         static_cast<std::size_t>(height), page.levels, x8));
        }
    }
};

TEST_P(StencilsOf, EveryWidthEqualTheReference) {
    for (int width = 1; width <= 130 && !HasFailure(); ++width) {
        for (const int height : {1, 2, 3, 5, 12, 31}) {
            expectAsReference(width, height, static_cast<std::uint32_t>(width + 1000 * height));
        }
    }
}

TEST_P(StencilsOf, EveryHeightAreThoseOfTheReference) {
    for (int height = 1; height <= 130 && !HasFailure(); height += 3) {
        for (const int width : {1, 2, 37}) {
            expectAsReference(width, height, static_cast<std::uint32_t>(height));
        }
    }
}

TEST_P(StencilsOf, ALargePageEqualTheReference) {
    expectAsReference(608, 401, 21);
}

std::string kindOf(const testing::TestParamInfo<MakePage>& page) {
    constexpr const char* kinds[] = {"Noise", "Photograph", "LineArt"};
    return kinds[page.index];
}

INSTANTIATE_TEST_SUITE_P(Pages, StencilsOf,
                         testing::Values(stencil_pages::noisePage, stencil_pages::photographPage,
                                         stencil_pages::lineArtPage),
                         kindOf);

}  // namespace
