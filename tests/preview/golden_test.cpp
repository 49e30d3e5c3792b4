#include <gtest/gtest.h>

#include "tests/preview/dot_picture.h"
#include "tests/preview/preview_run.h"
#include "tests/reference/page_process.h"
#include "tests/support/raster_reader.h"
#include "tests/system/comparison.h"

namespace {

// A raster file, the stream that is sent for it and the picture of its print, and the queue and
// the options it is printed with.
struct Triple {
    std::string name;
    std::string ppd;
    std::string options;
    int halftoneType;
    std::uint32_t dpi;
    std::uint32_t dotsPerMetre;
};

std::string golden(const std::string& file) {
    return std::string(KESTO_GOLDEN_FOLDER "/") + file;
}

class Golden : public testing::TestWithParam<Triple> {};

TEST_P(Golden, TheFilterSendsTheStreamForTheRaster) {
    const Triple& triple = GetParam();
    FilterCall call;
    call.arguments = {"1", "golden",       triple.name,
                      "1", triple.options, golden(triple.name + ".raster")};
    call.environment = {{"PPD", KESTO_PPD_FOLDER "/" + triple.ppd}};
    expectSameBytes(readFile(golden(triple.name + ".tspl")), filterStream(call), "stream");
}

TEST_P(Golden, ThePreviewerDrawsThePictureOfTheStream) {
    const Triple& triple = GetParam();
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {golden(triple.name + ".tspl")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardError, "");
    const std::string name = triple.name + "-1.png";
    ASSERT_EQ(folder.names(), std::set<std::string>{name});
    const PngPicture expected = readPng(golden(name));
    const PngPicture actual = readPng(folder.path(name));
    EXPECT_EQ(differenceOf(expected.picture, actual.picture), "");
    EXPECT_EQ(expected.xDotsPerMetre, actual.xDotsPerMetre);
    EXPECT_EQ(expected.yDotsPerMetre, actual.yDotsPerMetre);
}

TEST_P(Golden, ThePictureIsTheFinishedImageOfTheRaster) {
    const Triple& triple = GetParam();
    constexpr std::size_t mostBytes = 1U << 24U;  // any of the pages here is smaller
    const auto pages = pagesIn(readFile(golden(triple.name + ".raster")), mostBytes);
    ASSERT_EQ(pages.size(), 1U);
    ASSERT_TRUE(pages[0].readable);
    EXPECT_EQ(pages[0].header.xDpi, triple.dpi);
    reference::PageProperties properties;
    properties.halftoneType = triple.halftoneType;
    const auto processed = processPage(pages[0], properties);
    const PngPicture picture = readPng(golden(triple.name + "-1.png"));
    EXPECT_EQ(differenceOf(burntDots(processed.finished.value()), picture.picture), "");
    EXPECT_EQ(picture.xDotsPerMetre, triple.dotsPerMetre);
    EXPECT_EQ(picture.yDotsPerMetre, triple.dotsPerMetre);
}

TEST_P(Golden, TheStreamIsClean) {
    const TemporaryFolder folder;
    const FilterResult result = runPreview(folder, {"--check", golden(GetParam().name + ".tspl")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.standardOutput,
              golden(GetParam().name + ".tspl") + ": 1 label, no complaints\n");
}

// 203 / 0.0254 = 7992.1 and 300 / 0.0254 = 11811.02 dots per metre.
const Triple sTriples[] = {
    {"label", "kstl203.ppd", "PageSize=2x1in HalftoneType=None", 0, 203, 7992},
    {"stencil", "ksts300.ppd", "PageSize=Tattoo_A6 HalftoneType=Tattoo", 8, 300, 11811},
};

std::string nameOf(const testing::TestParamInfo<Triple>& triple) {
    return triple.param.name == "label" ? "Label" : "Stencil";
}

INSTANTIATE_TEST_SUITE_P(Triples, Golden, testing::ValuesIn(sTriples), nameOf);

}  // namespace
