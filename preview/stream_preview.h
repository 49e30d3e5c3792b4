#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "preview/chosen_labels.h"
#include "preview/findings_listing.h"
#include "preview/label_flush.h"
#include "preview/options.h"
#include "preview/pdf_pages.h"
#include "preview/picture_files.h"
#include "preview/progress_line.h"
#include "preview/sink_list.h"
#include "preview/stream_listing.h"
#include "preview/stream_tally.h"
#include "preview/terminal_pictures.h"
#include "preview/upright_labels.h"
#include "tspl/printer_model.h"
#include "tspl/stream_parser.h"

namespace preview {

/// Name of a source in messages.
std::string nameOf(const Source& source);

/// What is written of one stream.
class StreamPreview {
public:
    /// `out` gets what the options list, standard error the rest; `pdf` takes the labels, too,
    /// unless it is null. `bytes` is the stream's length, or 0.
    StreamPreview(const Options& options, const Source& source, std::ostream& out, PdfPages* pdf,
                  std::uint64_t bytes);
    StreamPreview(const StreamPreview&) = delete;
    StreamPreview& operator=(const StreamPreview&) = delete;

    /// Takes the next bytes of the stream.
    void feed(std::span<const std::uint8_t> piece);
    /// The stream is at its end.
    void finish();
    /// No more is shown: sums up a stream that is at its end, and says what was asked for and did
    /// not come.
    void end();

    /// Whether something could not be shown, or is complained of where complaints are asked for.
    [[nodiscard]] bool hasFailed() const;

private:
    void summarize();

    const Options& options_;
    std::string name_;
    ProgressLine progress_;
    StreamTally tally_;
    std::ostream& findingsOut_;
    FindingsListing findings_;
    PictureFiles pictures_;
    std::unique_ptr<StreamListing> listing_;
    TerminalPictures terminal_;
    LabelFlush flush_;
    SinkList shown_;
    UprightLabels upright_;
    ChosenLabels chosen_;
    SinkList sinks_;
    tspl::PrinterModel model_;
    tspl::StreamParser parser_;
    bool isFinished_ = false;
};

}  // namespace preview
