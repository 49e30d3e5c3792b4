#pragma once

#include <string>

#include "tspl/sink.h"

namespace preview {

/// Lists what one stream or several ones print.
class StreamListing : public tspl::Sink {
public:
    /// Tells that what follows is of the stream of this name.
    virtual void onStream(const std::string& name) = 0;
};

}  // namespace preview
