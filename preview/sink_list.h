#pragma once

#include <vector>

#include "tspl/sink.h"

namespace preview {

/// Passes everything on to several sinks, in the order in which they were added.
class SinkList : public tspl::Sink {
public:
    /// `sink` must outlive the list.
    void add(tspl::Sink& sink) { sinks_.push_back(&sink); }

    void onEntry(const tspl::Entry& entry) override;
    void onFinding(const tspl::Finding& finding) override;
    void onLabel(const tspl::PrintedLabel& label) override;
    void onLostLabel() override;

private:
    std::vector<tspl::Sink*> sinks_;
};

}  // namespace preview
