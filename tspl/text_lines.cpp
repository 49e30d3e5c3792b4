#include "tspl/text_lines.h"

namespace tspl {
namespace {

// Where a line may end, and where the next one begins then.
struct Break {
    std::size_t end = 0;
    std::size_t next = 0;
};

// The first break past which the text would not fit; the end of the text when all of it fits.
Break firstBreak(const SetFont& font, std::u32string_view text, std::int64_t width) {
    Break last;
    std::int64_t x = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isSpace = text[i] == U' ';
        if (isSpace && i > 0) {
            last = {i, i + 1};
        } else if (i > 0 && isWide(text[i])) {
            last = {i, i};
        }
        x += advanceOf(font, text[i]);
        if (x > width && !isSpace && i > 0) {
            return last.end > 0 ? last : Break{i, i};
        }
    }
    return {text.size(), text.size()};
}

std::u32string_view withoutEndBlanks(std::u32string_view line) {
    return line.substr(0, line.find_last_not_of(U' ') + 1);
}

}  // namespace

std::vector<std::u32string> linesOf(std::u32string_view text) {
    std::vector<std::u32string> lines(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char32_t c = text[i];
        if (c != U'\r' && c != U'\n') {
            lines.back() += c;
            continue;
        }
        const char32_t other = c == U'\r' ? U'\n' : U'\r';
        const bool isPair = i + 1 < text.size() && text[i + 1] == other;
        i += isPair ? 1U : 0U;
        lines.emplace_back();
    }
    return lines;
}

std::vector<std::u32string> wrapped(const SetFont& font, std::u32string_view text,
                                    std::int64_t width) {
    std::vector<std::u32string> lines;
    for (const std::u32string& paragraph : linesOf(text)) {
        std::u32string_view rest = paragraph;
        do {
            const Break at = firstBreak(font, rest, width);
            lines.emplace_back(withoutEndBlanks(rest.substr(0, at.end)));
            rest.remove_prefix(at.next);
        } while (!rest.empty());
    }
    return lines;
}

}  // namespace tspl
