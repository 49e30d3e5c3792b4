#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tspl {

class DownloadedFont;

/// Files that a stream stores in the printer: pictures and fonts, by names that mind no case.
class StoredFiles {
public:
    using Bytes = std::vector<std::uint8_t>;

    /// Room for all files together, as much as printers have, in bytes.
    static constexpr std::uint64_t room = std::uint64_t{64} << 20U;
    /// More than any stream has; also files of no bytes take memory.
    static constexpr std::size_t mostFiles = 10000;

    /// Begins a file, in place of one of the same name. False where there is no room for it: its
    /// data are left out.
    [[nodiscard]] bool begin(std::string_view name, std::uint64_t bytes);

    /// Adds data to the file that was begun last.
    void append(std::span<const std::uint8_t> data);

    /// Ends the file that was begun: further data belong to none.
    void end() { open_ = nullptr; }

    /// Forgets a file; for "*" all of them, for "*.BMP" all that end so.
    void remove(std::string_view name);

    /// The file's data, null for a name that is not stored.
    [[nodiscard]] const Bytes* find(std::string_view name) const;

    /// The font of outlines that the file holds, read once; null for a name that is not stored,
    /// and for a file that holds none.
    [[nodiscard]] std::shared_ptr<const DownloadedFont> font(std::string_view name);

private:
    struct File {
        std::shared_ptr<Bytes> bytes;  ///< which a font goes on to use for a while
        std::optional<std::shared_ptr<const DownloadedFont>> font;
    };

    using Files = std::map<std::string, File>;
    Files::iterator erase(Files::iterator file);

    Files files_;
    std::uint64_t bytes_ = 0;  ///< of all files
    Bytes* open_ = nullptr;
};

}  // namespace tspl
