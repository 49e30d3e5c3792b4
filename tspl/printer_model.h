#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tspl/basic_variables.h"
#include "tspl/bitmap_drawing.h"
#include "tspl/printer.h"
#include "tspl/stream_handler.h"

namespace tspl {

/// A printer on paper: obeys the commands of a stream as far as they make dots, and tells a sink
/// what it reads, what is wrong, and what it prints.
///
/// REFERENCE moves what is drawn after it. DIRECTION and SHIFT apply to a label when it is
/// printed. What is drawn stays until CLS or another SIZE.
class PrinterModel : public StreamHandler {
public:
    /// `sink` must outlive the model.
    PrinterModel(Sink& sink, const PrinterOptions& options) : printer_(sink, options) {}

    void onBlankLines(const Place& place, std::uint64_t count) override;
    void onCommand(const Command& command) override;
    void onBitmap(const BitmapHead& head) override;
    void onBitmapData(std::uint64_t position, std::span<const std::uint8_t> data) override;
    void onBitmapEnd(std::uint64_t received) override;
    void onDownloadData(std::span<const std::uint8_t> data) override;
    void onDownloadCutShort(const Place& place, std::uint64_t expected,
                            std::uint64_t received) override;
    void onLongLine(const Place& place) override;
    void onByteOrderMark() override;
    void onEnd() override;

private:
    [[nodiscard]] std::string obey(const Command& command);
    [[nodiscard]] std::string refuse(const Command& command);
    [[nodiscard]] std::string passOverBasic(const Command& command);
    [[nodiscard]] std::string passOverVariables(const Command& known, const CommandRule& rule);
    [[nodiscard]] bool isForeign(const Command& command);
    void noteCommand();
    void complainOfForeign(const Command& command, std::string_view format);

    Printer printer_;
    BitmapDrawing bitmap_;
    BasicVariables variables_;
    bool hasBegun_ = false;         ///< a line that is not blank has come
    bool isForeign_ = false;        ///< another language: nothing of it is obeyed
    bool isInForeignPart_ = false;  ///< behind TSPL, to the next command of it: spoken of
    int unknownLines_ = 0;          ///< since the last command
    bool hasSeenBasic_ = false;     ///< and has been spoken of
};

}  // namespace tspl
