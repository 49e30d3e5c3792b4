#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "intake/option_list.h"
#include "intake/queue_description.h"
#include "sizes/nominal_size.h"

namespace intake {

/// A size that a job asks for.
struct SizeWish {
    std::string name;                    ///< as it was given
    const QueueSize* offered = nullptr;  ///< the size of the queue that is meant by name
    sizes::NominalSize size;             ///< its dimensions
    bool isWholePoints = false;          ///< they may have been cut to whole points
};

/// What a job asks for.
struct SizeRequest {
    std::optional<SizeWish> wish;  ///< nothing when no size was given, or none that is known
    std::string unknown;           ///< the name that means nothing, when that is why
};

/// The size that a name means: one that the queue offers under it, in any case of letters and
/// with any suffix, else its dimensions. Nothing when it means neither.
std::optional<SizeWish> readWish(std::string_view name, const QueueDescription& queue,
                                 const MediaLookup& knownMedia);

/// Asks the spooler for the size that the job was sent with.
using SpoolerQuestion = std::function<std::optional<SizeWish>()>;

/// The size that the options ask for. PageSize counts for more than PageRegion and media, which
/// may hold several names with commas between. But the scheduler adds a PageSize of its own to a
/// `media`, the first of the queue that is near, or one cut to whole points: then media is what
/// was meant. The spooler is asked when the options have no size, or only one in whole points.
SizeRequest readRequest(const OptionList& options, const QueueDescription& queue,
                        const MediaLookup& knownMedia, const SpoolerQuestion& askSpooler);

}  // namespace intake
