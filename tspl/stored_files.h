#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tspl {

/// Files that a stream stores in the printer: pictures and fonts, by names that mind no case.
class StoredFiles {
public:
    using Bytes = std::vector<std::uint8_t>;

    /// Room for all files together, as much as printers have, in bytes.
    static constexpr std::uint64_t room = std::uint64_t{64} << 20U;

    /// Begins a file, in place of one of the same name. False where there is no room for it: its
    /// data are left out.
    [[nodiscard]] bool begin(std::string_view name, std::uint64_t bytes);

    /// Adds data to the file that was begun last.
    void append(std::span<const std::uint8_t> data);

    /// Ends the file that was begun: further data belong to none.
    void end() { open_ = nullptr; }

    /// Forgets a file; all of them for "*".
    void remove(std::string_view name);

    /// The file's data, null for a name that is not stored.
    [[nodiscard]] const Bytes* find(std::string_view name) const;

private:
    [[nodiscard]] std::uint64_t bytes() const;

    std::map<std::string, Bytes> files_;
    Bytes* open_ = nullptr;
};

}  // namespace tspl
