#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tspl/label.h"
#include "tspl/label_picture.h"

namespace tspl {

/// What there is to say about a bitmap's data.
struct BitmapSummary {
    std::int64_t width = 0;  ///< dots, whole bytes
    std::int64_t height = 0;
    std::uint64_t expectedBytes = 0;
    std::uint64_t receivedBytes = 0;
    std::uint64_t burntDots = 0;  ///< among the bytes received
    /// Bytes of the picture that compressed data held; none where the data are the picture.
    std::optional<std::uint64_t> unpackedBytes{};

    /// Share of the dots received that burn, from 0 to 1; 0 for no dots.
    [[nodiscard]] double burntShare() const;
};

/// One line of the list of commands.
struct Entry {
    std::uint64_t offset = 0;
    std::string name;  ///< empty for blank lines and for what is no command
    std::vector<std::string> arguments;
    std::string text;  ///< the command as it came, or words for blank lines
    std::optional<BitmapSummary> bitmap;
    std::string remark;  ///< "not drawn", "unknown" and the like; empty when there is none
};

/// What a person should hear of.
struct Finding {
    enum class Kind {
        Remark,     ///< explains the picture; the stream is fine
        Complaint,  ///< something is wrong with the stream
    };
    Kind kind = Kind::Complaint;
    std::uint64_t offset = 0;
    std::string text;
    std::uint64_t line = 0;  ///< from 1, as an editor that splits no picture data counts them
};

/// A PRINT.
struct PrintedLabel {
    std::uint64_t number = 0;  ///< from 1, in the order of the stream
    std::int32_t sets = 1;
    std::int32_t copies = 1;
    LabelPicture picture;
    DpiSource dpiSource = DpiSource::Usual;  ///< how its resolution is known
    Placement placement{};                   ///< as the stream has set it
};

/// Takes what a printer would do with a stream.
class Sink {
public:
    Sink() = default;
    Sink(const Sink&) = delete;
    Sink& operator=(const Sink&) = delete;
    virtual ~Sink() = default;

    virtual void onEntry(const Entry& entry) = 0;
    virtual void onFinding(const Finding& finding) = 0;
    /// The picture is valid during the call only.
    virtual void onLabel(const PrintedLabel& label) = 0;
    /// A label that is printed but cannot be drawn; a complaint says why.
    virtual void onLostLabel() {}
};

}  // namespace tspl
