#include "intake/document_kind.h"

#include <array>

namespace intake {
namespace {

using namespace std::string_view_literals;

struct Mark {
    std::size_t offset;
    std::string_view bytes;
    Document document;
};

constexpr Document sRaster{DocumentKind::Raster, "a raster"};
constexpr Document sPnm{DocumentKind::Picture, "a PNM picture"};
constexpr Document sTiff{DocumentKind::Picture, "a TIFF picture"};
constexpr Document sOther{DocumentKind::Other, {}};

constexpr Document picture(std::string_view name) {
    return {DocumentKind::Picture, name};
}
constexpr Document other(std::string_view name) {
    return {DocumentKind::Other, name};
}

// The first mark that fits counts.
constexpr std::array sMarks{
    Mark{0, "%PDF"sv, {DocumentKind::Pdf, "a PDF file"}},
    Mark{0, "RaSt"sv, sRaster},
    Mark{0, "tSaR"sv, sRaster},
    Mark{0, "RaS2"sv, sRaster},
    Mark{0, "2SaR"sv, sRaster},
    Mark{0, "RaS3"sv, sRaster},
    Mark{0, "3SaR"sv, sRaster},
    Mark{0, "UNIRAST\0"sv, sRaster},
    Mark{0, "\x89PNG"sv, picture("a PNG picture")},
    Mark{0, "GIF87a"sv, picture("a GIF picture")},
    Mark{0, "GIF89a"sv, picture("a GIF picture")},
    Mark{0, "MM\0*"sv, sTiff},
    Mark{0, "II*\0"sv, sTiff},
    Mark{0, "BM"sv, picture("a BMP picture")},
    Mark{0, "P1"sv, sPnm},
    Mark{0, "P2"sv, sPnm},
    Mark{0, "P3"sv, sPnm},
    Mark{0, "P4"sv, sPnm},
    Mark{0, "P5"sv, sPnm},
    Mark{0, "P6"sv, sPnm},
    Mark{0, "\x01\xda"sv, picture("an SGI picture")},
    Mark{0, "\x59\xa6\x6a\x95"sv, picture("a Sun raster picture")},
    Mark{2048, "PCD_IPI"sv, picture("a Photo CD picture")},
    Mark{0, "%!"sv, other("PostScript")},
    Mark{0, "\4%!"sv, other("PostScript")},
    Mark{8, "WEBP"sv, other("a WebP picture")},
    Mark{4, "ftypheic"sv, other("a HEIC picture")},
    Mark{4, "ftypavif"sv, other("an AVIF picture")},
    Mark{4, "jP  "sv, other("a JPEG 2000 picture")},
    Mark{4, "\0\0\0\7"sv, other("an X window dump")},
    Mark{0, "PK\3\4"sv, other("a ZIP archive or an office document")},
    Mark{0, "\x1f\x8b"sv, other("a compressed file")},
};

bool hasMark(std::string_view beginning, const Mark& mark) {
    return beginning.size() >= mark.offset && beginning.substr(mark.offset).starts_with(mark.bytes);
}

// imagetopdf knows JPEG pictures by the application's segment that cameras and programs put first.
Document jpegOf(std::string_view beginning) {
    const auto segment = beginning.size() > 3 ? static_cast<unsigned char>(beginning[3]) : 0U;
    const bool isApplication = segment >= 0xe0 && segment <= 0xef;
    return isApplication ? picture("a JPEG picture") : other("a JPEG picture without JFIF or Exif");
}

// Readers of PDF forgive what stands before the file, up to a kilobyte.
bool isPdfBehindSomething(std::string_view beginning) {
    return beginning.substr(0, 1024).find("%PDF-") != std::string_view::npos;
}

}  // namespace

Document documentOf(std::string_view beginning) {
    if (beginning.empty()) {
        return {DocumentKind::Empty, {}};
    }
    if (beginning.starts_with("\xff\xd8\xff")) {
        return jpegOf(beginning);
    }
    for (const Mark& mark : sMarks) {
        if (hasMark(beginning, mark)) {
            return mark.document;
        }
    }
    return isPdfBehindSomething(beginning) ? sMarks[0].document : sOther;
}

}  // namespace intake
