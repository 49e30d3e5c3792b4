#include "tspl/stream_parser.h"

#include <algorithm>
#include <utility>

#include "tspl/data_heads.h"
#include "tspl/text.h"
#include "tspl/wrapper.h"

namespace tspl {
namespace {

constexpr char escape = '\x1b';
constexpr std::size_t immediateBytes = 3;

bool isImmediate(std::string_view line) {
    return line.size() == immediateBytes && line[0] == escape && line[1] == '!';
}

bool isByteOrderMark(std::string_view line) {
    return line == "\xEF\xBB\xBF";
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

}  // namespace

void StreamParser::feed(std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        std::size_t taken = 1;
        if (state_ == State::Bitmap || state_ == State::Download) {
            taken = takeData(bytes);
        } else {
            takeLineByte(bytes.front());
        }
        offset_ += taken;
        bytes = bytes.subspan(taken);
    }
}

void StreamParser::finish() {
    if (state_ == State::Bitmap || state_ == State::Download) {
        endData();
    } else {
        reportCommand();
    }
    reportBlankLines();
    handler_.onEnd();
}

std::size_t StreamParser::takeData(std::span<const std::uint8_t> bytes) {
    const auto left = dataBytes_ - dataTaken_;
    const auto taken = static_cast<std::size_t>(std::min<std::uint64_t>(left, bytes.size()));
    if (state_ == State::Bitmap) {
        handler_.onBitmapData(dataTaken_, bytes.first(taken));
    } else {
        handler_.onDownloadData(bytes.first(taken));
    }
    dataTaken_ += taken;
    if (dataTaken_ == dataBytes_) {
        endData();
    }
    return taken;
}

void StreamParser::takeLineByte(std::uint8_t byte) {
    const bool secondHalf = byte == '\n' && afterReturn_;
    afterReturn_ = byte == '\r';
    if (secondHalf) {
        return;
    }
    const bool ofData = std::exchange(afterData_, false);
    if (byte == '\n' || byte == '\r') {
        if (!ofData) {
            endLine();
        }
        ++lineNumber_;
        return;
    }
    if (state_ == State::Line) {
        addToLine(static_cast<char>(byte));
    }
}

void StreamParser::endLine() {
    if (state_ == State::LongLine) {
        state_ = State::Line;
        return;
    }
    if (line_.empty()) {
        blankStart_ = blankLines_ == 0 ? Place{offset_ - leadingBlanks_, lineNumber_} : blankStart_;
        leadingBlanks_ = 0;
        ++blankLines_;
        return;
    }
    reportCommand();
}

void StreamParser::addToLine(char c) {
    if (line_.empty()) {
        if (isBlank(c)) {
            ++leadingBlanks_;
            return;
        }
        leadingBlanks_ = 0;
        lineStart_ = {offset_, lineNumber_};
        commas_ = 0;
    }
    if (line_.size() == longestLine) {
        reportBlankLines();
        handler_.onLongLine(lineStart_);
        line_.clear();
        state_ = State::LongLine;
        return;
    }
    line_ += c;
    if (isByteOrderMark(line_) && lineStart_.offset == 0) {
        line_.clear();
        handler_.onByteOrderMark();
    } else if (isImmediate(line_)) {
        reportCommand();
    } else if (c == ',') {
        ++commas_;
        startDataAfterComma();
    } else if (c == '>') {
        endWrapper();
    }
}

// Only at the commas that can end a head is the line looked at: a line of nothing but commas is
// not parsed over and over.
void StreamParser::startDataAfterComma() {
    if (commas_ < 2 || commas_ > compressedBitmapCommas) {
        return;
    }
    const char first = line_.front();
    if (first != 'B' && first != 'b' && first != 'D' && first != 'd') {
        return;
    }
    const Command command = parseCommand(lineStart_, line_);
    if (command.name == "BITMAP") {
        const auto head = commas_ >= bitmapCommas ? parseBitmapHead(command) : std::nullopt;
        if (head) {
            reportBlankLines();
            line_.clear();
            handler_.onBitmap(*head);
            startData(State::Bitmap, head->dataBytes());
        }
    } else if (const auto file = parseDownloadHead(command)) {
        reportCommand();
        startData(State::Download, file->bytes);
    }
}

// What stands behind a wrapper on its line is a line of its own.
void StreamParser::endWrapper() {
    if (isWrapper(line_)) {
        reportCommand();
    }
}

void StreamParser::startData(State kind, std::uint64_t bytes) {
    state_ = kind;
    dataStart_ = lineStart_;
    dataBytes_ = bytes;
    dataTaken_ = 0;
    if (bytes == 0) {
        endData();
    }
}

void StreamParser::endData() {
    if (state_ == State::Bitmap) {
        handler_.onBitmapEnd(dataTaken_);
    } else if (dataTaken_ < dataBytes_) {
        handler_.onDownloadCutShort(dataStart_, dataBytes_, dataTaken_);
    }
    state_ = State::Line;
    afterData_ = true;
}

void StreamParser::reportBlankLines() {
    if (blankLines_ > 0) {
        handler_.onBlankLines(blankStart_, blankLines_);
        blankLines_ = 0;
    }
}

void StreamParser::reportCommand() {
    if (line_.empty()) {
        return;
    }
    reportBlankLines();
    handler_.onCommand(parseCommand(lineStart_, line_));
    line_.clear();
}

}  // namespace tspl
