#include "tspl/code_page.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>

#include "tspl/text.h"
#include "tspl/utf8.h"

namespace tspl {
namespace {

struct NamedEncoding {
    std::string_view name;
    std::string_view encoding;
};

// The national variants of ASCII, the code pages of DOS and Windows, and those of two bytes. For
// the Swiss variant there is no table: its ASCII part is read.
constexpr NamedEncoding encodings[] = {
    {"USA", "ISO646-US"}, {"BRI", "ISO646-GB"},   {"GBR", "ISO646-GB"},   {"GER", "ISO646-DE"},
    {"FRE", "ISO646-FR"}, {"DAN", "ISO646-DK"},   {"ITA", "ISO646-IT"},   {"SPA", "ISO646-ES"},
    {"SWE", "ISO646-SE"}, {"SWI", "ISO646-US"},   {"437", "CP437"},       {"737", "CP737"},
    {"775", "CP775"},     {"850", "CP850"},       {"851", "CP851"},       {"852", "CP852"},
    {"855", "CP855"},     {"857", "CP857"},       {"858", "CP858"},       {"860", "CP860"},
    {"861", "CP861"},     {"862", "CP862"},       {"863", "CP863"},       {"864", "CP864"},
    {"865", "CP865"},     {"866", "CP866"},       {"869", "CP869"},       {"874", "CP874"},
    {"1250", "CP1250"},   {"1251", "CP1251"},     {"1252", "CP1252"},     {"1253", "CP1253"},
    {"1254", "CP1254"},   {"1255", "CP1255"},     {"1256", "CP1256"},     {"1257", "CP1257"},
    {"1258", "CP1258"},   {"932", "CP932"},       {"SHIFT-JIS", "CP932"}, {"SHIFTJIS", "CP932"},
    {"936", "GB18030"},   {"GB18030", "GB18030"}, {"GBK", "GB18030"},     {"GB2312", "GB18030"},
    {"949", "CP949"},     {"EUC-KR", "CP949"},    {"950", "CP950"},       {"BIG5", "CP950"},
    {"UTF-8", "UTF-8"},   {"UTF8", "UTF-8"},      {"65001", "UTF-8"},
};

// "8859-1" to "8859-16"; there is no twelfth part.
bool isPartOf8859(std::string_view name) {
    constexpr std::string_view start = "8859-";
    constexpr int lastPart = 16;
    constexpr int missingPart = 12;
    if (!name.starts_with(start)) {
        return false;
    }
    const auto part = parseInteger(name.substr(start.size()));
    return part && *part >= 1 && *part <= lastPart && *part != missingPart;
}

// A conversion into UTF-8.
class Conversion {
public:
    explicit Conversion(const std::string& encoding)
        : handle_(iconv_open("UTF-8", encoding.c_str())) {}
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;
    ~Conversion() {
        if (isOpen()) {
            iconv_close(handle_);
        }
    }

    // Takes what it can from the front of the text and appends it. False at a byte that is no
    // character's.
    bool convert(std::string_view& text, std::string& utf8) {
        return isOpen() ? convertByTable(text, utf8) : takeAscii(text, utf8);
    }

private:
    static constexpr auto failed = static_cast<std::size_t>(-1);
    [[nodiscard]] bool isOpen() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

    // A system may come without the tables of rare encodings.
    static bool takeAscii(std::string_view& text, std::string& utf8) {
        const auto* const end = std::find_if(
            text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) > 0x7F; });
        utf8.append(text.begin(), end);
        text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
        return text.empty();
    }

    bool convertByTable(std::string_view& text, std::string& utf8) {
        std::array<char, 4096> buffer{};
        while (!text.empty()) {
            // iconv takes the bytes as changeable and changes none.
            char* in = const_cast<char*>(text.data());
            std::size_t left = text.size();
            char* out = buffer.data();
            std::size_t room = buffer.size();
            const std::size_t result = iconv(handle_, &in, &left, &out, &room);
            const int error = errno;
            utf8.append(buffer.data(), buffer.size() - room);
            text.remove_prefix(text.size() - left);
            if (result == failed && error != E2BIG) {
                return false;
            }
        }
        flush(utf8);
        return true;
    }

    // Some encodings hold a character back until they know that no accent follows it.
    void flush(std::string& utf8) {
        std::array<char, 16> buffer{};
        char* out = buffer.data();
        std::size_t room = buffer.size();
        iconv(handle_, nullptr, nullptr, &out, &room);
        utf8.append(buffer.data(), buffer.size() - room);
    }

    iconv_t handle_;
};

}  // namespace

std::optional<CodePage> CodePage::named(std::string_view name) {
    const std::string capitals = upperCase(name);
    if (isPartOf8859(capitals)) {
        return CodePage(capitals, "ISO-" + capitals);
    }
    const auto* const found =
        std::find_if(std::begin(encodings), std::end(encodings),
                     [&](const NamedEncoding& known) { return known.name == capitals; });
    return found == std::end(encodings) ? std::nullopt
                                        : std::optional(CodePage(found->name, found->encoding));
}

CodePage::Converted CodePage::toUtf8(std::string_view text) const {
    Converted converted;
    Conversion conversion(encoding_);
    while (!text.empty() && !conversion.convert(text, converted.utf8)) {
        converted.utf8 += utf8Of(replacementCharacter);
        ++converted.unknownBytes;
        text.remove_prefix(1);
    }
    return converted;
}

}  // namespace tspl
