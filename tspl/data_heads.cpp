#include "tspl/data_heads.h"

#include <array>

#include "tspl/text.h"
#include "tspl/text_argument.h"

namespace tspl {
namespace {

// The number behind the mode, which has to end with a comma.
std::optional<std::int32_t> lengthBehind(const Command& command) {
    constexpr std::size_t index = 5;
    return command.arguments.size() == index + 2 ? parseInteger(command.arguments[index])
                                                 : std::nullopt;
}

}  // namespace

std::optional<BitmapHead> parseBitmapHead(const Command& command) {
    constexpr std::size_t numbers = 5;
    if (command.name != "BITMAP" || command.arguments.size() < numbers) {
        return std::nullopt;
    }
    std::array<std::int32_t, numbers> values{};
    for (std::size_t i = 0; i < numbers; ++i) {
        const auto value = parseInteger(command.arguments[i]);
        if (!value) {
            return std::nullopt;
        }
        values[i] = *value;
    }
    const auto [x, y, rowBytes, rows, mode] = values;
    const auto compressedBytes = mode == BitmapHead::compressed ? lengthBehind(command) : 0;
    if (rowBytes < 0 || rows < 0 || !compressedBytes || *compressedBytes < 0) {
        return std::nullopt;
    }
    return BitmapHead{command, x, y, rowBytes, rows, mode, *compressedBytes};
}

std::optional<DownloadHead> parseDownloadHead(const Command& command) {
    // The last argument is the empty one behind the comma that ends the head.
    const auto& arguments = command.arguments;
    if (command.name != "DOWNLOAD" || arguments.size() < 3 || !arguments.back().empty() ||
        !arguments[arguments.size() - 3].starts_with('"')) {
        return std::nullopt;
    }
    const auto bytes = parseInteger(arguments[arguments.size() - 2]);
    if (!bytes || *bytes < 0) {
        return std::nullopt;
    }
    return DownloadHead{nameOf(arguments[arguments.size() - 3]),
                        static_cast<std::uint64_t>(*bytes)};
}

}  // namespace tspl
