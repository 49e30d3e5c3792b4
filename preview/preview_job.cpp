#include "preview/preview_job.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>

#include "preview/findings_listing.h"
#include "preview/input_stream.h"
#include "preview/json_listing.h"
#include "preview/picture_files.h"
#include "preview/progress_line.h"
#include "preview/sink_list.h"
#include "preview/text_listing.h"
#include "tspl/printer_model.h"
#include "tspl/stream_parser.h"

namespace preview {
namespace {

std::string sourceName(const Options& options) {
    return options.readsStandardInput() ? "standard input" : options.input;
}

std::unique_ptr<tspl::Sink> makeListing(Listing listing) {
    if (listing == Listing::Text) {
        return std::make_unique<TextListing>(std::cout);
    }
    if (listing == Listing::Json) {
        return std::make_unique<JsonListing>(std::cout);
    }
    return nullptr;
}

// Programs get the findings in the list itself; what --check prints is its result.
FindingsListing makeFindings(const Options& options) {
    const bool isCheck = options.listing == Listing::Check;
    return {isCheck ? std::cout : std::cerr, sourceName(options), !isCheck};
}

std::string readStream(const InputStream& input, tspl::Sink& sink, ProgressLine& progress,
                       const tspl::PrinterOptions& printer) {
    tspl::PrinterModel model(sink, printer);
    tspl::StreamParser parser(model);
    std::string error = input.readAll([&](std::span<const std::uint8_t> piece) {
        parser.feed(piece);
        progress.show(parser.offset());
    });
    if (error.empty()) {
        parser.finish();
    }
    return error;
}

int failure(const std::string& what, const std::string& why) {
    std::cerr << "tsplpreview: " << what << ": " << why << '\n';
    return EXIT_FAILURE;
}

bool isWritten() {
    std::cout.flush();
    return std::cout.good();
}

}  // namespace

int runPreview(const Options& options) {
    InputStream input;
    if (!options.readsStandardInput()) {
        if (const std::string error = input.open(options.input); !error.empty()) {
            return failure(options.input, error);
        }
    }
    ProgressLine progress(std::cerr, isatty(STDERR_FILENO) != 0, input.bytes());
    const auto listing = makeListing(options.listing);
    FindingsListing findings = makeFindings(options);
    PictureFiles pictures(options.pictures.value_or(""),
                          options.listing == Listing::None ? &std::cout : nullptr, std::cerr);
    SinkList sinks;
    sinks.add(progress);
    if (listing) {
        sinks.add(*listing);
    }
    if (options.listing != Listing::Json) {
        sinks.add(findings);
    }
    if (options.pictures) {
        sinks.add(pictures);
    }
    const std::string error = readStream(input, sinks, progress, options.printer);
    progress.hide();
    if (!error.empty()) {
        return failure(sourceName(options), error);
    }
    errno = 0;
    if (!isWritten()) {
        return failure("standard output", errno != 0 ? std::strerror(errno) : "cannot be written");
    }
    const bool complained = options.listing == Listing::Check && findings.hasComplaints();
    return pictures.hasFailed() || complained ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace preview
