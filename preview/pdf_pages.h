#pragma once

#include <optional>
#include <ostream>
#include <string>

#include "preview/pdf_writer.h"
#include "preview/unfinished_file.h"
#include "tspl/sink.h"

namespace preview {

/// Writes labels to a PDF file, each on a page of its size. The file is begun with the first label
/// and gets its name when it is complete.
class PdfPages : public tspl::Sink {
public:
    /// `err` gets the failures.
    PdfPages(const std::string& name, std::ostream& err) : name_(name), file_(name), err_(err) {}

    void onEntry(const tspl::Entry&) override {}
    void onFinding(const tspl::Finding&) override {}
    void onLabel(const tspl::PrintedLabel& label) override;
    void onLostLabel() override { failed_ = true; }

    /// Ends the file and tells `out`, unless it is null, of it. Without a label there is no file,
    /// which is a failure.
    void complete(std::ostream* out);

    [[nodiscard]] bool hasFailed() const { return failed_; }

private:
    void begin();
    void fail(const std::string& why);

    std::string name_;
    UnfinishedFile file_;
    std::ostream& err_;
    std::optional<PdfWriter> writer_;
    bool broken_ = false;
    bool failed_ = false;
};

}  // namespace preview
