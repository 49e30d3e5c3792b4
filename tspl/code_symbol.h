#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tspl {

/// A code as rows of modules, of which some are dark.
struct CodeSymbol {
    struct Row {
        std::vector<bool> modules;  ///< as many as the code is wide; true is dark
        double height = 0;          ///< in modules; 0 where the code has no height of its own
    };
    std::vector<Row> rows;
    std::string text;  ///< what people read beside it; empty where a code has none

    /// Modules from left to right, and rows from top to bottom: one at least of a code that is
    /// encoded.
    [[nodiscard]] std::int64_t width() const {
        return rows.empty() ? 0 : static_cast<std::int64_t>(rows.front().modules.size());
    }
    [[nodiscard]] std::int64_t height() const { return static_cast<std::int64_t>(rows.size()); }

    /// Dots of a module, and of a row, of a code that fills so many.
    [[nodiscard]] std::int64_t moduleIn(std::int64_t dots) const {
        return dots / std::max<std::int64_t>(width(), 1);
    }
    [[nodiscard]] std::int64_t rowIn(std::int64_t dots) const {
        return dots / std::max<std::int64_t>(height(), 1);
    }
};

/// What libzint is to encode: the fields of its symbol. Values of -1 and 0 are its defaults.
struct CodeRequest {
    int symbology = 0;
    int inputMode = 0;  ///< DATA_MODE: bytes as they are
    int option1 = -1;
    int option2 = 0;
    int option3 = 0;
    int outputOptions = 0;
    std::string primary;  ///< the part of the message that only some codes have
};

/// A code of the content, which is not empty. Throws CodeFault with the library's reason when the
/// code cannot hold it.
CodeSymbol encode(const CodeRequest& request, std::string_view content);

}  // namespace tspl
