#pragma once

#include <optional>
#include <string>

#include "intake/queue_description.h"
#include "intake/size_request.h"

namespace intake {

/// The size that a job was sent with, from the scheduler: what a client says in `media-col` does
/// not come with the options, or only in whole points. Nothing when there is no scheduler, when
/// it does not answer within two seconds or knows no size.
std::optional<SizeWish> askForSize(const std::string& job, const QueueDescription& queue,
                                   const MediaLookup& knownMedia);

}  // namespace intake
