#pragma once

#include <ostream>

#include "preview/preview_sink.h"

namespace preview {

/// Lists the commands, one per line: offset, command, and what there is to say about it.
class TextListing : public PreviewSink {
public:
    explicit TextListing(std::ostream& out) : out_(out) {}

    void onEntry(const Entry& entry) override;
    void onFinding(const Finding&) override {}
    void onLabel(const PrintedLabel&) override {}

private:
    std::ostream& out_;
};

/// "808 x 1218 dots, 123018 bytes, 25.6 % of the dots burnt", in words for people.
std::string describe(const BitmapSummary& bitmap);

}  // namespace preview
