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

constexpr Document sRaster{DocumentKind::Raster, "a raster", {}};
constexpr Document sOther{DocumentKind::Other, {}, {}};

constexpr Document picture(std::string_view name, std::string_view decoder) {
    return {DocumentKind::Picture, name, decoder};
}
constexpr Document other(std::string_view name) {
    return {DocumentKind::Other, name, {}};
}

constexpr Document sPnm = picture("a PNM picture", "PNM");
constexpr Document sTiff = picture("a TIFF picture", "TIFF");
constexpr Document sHeic = picture("a HEIC picture", "HEIC");
constexpr Document sAvif = picture("an AVIF picture", "AVIF");
constexpr Document sJpegXl = picture("a JPEG XL picture", "JXL");

// The first mark that fits counts.
constexpr std::array sMarks{
    Mark{0, "%PDF"sv, {DocumentKind::Pdf, "a PDF file", {}}},
    Mark{0, "RaSt"sv, sRaster},
    Mark{0, "tSaR"sv, sRaster},
    Mark{0, "RaS2"sv, sRaster},
    Mark{0, "2SaR"sv, sRaster},
    Mark{0, "RaS3"sv, sRaster},
    Mark{0, "3SaR"sv, sRaster},
    Mark{0, "UNIRAST\0"sv, sRaster},
    Mark{0, "\x89PNG"sv, picture("a PNG picture", "PNG")},
    Mark{0, "\xff\xd8\xff"sv, picture("a JPEG picture", "JPEG")},
    Mark{0, "GIF87a"sv, picture("a GIF picture", "GIF")},
    Mark{0, "GIF89a"sv, picture("a GIF picture", "GIF")},
    Mark{0, "MM\0*"sv, sTiff},
    Mark{0, "II*\0"sv, sTiff},
    Mark{0, "MM\0+"sv, sTiff},
    Mark{0, "II+\0"sv, sTiff},
    Mark{0, "BM"sv, picture("a BMP picture", "BMP")},
    Mark{0, "P1"sv, sPnm},
    Mark{0, "P2"sv, sPnm},
    Mark{0, "P3"sv, sPnm},
    Mark{0, "P4"sv, sPnm},
    Mark{0, "P5"sv, sPnm},
    Mark{0, "P6"sv, sPnm},
    Mark{0, "P7\n"sv, sPnm},
    Mark{8, "WEBP"sv, picture("a WebP picture", "WEBP")},
    Mark{4, "ftypheic"sv, sHeic},
    Mark{4, "ftypheix"sv, sHeic},
    Mark{4, "ftypmif1"sv, sHeic},
    Mark{4, "ftypavif"sv, sAvif},
    Mark{4, "ftypavis"sv, sAvif},
    Mark{0, "\xff\x0a"sv, sJpegXl},
    Mark{4, "JXL \r\n"sv, sJpegXl},
    Mark{0, "/* XPM */"sv, picture("an XPM picture", "XPM")},
    Mark{0, "\x01\xda"sv, picture("an SGI picture", "SGI")},
    Mark{0, "\x59\xa6\x6a\x95"sv, picture("a Sun raster picture", "SUN")},
    Mark{2048, "PCD_IPI"sv, picture("a Photo CD picture", "PCD")},
    Mark{4, "\0\0\0\7"sv, picture("an X window dump", "XWD")},
    Mark{0, "%!"sv, other("PostScript")},
    Mark{0, "\4%!"sv, other("PostScript")},
    Mark{4, "jP  "sv, other("a JPEG 2000 picture")},
    Mark{0, "\xff\x4f\xff\x51"sv, other("a JPEG 2000 picture")},
    Mark{0, "8BPS"sv, other("a Photoshop picture")},
    Mark{0, "AT&TFORM"sv, other("a DjVu document")},
    Mark{0, "\x76\x2f\x31\x01"sv, other("an OpenEXR picture")},
    Mark{40, " EMF"sv, other("a Windows metafile")},
    Mark{0, "\xd7\xcd\xc6\x9a"sv, other("a Windows metafile")},
    Mark{0, "\0\0\1\0"sv, other("a Windows icon")},
    Mark{0, "PK\3\4"sv, other("a ZIP archive or an office document")},
    Mark{0, "\x1f\x8b"sv, other("a compressed file")},
};

bool hasMark(std::string_view beginning, const Mark& mark) {
    return beginning.size() >= mark.offset && beginning.substr(mark.offset).starts_with(mark.bytes);
}

bool contains(std::string_view beginning, std::string_view word) {
    return beginning.find(word) != std::string_view::npos;
}

// Lines of C that say how wide and high the picture is, and then its bits.
bool isXbm(std::string_view beginning) {
    return beginning.starts_with("#define") && contains(beginning, "_width") &&
           contains(beginning, "_height") && contains(beginning, "_bits");
}

bool isSvg(std::string_view beginning) {
    return beginning.starts_with('<') && contains(beginning, "<svg");
}

Document textOf(std::string_view beginning) {
    if (isXbm(beginning)) {
        return picture("an XBM picture", "XBM");
    }
    return isSvg(beginning) ? other("an SVG picture") : sOther;
}

// Readers of PDF forgive what stands before the file, up to a kilobyte.
bool isPdfBehindSomething(std::string_view beginning) {
    return beginning.substr(0, 1024).find("%PDF-") != std::string_view::npos;
}

}  // namespace

Document documentOf(std::string_view beginning) {
    if (beginning.empty()) {
        return {DocumentKind::Empty, {}, {}};
    }
    for (const Mark& mark : sMarks) {
        if (hasMark(beginning, mark)) {
            return mark.document;
        }
    }
    return isPdfBehindSomething(beginning) ? sMarks[0].document : textOf(beginning);
}

}  // namespace intake
