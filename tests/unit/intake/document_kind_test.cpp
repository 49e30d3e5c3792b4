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

TEST(DocumentKind, OfJpegPicturesNeedsTheApplicationsSegment) {
    expectKind(DocumentKind::Picture, {"\xff\xd8\xff\xe0\0\x10JFIF"sv, "\xff\xd8\xff\xe1\0\0Exif"sv,
                                       "\xff\xd8\xff\xef"sv});
    expectKind(DocumentKind::Other, {"\xff\xd8\xff\xdb"sv, "\xff\xd8\xff\xfe"sv, "\xff\xd8\xff"sv});
    EXPECT_EQ(documentOf("\xff\xd8\xff\xdb"sv).name, "a JPEG picture without JFIF or Exif");
}

TEST(DocumentKind, OfOtherThingsIsOther) {
    expectKind(DocumentKind::Other, {"x", "P7\n", "P", "\0"sv, "%!PS-Adobe", "RIFF....WEBP"});
}

TEST(DocumentKind, HasANameForSomeThatCannotBePrinted) {
    EXPECT_EQ(documentOf("%!PS-Adobe-3.0").name, "PostScript");
    EXPECT_EQ(documentOf("RIFF\1\2\3\4WEBPVP8 ").name, "a WebP picture");
    EXPECT_EQ(documentOf("Hello").name, "");
}

}  // namespace
}  // namespace intake
