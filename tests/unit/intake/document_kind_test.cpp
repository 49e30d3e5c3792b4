// What a document is, by its first bytes.
#include "intake/document_kind.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace intake {
namespace {

using namespace std::string_view_literals;

void expectKind(DocumentKind kind, std::initializer_list<std::string_view> beginnings) {
    for (const std::string_view beginning : beginnings) {
        EXPECT_EQ(documentOf(beginning).kind, kind) << std::string(beginning);
    }
}

TEST(DocumentKind, OfNothingIsEmpty) {
    expectKind(DocumentKind::Empty, {""});
}

TEST(DocumentKind, OfPdfFilesIsPdfAlsoBehindOtherBytes) {
    expectKind(DocumentKind::Pdf, {"%PDF-1.4\n", "\r\n%PDF-1.7", "\xef\xbb\xbf%PDF-1.4"});
    expectKind(DocumentKind::Pdf, {std::string(1000, ' ') + "%PDF-1.4"});
    expectKind(DocumentKind::Other, {std::string(1024, ' ') + "%PDF-1.4"});
}

TEST(DocumentKind, OfRasterIsRasterInBothByteOrders) {
    expectKind(DocumentKind::Raster,
               {"RaSt....", "tSaR", "RaS2PwgRaster", "2SaR", "RaS3", "3SaR", "UNIRAST\0"sv});
    expectKind(DocumentKind::Other, {"RaS4", "RaS", "UNIRAST"});
}

TEST(DocumentKind, OfPicturesIsPicture) {
    expectKind(DocumentKind::Picture,
               {"\x89PNG\r\n\x1a\n"sv, "GIF87a", "GIF89a", "BM6\3\0\0"sv, "P1\n", "P2\n", "P3\n",
                "P4\n", "P5\n", "P6\n", "MM\0*\0\0"sv, "II*\0\x08\0"sv, "\x01\xda\0\1"sv,
                "\x59\xa6\x6a\x95\0"sv, std::string(2048, '\0') + "PCD_IPI"});
}

TEST(DocumentKind, OfJpegPicturesNeedsNoApplicationsSegment) {
    expectKind(DocumentKind::Picture, {"\xff\xd8\xff\xe0\0\x10JFIF"sv, "\xff\xd8\xff\xe1\0\0Exif"sv,
                                       "\xff\xd8\xff\xdb"sv, "\xff\xd8\xff\xfe"sv});
    expectKind(DocumentKind::Other, {"\xff\xd8"sv});
}

TEST(DocumentKind, OfNewerPicturesIsPicture) {
    expectKind(DocumentKind::Picture, {"RIFF\1\2\3\4WEBPVP8 ",
                                       "\0\0\0\x18"
                                       "ftypheic"sv,
                                       "\0\0\0\x18"
                                       "ftypmif1"sv,
                                       "\0\0\0\x1c"
                                       "ftypavif"sv,
                                       "\xff\x0a\x51"sv, "\0\0\0\x0cJXL \r\n\x87\n"sv,
                                       "P7\nWIDTH 2", "MM\0+\0\x08"sv, "II+\0\x08"sv});
    expectKind(DocumentKind::Other, {"RIFF\1\2\3\4WAVE",
                                     "\0\0\0\x18"
                                     "ftypmp42"sv,
                                     "P8\n"});
}

TEST(DocumentKind, OfPicturesWrittenAsProgramsIsPicture) {
    expectKind(DocumentKind::Picture,
               {"/* XPM */\nstatic char *a[] = {",
                "#define a_width 8\n#define a_height 2\nstatic char a_bits[] = { 0x0f"});
    expectKind(DocumentKind::Other,
               {"#define a_width 8\nint main() {}", "#include <stdio.h>\n", "/* XPM"});
}

TEST(DocumentKind, NamesTheDecoderOfAPicture) {
    EXPECT_EQ(documentOf("\x89PNG").decoder, "PNG");
    EXPECT_EQ(documentOf("RIFF\1\2\3\4WEBP").decoder, "WEBP");
    EXPECT_EQ(documentOf("P4\n").decoder, "PNM");
    EXPECT_EQ(documentOf("#define w_width 1\n#define w_height 1\nchar w_bits[]").decoder, "XBM");
    EXPECT_EQ(documentOf("%PDF-1.4").decoder, "");
}

TEST(DocumentKind, OfOtherThingsIsOther) {
    expectKind(DocumentKind::Other, {"x", "P", "\0"sv, "%!PS-Adobe", "RIFF....WEBX"});
}

TEST(DocumentKind, HasANameForSomeThatCannotBePrinted) {
    EXPECT_EQ(documentOf("%!PS-Adobe-3.0").name, "PostScript");
    EXPECT_EQ(documentOf("8BPS\0\1"sv).name, "a Photoshop picture");
    EXPECT_EQ(documentOf("<?xml version=\"1.0\"?>\n<svg width=\"9\"").name, "an SVG picture");
    EXPECT_EQ(documentOf("Hello").name, "");
}

}  // namespace
}  // namespace intake
