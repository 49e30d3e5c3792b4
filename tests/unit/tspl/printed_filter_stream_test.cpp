// What the driver's filter sends is free of complaints, and prints the image that it was made of.
#include "tests/reference/tspl.h"

#include <algorithm>

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

using reference::GreyImage;
using reference::PageHeader;
using reference::Settings;

// Burnt are the pixels that are not 0.
GreyImage noise(std::size_t width, std::size_t height) {
    GreyImage image = reference::filledImage(width, height, 0);
    std::uint32_t state = 1;
    for (std::uint8_t& byte : image.bytes) {
        state = state * 1664525 + 1013904223;
        byte = state >> 30U == 0 ? 255 : 0;
    }
    return image;
}

// Rows lie without padding in what the filter packs, whatever the distance of the image's rows.
Texts rowsOf(const GreyImage& image) {
    Texts rows;
    for (std::size_t y = 0; y < image.height; ++y) {
        std::string row;
        for (std::size_t x = 0; x < image.width; ++x) {
            row += image.bytes[y * image.width + x] != 0 ? '#' : '.';
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

PageHeader headerOf(const GreyImage& image, std::uint32_t dpi) {
    PageHeader header;
    header.width = static_cast<std::uint32_t>(image.width);
    header.height = static_cast<std::uint32_t>(image.height);
    header.xDpi = dpi;
    header.yDpi = dpi;
    return header;
}

// Nothing of it burns.
bool isBlank(const GreyImage& image) {
    const Texts rows = rowsOf(image);
    return std::all_of(rows.begin(), rows.end(),
                       [](const std::string& row) { return row.find('#') == std::string::npos; });
}

void expectPrinted(const GreyImage& image, std::uint32_t dpi, const Settings& settings = {}) {
    RecordingSink sink;
    obeyStream(reference::preamble() + reference::tsplPage(settings, headerOf(image, dpi), image),
               sink);
    // PRINT, the last command, is what is complained of.
    Texts expected;
    if (isBlank(image)) {
        const std::uint64_t print = sink.entries.back().offset;
        expected = {"complaint " + std::to_string(print) + " the label is blank"};
    }
    EXPECT_EQ(sink.findings, expected) << image.width << " at " << dpi;
    ASSERT_EQ(sink.labels.size(), 1U);
    EXPECT_EQ(sink.labels.front().dpi, static_cast<int>(dpi)) << image.width;
    EXPECT_EQ(sink.labels.front().rows, rowsOf(image)) << image.width << " at " << dpi;
}

TEST(FilterStream, PrintsEveryWidthOfWholeBytes) {
    for (const std::uint32_t dpi : {203U, 300U, 600U}) {
        for (std::size_t width = 8; width <= 2400; width += 8) {
            expectPrinted(noise(width, 3 + width % 7), dpi);
        }
    }
}

TEST(FilterStream, PrintsEveryOtherWidthAt203Dpi) {
    for (std::size_t width = 33; width <= 330; ++width) {
        expectPrinted(noise(width, 5), 203);
    }
}

// One decimal of a millimetre is more than a dot there: the label may be wider than the page.
TEST(FilterStream, LosesNoColumnOfEveryOtherWidthAt300And600Dpi) {
    for (const std::uint32_t dpi : {300U, 600U}) {
        for (std::size_t width = 33; width <= 330; ++width) {
            const GreyImage image = noise(width, 5);
            const std::string stream = reference::tsplPage({}, headerOf(image, dpi), image);
            EXPECT_EQ(findingsOf(stream), Texts{}) << width << " at " << dpi;
            Texts rows = pictureOf(stream);
            for (std::string& row : rows) {
                row.resize(width);
            }
            EXPECT_EQ(rows, rowsOf(image)) << width << " at " << dpi;
        }
    }
}

TEST(FilterStream, PrintsEveryHeight) {
    for (const std::uint32_t dpi : {203U, 300U, 600U}) {
        for (std::size_t height = 1; height <= 300; ++height) {
            expectPrinted(noise(64, height), dpi);
        }
    }
}

TEST(FilterStream, PrintsBareAndBlackPages) {
    expectPrinted(reference::filledImage(808, 20, 0), 203);
    expectPrinted(reference::filledImage(808, 20, 255), 203);
}

// A page with one setting other than it is at first.
template <class Value>
std::string pageWith(Value Settings::*setting, const Value& value) {
    const GreyImage image = noise(16, 4);
    Settings settings;
    settings.*setting = value;
    return reference::tsplPage(settings, headerOf(image, 203), image);
}

void expectFine(std::string Settings::*setting, const std::vector<std::string>& values) {
    for (const std::string& value : values) {
        EXPECT_EQ(findingsOf(pageWith(setting, value)), Texts{}) << value;
    }
}

TEST(FilterStream, IsFreeOfComplaintsWhateverTheSettings) {
    expectFine(&Settings::postAction,
               {"Normal", "None", "TearOff", "PeelOff", "Cut", "PartialCut", ""});
    expectFine(&Settings::mediaMethod, {"Direct", "Transfer", ""});
    expectFine(&Settings::printSpeed, {"Normal", "1", "2", "6", "1.5", "0", "-1", ""});
    for (int darkness = -1; darkness <= 31; ++darkness) {
        EXPECT_EQ(findingsOf(pageWith(&Settings::darkness, darkness)), Texts{}) << darkness;
    }
}

TEST(FilterStream, IsFreeOfComplaintsOnEveryPaper) {
    for (const char* paper : {"Normal", "Continue", "LabelGaps", "LabelMark", "Other", ""}) {
        for (const float gap : {-1.0F, 0.0F, 2.0F, 3.25F}) {
            EXPECT_EQ(findingsOf(reference::gapCommand(gap, paper)), Texts{}) << paper << gap;
        }
    }
}

TEST(FilterStream, IsTurnedByItsOrigin) {
    const Texts upright = pictureOf(pageWith(&Settings::origin, std::string("Normal")));
    Texts turned = pictureOf(pageWith(&Settings::origin, std::string("Rotation180")));
    EXPECT_EQ(upright, rowsOf(noise(16, 4)));
    std::reverse(turned.begin(), turned.end());
    for (std::string& row : turned) {
        std::reverse(row.begin(), row.end());
    }
    EXPECT_EQ(turned, upright);
}

TEST(FilterStream, PrintsPageAfterPage) {
    const GreyImage first = noise(16, 4);
    const GreyImage second = reference::filledImage(16, 4, 255);
    PageHeader header = headerOf(first, 203);
    header.copies = 3;
    RecordingSink sink;
    obeyStream(reference::preamble() + reference::tsplPage({}, header, first) +
                   reference::tsplPage({}, header, second) + reference::tsplPage({}, header, first),
               sink);
    EXPECT_EQ(sink.findings, Texts{});
    ASSERT_EQ(sink.labels.size(), 3U);
    EXPECT_EQ(sink.labels[0].rows, rowsOf(first));
    EXPECT_EQ(sink.labels[1].rows, rowsOf(second));
    EXPECT_EQ(sink.labels[2].rows, rowsOf(first));
    EXPECT_EQ(sink.labels[0].sets, 1);
    EXPECT_EQ(sink.labels[0].copies, 3);
}

}  // namespace
}  // namespace tspl
