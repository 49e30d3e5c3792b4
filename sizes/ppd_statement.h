#pragma once

#include <string_view>
#include <vector>

namespace sizes {

/// A statement of a PPD file: "*de.PageSize 4x6in/4 x 6 in: "..."", also over several lines.
/// All parts point into the text it was read from.
struct PpdStatement {
    std::string_view text;      ///< the whole of it, with its line end
    std::string_view language;  ///< "de" of a translation, else empty
    std::string_view keyword;   ///< "PageSize"; empty for comments and lines of another kind
    std::string_view option;    ///< "4x6in"; empty where there is none
    std::string_view value;     ///< behind the colon, without quotes and white space around it
};

/// Takes a PPD file apart; the texts of all statements make the whole file again.
std::vector<PpdStatement> ppdStatements(std::string_view ppd);

/// Whether the statement is about one page size: its code, its area or its paper, or a
/// translation of its name.
bool isOfPageSize(const PpdStatement& statement);

/// Whether the statement names the default page size.
bool isOfDefaultPageSize(const PpdStatement& statement);

}  // namespace sizes
