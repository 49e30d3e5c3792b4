#include "preview/sink_list.h"

namespace preview {

void SinkList::onEntry(const Entry& entry) {
    for (PreviewSink* sink : sinks_) {
        sink->onEntry(entry);
    }
}

void SinkList::onFinding(const Finding& finding) {
    for (PreviewSink* sink : sinks_) {
        sink->onFinding(finding);
    }
}

void SinkList::onLabel(const PrintedLabel& label) {
    for (PreviewSink* sink : sinks_) {
        sink->onLabel(label);
    }
}

void SinkList::onLostLabel() {
    for (PreviewSink* sink : sinks_) {
        sink->onLostLabel();
    }
}

}  // namespace preview
