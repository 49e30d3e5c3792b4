#pragma once

#include <ostream>

#include "preview/picture_files.h"
#include "preview/stream_listing.h"

namespace preview {

/// Lists commands, labels and findings for programs: one JSON object per line, in the order in
/// which the printer comes to them; streams are objects, too. Bytes that are not printable ASCII
/// stand as \xNN.
class JsonListing : public StreamListing {
public:
    /// `pictures`, which comes to each label first, tells the files of the labels' pictures; null
    /// where none are written.
    explicit JsonListing(std::ostream& out, const PictureFiles* pictures = nullptr)
        : out_(out), pictures_(pictures) {}

    /// Tells, in front of all streams, by which rules the objects are made.
    static void writeSchema(std::ostream& out);

    void onStream(const std::string& name) override;
    void onEntry(const tspl::Entry& entry) override;
    void onFinding(const tspl::Finding& finding) override;
    void onLabel(const tspl::PrintedLabel& label) override;
    void onEnd(const StreamTally& tally) override;

private:
    std::ostream& out_;
    const PictureFiles* pictures_;
};

}  // namespace preview
