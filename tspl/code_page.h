#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tspl {

/// What the bytes of a text mean. A printer starts with code page 437.
class CodePage {
public:
    CodePage() = default;

    /// The code page that CODEPAGE calls so: "850", "1252", "8859-1", "UTF-8", "USA"...; nothing
    /// for a name that no printer has.
    static std::optional<CodePage> named(std::string_view name);

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] bool isUtf8() const { return encoding_ == "UTF-8"; }

    /// A text in UTF-8.
    struct Converted {
        std::string utf8;
        std::size_t unknownBytes = 0;  ///< each of them stands there as U+FFFD
    };
    [[nodiscard]] Converted toUtf8(std::string_view text) const;

private:
    CodePage(std::string_view name, std::string_view encoding) : name_(name), encoding_(encoding) {}

    std::string name_ = "437";
    std::string encoding_ = "CP437";  ///< as iconv calls it
};

}  // namespace tspl
