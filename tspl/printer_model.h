#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tspl/label.h"
#include "tspl/label_picture.h"
#include "tspl/set_command.h"
#include "tspl/sink.h"
#include "tspl/stream_handler.h"

namespace tspl {

/// What the printer that is modelled is like.
struct PrinterOptions {
    /// Its resolution; worked out from SIZE and the width of the bitmaps when not given.
    std::optional<int> dpi;
    /// The rare firmware that burns the 1 bits of a bitmap, not the 0 bits.
    bool onesBurn = false;
    /// The largest label that is drawn; 2^30 dots take 128 MiB.
    std::uint64_t mostDots = std::uint64_t{1} << 30U;
};

/// A printer on paper: obeys the commands of a stream as far as they make dots, and tells a sink
/// what it reads, what is wrong, and what it prints.
///
/// REFERENCE moves what is drawn after it. DIRECTION and SHIFT apply to a label when it is
/// printed. What is drawn stays until CLS or another SIZE.
class PrinterModel : public StreamHandler {
public:
    /// `sink` must outlive the model.
    PrinterModel(Sink& sink, const PrinterOptions& options)
        : sink_(sink), options_(options), label_(options.dpi, options.mostDots) {}

    void onBlankLines(std::uint64_t offset, std::uint64_t count) override;
    void onCommand(const Command& command) override;
    void onBitmap(const BitmapHead& head) override;
    void onBitmapData(std::uint64_t position, std::span<const std::uint8_t> data) override;
    void onBitmapEnd(std::uint64_t received) override;
    void onDownloadCutShort(std::uint64_t offset, std::uint64_t expected,
                            std::uint64_t received) override;
    void onLongLine(std::uint64_t offset) override;
    void onEnd() override;

private:
    struct Point {
        std::int64_t x = 0;
        std::int64_t y = 0;
    };

    [[nodiscard]] std::string obey(const Command& command);
    void obeyKnown(const Command& command);
    void setSize(const Command& command);
    void setReference(const Command& command);
    void setShift(const Command& command);
    void setDirection(const Command& command);
    void checkSpeed(const Command& command);
    void checkDensity(const Command& command);
    void set(const Command& command);
    void drawArea(const Command& command);
    void drawBox(const Command& command);
    void print(const Command& command);
    void printLabel(const Command& command, std::int32_t sets, std::int32_t copies);
    void reportOverhang(const LabelDots& dots);
    void startStoring(const Command& command);

    [[nodiscard]] Area placed(const Area& area) const;
    void drawSegment(std::uint64_t position, std::span<const std::uint8_t> burning);
    void complain(std::uint64_t offset, std::string text);
    void remark(std::uint64_t offset, std::string text);

    Sink& sink_;
    PrinterOptions options_;
    Label label_;
    Point reference_;
    Placement placement_;
    AfterLabel afterLabel_;
    BitmapHead bitmap_;
    std::string bitmapRemark_;
    std::uint64_t bitmapBurnt_ = 0;
    std::vector<std::uint8_t> burning_;
    std::uint64_t labels_ = 0;
    /// Between DOWNLOAD of a program and EOP: the lines are stored, not obeyed.
    bool storing_ = false;
    std::uint64_t storingSince_ = 0;
};

}  // namespace tspl
