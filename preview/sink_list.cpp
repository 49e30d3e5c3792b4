#include "preview/sink_list.h"

namespace preview {

void SinkList::onEntry(const tspl::Entry& entry) {
    for (tspl::Sink* sink : sinks_) {
        sink->onEntry(entry);
    }
}

void SinkList::onFinding(const tspl::Finding& finding) {
    for (tspl::Sink* sink : sinks_) {
        sink->onFinding(finding);
    }
}

void SinkList::onLabel(const tspl::PrintedLabel& label) {
    for (tspl::Sink* sink : sinks_) {
        sink->onLabel(label);
    }
}

void SinkList::onLostLabel() {
    for (tspl::Sink* sink : sinks_) {
        sink->onLostLabel();
    }
}

}  // namespace preview
