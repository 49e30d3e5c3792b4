// The commands as a list for people.
#include "preview/text_listing.h"

#include <sstream>

#include "tests/unit/tspl/test_support.h"

namespace preview {
namespace {

std::string listed(std::string_view stream) {
    std::ostringstream out;
    TextListing listing(out);
    tspl::obeyStream(stream, listing);
    return out.str();
}

TEST(TextListing, HasALineForEachCommandWithItsOffset) {
    EXPECT_EQ(listed("\n\nSIZE 4,6\r\ncls\r\n"),
              "         0  (2 blank lines)\n"
              "         2  SIZE 4,6\n"
              "        12  cls\n");
}

TEST(TextListing, SumsUpBitmaps) {
    EXPECT_EQ(listed("BITMAP 0,0,2,1,0,\xFF\x0F\nPRINT 1"),
              "         0  BITMAP 0,0,2,1,0,  (16 x 1 dots, 2 bytes, 25.0 % of the dots burnt)\n"
              "        20  PRINT 1\n");
}

TEST(TextListing, AddsRemarks) {
    EXPECT_EQ(listed("WHAT\nBITMAP 0,0,1,1,9,a"),
              "         0  WHAT  [unknown]\n"
              "         5  BITMAP 0,0,1,1,9,  (8 x 1 dots, 1 byte, 62.5 % of the dots burnt)  "
              "[not drawn]\n");
}

TEST(TextListing, ShowsOtherBytesAsTheirNumbers) {
    EXPECT_EQ(listed("TLC39 1,2,30,\"\xE4\t\\\"\n\x1b!S"),
              "         0  TLC39 1,2,30,\"\\xe4\\x09\\x5c\"  [not drawn]\n"
              "        19  \\x1b!S  [not part of the picture]\n");
}

TEST(TextListing, TakesOffsetsOfAnyLength) {
    std::ostringstream out;
    TextListing listing(out);
    listing.onEntry({12345678901234, "CLS", {}, "CLS", std::nullopt, ""});
    EXPECT_EQ(out.str(), "12345678901234  CLS\n");
}

TEST(TextListing, HasNoLinesForFindingsAndLabels) {
    std::ostringstream out;
    TextListing listing(out);
    const tspl::DotCanvas canvas(1, 1);
    listing.onFinding({tspl::Finding::Kind::Complaint, 0, "wrong"});
    listing.onLabel({1, 1, 1, tspl::LabelPicture(canvas, 1, 1, 203, {})});
    EXPECT_EQ(out.str(), "");
}

TEST(Describe, TellsHowManyBytesOfABitmapAreThere) {
    EXPECT_EQ(describe({808, 1218, 123018, 123018, 251942}),
              "808 x 1218 dots, 123018 bytes, 25.6 % of the dots burnt");
    EXPECT_EQ(describe({8, 1, 1, 0, 0}), "8 x 1 dots, 0 of 1 byte, 0.0 % of the dots burnt");
    EXPECT_EQ(describe({8, 2, 2, 1, 0}), "8 x 2 dots, 1 of 2 bytes, 0.0 % of the dots burnt");
    EXPECT_EQ(describe({16, 3, 6, 2, 16}), "16 x 3 dots, 2 of 6 bytes, 100.0 % of the dots burnt");
    EXPECT_EQ(describe({0, 3, 0, 0, 0}), "0 x 3 dots, 0 bytes, 0.0 % of the dots burnt");
}

}  // namespace
}  // namespace preview
