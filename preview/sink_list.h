#pragma once

#include <vector>

#include "preview/preview_sink.h"

namespace preview {

/// Passes everything on to several sinks, in the order in which they were added.
class SinkList : public PreviewSink {
public:
    /// `sink` must outlive the list.
    void add(PreviewSink& sink) { sinks_.push_back(&sink); }

    void onEntry(const Entry& entry) override;
    void onFinding(const Finding& finding) override;
    void onLabel(const PrintedLabel& label) override;
    void onLostLabel() override;

private:
    std::vector<PreviewSink*> sinks_;
};

}  // namespace preview
