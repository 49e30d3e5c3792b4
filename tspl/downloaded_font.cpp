#include "tspl/downloaded_font.h"

#include <cairo-ft.h>
#include FT_TRUETYPE_TABLES_H
#include FT_TRUETYPE_TAGS_H

#include <algorithm>
#include <array>
#include <atomic>
#include <string_view>
#include <utility>

namespace tspl {
namespace {

struct FreetypeDeleter {
    void operator()(FT_Library library) const { FT_Done_FreeType(library); }
    void operator()(FT_Face face) const { FT_Done_Face(face); }
};

// In the order in which they need each other: the face is given back first, the bytes last.
struct OpenFile {
    std::shared_ptr<const DownloadedFont::Bytes> bytes;
    std::unique_ptr<FT_LibraryRec_, FreetypeDeleter> library;
    std::unique_ptr<FT_FaceRec_, FreetypeDeleter> face;
};

// FreeType reads a dozen formats more, some of them packed: their size in memory has no bound.
bool isOfPlainOutlines(const DownloadedFont::Bytes& bytes) {
    using namespace std::string_view_literals;
    constexpr std::array starts = {"\0\1\0\0"sv, "OTTO"sv, "true"sv, "ttcf"sv};
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return std::any_of(starts.begin(), starts.end(),
                       [&](std::string_view start) { return text.starts_with(start); });
}

// A font may hold pictures of its letters alone.
bool hasOutlines(FT_Face face) {
    constexpr std::array<FT_ULong, 3> tables = {TTAG_glyf, TTAG_CFF, TTAG_CFF2};
    return FT_IS_SCALABLE(face) && face->num_glyphs > 0 && face->units_per_EM > 0 &&
           std::any_of(tables.begin(), tables.end(), [=](FT_ULong table) {
               FT_ULong length = 0;
               return FT_Load_Sfnt_Table(face, table, 0, nullptr, &length) == 0 && length > 0;
           });
}

// Null where there is nothing to draw outlines from.
std::unique_ptr<OpenFile> opened(const std::shared_ptr<const DownloadedFont::Bytes>& bytes) {
    auto file = std::make_unique<OpenFile>();
    file->bytes = bytes;
    FT_Library library = nullptr;
    if (!isOfPlainOutlines(*bytes) || FT_Init_FreeType(&library) != 0) {
        return nullptr;
    }
    file->library.reset(library);
    FT_Face face = nullptr;
    if (FT_New_Memory_Face(library, bytes->data(), static_cast<FT_Long>(bytes->size()), 0, &face) !=
        0) {
        return nullptr;
    }
    file->face.reset(face);
    if (!hasOutlines(face)) {
        return nullptr;
    }
    return file;
}

// cairo uses the file for longer than its face lives, and says when it does no more.
CairoPointer<cairo_font_face_t> faceOf(std::unique_ptr<OpenFile> file) {
    static const cairo_user_data_key_t key{};
    CairoPointer<cairo_font_face_t> face(
        cairo_ft_font_face_create_for_ft_face(file->face.get(), FT_LOAD_NO_BITMAP));
    const auto close = [](void* data) { delete static_cast<OpenFile*>(data); };
    if (cairo_font_face_set_user_data(face.get(), &key, file.get(), close) !=
        CAIRO_STATUS_SUCCESS) {
        return nullptr;
    }
    // Now cairo owns it.
    static_cast<void>(file.release());
    return face;
}

// cairo holds on to the last fonts of a size that are used no more, and through them to bytes that
// may be many: as many small ones take their place.
void crowdOutUnusedFonts() {
    constexpr int kept = 256 + 1;  // the last ones, and the very last one apart
    const CairoPointer<cairo_font_face_t> small(
        cairo_toy_font_face_create("@cairo:", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL));
    for (int size = 1; size <= kept; ++size) {
        const SizedFont font(small.get(), size, size);
    }
}

std::string newKey() {
    static std::atomic<std::uint64_t> number = 0;
    return "downloaded font " + std::to_string(++number);
}

}  // namespace

std::shared_ptr<const DownloadedFont> DownloadedFont::read(
    const std::shared_ptr<const Bytes>& bytes) {
    std::unique_ptr<OpenFile> file = opened(bytes);
    CairoPointer<cairo_font_face_t> face = file ? faceOf(std::move(file)) : nullptr;
    return face ? std::shared_ptr<const DownloadedFont>(new DownloadedFont(std::move(face)))
                : nullptr;
}

DownloadedFont::DownloadedFont(CairoPointer<cairo_font_face_t> face)
    : key_(newKey()), face_(std::move(face)) {}

DownloadedFont::~DownloadedFont() {
    face_.reset();
    crowdOutUnusedFonts();
}

}  // namespace tspl
