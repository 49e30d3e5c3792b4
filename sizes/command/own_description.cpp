#include "sizes/command/own_description.h"

#include <algorithm>
#include <cmath>
#include <locale>
#include <set>
#include <sstream>
#include <utility>
#include <vector>

#include "sizes/command/description_check.h"
#include "sizes/command/nick_name.h"
#include "sizes/page_lines.h"
#include "sizes/ppd_statement.h"

namespace sizes {
namespace {

std::vector<OfferedPage> offeredPages(std::span<const OwnSize> sizes) {
    std::vector<OfferedPage> pages;
    for (const auto& [label, dots] : sizes) {
        const PointSize paper = labelPoints(label);
        pages.push_back(
            {sizeName(label), sizeText(label), paper, {0, 0, paper.width, paper.height}});
    }
    return pages;
}

std::vector<std::string> texts(std::span<const OwnSize> sizes) {
    std::vector<std::string> result;
    for (const OwnSize& size : sizes) {
        result.push_back(sizeText(size.label));
    }
    return result;
}

// CUPS takes the first size that is so near, in points either way, for the one that is wanted.
bool isTakenFor(const PointSize& one, const PointSize& other) {
    constexpr double tolerance = 5;
    return std::abs(one.width - other.width) <= tolerance &&
           std::abs(one.height - other.height) <= tolerance;
}

PointSize paperOf(const PpdStatement& statement) {
    PointSize paper;
    std::istringstream value{std::string(statement.value)};
    value.imbue(std::locale::classic());
    value >> paper.width >> paper.height;
    return paper;
}

/// Writes a description anew, statement by statement.
class Edition {
public:
    Edition(std::span<const PpdStatement> statements, std::span<const OwnSize> sizes)
        : statements_(statements), pages_(offeredPages(sizes)), texts_(texts(sizes)) {
        for (const PpdStatement& statement : statements_) {
            if (statement.keyword == "PaperDimension" && isNearOne(paperOf(statement))) {
                shadowed_.insert(statement.option);
            }
        }
    }

    std::string text() {
        text_.clear();
        begun_.clear();
        for (const PpdStatement& statement : statements_) {
            add(statement);
        }
        return text_;
    }

private:
    void add(const PpdStatement& statement) {
        if (isOfPageSize(statement)) {
            addPageLine(statement);
        } else if (isOfDefaultPageSize(statement)) {
            text_ += defaultLine(statement.keyword, pages_.front().name);
        } else if (statement.keyword == "NickName" && statement.language.empty()) {
            text_ += "*NickName: \"" + nickNameWith(statement.value, texts_) + "\"\n";
        } else {
            text_ += statement.text;
        }
    }

    // The new sizes stand in front of the first one of each kind and language.
    void addPageLine(const PpdStatement& statement) {
        if (begun_.emplace(statement.language, statement.keyword).second) {
            for (const OfferedPage& page : pages_) {
                addNewLine(statement, page);
            }
        }
        const bool replaced = isReplaced(statement.option);
        const bool gone = shadowed_.count(statement.option) != 0 && !replaced;
        if (!gone && (isTranslation(statement) || !replaced)) {
            text_ += statement.text;
        }
    }

    bool isNearOne(const PointSize& paper) const {
        return std::any_of(pages_.begin(), pages_.end(), [&paper](const OfferedPage& page) {
            return isTakenFor(page.paper, paper);
        });
    }

    // A text that somebody has translated stays.
    void addNewLine(const PpdStatement& neighbour, const OfferedPage& page) {
        if (!isTranslation(neighbour) || !isTranslated(neighbour, page.name)) {
            text_ += pageLine(neighbour, page);
        }
    }

    static bool isTranslation(const PpdStatement& statement) { return !statement.language.empty(); }

    bool isTranslated(const PpdStatement& neighbour, std::string_view name) const {
        return std::any_of(statements_.begin(), statements_.end(), [&](const auto& statement) {
            return statement.language == neighbour.language &&
                   statement.keyword == neighbour.keyword && statement.option == name;
        });
    }

    bool isReplaced(std::string_view name) const {
        return std::any_of(pages_.begin(), pages_.end(),
                           [name](const OfferedPage& page) { return page.name == name; });
    }

    std::span<const PpdStatement> statements_;
    std::vector<OfferedPage> pages_;
    std::vector<std::string> texts_;
    std::set<std::string_view> shadowed_;  ///< by a new size: nobody could choose them any more
    std::set<std::pair<std::string_view, std::string_view>> begun_;
    std::string text_;
};

// One kind of line end; CUPS complains of two.
std::string withLineFeeds(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' || text.substr(i, 2) != "\r\n") {
            result += text[i];
        }
    }
    return result;
}

}  // namespace

std::string ownDescription(std::string_view ppd, std::span<const OwnSize> sizes, int dpi) {
    const std::string text = withLineFeeds(ppd);
    const std::vector<PpdStatement> statements = ppdStatements(text);
    requireDescription(statements, dpi);
    return Edition(statements, sizes).text();
}

}  // namespace sizes
