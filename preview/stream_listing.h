#pragma once

#include <string>

#include "preview/stream_tally.h"
#include "tspl/sink.h"

namespace preview {

/// Lists what one stream or several ones print.
class StreamListing : public tspl::Sink {
public:
    /// Tells that what follows is of the stream of this name.
    virtual void onStream(const std::string& name) = 0;

    /// Tells what the stream held, at its end.
    virtual void onEnd(const StreamTally& tally) = 0;
};

}  // namespace preview
