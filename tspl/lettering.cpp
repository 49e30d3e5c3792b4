#include "tspl/lettering.h"

#include <algorithm>
#include <cmath>

#include "tspl/code_page.h"
#include "tspl/command_rules.h"
#include "tspl/glyph.h"
#include "tspl/text.h"
#include "tspl/text_argument.h"
#include "tspl/utf8.h"

namespace tspl {
namespace {

constexpr std::int32_t mostMultiplication = 10;
constexpr double pointsPerInch = 72;

// What no printer takes: "TEXT does not take the rotation 45".
std::nullopt_t refuse(Printer& printer, const Command& command, const std::string& what) {
    printer.complain(command, command.name + " does not take " + what);
    return std::nullopt;
}

std::nullopt_t leaveOut(Printer& printer, const Command& command) {
    printer.remarkOnce(command,
                       command.name + " of a variable, a counter or a sum of texts is not drawn");
    return std::nullopt;
}

// A text in quotation marks, without them.
std::optional<std::string> readText(Printer& printer, const Command& command, std::size_t index) {
    const std::string& argument = command.arguments[index];
    if (isExpression(argument)) {
        return leaveOut(printer, command);
    }
    const auto text = parseTextArgument(argument);
    if (!text) {
        return refuse(printer, command, inQuotes(argument) + " without quotation marks");
    }
    if (!text->behind.empty()) {
        return refuse(printer, command,
                      inQuotes(text->behind) + " behind the closing quotation mark");
    }
    return text->bytes;
}

// What stands for a font that is neither built in nor brought along in outlines.
Font missingFont(Printer& printer, const Command& command, const std::string& name) {
    const bool isStored = printer.files.find(name) != nullptr;
    const std::string font = "the font \"" + printable(name) + "\" of " + command.name;
    if (!isStored) {
        printer.complain(command,
                         font + " is not in the stream; the printer needs it in its memory");
    } else if (isOutlineFile(name)) {
        printer.complain(command, font + " is damaged or has no outlines");
    }
    return standInOf(name);
}

// A stream that brings a font along means that one, also where printers have one of its name.
std::optional<Font> readFont(Printer& printer, const Command& command, std::size_t index) {
    const auto name = readText(printer, command, index);
    if (!name) {
        return std::nullopt;
    }
    if (const auto font = printer.files.font(*name)) {
        return fontOf(font);
    }
    if (auto builtIn = fontOf(*name)) {
        return builtIn;
    }
    if (printer.files.find(*name) == nullptr && !isFontFile(*name)) {
        return refuse(printer, command, "the font \"" + printable(*name) + '"');
    }
    return missingFont(printer, command, *name);
}

std::int32_t inDots(std::int32_t points, int dpi) {
    const double dots = std::round(points * (dpi / pointsPerInch));
    return static_cast<std::int32_t>(std::clamp<double>(dots, 1, mostGlyphDots + 1));
}

// Of a scalable font the size in points, in dots.
std::optional<std::int32_t> readMultiplication(Printer& printer, const Command& command,
                                               std::size_t index, const Font& font) {
    const auto value = readInteger(printer, command, index);
    if (!value) {
        return std::nullopt;
    }
    const std::int32_t dots =
        font.isScalable() ? inDots(*value, printer.label.resolution()) : *value;
    const std::int32_t most = font.isScalable() ? mostGlyphDots : mostMultiplication;
    if (*value < 1 || dots > most) {
        return refuse(printer, command,
                      font.isScalable() ? "a size of " + std::to_string(*value) + " points"
                                        : "the multiplication " + std::to_string(*value));
    }
    return dots;
}

std::optional<SetFont> readSetFont(Printer& printer, const Command& command, std::size_t index) {
    const auto font = readFont(printer, command, index);
    if (!font) {
        return std::nullopt;
    }
    const auto x = readMultiplication(printer, command, index + 2, *font);
    const auto y = readMultiplication(printer, command, index + 3, *font);
    return x && y ? std::optional(SetFont{*font, *x, *y}) : std::nullopt;
}

std::optional<TextFrame> readFrame(Printer& printer, const Command& command, std::size_t index) {
    const auto x = readInteger(printer, command, 0);
    const auto y = readInteger(printer, command, 1);
    const auto rotation = readInteger(printer, command, index);
    if (!x || !y || !rotation) {
        return std::nullopt;
    }
    if (*rotation != 0 && *rotation != 90 && *rotation != 180 && *rotation != 270) {
        return refuse(printer, command, "the rotation " + std::to_string(*rotation));
    }
    const Area corner = printer.placed({*x, *y, 0, 0});
    return TextFrame{corner.x, corner.y, *rotation};
}

std::optional<Alignment> readAlignment(Printer& printer, const Command& command,
                                       std::size_t index) {
    constexpr Alignment alignments[] = {Alignment::Left, Alignment::Left, Alignment::Centre,
                                        Alignment::Right};
    if (index == 0) {
        return Alignment::Left;
    }
    const auto value = readInteger(printer, command, index);
    if (!value) {
        return std::nullopt;
    }
    if (*value < 0 || *value > 3) {
        return refuse(printer, command, "the alignment " + std::to_string(*value));
    }
    return alignments[*value];
}

// Fonts of East Asia bring their code page along, unless all texts are in UTF-8.
CodePage codePageOf(const Printer& printer, const Font& font) {
    const auto own = CodePage::named(font.codePage);
    return own && !printer.codePage.isUtf8() ? *own : printer.codePage;
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::u32string readCharacters(Printer& printer, const Command& command, const Font& font,
                              const std::string& bytes) {
    const CodePage codePage = codePageOf(printer, font);
    const CodePage::Converted converted = codePage.toUtf8(bytes);
    const std::string inCodePage = " in code page " + codePage.name();
    if (converted.unknownBytes > 0) {
        printer.remarkOnce(command,
                           command.name + " holds bytes that are no characters" + inCodePage);
    } else if (!codePage.isUtf8() && !isAscii(bytes) &&
               charactersOf(bytes).find(replacementCharacter) == std::u32string::npos) {
        printer.remarkOnce(command,
                           command.name + " may be meant in UTF-8, and is read" + inCodePage);
    }
    return charactersOf(converted.utf8);
}

// Those that a code page does not have are spoken of by then.
void remarkBoxes(Printer& printer, const Command& command, const Font& font,
                 std::u32string_view characters) {
    const auto isBox = [&font](char32_t c) {
        return !isBlank(c) && c != replacementCharacter && !hasOutline(font, c);
    };
    if (std::any_of(characters.begin(), characters.end(), isBox)) {
        printer.remarkOnce(command, command.name + " holds characters that " +
                                        (font.downloaded ? "its font does not have"
                                                         : "no font of this system has") +
                                        "; boxes stand for them");
    }
}

}  // namespace

std::optional<std::int32_t> readInteger(Printer& printer, const Command& command,
                                        std::size_t index) {
    const std::string& argument = command.arguments[index];
    const auto value = parseInteger(argument);
    if (!value && isExpression(argument)) {
        return leaveOut(printer, command);
    }
    return value ? value : refuse(printer, command, inQuotes(argument));
}

std::optional<Lettering> readLettering(Printer& printer, const Command& command,
                                       const LetteringPlaces& places) {
    const auto frame = readFrame(printer, command, places.font + 1);
    const auto font = readSetFont(printer, command, places.font);
    const auto alignment = readAlignment(printer, command, places.alignment);
    const auto text = readText(printer, command, command.arguments.size() - 1);
    if (!frame || !font || !alignment || !text) {
        return std::nullopt;
    }
    printer.remarkOnce(
        command, command.name + (font->font.downloaded ? " is drawn in the font that the stream "
                                                         "brings along; its dots are only alike"
                                                       : " is drawn in a font that is only alike"));
    std::u32string characters = readCharacters(printer, command, font->font, *text);
    remarkBoxes(printer, command, font->font, characters);
    return Lettering{*font, *frame, *alignment, std::move(characters)};
}

}  // namespace tspl
