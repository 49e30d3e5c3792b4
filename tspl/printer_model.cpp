#include "tspl/printer_model.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "tspl/command_rules.h"
#include "tspl/data_heads.h"
#include "tspl/length.h"
#include "tspl/text.h"

namespace tspl {
namespace {

constexpr char escape = '\x1b';

// An argument that the command's rule has found to be a whole number.
std::int32_t integer(const Command& command, std::size_t index) {
    return parseInteger(command.arguments[index]).value_or(0);
}

Area areaOf(const Command& command) {
    return {integer(command, 0), integer(command, 1), integer(command, 2), integer(command, 3)};
}

// Commands to the printer itself at any time, and values of a counter: no command words.
bool isOtherLine(const Command& command) {
    const char first = command.text.front();
    return first == escape || first == '~' || first == '@';
}

// The largest number where the sum is larger.
std::uint64_t sum(std::uint64_t a, std::uint64_t b) {
    return a + std::min(b, std::numeric_limits<std::uint64_t>::max() - a);
}

std::string quoted(const Command& command) {
    constexpr std::size_t longest = 40;
    const std::string text = printable(command.text);
    return text.size() <= longest ? text : text.substr(0, longest) + "...";
}

}  // namespace

void PrinterModel::onBlankLines(std::uint64_t offset, std::uint64_t count) {
    const std::string words = std::to_string(count) + (count == 1 ? " blank line" : " blank lines");
    sink_.onEntry({offset, "", {}, "(" + words + ")", std::nullopt, ""});
}

void PrinterModel::onCommand(const Command& command) {
    std::string remark = obey(command);
    // The label of a PRINT comes before its entry, so that the entry can be the last word.
    sink_.onEntry({command.offset, command.name, command.arguments, command.text, std::nullopt,
                   std::move(remark)});
}

std::string PrinterModel::obey(const Command& command) {
    if (isOtherLine(command)) {
        return "not part of the picture";
    }
    if (storing_ && command.name != "EOP") {
        return "stored in the printer";
    }
    const CommandRule* rule = findRule(command.name);
    if (rule == nullptr) {
        const bool badBitmap = command.name == "BITMAP";
        complain(command.offset, badBitmap ? "BITMAP needs two positions, a width, a height, a "
                                             "mode and data: " +
                                                 quoted(command)
                                           : "unknown command: " + quoted(command));
        return badBitmap ? "not understood" : "unknown";
    }
    if (const auto fault = findFault(*rule, command)) {
        complain(command.offset, *fault);
        return "not understood";
    }
    if (rule->effect == Effect::NotDrawn) {
        remark(command.offset, command.name + " is not drawn");
        return "not drawn";
    }
    obeyKnown(command);
    return "";
}

void PrinterModel::obeyKnown(const Command& command) {
    using Action = void (PrinterModel::*)(const Command&);
    constexpr std::pair<std::string_view, Action> actions[] = {
        {"SIZE", &PrinterModel::setSize},
        {"REFERENCE", &PrinterModel::setReference},
        {"SHIFT", &PrinterModel::setShift},
        {"DIRECTION", &PrinterModel::setDirection},
        {"SPEED", &PrinterModel::checkSpeed},
        {"DENSITY", &PrinterModel::checkDensity},
        {"SET", &PrinterModel::set},
        {"BAR", &PrinterModel::drawArea},
        {"ERASE", &PrinterModel::drawArea},
        {"REVERSE", &PrinterModel::drawArea},
        {"BOX", &PrinterModel::drawBox},
        {"PRINT", &PrinterModel::print},
        {"DOWNLOAD", &PrinterModel::startStoring},
    };
    if (command.name == "CLS") {
        label_.clear();
    } else if (command.name == "EOP") {
        storing_ = false;
    }
    for (const auto& [name, action] : actions) {
        if (name == command.name) {
            (this->*action)(command);
        }
    }
}

void PrinterModel::setSize(const Command& command) {
    const auto width = parseLength(command.arguments[0]);
    const auto height = parseLength(command.arguments[1]);
    if (width && height && !label_.setSize({*width, *height})) {
        complain(command.offset, "a label of this size is too large to draw: " + quoted(command));
    }
}

void PrinterModel::setReference(const Command& command) {
    reference_ = {integer(command, 0), integer(command, 1)};
}

void PrinterModel::setShift(const Command& command) {
    const bool both = command.arguments.size() == 2;
    placement_.shiftX = both ? integer(command, 0) : 0;
    placement_.shiftY = integer(command, both ? 1 : 0);
}

void PrinterModel::setDirection(const Command& command) {
    const std::int32_t direction = integer(command, 0);
    const std::int32_t mirror = command.arguments.size() == 2 ? integer(command, 1) : 0;
    if (direction < 0 || direction > 1 || mirror < 0 || mirror > 1) {
        complain(command.offset, "DIRECTION takes 0 and 1");
        return;
    }
    placement_.turned = direction == 1;
    placement_.mirrored = mirror == 1;
}

void PrinterModel::checkSpeed(const Command& command) {
    const std::string& text = command.arguments[0];
    double speed = 0;
    const auto number = std::from_chars(text.data(), text.data() + text.size(), speed);
    if (number.ec != std::errc() || number.ptr != text.data() + text.size() ||
        !std::isfinite(speed) || speed <= 0) {
        complain(command.offset, "SPEED does not take \"" + printable(text) + '"');
    }
}

// 15 is the darkest on most printers; some go on to 30.
void PrinterModel::checkDensity(const Command& command) {
    constexpr std::int32_t darkest = 30;
    const std::int32_t density = integer(command, 0);
    if (density < 0 || density > darkest) {
        complain(command.offset, "DENSITY does not take " + std::to_string(density));
    }
}

void PrinterModel::set(const Command& command) {
    if (const auto fault = obeySet(command, afterLabel_)) {
        complain(command.offset, *fault);
    }
}

void PrinterModel::drawArea(const Command& command) {
    const Area area = placed(areaOf(command));
    if (area.width <= 0 || area.height <= 0) {
        complain(command.offset, command.name + " without an extent: " + quoted(command));
        return;
    }
    if (command.name == "BAR") {
        label_.canvas().fill(area);
    } else if (command.name == "ERASE") {
        label_.canvas().erase(area);
    } else {
        label_.canvas().invert(area);
    }
}

// The frame lies within the box from corner to corner; round corners are drawn square.
void PrinterModel::drawBox(const Command& command) {
    const Area corners = areaOf(command);
    const std::int64_t width = corners.width - corners.x;
    const std::int64_t height = corners.height - corners.y;
    const std::int64_t thick = std::min<std::int64_t>({integer(command, 4), width, height});
    if (thick <= 0) {
        complain(command.offset, "BOX without an extent: " + quoted(command));
        return;
    }
    if (command.arguments.size() > 5 && integer(command, 5) != 0) {
        remark(command.offset, "the round corners of BOX are drawn square");
    }
    const std::int64_t between = std::max<std::int64_t>(height - 2 * thick, 0);
    const std::int64_t lower = std::max(height - thick, thick);
    DotCanvas& canvas = label_.canvas();
    canvas.fill(placed({corners.x, corners.y, width, thick}));
    canvas.fill(placed({corners.x, corners.y + lower, width, height - lower}));
    canvas.fill(placed({corners.x, corners.y + thick, thick, between}));
    canvas.fill(placed({corners.x + std::max(width - thick, thick), corners.y + thick,
                        std::min(thick, std::max<std::int64_t>(width - thick, 0)), between}));
}

void PrinterModel::print(const Command& command) {
    const std::int32_t sets = integer(command, 0);
    const std::int32_t copies = command.arguments.size() == 2 ? integer(command, 1) : 1;
    if (sets < 1 || copies < 1) {
        complain(command.offset, quoted(command) + " prints nothing");
        return;
    }
    if (!afterLabel_.isBalanced()) {
        complain(command.offset, "more than one of SET TEAR, SET PEEL and SET CUTTER is on");
    }
    printLabel(command, sets, copies);
}

void PrinterModel::printLabel(const Command& command, std::int32_t sets, std::int32_t copies) {
    const LabelDots dots = label_.dots();
    ++labels_;
    if (dots.width <= 0 || dots.height <= 0) {
        complain(command.offset, "the label has no size that can be drawn");
        sink_.onLostLabel();
        return;
    }
    reportOverhang(dots);
    const LabelPicture picture(label_.canvas(), dots.width, dots.height, dots.dpi, placement_);
    const std::uint64_t onCanvas = label_.canvas().burntDots();
    const std::uint64_t printed = picture.burntDots();
    const std::uint64_t outside = sum(onCanvas - printed, label_.canvas().dotsOutside());
    if (outside > 0) {
        complain(command.offset,
                 std::to_string(outside) + " dots lie outside the label and are cut off");
    }
    sink_.onLabel({labels_, sets, copies, picture});
}

void PrinterModel::reportOverhang(const LabelDots& dots) {
    if (const auto widest = label_.widestOverhang(dots)) {
        complain(widest->offset, "BITMAP reaches to dot " + std::to_string(widest->end) +
                                     ", the label is " + std::to_string(dots.width) + " dots wide");
    }
    if (const auto highest = label_.highestOverhang(dots)) {
        complain(highest->offset, "BITMAP reaches to row " + std::to_string(highest->end) +
                                      ", the label is " + std::to_string(dots.height) +
                                      " rows high");
    }
}

// DOWNLOAD "NAME" without a size: a program follows, up to EOP.
void PrinterModel::startStoring(const Command& command) {
    const std::string& last = command.arguments.back();
    const bool isProgram = last.size() > 1 && last.starts_with('"') && last.ends_with('"');
    if (isProgram) {
        storing_ = true;
        storingSince_ = command.offset;
    } else if (!parseDownloadHead(command)) {
        complain(command.offset,
                 "DOWNLOAD needs a name, and for a file its size: " + quoted(command));
    }
}

void PrinterModel::onBitmap(const BitmapHead& head) {
    bitmap_ = head;
    bitmapBurnt_ = 0;
    bitmapRemark_.clear();
    if (storing_) {
        bitmapRemark_ = "stored in the printer";
    } else if (head.mode < 0 || head.mode > 2) {
        bitmapRemark_ = "not drawn";
        complain(head.offset, "BITMAP does not take mode " + std::to_string(head.mode));
    } else {
        label_.noteBitmap(head, reference_.x + head.x, reference_.y + head.y);
    }
}

void PrinterModel::onBitmapData(std::uint64_t position, std::span<const std::uint8_t> data) {
    burning_.assign(data.begin(), data.end());
    for (std::uint8_t& byte : burning_) {
        byte = options_.onesBurn ? byte : static_cast<std::uint8_t>(~byte);
        bitmapBurnt_ += static_cast<unsigned>(std::popcount(byte));
    }
    if (bitmapRemark_.empty()) {
        drawSegment(position, burning_);
    }
}

void PrinterModel::drawSegment(std::uint64_t position, std::span<const std::uint8_t> burning) {
    constexpr DrawMode modes[] = {DrawMode::Overwrite, DrawMode::Or, DrawMode::ExclusiveOr};
    const auto rowBytes = static_cast<std::uint64_t>(bitmap_.rowBytes);
    while (!burning.empty()) {
        const std::uint64_t column = position % rowBytes;
        const auto part =
            static_cast<std::size_t>(std::min<std::uint64_t>(rowBytes - column, burning.size()));
        const Area at = placed({bitmap_.x + 8 * static_cast<std::int64_t>(column),
                                bitmap_.y + static_cast<std::int64_t>(position / rowBytes), 0, 0});
        label_.canvas().drawBits(at.x, at.y, burning.first(part), modes[bitmap_.mode]);
        burning = burning.subspan(part);
        position += part;
    }
}

void PrinterModel::onBitmapEnd(std::uint64_t received) {
    const std::uint64_t expected = bitmap_.dataBytes();
    if (received < expected) {
        complain(bitmap_.offset, "BITMAP is cut short: " + std::to_string(received) + " of " +
                                     std::to_string(expected) + " bytes are there");
    }
    std::vector<std::string> arguments;
    std::string text = "BITMAP ";
    for (const std::int32_t value :
         {bitmap_.x, bitmap_.y, bitmap_.rowBytes, bitmap_.rows, bitmap_.mode}) {
        arguments.push_back(std::to_string(value));
        text += arguments.back() + ",";
    }
    const BitmapSummary summary{std::int64_t{8} * bitmap_.rowBytes, bitmap_.rows, expected,
                                received, bitmapBurnt_};
    sink_.onEntry(
        {bitmap_.offset, "BITMAP", std::move(arguments), std::move(text), summary, bitmapRemark_});
}

void PrinterModel::onDownloadCutShort(std::uint64_t offset, std::uint64_t expected,
                                      std::uint64_t received) {
    complain(offset, "DOWNLOAD is cut short: " + std::to_string(received) + " of " +
                         std::to_string(expected) + " bytes are there");
}

void PrinterModel::onEnd() {
    if (storing_) {
        complain(storingSince_, "DOWNLOAD stores a program that does not end with EOP");
    }
}

void PrinterModel::onLongLine(std::uint64_t offset) {
    complain(offset, "a line that is longer than any command is skipped");
    sink_.onEntry({offset, "", {}, "(a long line)", std::nullopt, "skipped"});
}

Area PrinterModel::placed(const Area& area) const {
    return {reference_.x + area.x, reference_.y + area.y, area.width, area.height};
}

void PrinterModel::complain(std::uint64_t offset, std::string text) {
    sink_.onFinding({Finding::Kind::Complaint, offset, std::move(text)});
}

void PrinterModel::remark(std::uint64_t offset, std::string text) {
    sink_.onFinding({Finding::Kind::Remark, offset, std::move(text)});
}

}  // namespace tspl
