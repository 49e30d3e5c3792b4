#pragma once

#include <ostream>

#include "preview/stream_listing.h"

namespace preview {

/// Lists the commands, one per line: offset, command, and what there is to say about it.
class TextListing : public StreamListing {
public:
    explicit TextListing(std::ostream& out) : out_(out) {}

    void onStream(const std::string& name) override;
    void onEntry(const tspl::Entry& entry) override;
    void onFinding(const tspl::Finding&) override {}
    void onLabel(const tspl::PrintedLabel&) override {}
    void onEnd(const StreamTally&) override {}

private:
    std::ostream& out_;
};

/// "808 x 1218 dots, 123018 bytes, 25.6 % of the dots burnt", in words for people.
std::string describe(const tspl::BitmapSummary& bitmap);

}  // namespace preview
