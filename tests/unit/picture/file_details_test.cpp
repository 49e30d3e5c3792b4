// What is read of a picture's file besides its samples.
#include "intake/picture/file_details.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "intake/document_file.h"
#include "intake/job_failure.h"
#include "tests/support/temporary_folder.h"

namespace intake::picture {
namespace {

using namespace std::string_view_literals;

std::span<const unsigned char> bytes(std::string_view text) {
    return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

std::optional<int> orientation(std::string_view exif) {
    return exifOrientation(bytes(exif));
}

TEST(ExifOrientation, IsReadInBothByteOrders) {
    EXPECT_EQ(orientation("II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0\6\0\0\0"sv), 6);
    EXPECT_EQ(orientation("MM\0*\0\0\0\x08\0\1\1\x12\0\3\0\0\0\1\0\x08\0\0"sv), 8);
    EXPECT_EQ(orientation("Exif\0\0MM\0*\0\0\0\x08\0\1\1\x12\0\3\0\0\0\1\0\3\0\0"sv), 3);
}

TEST(ExifOrientation, IsFoundBehindOtherEntries) {
    EXPECT_EQ(
        orientation("II*\0\x08\0\0\0\2\0\x0f\1\2\0\1\0\0\0X\0\0\0\x12\1\3\0\1\0\0\0\5\0\0\0"sv), 5);
}

TEST(ExifOrientation, IsNoneInDamagedData) {
    const std::string_view whole = "II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0\6\0\0\0"sv;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_EQ(orientation(whole.substr(0, size)), std::nullopt) << size;
    }
    EXPECT_EQ(orientation("II*\0\xff\xff\xff\xff\1\0\x12\1\3\0\1\0\0\0\6\0\0\0"sv), std::nullopt);
    EXPECT_EQ(orientation("II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0\x09\0\0\0"sv), std::nullopt)
        << "no 9";
    EXPECT_EQ(orientation("II*\0\x08\0\0\0\1\0\x12\1\4\0\1\0\0\0\6\0\0\0"sv), std::nullopt)
        << "of another type";
    EXPECT_EQ(orientation("XX*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0\6\0\0\0"sv), std::nullopt);
}

FileDetails detailsOf(std::string_view content) {
    const TemporaryFolder folder;
    const std::string path = folder.write("picture", std::string(content));
    return picture::detailsOf(path, documentAt(path));
}

TEST(FileDetails, OfPnmKnowTheHighestValueUnderAByte) {
    const auto details = detailsOf("P6\n# remark 7\n3 2\t15\nxxx"sv);
    ASSERT_TRUE(details.narrow.has_value());
    EXPECT_TRUE(details.narrow->isColour);
    EXPECT_EQ(details.narrow->width, 3U);
    EXPECT_EQ(details.narrow->height, 2U);
    EXPECT_EQ(details.narrow->highest, 15U);
    EXPECT_EQ(details.narrow->begin, 21U);
    EXPECT_FALSE(detailsOf("P5 3 2 255\nxxx").narrow.has_value());
    EXPECT_FALSE(detailsOf("P2 3 2 15\n1 2 3").narrow.has_value()) << "these are words";
}

TEST(FileDetails, OfPnmRefuseNumbersThatAreNone) {
    for (const char* head :
         {"P5\n-5 -5\n255\n", "P5\n4294967297 4\n255\n", "P5\n5 5\n-1\n", "P6\n5 5\n0\n",
          "P4\n0 3\n", "P4\n5\n", "P1\nx y\n", "P5 5 5 70000\n"}) {
        EXPECT_THROW(detailsOf(head), JobFailure) << head;
    }
    EXPECT_NO_THROW(detailsOf("P4\n5 5\n"));
}

TEST(FileDetails, OfPnmInDigitsKnowWhetherTheyEndWithOne) {
    EXPECT_TRUE(detailsOf("P2 1 2 255 7 8").lacksLineEnd);
    EXPECT_FALSE(detailsOf("P2 1 2 255 7 8\n").lacksLineEnd);
    EXPECT_FALSE(detailsOf("P5 1 2 255\n18").lacksLineEnd);
}

TEST(FileDetails, OfPngKnowTheTransparentColour) {
    const std::string signature = "\x89PNG\r\n\x1a\n";
    const std::string colour(
        "\0\0\0\x0dIHDR\0\0\0\1\0\0\0\1\x08\2\0\0\0----"
        "\0\0\0\6tRNS\0\1\0\2\0\xff----"sv);
    const auto details = detailsOf(signature + colour);
    ASSERT_TRUE(details.transparent.has_value());
    EXPECT_EQ(*details.transparent, (std::array<std::uint16_t, 3>{257, 514, 65535}));
    const std::string palette(
        "\0\0\0\x0dIHDR\0\0\0\1\0\0\0\1\x08\3\0\0\0----"
        "\0\0\0\6tRNS\0\1\0\2\0\xff----"sv);
    EXPECT_FALSE(detailsOf(signature + palette).transparent.has_value());
}

TEST(FileDetails, OfPngKnowTheOrientationBehindItsSamples) {
    const std::string png(
        "\x89PNG\r\n\x1a\n\0\0\0\2IDAT..----"
        "\0\0\0\x1a"
        "eXIfMM\0*\0\0\0\x08\0\1\1\x12\0\3\0\0\0\1\0\x08\0\0\0\0\0\0----"sv);
    EXPECT_EQ(detailsOf(png).orientation, 8);
}

TEST(FileDetails, OfBmpKnowThatOlderHeadersHaveNoTransparency) {
    const std::string head(14, '.');
    EXPECT_TRUE(detailsOf("BM" + head.substr(2) + std::string("\x28\0\0\0"sv)).hasNoAlpha);
    EXPECT_FALSE(detailsOf("BM" + head.substr(2) + std::string("\x6c\0\0\0"sv)).hasNoAlpha);
}

TEST(FileDetails, OfBmpKnowTheBitsOfSamplesThatShareSixteen) {
    std::string head = "BM" + std::string(64, '\0');
    head[14] = 40;
    head[28] = 24;
    EXPECT_FALSE(detailsOf(head).ranges.has_value());
    head[28] = 16;
    const auto five = detailsOf(head).ranges;
    ASSERT_TRUE(five.has_value());
    for (const SampleRange& range : *five) {
        EXPECT_EQ(range.highest, 31U);
        EXPECT_EQ(range.shift, 3U);
    }
    head[30] = 3;
    head.replace(54, 12, std::string("\0\xf8\0\0\xe0\7\0\0\x1f\0\0\0"sv));
    const auto masked = detailsOf(head).ranges;
    ASSERT_TRUE(masked.has_value());
    EXPECT_EQ((*masked)[0].highest, 31U);
    EXPECT_EQ((*masked)[1].highest, 63U);
    EXPECT_EQ((*masked)[1].shift, 2U);
    EXPECT_EQ((*masked)[2].highest, 31U);
}

}  // namespace
}  // namespace intake::picture
