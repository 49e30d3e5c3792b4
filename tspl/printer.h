#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include "tspl/code_page.h"
#include "tspl/command.h"
#include "tspl/label.h"
#include "tspl/label_picture.h"
#include "tspl/set_command.h"
#include "tspl/sink.h"
#include "tspl/stored_files.h"

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

/// What commands act on: the label that is being drawn, what is set, and a sink for what there is
/// to say. Commands of a family find here what they need, and nothing of the stream that they come
/// in.
class Printer {
public:
    /// `sink` must outlive the printer.
    Printer(Sink& sink, const PrinterOptions& printerOptions)
        : options(printerOptions),
          label(printerOptions.dpi, printerOptions.mostDots),
          sink_(sink) {}

    /// A point of the label in the printer's dots.
    struct Point {
        std::int64_t x = 0;
        std::int64_t y = 0;
    };

    /// An area of a command, moved by REFERENCE.
    [[nodiscard]] Area placed(const Area& area) const;

    /// Says what is wrong with a command, or what explains the picture.
    void complain(const Place& place, std::string text);
    void remark(const Place& place, std::string text);

    /// Remarks why a command that leaves a mark on paper leaves none on the picture.
    void remarkUndrawn(const Place& place, std::string text);

    /// Remarks what holds of many commands of a label at the first one.
    void remarkOnce(const Place& place, const std::string& text);
    void forgetRemarks() { remarked_.clear(); }

    [[nodiscard]] Sink& sink() { return sink_; }

    const PrinterOptions options;
    Label label;
    Point reference;
    Placement placement;
    AfterLabel afterLabel;
    CodePage codePage;
    StoredFiles files;
    std::uint64_t labels = 0;  ///< printed so far
    /// Between DOWNLOAD of a program and EOP lines are stored, not obeyed; where it began.
    std::optional<Place> storingSince;

private:
    Sink& sink_;
    std::set<std::string> remarked_;
};

}  // namespace tspl
