#pragma once

#include <string_view>

namespace intake {

enum class DocumentKind {
    Empty,    ///< no byte at all
    Pdf,      ///<
    Picture,  ///< one that picturetokestolabel reads
    Raster,   ///< CUPS's, PWG's or Apple's
    Other,    ///< nothing that can be printed
};

struct Document {
    DocumentKind kind = DocumentKind::Other;
    std::string_view name;     ///< "a JPEG picture", for people; empty when it is not known
    std::string_view decoder;  ///< what GraphicsMagick calls the format of a picture; else empty
};

/// How much of a document's beginning tells what it is.
inline constexpr std::size_t tellingBytes = 4096;

/// What a document is, by its first bytes: all it has, up to `tellingBytes`. What the spooler
/// says is of no use: a converter before us may have made something else of the document.
Document documentOf(std::string_view beginning);

}  // namespace intake
