#include <cstdlib>
#include <span>
#include <sstream>
#include <string>

#include "preview/findings_listing.h"
#include "preview/json_listing.h"
#include "preview/sink_list.h"
#include "preview/text_listing.h"
#include "tests/fuzz/fuzz_target.h"
#include "tspl/printer_model.h"
#include "tspl/stream_parser.h"

// The previewer on any stream. The first two bytes of the input are the size of the pieces in
// which the stream comes and the printer's options; the rest is the stream.

namespace {

using tspl::PrinterModel;
using tspl::PrinterOptions;

PrinterOptions optionsOf(std::uint8_t bits) {
    PrinterOptions options;
    // Small labels keep the fuzzer fast: what is refused above this is refused the same way.
    options.mostDots = std::uint64_t{1} << 20U;
    options.onesBurn = (bits & 1U) != 0;
    if ((bits & 2U) != 0) {
        options.dpi = 50 + bits;
    }
    return options;
}

// All that tsplpreview would write about a stream that comes in pieces.
std::string previewed(std::span<const std::uint8_t> stream, std::size_t pieceBytes,
                      const PrinterOptions& options) {
    std::ostringstream out;
    preview::TextListing text(out);
    preview::JsonListing json(out);
    preview::FindingsListing findings(out, "input", {true, true});
    preview::SinkList sinks;
    sinks.add(text);
    sinks.add(json);
    sinks.add(findings);
    PrinterModel model(sinks, options);
    tspl::StreamParser parser(model);
    while (!stream.empty()) {
        const auto piece = stream.first(std::min(pieceBytes, stream.size()));
        parser.feed(piece);
        stream = stream.subspan(piece.size());
    }
    parser.finish();
    return out.str();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) {
        return 0;
    }
    const PrinterOptions options = optionsOf(data[1]);
    const std::span<const std::uint8_t> stream(data + 2, size - 2);
    // However a stream is cut into pieces, it means the same.
    if (previewed(stream, std::size_t{1} + data[0], options) !=
        previewed(stream, stream.size(), options)) {
        std::abort();
    }
    return 0;
}
