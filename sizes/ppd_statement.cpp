#include "sizes/ppd_statement.h"

#include <algorithm>
#include <array>

namespace sizes {
namespace {

constexpr std::array<std::string_view, 4> sPageKeywords{"PageSize", "PageRegion", "ImageableArea",
                                                        "PaperDimension"};
constexpr std::string_view sDefault = "Default";
constexpr std::string_view sWhite = " \t\r\n";

bool isPageKeyword(std::string_view keyword) {
    return std::find(sPageKeywords.begin(), sPageKeywords.end(), keyword) != sPageKeywords.end();
}

bool isStatement(std::string_view line) {
    return line.starts_with('*') && !line.starts_with("*%");
}

// Where the line ends that `from` is in, behind its line feed.
std::size_t endOfLine(std::string_view text, std::size_t from) {
    const auto feed = text.find('\n', from);
    return feed == std::string_view::npos ? text.size() : feed + 1;
}

// A value in quotes goes on until they end, and its last line with it.
std::size_t endOfStatement(std::string_view text) {
    const std::size_t end = endOfLine(text, 0);
    const std::string_view line = text.substr(0, end);
    const auto opening = line.find('"', std::min(line.find(':'), line.size()));
    if (!isStatement(line) || opening == std::string_view::npos) {
        return end;
    }
    const auto closing = text.find('"', opening + 1);
    return closing == std::string_view::npos ? text.size() : endOfLine(text, closing);
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(sWhite);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(sWhite) - first + 1);
}

std::string_view unquoted(std::string_view value) {
    const bool isQuoted = value.size() > 1 && value.starts_with('"') && value.ends_with('"');
    return isQuoted ? value.substr(1, value.size() - 2) : value;
}

// "de.PageSize 4x6in/4 x 6 in", before the colon.
void readHead(PpdStatement& statement, std::string_view head) {
    const auto space = std::min(head.find_first_of(" \t"), head.size());
    statement.keyword = head.substr(0, space);
    statement.option = trimmed(head.substr(space, head.find('/') - space));
    const auto point = statement.keyword.find('.');
    if (point != std::string_view::npos) {
        statement.language = statement.keyword.substr(0, point);
        statement.keyword.remove_prefix(point + 1);
    }
}

PpdStatement statementOf(std::string_view text) {
    PpdStatement statement{text, {}, {}, {}, {}};
    if (!isStatement(text)) {
        return statement;
    }
    const auto colon = std::min(text.find(':'), text.size());
    readHead(statement, trimmed(text.substr(1, colon - 1)));
    if (colon < text.size()) {
        statement.value = unquoted(trimmed(text.substr(colon + 1)));
    }
    return statement;
}

}  // namespace

std::vector<PpdStatement> ppdStatements(std::string_view ppd) {
    std::vector<PpdStatement> statements;
    while (!ppd.empty()) {
        const std::size_t size = endOfStatement(ppd);
        statements.push_back(statementOf(ppd.substr(0, size)));
        ppd.remove_prefix(size);
    }
    return statements;
}

bool isOfPageSize(const PpdStatement& statement) {
    return isPageKeyword(statement.keyword) && !statement.option.empty();
}

bool isOfDefaultPageSize(const PpdStatement& statement) {
    return statement.keyword.starts_with(sDefault) &&
           isPageKeyword(statement.keyword.substr(sDefault.size()));
}

}  // namespace sizes
