#pragma once

#include <optional>
#include <string>

#include "intake/queue_description.h"
#include "intake/size_request.h"
#include "sizes/dot_grid.h"

namespace intake {

/// The label that a job is printed on.
struct Label {
    std::string name;            ///< of its page size, in descriptions and rasters
    sizes::NominalSize nominal;  ///< as people name it
    sizes::LabelPage page;
    std::string difference;  ///< how it differs from what was asked for; empty when it does not

    bool isSquare() const { return sizes::isSquare(nominal); }
};

/// The label for a request: the size that the queue offers under the name, the one of the same
/// dimensions, upright or turned, within a millimetre; else a label of just these dimensions when
/// the printer takes it, upright or turned; else the queue's default. Nothing when the queue has
/// no size that could be printed.
std::optional<Label> chooseLabel(const SizeRequest& request, const QueueDescription& queue,
                                 const MediaLookup& knownMedia);

}  // namespace intake
