#include "status/stream_guard.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <optional>
#include <system_error>

namespace status {
namespace {

constexpr char escape = '\x1b';
constexpr std::string_view bitmap = "BITMAP";
constexpr std::string_view download = "DOWNLOAD";

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

// Whatever the locale says.
char upperCase(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool isLetter(char c) {
    return c >= 'A' && c <= 'Z';
}

std::optional<std::uint32_t> number(std::string_view text) {
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

// The fields of a head, which ends with a comma; the last one of more than there is room for is
// not counted.
struct Fields {
    static constexpr std::size_t most = 6;
    std::array<std::string_view, most> text{};
    std::size_t count = 0;
    bool areTooMany = false;
};

Fields fieldsOf(std::string_view head) {
    Fields fields;
    bool isInQuotes = false;
    std::size_t start = 0;
    for (std::size_t i = 0; i < head.size(); ++i) {
        isInQuotes ^= head[i] == '"';
        if (head[i] != ',' || isInQuotes) {
            continue;
        }
        if (fields.count == Fields::most) {
            fields.areTooMany = true;
            return fields;
        }
        fields.text[fields.count++] = head.substr(start, i - start);
        start = i + 1;
    }
    return fields;
}

std::optional<std::uint64_t> bytesOfBitmap(const Fields& fields) {
    constexpr std::size_t ordinary = 5;
    if (fields.count < ordinary || fields.areTooMany) {
        return std::nullopt;
    }
    const auto width = number(fields.text[2]);
    const auto height = number(fields.text[3]);
    const auto mode = number(fields.text[4]);
    if (!width || !height || !mode) {
        return std::nullopt;
    }
    constexpr std::uint32_t packed = 3;
    if (*mode == packed) {
        return fields.count > ordinary ? number(fields.text[ordinary]) : std::nullopt;
    }
    if (fields.count > ordinary) {
        return std::nullopt;
    }
    return std::uint64_t{*width} * *height;
}

std::optional<std::uint64_t> bytesOfDownload(const Fields& fields) {
    const bool hasMemory = fields.count == 3;
    if ((fields.count != 2 && !hasMemory) || fields.areTooMany ||
        !fields.text[hasMemory ? 1 : 0].starts_with('"')) {
        return std::nullopt;
    }
    return number(fields.text[fields.count - 1]);
}

}  // namespace

Piece StreamGuard::take(std::span<const std::uint8_t> bytes) {
    switch (state_) {
        case State::Data:
            return takeData(bytes);
        case State::DataEnd:
        case State::DataReturn:
            return {takeDataEnd(bytes), PieceKind::Data};
        default:
            return takeLine(bytes);
    }
}

PieceKind StreamGuard::finish() {
    return isInData() ? PieceKind::Data : endLine();
}

void StreamGuard::pass(std::uint64_t bytes) {
    dataLeft_ -= std::min(bytes, dataLeft());
    if (state_ == State::Data && dataLeft_ == 0) {
        state_ = State::DataEnd;
    }
}

bool StreamGuard::isBehindData() const {
    return state_ == State::DataEnd || state_ == State::DataReturn;
}

Piece StreamGuard::takeData(std::span<const std::uint8_t> bytes) {
    const auto taken = static_cast<std::size_t>(std::min<std::uint64_t>(dataLeft_, bytes.size()));
    dataLeft_ -= taken;
    if (dataLeft_ > 0) {
        return {taken, PieceKind::Data};
    }
    state_ = State::DataEnd;
    return {taken + takeDataEnd(bytes.subspan(taken)), PieceKind::Data};
}

std::size_t StreamGuard::takeDataEnd(std::span<const std::uint8_t> bytes) {
    for (std::size_t taken = 0; taken < bytes.size(); ++taken) {
        if (state_ == State::DataEnd && bytes[taken] == '\r') {
            state_ = State::DataReturn;
            continue;
        }
        state_ = State::LineStart;
        return bytes[taken] == '\n' ? taken + 1 : taken;
    }
    return bytes.size();
}

Piece StreamGuard::takeLine(std::span<const std::uint8_t> bytes) {
    for (std::size_t taken = 0; taken < bytes.size(); ++taken) {
        const auto c = static_cast<char>(bytes[taken]);
        if (c == '\n') {
            return {taken + 1, endLine()};
        }
        if (state_ == State::LineReturn) {
            return {taken, endLine()};
        }
        if (c == '\r') {
            state_ = State::LineReturn;
            continue;
        }
        if (state_ == State::LineStart) {
            startLine(c);
        }
        if (isPlain_) {
            continue;
        }
        addToHead(c);
        if (isImmediate()) {
            headBytes_ = 0;
            state_ = State::LineStart;
            return {taken + 1, PieceKind::Line};
        }
        if (c == ',' && !isInQuotes_ && startsData()) {
            return {taken + 1, PieceKind::DataHead};
        }
    }
    return {bytes.size(), PieceKind::Part};
}

void StreamGuard::startLine(char first) {
    headBytes_ = 0;
    isInQuotes_ = false;
    if (isBlank(first)) {
        isPlain_ = true;
        return;
    }
    state_ = State::Line;
    // What BITMAP, DOWNLOAD, PRINT, EOP and immediate commands begin with.
    constexpr std::string_view lookedAt = "BDPE\x1b";
    isPlain_ = lookedAt.find(upperCase(first)) == std::string_view::npos;
}

// Blanks are left out but for one behind the name.
void StreamGuard::addToHead(char c) {
    isInQuotes_ ^= c == '"';
    if (isBlank(c) && !isInQuotes_) {
        const bool isBehindName = std::all_of(
            head_.begin(), head_.begin() + static_cast<std::ptrdiff_t>(headBytes_), isLetter);
        if (!isBehindName) {
            return;
        }
        c = ' ';
    }
    if (headBytes_ == longestHead) {
        isPlain_ = true;
        headBytes_ = 0;
        return;
    }
    head_[headBytes_++] = isInQuotes_ ? c : upperCase(c);
}

PieceKind StreamGuard::endLine() {
    state_ = State::LineStart;
    if (hasName(download)) {
        isInProgram_ = true;
    } else if (hasName("EOP")) {
        isInProgram_ = false;
    }
    const bool prints = hasName("PRINT") && !isInProgram_;
    headBytes_ = 0;
    return prints ? PieceKind::Print : PieceKind::Line;
}

bool StreamGuard::isImmediate() const {
    constexpr std::size_t immediateBytes = 3;
    return headBytes_ == immediateBytes && head_[0] == escape && head_[1] == '!';
}

bool StreamGuard::hasName(std::string_view name) const {
    const std::string_view text = head();
    return text.starts_with(name) && (text.size() == name.size() || !isLetter(text[name.size()]));
}

bool StreamGuard::startsData() {
    std::optional<std::uint64_t> bytes;
    if (hasName(bitmap)) {
        bytes = bytesOfBitmap(fieldsOf(head().substr(bitmap.size())));
    } else if (hasName(download)) {
        std::string_view fields = head().substr(download.size());
        fields.remove_prefix(std::min(fields.find_first_not_of(' '), fields.size()));
        bytes = bytesOfDownload(fieldsOf(fields));
    }
    if (!bytes) {
        return false;
    }
    headBytes_ = 0;
    dataLeft_ = *bytes;
    state_ = *bytes > 0 ? State::Data : State::DataEnd;
    return true;
}

}  // namespace status
