#include "preview/stream_preview.h"

#include <unistd.h>

#include <iostream>

#include "preview/json_listing.h"
#include "preview/text_listing.h"
#include "tspl/text.h"

namespace preview {
namespace {

std::unique_ptr<StreamListing> makeListing(Listing listing, std::ostream& out,
                                           const PictureFiles& pictures) {
    if (listing == Listing::Text) {
        return std::make_unique<TextListing>(out);
    }
    if (listing == Listing::Json) {
        return std::make_unique<JsonListing>(out, &pictures);
    }
    return nullptr;
}

}  // namespace

std::string nameOf(const Source& source) {
    return source.isStandardInput() ? "standard input" : tspl::printable(source.file);
}

// Programs get the findings in the list itself; what --check prints is its result.
StreamPreview::StreamPreview(const Options& options, const Source& source, std::ostream& out,
                             PdfPages* pdf, std::uint64_t bytes)
    : options_(options),
      name_(nameOf(source)),
      progress_(std::cerr, isatty(STDERR_FILENO) != 0, bytes),
      findingsOut_(options.listing == Listing::Check ? out : std::cerr),
      findings_(findingsOut_, name_,
                {.remarks = options.listing != Listing::Check,
                 .sizes = options.listing != Listing::None}),
      pictures_(source.pictures, options.listing == Listing::None ? &out : nullptr, std::cerr),
      listing_(makeListing(options.listing, out, pictures_)),
      terminal_(out, STDOUT_FILENO, options.sources.size() > 1 ? name_ + ": " : ""),
      flush_(out),
      upright_(shown_),
      chosen_(options.inFeedDirection ? static_cast<tspl::Sink&>(shown_) : upright_,
              options.labels),
      model_(sinks_, options.printer),
      parser_(model_) {
    if (options.showsOnTerminal) {
        shown_.add(terminal_);
    }
    if (options.writesPictures) {
        shown_.add(pictures_);
    }
    if (listing_) {
        shown_.add(*listing_);
    }
    if (pdf != nullptr) {
        shown_.add(*pdf);
    }
    shown_.add(flush_);
    sinks_.add(progress_);
    sinks_.add(tally_);
    if (options.listing != Listing::Json) {
        sinks_.add(findings_);
    }
    sinks_.add(chosen_);
    if (listing_ && options.sources.size() > 1) {
        listing_->onStream(source.file);
    }
}

void StreamPreview::feed(std::span<const std::uint8_t> piece) {
    parser_.feed(piece);
    progress_.show(parser_.offset());
}

void StreamPreview::finish() {
    parser_.finish();
    isFinished_ = true;
}

void StreamPreview::end() {
    progress_.hide();
    findings_.writeRepeats();
    if (isFinished_) {
        summarize();
    }
    flush_.flush();
    if (chosen_.missesRange()) {
        std::cerr << "tsplpreview: " << name_ << ": there is no " << describe(*options_.labels)
                  << ", the last one is " << chosen_.labels() << '\n';
    }
}

// Who asks for pictures hears of what may be wrong with them only.
void StreamPreview::summarize() {
    if (listing_) {
        listing_->onEnd(tally_);
    }
    const bool isWrong = tally_.complaints() > 0 || tally_.labels() == 0;
    if (options_.listing == Listing::Check || (options_.listing == Listing::None && isWrong)) {
        findingsOut_ << name_ << ": " << describe(tally_) << '\n';
    }
}

bool StreamPreview::hasFailed() const {
    const bool complained = options_.complaintsFail && tally_.complaints() > 0;
    return pictures_.hasFailed() || terminal_.hasFailed() || complained || chosen_.missesRange();
}

}  // namespace preview
