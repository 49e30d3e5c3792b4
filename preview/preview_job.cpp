#include "preview/preview_job.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "preview/findings_listing.h"
#include "preview/input_stream.h"
#include "preview/json_listing.h"
#include "preview/output_buffer.h"
#include "preview/picture_files.h"
#include "preview/progress_line.h"
#include "preview/sink_list.h"
#include "preview/text_listing.h"
#include "tspl/printer_model.h"
#include "tspl/stream_parser.h"
#include "tspl/text.h"

namespace preview {
namespace {

std::string sourceName(const Options& options) {
    return options.readsStandardInput() ? "standard input" : tspl::printable(options.input);
}

std::unique_ptr<tspl::Sink> makeListing(Listing listing, std::ostream& out) {
    if (listing == Listing::Text) {
        return std::make_unique<TextListing>(out);
    }
    if (listing == Listing::Json) {
        return std::make_unique<JsonListing>(out);
    }
    return nullptr;
}

// Programs get the findings in the list itself; what --check prints is its result.
FindingsListing makeFindings(const Options& options, std::ostream& out) {
    const bool isCheck = options.listing == Listing::Check;
    return {isCheck ? out : std::cerr, sourceName(options), !isCheck};
}

// What is written nowhere is not read either.
std::string readStream(const InputStream& input, tspl::Sink& sink, ProgressLine& progress,
                       const tspl::PrinterOptions& printer, const OutputBuffer& output) {
    tspl::PrinterModel model(sink, printer);
    tspl::StreamParser parser(model);
    std::string error = input.readAll([&](std::span<const std::uint8_t> piece) {
        parser.feed(piece);
        progress.show(parser.offset());
        return output.error().empty();
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

}  // namespace

int runPreview(const Options& options) {
    InputStream input;
    if (!options.readsStandardInput()) {
        if (const std::string error = input.open(options.input); !error.empty()) {
            return failure(sourceName(options), error);
        }
    }
    OutputBuffer buffer(STDOUT_FILENO);
    std::ostream output(&buffer);
    ProgressLine progress(std::cerr, isatty(STDERR_FILENO) != 0, input.bytes());
    const auto listing = makeListing(options.listing, output);
    FindingsListing findings = makeFindings(options, output);
    PictureFiles pictures(options.pictures.value_or(""),
                          options.listing == Listing::None ? &output : nullptr, std::cerr);
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
    const std::string error = readStream(input, sinks, progress, options.printer, buffer);
    progress.hide();
    if (!error.empty()) {
        return failure(sourceName(options), error);
    }
    output.flush();
    if (!buffer.error().empty()) {
        return failure("standard output", buffer.error());
    }
    const bool complained = options.listing == Listing::Check && findings.hasComplaints();
    return pictures.hasFailed() || complained ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace preview
