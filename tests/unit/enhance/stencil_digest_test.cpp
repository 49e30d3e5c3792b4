// The stencils of fixed pages as digests: what compiler and options must not change.
#include <gtest/gtest.h>

#include "enhance/tattoo_dithering.h"
#include "tests/reference/stencil.h"
#include "tests/unit/enhance/stencil_pages.h"

namespace {

using stencil_pages::bytesOf;
using stencil_pages::DigestCase;
using stencil_pages::digestOf;
using stencil_pages::imageOf;

TEST(StencilDigest, OfBothPipelinesIsTheSameFromEveryBuild) {
    for (const DigestCase& fixed : stencil_pages::digestCases()) {
        SCOPED_TRACE(fixed.name);
        EXPECT_EQ(digestOf(bytesOf(qmTattooDithering(imageOf(fixed.page)))), fixed.tattoo);
        EXPECT_EQ(digestOf(bytesOf(qmTattooDitheringX8(imageOf(fixed.page)))), fixed.x8);
    }
}

TEST(StencilDigest, OfTheReferenceIsTheSameFromEveryBuild) {
    for (const auto& [name, page, tattoo, x8] : stencil_pages::digestCases()) {
        SCOPED_TRACE(name);
        const auto width = static_cast<std::size_t>(page.width);
        const auto height = static_cast<std::size_t>(page.height);
        EXPECT_EQ(digestOf(reference::stencil(width, height, page.levels, false)), tattoo);
        EXPECT_EQ(digestOf(reference::stencil(width, height, page.levels, true)), x8);
    }
}

}  // namespace
