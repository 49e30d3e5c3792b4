#pragma once

#include <string>
#include <string_view>

#include "intake/option_list.h"

namespace intake {

/// The choice of an option that a job is printed with: the job's own, when the queue's description
/// (the text of its PPD file) offers it, else the description's default. Empty for an option that
/// the description does not have.
std::string queueChoice(std::string_view ppd, const OptionList& options, std::string_view option);

/// Whether text and the like are told from pictures.
bool separatesContent(std::string_view ppd, const OptionList& options);

/// Whether the labels on a document's pages are to be found and cut out.
bool findsLabels(std::string_view ppd, const OptionList& options);

}  // namespace intake
