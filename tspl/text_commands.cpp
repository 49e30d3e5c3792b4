#include "tspl/command_rules.h"

#include <algorithm>

#include "tspl/lettering.h"
#include "tspl/text_lines.h"

namespace tspl {
namespace {

// Draws lines from the top of the frame on, each within `room` dots.
void drawLines(Printer& printer, const Lettering& lettering, std::span<const std::u32string> lines,
               std::int64_t room, std::int64_t pitch) {
    std::int64_t y = 0;
    for (const std::u32string& line : lines) {
        const std::int64_t x =
            startOfLine(lineWidth(lettering.font, line), room, lettering.alignment);
        drawTextLine(printer.label.canvas(), lettering.frame, lettering.font, x, y, line);
        y += pitch;
    }
}

// TEXT x,y,"font",rotation,x-multiplication,y-multiplication,[alignment,]"content"
void drawText(Printer& printer, const Command& command) {
    constexpr std::size_t withAlignment = 8;
    const std::size_t alignment = command.arguments.size() == withAlignment ? 6 : 0;
    const auto lettering = readLettering(printer, command, {2, alignment});
    if (!lettering) {
        printer.label.noteUndrawn();
        return;
    }
    drawLines(printer, *lettering, linesOf(lettering->text), 0, lineHeight(lettering->font));
}

/// The room of a BLOCK and what it adds to TEXT.
struct Block {
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::int64_t space = 0;  ///< dots between lines
    bool fits = false;       ///< whether letters become smaller until all of the text has room
};

std::optional<Block> readBlock(Printer& printer, const Command& command) {
    constexpr std::size_t space = 8;
    constexpr std::size_t fit = 10;
    const std::size_t last = command.arguments.size() - 1;
    const auto width = readInteger(printer, command, 2);
    const auto height = readInteger(printer, command, 3);
    const auto between = last > space ? readInteger(printer, command, space) : 0;
    const auto fits = last > fit ? readInteger(printer, command, fit) : 0;
    if (!width || !height || !between || !fits) {
        return std::nullopt;
    }
    if (*width < 1 || *height < 1) {
        printer.complain(command, "BLOCK without an extent: " + quoted(command));
        return std::nullopt;
    }
    if (*fits < 0 || *fits > 1) {
        printer.complain(command, "BLOCK does not take the fit " + std::to_string(*fits));
        return std::nullopt;
    }
    return Block{*width, *height, *between, *fits == 1};
}

// From one line to the next; space may be negative and let lines overlap.
std::int64_t pitchOf(const Block& block, const SetFont& font) {
    return std::max<std::int64_t>(lineHeight(font) + block.space, 1);
}

// How many lines the block has room for.
std::size_t capacity(const Block& block, const SetFont& font) {
    const std::int64_t below = block.height - lineHeight(font);
    return below < 0 ? 0 : static_cast<std::size_t>(below / pitchOf(block, font)) + 1;
}

SetFont smallerBy(const SetFont& font, std::int32_t steps) {
    return {font.font, std::max(font.x - steps, 1), std::max(font.y - steps, 1)};
}

bool hasRoom(const Block& block, const SetFont& font, std::u32string_view text) {
    return wrapped(font, text, block.width).size() <= capacity(block, font);
}

// The largest letters, none larger than those given, in which the whole text has room; the
// smallest when it has room in none. Found by halves: letters of an outline font have thousands of
// sizes.
SetFont fitted(const Block& block, const SetFont& font, std::u32string_view text) {
    std::int32_t fewest = 0;
    std::int32_t most = std::max(font.x, font.y) - 1;
    while (fewest < most) {
        const std::int32_t middle = fewest + (most - fewest) / 2;
        if (hasRoom(block, smallerBy(font, middle), text)) {
            most = middle;
        } else {
            fewest = middle + 1;
        }
    }
    return smallerBy(font, fewest);
}

// BLOCK x,y,width,height,"font",rotation,x-multiplication,y-multiplication,[space,][alignment,]
// [fit,]"content"
void drawBlock(Printer& printer, const Command& command) {
    constexpr std::size_t alignment = 9;
    const std::size_t last = command.arguments.size() - 1;
    auto lettering = readLettering(printer, command, {4, last > alignment ? alignment : 0});
    const auto block = readBlock(printer, command);
    if (!lettering || !block) {
        printer.label.noteUndrawn();
        return;
    }
    if (block->fits) {
        lettering->font = fitted(*block, lettering->font, lettering->text);
    }
    auto lines = wrapped(lettering->font, lettering->text, block->width);
    const std::size_t room = capacity(*block, lettering->font);
    if (lines.size() > room) {
        printer.complain(command, "BLOCK has room for " + std::to_string(room) + " of the " +
                                      std::to_string(lines.size()) + " lines of its text");
        lines.resize(room);
    }
    drawLines(printer, *lettering, lines, block->width, pitchOf(*block, lettering->font));
}

constexpr CommandRule rules[] = {
    {"TEXT", 7, 8, ArgumentKind::Any, Effect::Obeyed, drawText},
    {"BLOCK", 9, 12, ArgumentKind::Any, Effect::Obeyed, drawBlock},
};

}  // namespace

std::span<const CommandRule> textCommands() {
    return rules;
}

}  // namespace tspl
