#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "intake/option_list.h"
#include "sizes/nearness.h"
#include "sizes/nominal_size.h"
#include "sizes/printer_model.h"

namespace intake {

/// The size of a medium that has a name without dimensions, "A6" or "na_letter", in mm.
using MediaLookup = std::function<std::optional<sizes::NominalSize>(std::string_view name)>;

/// A page size that a queue offers.
struct QueueSize {
    std::string name;            ///< of the choice, "4x6in"
    sizes::OfferedSize offered;  ///< what it may be asked for as
    sizes::NominalSize nominal;  ///< what the dots of its page are counted from
};

/// The smallest and the largest label of a queue.
struct Limits {
    sizes::Reach least;
    sizes::Reach most;
};

/// What a queue's description (PPD file) says of its labels.
struct QueueDescription {
    std::vector<QueueSize> sizes;
    std::string defaultSize;  ///< its name; may be one that is not offered
    Limits limits;
    int dpi = 0;  ///< 0 when it is not said
};

/// Reads the text of a PPD file. The resolution is the one that the job's options choose, else the
/// default. The limits are those of custom sizes, else what the
/// model's printers take or the largest size that is offered.
QueueDescription readDescription(std::string_view ppd, const OptionList& options,
                                 const MediaLookup& knownMedia);

}  // namespace intake
