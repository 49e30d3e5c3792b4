#include "tspl/printer_model.h"

#include <utility>

#include "tspl/basic_statements.h"
#include "tspl/command_rules.h"
#include "tspl/foreign_stream.h"
#include "tspl/wrapper.h"

namespace tspl {
namespace {

constexpr char escape = '\x1b';

// So many lines that are no commands, one behind the other, are complained of one by one: what is
// behind them is text, data or another language.
constexpr int mostUnknownLines = 10;

// Commands to the printer itself at any time, values of a counter, and what other programs wrap
// commands in: no command words.
bool isOtherLine(const Command& command) {
    const char first = command.text.front();
    return first == escape || first == '~' || first == '@' || isWrapper(command.text);
}

}  // namespace

void PrinterModel::onBlankLines(const Place& place, std::uint64_t count) {
    if (isForeign_) {
        return;
    }
    const std::string words = std::to_string(count) + (count == 1 ? " blank line" : " blank lines");
    printer_.sink().onEntry({place.offset, "", {}, "(" + words + ")", std::nullopt, ""});
}

void PrinterModel::onCommand(const Command& command) {
    if (isForeign(command)) {
        return;
    }
    printer_.files.end();
    std::string remark = obey(command);
    // The label of a PRINT comes before its entry, so that the entry can be the last word.
    printer_.sink().onEntry({command.offset, command.name, command.arguments, command.text,
                             std::nullopt, std::move(remark)});
}

// Of a stream that is no TSPL one finding tells more than one for every line.
bool PrinterModel::isForeign(const Command& command) {
    if (!std::exchange(hasBegun_, true)) {
        if (const auto format = foreignFormat(command.text); !format.empty()) {
            complainOfForeign(command, format);
            isForeign_ = true;
        }
    }
    return isForeign_;
}

void PrinterModel::complainOfForeign(const Command& command, std::string_view format) {
    printer_.complain(command, "this is no TSPL: it looks like " + std::string(format));
}

std::string PrinterModel::obey(const Command& command) {
    if (isOtherLine(command)) {
        return "not part of the picture";
    }
    if (printer_.storingSince && command.name != "EOP") {
        return "stored in the printer";
    }
    const CommandRule* rule = findRule(command.name);
    if (rule == nullptr) {
        return refuse(command);
    }
    noteCommand();
    if (const auto known = variables_.withoutThem(command, *rule)) {
        return passOverVariables(*known, *rule);
    }
    if (const auto fault = findFault(*rule, command)) {
        printer_.complain(command, *fault);
        return "not understood";
    }
    if (rule->effect == Effect::NotDrawn) {
        printer_.remarkUndrawn(command, command.name + " is not drawn");
        return "not drawn";
    }
    if (rule->obey != nullptr) {
        rule->obey(printer_, command);
        printer_.label.noteDrawn(command, command.name);
    }
    return "";
}

std::string PrinterModel::refuse(const Command& command) {
    if (isBasicStatement(command)) {
        return passOverBasic(command);
    }
    if (command.name == "BITMAP") {
        noteCommand();
        printer_.label.noteUndrawn();
        printer_.complain(
            command,
            "BITMAP needs two positions, a width, a height, a mode and data: " + quoted(command));
        return "not understood";
    }
    if (isInForeignPart_) {
        return "unknown";
    }
    if (const auto format = foreignBeginning(command.text); !format.empty()) {
        complainOfForeign(command, format);
        isInForeignPart_ = true;
    } else if (++unknownLines_ > mostUnknownLines) {
        printer_.complain(command, "no command here either: up to the next one no more is said");
        isInForeignPart_ = true;
    } else {
        printer_.complain(command, "unknown command: " + quoted(command));
    }
    return "unknown";
}

// What else is wrong with it is wrong whatever the variables hold. A label is printed, however
// often, and one of an unknown size has none.
std::string PrinterModel::passOverVariables(const Command& known, const CommandRule& rule) {
    if (const auto fault = findFault(rule, known)) {
        printer_.complain(known, *fault);
        return "not understood";
    }
    printer_.label.noteUndrawn();
    if (rule.name == "PRINT") {
        rule.obey(printer_, known);
        return "drawn once";
    }
    if (rule.name == "SIZE") {
        printer_.label = Label(printer_.options.dpi, printer_.options.mostDots);
    }
    return "not run";
}

// Printers run them; what they draw cannot be told without running them here, too.
std::string PrinterModel::passOverBasic(const Command& command) {
    variables_.note(command);
    printer_.label.noteUndrawn();
    if (!std::exchange(hasSeenBasic_, true)) {
        printer_.remark(command, "BASIC statements are not run");
    }
    return "not run";
}

void PrinterModel::noteCommand() {
    isInForeignPart_ = false;
    unknownLines_ = 0;
}

void PrinterModel::onBitmap(const BitmapHead& head) {
    noteCommand();
    bitmap_ = BitmapDrawing(printer_, head);
}

void PrinterModel::onBitmapData(std::uint64_t position, std::span<const std::uint8_t> data) {
    bitmap_.take(printer_, position, data);
}

void PrinterModel::onBitmapEnd(std::uint64_t received) {
    bitmap_.end(printer_, received);
}

void PrinterModel::onDownloadData(std::span<const std::uint8_t> data) {
    printer_.files.append(data);
}

void PrinterModel::onDownloadCutShort(const Place& place, std::uint64_t expected,
                                      std::uint64_t received) {
    printer_.complain(place, "DOWNLOAD is cut short: " + std::to_string(received) + " of " +
                                 std::to_string(expected) + " bytes are there");
}

void PrinterModel::onByteOrderMark() {
    printer_.complain({0, 1},
                      "a byte order mark stands in front of the first command; printers take it "
                      "for a part of it");
}

void PrinterModel::onEnd() {
    if (printer_.storingSince) {
        printer_.complain(*printer_.storingSince,
                          "DOWNLOAD stores a program that does not end with EOP");
    }
}

void PrinterModel::onLongLine(const Place& place) {
    if (isForeign_) {
        return;
    }
    if (!isInForeignPart_) {
        printer_.complain(place, "a line that is longer than any command is skipped");
    }
    printer_.sink().onEntry({place.offset, "", {}, "(a long line)", std::nullopt, "skipped"});
}

}  // namespace tspl
