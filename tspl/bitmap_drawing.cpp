#include "tspl/bitmap_drawing.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace tspl {
namespace {

constexpr std::int64_t dotsPerByte = 8;

std::uint64_t burntDots(std::span<const std::uint8_t> burning) {
    std::uint64_t dots = 0;
    for (const std::uint8_t byte : burning) {
        dots += static_cast<unsigned>(std::popcount(byte));
    }
    return dots;
}

std::string ofBytes(std::uint64_t there, std::uint64_t wanted) {
    return std::to_string(there) + " of " + std::to_string(wanted) + " bytes are there";
}

std::vector<std::string> argumentsOf(const BitmapHead& head) {
    std::vector<std::string> arguments;
    for (const std::int32_t value : {head.x, head.y, head.rowBytes, head.rows, head.mode}) {
        arguments.push_back(std::to_string(value));
    }
    if (head.mode == BitmapHead::compressed) {
        arguments.push_back(std::to_string(head.compressedBytes));
    }
    return arguments;
}

}  // namespace

BitmapDrawing::BitmapDrawing(Printer& printer, const BitmapHead& head) : head_(head) {
    if (printer.storingSince) {
        remark_ = "stored in the printer";
    } else if (head.mode < 0 || head.mode > BitmapHead::compressed) {
        remark_ = "not drawn";
        printer.complain(head, "BITMAP does not take mode " + std::to_string(head.mode));
    } else {
        printer.label.noteBitmap(head, printer.reference.x + head.x, printer.reference.y + head.y);
    }
    if (head.mode == BitmapHead::compressed) {
        inflation_ = std::make_unique<Inflation>();
    }
}

void BitmapDrawing::take(Printer& printer, std::uint64_t position,
                         std::span<const std::uint8_t> data) {
    if (inflation_) {
        inflate(printer, data);
    } else {
        drawPlain(printer, position, data);
    }
}

void BitmapDrawing::drawPlain(Printer& printer, std::uint64_t position,
                              std::span<const std::uint8_t> data) {
    burning_.assign(data.begin(), data.end());
    if (!printer.options.onesBurn) {
        for (std::uint8_t& byte : burning_) {
            byte = static_cast<std::uint8_t>(~byte);
        }
    }
    draw(printer, position, burning_);
}

// In compressed data the 1 bits burn, on every printer.
void BitmapDrawing::inflate(Printer& printer, std::span<const std::uint8_t> data) {
    std::uint64_t position = inflation_->bytes();
    inflation_->feed(data, head_.pictureBytes(), [&](std::span<const std::uint8_t> piece) {
        draw(printer, position, piece);
        position += piece.size();
    });
}

void BitmapDrawing::draw(Printer& printer, std::uint64_t position,
                         std::span<const std::uint8_t> burning) {
    constexpr DrawMode modes[] = {DrawMode::Overwrite, DrawMode::Or, DrawMode::ExclusiveOr,
                                  DrawMode::Overwrite};
    burnt_ += burntDots(burning);
    if (!remark_.empty()) {
        return;
    }
    const auto rowBytes = static_cast<std::uint64_t>(head_.rowBytes);
    while (!burning.empty()) {
        const std::uint64_t column = position % rowBytes;
        const auto part =
            static_cast<std::size_t>(std::min<std::uint64_t>(rowBytes - column, burning.size()));
        const Area at =
            printer.placed({head_.x + dotsPerByte * static_cast<std::int64_t>(column),
                            head_.y + static_cast<std::int64_t>(position / rowBytes), 0, 0});
        printer.label.canvas().drawBits(at.x, at.y, burning.first(part), modes[head_.mode]);
        burning = burning.subspan(part);
        position += part;
    }
}

void BitmapDrawing::complainOfLength(Printer& printer, std::uint64_t received) const {
    if (received < head_.dataBytes()) {
        printer.complain(head_, "BITMAP is cut short: " + ofBytes(received, head_.dataBytes()));
    } else if (inflation_ && inflation_->isBroken()) {
        printer.complain(head_, "the data of BITMAP in mode 3 are no zlib data, or damaged");
    } else if (inflation_ && inflation_->bytes() < head_.pictureBytes()) {
        printer.complain(head_, "the data of BITMAP in mode 3 hold less than the picture: " +
                                    ofBytes(inflation_->bytes(), head_.pictureBytes()));
    } else if (inflation_ && inflation_->holdsMore()) {
        printer.complain(head_, "the data of BITMAP in mode 3 hold more than the picture");
    } else if (inflation_ && inflation_->taken() < received) {
        printer.complain(head_, "the data of BITMAP in mode 3 end behind " +
                                    std::to_string(inflation_->taken()) + " of " +
                                    std::to_string(received) + " bytes; the others are lost");
    }
}

std::optional<std::uint64_t> BitmapDrawing::unpackedBytes() const {
    return inflation_ ? std::optional(inflation_->bytes()) : std::nullopt;
}

void BitmapDrawing::end(Printer& printer, std::uint64_t received) {
    complainOfLength(printer, received);
    printer.label.noteDrawn(head_, "BITMAP");
    std::vector<std::string> arguments = argumentsOf(head_);
    std::string text = "BITMAP ";
    for (const std::string& argument : arguments) {
        text += argument + ",";
    }
    const BitmapSummary summary{dotsPerByte * head_.rowBytes,
                                head_.rows,
                                head_.dataBytes(),
                                received,
                                burnt_,
                                unpackedBytes()};
    printer.sink().onEntry(
        {head_.offset, "BITMAP", std::move(arguments), std::move(text), summary, remark_});
}

}  // namespace tspl
