#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "tests/preview/dot_picture.h"
#include "tests/preview/preview_run.h"
#include "tests/system/test_job.h"

namespace {

using nlohmann::json;
using reference::Job;
using reference::Page;

// Black bars of random places and sizes on bare paper.
Page barPage(unsigned width, unsigned height, unsigned seed) {
    std::minstd_rand random(seed);
    Page page = greyPage(width, height);
    page.rows.assign(page.rows.size(), 0);
    for (int bar = 0; bar < 6; ++bar) {
        const unsigned left = static_cast<unsigned>(random()) % width;
        const unsigned top = static_cast<unsigned>(random()) % height;
        const unsigned right = left + static_cast<unsigned>(random()) % (width - left);
        const unsigned bottom = top + static_cast<unsigned>(random()) % (height - top);
        for (unsigned y = top; y <= bottom; ++y) {
            for (unsigned x = left; x <= right; ++x) {
                page.rows[std::size_t{y} * width + x] = 255;
            }
        }
    }
    return page;
}

Page levelPage(unsigned width, unsigned height, unsigned level) {
    Page page = greyPage(width, height);
    page.rows.assign(page.rows.size(), static_cast<std::uint8_t>(level));
    return page;
}

// A page of one of three kinds.
Page anyPage(unsigned width, unsigned dpi) {
    const auto height = *rc::gen::inRange(1U, 301U);
    const auto seed = *rc::gen::inRange(0U, 256U);
    const auto kind = *rc::gen::inRange(0, 3);
    Page page = kind == 0   ? barPage(width, height, seed + 1)
                : kind == 1 ? greyPage(width, height, seed + 1)
                            : levelPage(width, height, seed);
    page.header.xDpi = page.header.yDpi = dpi;
    page.header.copies = *rc::gen::inRange(1U, 4U);
    return page;
}

// Settings of every kind that can change a dot or a command.
void setAnySettings(reference::Settings& settings) {
    settings.halftoneType = *rc::gen::inRange(0, 10);
    settings.mirrorImage = *rc::gen::inRange(0, 2);
    settings.negativeImage = *rc::gen::inRange(0, 2);
    settings.brightness =
        *rc::gen::element(0, *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(-100, 101)));
    settings.origin = *rc::gen::element<std::string>("Normal", "Rotation180");
    settings.paperType = *rc::gen::element<std::string>("LabelGaps", "LabelMark", "Continue");
    settings.postAction = *rc::gen::element<std::string>("Normal", "TearOff", "PeelOff", "Cut");
}

// One to three pages of the given resolution, each as wide as `widthOf` says.
template <class WidthOf>
Job anyJob(unsigned dpi, WidthOf widthOf) {
    std::vector<Page> pages(*rc::gen::inRange<std::size_t>(1, 4));
    for (Page& page : pages) {
        page = anyPage(widthOf(), dpi);
    }
    Job job = labelJob(std::move(pages));
    setAnySettings(job.settings);
    return job;
}

// The lines of a list of the given type.
std::vector<json> linesOf(const std::string& list, const std::string& type) {
    std::vector<json> lines;
    std::istringstream stream(list);
    for (std::string line; std::getline(stream, line);) {
        const json parsed = json::parse(line);
        if (parsed.at("type") == type) {
            lines.push_back(parsed);
        }
    }
    return lines;
}

std::uint32_t dotsPerMetre(unsigned dpi) {
    return dpi == 203 ? 7992 : dpi == 300 ? 11811 : 23622;
}

// Of a page of nothing, and of nothing else, there is to complain.
void expectComplaintsOfBlankPagesOnly(const std::string& list,
                                      const std::vector<DotPicture>& expected) {
    const auto blank =
        std::count_if(expected.begin(), expected.end(), [](const DotPicture& picture) {
            return std::find(picture.dots.begin(), picture.dots.end(), 1) == picture.dots.end();
        });
    const auto complaints = linesOf(list, "complaint");
    RC_ASSERT(static_cast<std::ptrdiff_t>(complaints.size()) == blank);
    for (const json& complaint : complaints) {
        RC_ASSERT(complaint.at("text") == "the label is blank");
    }
}

// Prints the job, draws the stream and compares each page.
void checkRoundTrip(const Job& job, const std::vector<std::string>& options) {
    const TemporaryFolder folder;
    const std::string stream = filterStream(callFor(job, folder));
    const TemporaryFolder out;
    std::vector<std::string> arguments = {"--json", "-o", "page", "--feed-direction"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const FilterResult result = runPreview(out, arguments, stream);
    RC_ASSERT(result.status == 0);
    RC_ASSERT(result.standardError == "");
    const auto labels = linesOf(result.standardOutput, "label");
    const auto expected = picturesOf(job);
    expectComplaintsOfBlankPagesOnly(result.standardOutput, expected);
    RC_ASSERT(linesOf(result.standardOutput, "remark").empty());
    RC_ASSERT(labels.size() == expected.size());
    RC_ASSERT(out.names().size() == expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const reference::PageHeader& header = job.pages[i].header;
        const PngPicture actual = readPng(out.path("page-" + std::to_string(i + 1) + ".png"));
        RC_ASSERT(differenceOf(expected[i], actual.picture) == "");
        RC_ASSERT(actual.xDotsPerMetre == dotsPerMetre(header.xDpi));
        RC_ASSERT(actual.yDotsPerMetre == dotsPerMetre(header.yDpi));
        RC_ASSERT(labels[i].at("copies") == header.copies);
        RC_ASSERT(labels[i].at("sets") == 1);
    }
}

RC_GTEST_PROP(RoundTrip, PagesOfWholeBytesComeBackAsTheirFinishedImages, ()) {
    const auto dpi = *rc::gen::element(203U, 300U, 600U);
    checkRoundTrip(anyJob(dpi, [] { return 8 * *rc::gen::inRange(1U, 63U); }), {});
}

// SIZE gives the width to a tenth of a millimetre. The previewer cuts no column off that the page
// can have: true where `width` is the most that it can be, and where whole bytes are more than
// that. Neither is told apart where it hangs on the last bits of a sum: 6.35 mm are 150 dots of 600
// to the inch.
bool isToldBySize(unsigned width, unsigned dpi) {
    const double dotsPerTenth = dpi / 254.0;
    const double dots = std::round(width / dotsPerTenth) * dotsPerTenth;
    const unsigned wholeBytes = (width + 7) / 8 * 8;
    const double most = dots + dotsPerTenth / 2;
    constexpr double slack = 0.01;
    return std::floor(most - slack) == width && std::floor(most + slack) == width &&
           wholeBytes - most > slack;
}

// The whole bytes of a narrow label's bitmap are much wider than the label and tell a wrong
// resolution, so it is given.
RC_GTEST_PROP(RoundTrip, PagesOfOtherWidthsComeBackAsTheyLean, ()) {
    const auto dpi = *rc::gen::element(203U, 300U, 600U);
    const auto widths = rc::gen::suchThat(rc::gen::inRange(1U, 500U), [dpi](unsigned width) {
        return width % 8 != 0 && isToldBySize(width, dpi);
    });
    checkRoundTrip(anyJob(dpi, [&] { return *widths; }), {"--dpi", std::to_string(dpi)});
}

// Worked out by hand: rows of 9 dots lie 12 bytes apart and are read 9 apart, so each row shows the
// last one's padding and stands 3 dots further right.
TEST(RoundTrip, APageOfNineDotsLeansByThreeDotsARow) {
    const TemporaryFolder folder;
    Page page = levelPage(9, 3, 0);
    for (const std::size_t row : {0U, 1U, 2U}) {
        page.rows[row * 9] = 255;
    }
    const std::string stream = filterStream(callFor(labelJob({page}), folder));
    const TemporaryFolder out;
    const FilterResult result = runPreview(out, {"--dpi", "203"}, stream);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(differenceOf(drawnPicture({"#........", "...#.....", "......#.."}),
                           readPng(out.path("label-1.png")).picture),
              "");
}

}  // namespace
