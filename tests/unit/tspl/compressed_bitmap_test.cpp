// BITMAP in mode 3: zlib data of a picture whose 1 bits burn.
#include <zlib.h>

#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

using namespace std::string_literals;

std::string compressed(const std::string& picture) {
    std::string data(compressBound(picture.size()), '\0');
    uLongf size = data.size();
    EXPECT_EQ(compress2(reinterpret_cast<Bytef*>(data.data()), &size,
                        reinterpret_cast<const Bytef*>(picture.data()), picture.size(), 9),
              Z_OK);
    data.resize(size);
    return data;
}

std::string bitmapOf(const std::string& head, const std::string& data) {
    return "BITMAP " + head + ",3," + std::to_string(data.size()) + "," + data + "\r\n";
}

std::string labelOf(const std::string& bitmap) {
    return "SIZE 16 dot,3 dot\nCLS\n" + bitmap + "PRINT 1\n";
}

TEST(CompressedBitmap, BurnsItsOneBits) {
    const std::string bitmap = bitmapOf("0,1,2,2", compressed("\xF0\x01\x00\x80"s));
    EXPECT_EQ(pictureOf(labelOf(bitmap)),
              (Texts{"................", "####...........#", "........#......."}));
}

TEST(CompressedBitmap, BurnsTheSameBitsOnAPrinterThatBurnsTheOnesOfPlainBitmaps) {
    const std::string bitmap = bitmapOf("0,0,2,1", compressed("\xF0\x01"s));
    PrinterOptions options;
    options.onesBurn = true;
    EXPECT_EQ(pictureOf(labelOf(bitmap), options), pictureOf(labelOf(bitmap)));
}

TEST(CompressedBitmap, IsFollowedByTheNextCommandWhateverItsDataHold) {
    const std::string data = compressed(std::string(4096, '\n'));
    EXPECT_EQ(findingsOf("SIZE 512 dot,64 dot\n" + bitmapOf("0,0,64,64", data) + "PRINT 1\n"),
              Texts{});
}

TEST(CompressedBitmap, ComesInPiecesOfAnySize) {
    std::string picture;
    for (int i = 0; i < 300; ++i) {
        picture += static_cast<char>(i * 37 % 251);
    }
    const std::string stream =
        "SIZE 80 dot,30 dot\n" + bitmapOf("0,0,10,30", compressed(picture)) + "PRINT 1\n";
    RecordingSink whole;
    obeyStream(stream, whole);
    RecordingSink pieces;
    PrinterModel model(pieces, {});
    StreamParser parser(model);
    for (const char& byte : stream) {
        parser.feed(bytesOf({&byte, 1}));
    }
    parser.finish();
    ASSERT_EQ(pieces.labels.size(), 1U);
    EXPECT_EQ(pieces.labels[0].rows, whole.labels[0].rows);
    EXPECT_EQ(pieces.findings, Texts{});
}

// 20 million bytes of one value take some 20,000 bytes: no more of them is made than the picture
// has.
TEST(CompressedBitmap, GivesNoMoreThanThePictureHas) {
    const std::string data = compressed(std::string(20'000'000, '\xFF'));
    EXPECT_EQ(pictureOf(labelOf(bitmapOf("0,0,2,1", data))),
              (Texts{"################", "................", "................"}));
}

TEST(CompressedBitmap, OfLessThanThePictureIsComplainedOf) {
    const std::string bitmap = bitmapOf("0,0,2,3", compressed("\xFF\xFF\xFF"s));
    EXPECT_EQ(findingsOf(bitmap),
              Texts{"complaint 0 the data of BITMAP in mode 3 hold less than the picture: 3 of 6 "
                    "bytes are there"});
}

TEST(CompressedBitmap, OfOtherDataIsComplainedOf) {
    EXPECT_EQ(findingsOf(bitmapOf("0,0,2,3", "no zlib data")),
              Texts{"complaint 0 the data of BITMAP in mode 3 are no zlib data, or damaged"});
}

TEST(CompressedBitmap, OfDamagedDataDrawsWhatComesBeforeTheDamage) {
    std::string data = compressed("\xF0\x01"s);
    data.back() ^= 1;  // of the checksum
    RecordingSink sink;
    obeyStream(labelOf(bitmapOf("0,0,2,1", data + "\n\n\n\n")), sink);
    EXPECT_EQ(sink.labels.at(0).rows.at(0), "####...........#");
}

TEST(CompressedBitmap, OfAnotherChecksumIsComplainedOfWhereverItIsCut) {
    std::string data = compressed("\xF0\x01"s);
    data.back() ^= 1;
    const std::string stream = labelOf(bitmapOf("0,0,2,1", data));
    const Texts expected = {
        "complaint 22 the data of BITMAP in mode 3 are no zlib data, or damaged"};
    for (std::size_t size = 1; size <= stream.size(); ++size) {
        RecordingSink sink;
        PrinterModel model(sink, {});
        StreamParser parser(model);
        for (std::size_t at = 0; at < stream.size(); at += size) {
            parser.feed(bytesOf(std::string_view(stream).substr(at, size)));
        }
        parser.finish();
        EXPECT_EQ(sink.findings, expected) << size;
    }
}

// The checksum of what is left out is not looked at: it may take long to come to it.
TEST(CompressedBitmap, OfMoreThanThePictureIsComplainedOfWhateverItsChecksum) {
    const Texts expected{"complaint 22 the data of BITMAP in mode 3 hold more than the picture"};
    std::string data = compressed("\xF0\x01\x02"s);
    EXPECT_EQ(findingsOf(labelOf(bitmapOf("0,0,2,1", data))), expected);
    data.back() ^= 1;
    EXPECT_EQ(findingsOf(labelOf(bitmapOf("0,0,2,1", data))), expected);
    const std::string large = compressed(std::string(20'000'000, '\xFF'));
    EXPECT_EQ(findingsOf(labelOf(bitmapOf("0,0,2,1", large))), expected);
}

// A length that is too large takes the commands behind the picture for data.
TEST(CompressedBitmap, ThatEndsBeforeItsLengthIsComplainedOf) {
    const std::string data = compressed("\xF0\x01"s);
    const std::string behind = "\nCLS\nPRINT 1\n";
    EXPECT_EQ(findingsOf(labelOf(bitmapOf("0,0,2,1", data + behind))),
              Texts{"complaint 22 the data of BITMAP in mode 3 end behind " +
                    std::to_string(data.size()) + " of " +
                    std::to_string(data.size() + behind.size()) + " bytes; the others are lost"});
}

TEST(CompressedBitmap, HasItsShareOfBurntDotsFromThePicture) {
    RecordingSink sink;
    obeyStream(bitmapOf("0,0,2,3", compressed("\xFF\xF0\x00\x00\x00\x00"s)), sink);
    EXPECT_DOUBLE_EQ(sink.entries.at(0).bitmap->burntShare(), 0.25);
}

TEST(CompressedBitmap, ThatIsCutShortIsComplainedOf) {
    EXPECT_EQ(findingsOf("BITMAP 0,0,2,3,3,100,abc"),
              Texts{"complaint 0 BITMAP is cut short: 3 of 100 bytes are there"});
}

TEST(CompressedBitmap, WithoutALengthIsNotUnderstood) {
    for (const char* line : {"BITMAP 0,0,1,1,3,a", "BITMAP 0,0,1,1,3,-1,", "BITMAP 0,0,1,1,3,,"}) {
        EXPECT_EQ(findingsOf(line).size(), 1U) << line;
    }
}

TEST(CompressedBitmap, IsListedWithItsLength) {
    RecordingSink sink;
    obeyStream("BITMAP 0,0,1,1,3,9,123456789", sink);
    ASSERT_EQ(sink.entries.size(), 1U);
    EXPECT_EQ(sink.entries[0].text, "BITMAP 0,0,1,1,3,9,");
    EXPECT_EQ(sink.entries[0].arguments.size(), 6U);
}

}  // namespace
}  // namespace tspl
