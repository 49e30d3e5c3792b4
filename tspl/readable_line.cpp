#include "tspl/readable_line.h"

#include "tspl/fonts.h"
#include "tspl/text_drawing.h"
#include "tspl/utf8.h"

namespace tspl {
namespace {

// What printers set under their bars, and how far below them.
constexpr std::string_view fontName = "2";
constexpr std::int64_t gap = 2;

Alignment alignmentOf(const ReadableLine& line) {
    constexpr Alignment alignments[] = {Alignment::Left, Alignment::Left, Alignment::Centre,
                                        Alignment::Right};
    return alignments[line.alignment];
}

}  // namespace

void drawReadableLine(Printer& printer, const Command& command, CodeDrawing& drawing,
                      const ReadableLine& line) {
    if (line.text.empty()) {
        return;
    }
    const SetFont font{fontOf(fontName).value()};
    const std::u32string text = charactersOf(line.text);
    const std::int64_t start = startOfLine(lineWidth(font, text), line.width, alignmentOf(line));
    drawTextLine(printer.label.canvas(), drawing.textFrame(), font, start, line.top + gap, text);
    printer.remarkOnce(command,
                       "the text line of " + command.name + " is in a font that is only alike");
}

}  // namespace tspl
