#include "sizes/command/description_check.h"

#include <algorithm>
#include <array>
#include <string>

#include "sizes/command/failure.h"
#include "sizes/printer_model.h"

namespace sizes {
namespace {

constexpr std::size_t longestLine = 255;

// What the sizes are written beside, and the name.
constexpr std::array<std::string_view, 9> sParts{
    "PageSize",        "PageRegion",        "ImageableArea",        "PaperDimension",
    "DefaultPageSize", "DefaultPageRegion", "DefaultImageableArea", "DefaultPaperDimension",
    "NickName"};
// PPD compilers write it last.
constexpr std::string_view sLastPart = "DefaultFont";

using Statements = std::span<const PpdStatement>;

bool has(Statements statements, std::string_view keyword) {
    return std::any_of(statements.begin(), statements.end(), [keyword](const auto& statement) {
        return statement.keyword == keyword && statement.language.empty();
    });
}

std::string_view valueOf(Statements statements, std::string_view keyword) {
    for (const PpdStatement& statement : statements) {
        if (statement.keyword == keyword && statement.language.empty()) {
            return statement.value;
        }
    }
    return {};
}

bool isOfThisDriver(Statements statements, int dpi) {
    const auto* model = findModelOfDescription(valueOf(statements, "PCFileName"));
    return model != nullptr && model->dpi == dpi &&
           valueOf(statements, "DefaultResolution") == std::to_string(dpi) + "dpi";
}

bool hasLongLine(std::string_view text) {
    while (text.size() > longestLine) {
        const auto end = text.find('\n');
        if (end > longestLine) {
            return true;
        }
        text.remove_prefix(end + 1);
    }
    return false;
}

bool isForbidden(char c) {
    constexpr unsigned char space = ' ';
    return static_cast<unsigned char>(c) < space && c != '\t' && c != '\n';
}

bool isUnfinished(std::string_view text) {
    const auto value = text.substr(std::min(text.find(':'), text.size()));
    return std::count(value.begin(), value.end(), '"') % 2 != 0;
}

void requireCleanText(std::string_view text) {
    if (hasLongLine(text)) {
        throw Failure("the PPD file has a line of more than 255 characters");
    }
    if (std::any_of(text.begin(), text.end(), isForbidden)) {
        throw Failure("the PPD file has control characters");
    }
}

long countOf(Statements statements, std::string_view keyword) {
    return std::count_if(statements.begin(), statements.end(),
                         [keyword](const auto& statement) { return statement.keyword == keyword; });
}

bool isWhole(Statements statements) {
    return !isUnfinished(statements.back().text) && has(statements, sLastPart) &&
           countOf(statements, "OpenUI") == countOf(statements, "CloseUI") &&
           countOf(statements, "OpenGroup") == countOf(statements, "CloseGroup");
}

}  // namespace

void requireDescription(Statements statements, int dpi) {
    if (!isOfThisDriver(statements, dpi)) {
        throw Failure("the PPD file is not one of this driver for " + std::to_string(dpi) + " dpi");
    }
    if (!isWhole(statements)) {
        throw Failure("the PPD file ends too soon");
    }
    for (std::string_view part : sParts) {
        if (!has(statements, part)) {
            throw Failure("the PPD file has no " + std::string(part));
        }
    }
    for (const PpdStatement& statement : statements) {
        requireCleanText(statement.text);
    }
}

}  // namespace sizes
