#include "tspl/font_face.h"

#include <cairo-ft.h>
#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <map>
#include <vector>

#include "tspl/utf8.h"

namespace tspl {
namespace {

struct FontconfigDeleter {
    void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
    void operator()(FcCharSet* characters) const { FcCharSetDestroy(characters); }
    void operator()(FcObjectSet* objects) const { FcObjectSetDestroy(objects); }
    void operator()(FcFontSet* fonts) const { FcFontSetDestroy(fonts); }
};

template <class Type>
using FontconfigPointer = std::unique_ptr<Type, FontconfigDeleter>;
using PatternPointer = FontconfigPointer<FcPattern>;
using FacePointer = CairoPointer<cairo_font_face_t>;

const FcChar8* fontconfigText(const std::string& text) {
    return reinterpret_cast<const FcChar8*>(text.c_str());
}

// A character weighs more than the name of the family.
PatternPointer bestMatch(const std::string& family, char32_t character) {
    const FontconfigPointer<FcCharSet> characters(FcCharSetCreate());
    FcCharSetAddChar(characters.get(), character);
    const PatternPointer wanted(FcPatternCreate());
    FcPatternAddString(wanted.get(), FC_FAMILY, fontconfigText(family));
    FcPatternAddCharSet(wanted.get(), FC_CHARSET, characters.get());
    FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultMatch;
    return PatternPointer(FcFontMatch(nullptr, wanted.get(), &result));
}

// Of the match only the file is taken: how a system likes its fonts drawn on its screen does not
// change labels.
PatternPointer fileOf(const FcPattern* match) {
    FcChar8* file = nullptr;
    int index = 0;
    if (match == nullptr || FcPatternGetString(match, FC_FILE, 0, &file) != FcResultMatch) {
        return nullptr;
    }
    FcPatternGetInteger(match, FC_INDEX, 0, &index);
    PatternPointer pattern(FcPatternCreate());
    FcPatternAddString(pattern.get(), FC_FILE, file);
    FcPatternAddInteger(pattern.get(), FC_INDEX, index);
    return pattern;
}

FacePointer loadFace(const std::string& family, char32_t character) {
    const PatternPointer file = fileOf(bestMatch(family, character).get());
    // Without any font on the system, what cairo has built in.
    return FacePointer(file ? cairo_ft_font_face_create_for_pattern(file.get())
                            : cairo_toy_font_face_create("@cairo:", CAIRO_FONT_SLANT_NORMAL,
                                                         CAIRO_FONT_WEIGHT_NORMAL));
}

bool hasCharacter(cairo_font_face_t* face, char32_t character) {
    return SizedFont(face, 1, 1).glyphOf(character) != 0;
}

using CharactersPointer = FontconfigPointer<FcCharSet>;

// The characters that any font of the system has.
CharactersPointer charactersOfSystem() {
    CharactersPointer characters(FcCharSetCreate());
    const PatternPointer scalable(FcPatternCreate());
    FcPatternAddBool(scalable.get(), FC_SCALABLE, FcTrue);
    const FontconfigPointer<FcObjectSet> wanted(FcObjectSetBuild(FC_CHARSET, nullptr));
    const FontconfigPointer<FcFontSet> fonts(FcFontList(nullptr, scalable.get(), wanted.get()));
    for (int i = 0; fonts && i < fonts->nfont; ++i) {
        FcCharSet* ofFont = nullptr;
        if (FcPatternGetCharSet(fonts->fonts[i], FC_CHARSET, 0, &ofFont) == FcResultMatch) {
            FcCharSetMerge(characters.get(), ofFont, nullptr);
        }
    }
    return characters;
}

// To look for a character that no font has would take as long for each as for one that some have.
bool systemHas(char32_t character) {
    thread_local const CharactersPointer characters = charactersOfSystem();
    return FcCharSetHasChar(characters.get(), character) == FcTrue;
}

// What has been found for a family: the face for most characters before those for others.
using Faces = std::vector<FacePointer>;

// Null where none of them has the character.
cairo_font_face_t* faceAmong(const Faces& faces, char32_t character) {
    const auto found = std::find_if(faces.begin(), faces.end(), [&](const FacePointer& face) {
        return hasCharacter(face.get(), character);
    });
    return found == faces.end() ? nullptr : found->get();
}

CairoPointer<cairo_scaled_font_t> scaled(cairo_font_face_t* face, double width, double height) {
    cairo_matrix_t size{};
    cairo_matrix_t dots{};
    cairo_matrix_init_scale(&size, width, height);
    cairo_matrix_init_identity(&dots);
    const std::unique_ptr<cairo_font_options_t, decltype(&cairo_font_options_destroy)> options(
        cairo_font_options_create(), cairo_font_options_destroy);
    cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_NONE);
    cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
    return CairoPointer<cairo_scaled_font_t>(
        cairo_scaled_font_create(face, &size, &dots, options.get()));
}

}  // namespace

SizedFont::SizedFont(cairo_font_face_t* face, double width, double height)
    : font_(scaled(face, width, height)) {}

unsigned long SizedFont::glyphOf(char32_t character) const {
    const std::string text = utf8Of(character);
    cairo_glyph_t* glyphs = nullptr;
    int count = 0;
    cairo_scaled_font_text_to_glyphs(font_.get(), 0, 0, text.data(), static_cast<int>(text.size()),
                                     &glyphs, &count, nullptr, nullptr, nullptr);
    const std::unique_ptr<cairo_glyph_t, decltype(&cairo_glyph_free)> owner(glyphs,
                                                                            cairo_glyph_free);
    return count > 0 ? glyphs->index : 0;
}

double SizedFont::advance(unsigned long glyph) const {
    return inkOf(glyph).x_advance;
}

cairo_text_extents_t SizedFont::inkOf(unsigned long glyph) const {
    const cairo_glyph_t at{glyph, 0, 0};
    cairo_text_extents_t ink{};
    cairo_scaled_font_glyph_extents(font_.get(), &at, 1, &ink);
    return ink;
}

cairo_font_extents_t SizedFont::extents() const {
    cairo_font_extents_t extents{};
    cairo_scaled_font_extents(font_.get(), &extents);
    return extents;
}

cairo_font_face_t* findFace(const std::string& family, char32_t character) {
    thread_local std::map<std::string, Faces> families;
    Faces& faces = families[family];
    if (faces.empty()) {
        faces.push_back(loadFace(family, U' '));
    }
    cairo_font_face_t* face = faceAmong(faces, character);
    if (face == nullptr && systemHas(character)) {
        faces.push_back(loadFace(family, character));
        face = faceAmong(faces, character);
    }
    return face != nullptr ? face : faces.front().get();
}

}  // namespace tspl
