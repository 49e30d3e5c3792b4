#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "tspl/command.h"

namespace tspl {

/// Takes what a stream consists of, in the stream's order.
class StreamHandler {
public:
    StreamHandler() = default;
    StreamHandler(const StreamHandler&) = delete;
    StreamHandler& operator=(const StreamHandler&) = delete;
    virtual ~StreamHandler() = default;

    /// `count` lines without a command, the first of which starts at `place`.
    virtual void onBlankLines(const Place& place, std::uint64_t count) = 0;

    /// A command line, known or not.
    virtual void onCommand(const Command& command) = 0;

    /// A BITMAP whose head can be read. Its data follow.
    virtual void onBitmap(const BitmapHead& head) = 0;

    /// The next data of the bitmap under way; `position` counts its bytes from 0.
    virtual void onBitmapData(std::uint64_t position, std::span<const std::uint8_t> data) = 0;

    /// The end of the bitmap under way; `received` is less than announced when the stream ended.
    virtual void onBitmapEnd(std::uint64_t received) = 0;

    /// The next data of a file that the DOWNLOAD before stores in the printer.
    virtual void onDownloadData(std::span<const std::uint8_t> /*data*/) {}

    /// The end of a file that a DOWNLOAD stores in the printer, when the stream ended before it.
    virtual void onDownloadCutShort(const Place& place, std::uint64_t expected,
                                    std::uint64_t received) = 0;

    /// A line that is longer than any command, left out.
    virtual void onLongLine(const Place& place) = 0;

    /// A byte order mark at the start of the stream, left out.
    virtual void onByteOrderMark() {}

    /// The end of the stream.
    virtual void onEnd() {}
};

}  // namespace tspl
