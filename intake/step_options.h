#pragma once

#include <string_view>

#include "intake/label_choice.h"
#include "intake/option_list.h"

namespace intake {

/// The options of a job for each of the programs that print it.
struct StepOptions {
    OptionList picture;  ///< imagetopdf, which places a picture on the page
    OptionList layout;   ///< pdftopdf
    OptionList laidOut;  ///< all behind it, for which nothing is left to lay out
};

/// Makes them of the job's own options. All ask for the label's page and for nothing else that
/// has to do with the size, and none for copies, which are an argument.
///
/// - A PDF document is fitted to the label when it is larger, unless the job says how it is to be
///   scaled: what pdftopdf does of itself depends on whether the label's points are whole, and may
///   cut the document's edges off.
/// - A square label is neither upright nor across, so nothing is turned on it unless the job asks
///   for that.
/// - A picture is laid out by imagetopdf, which makes it as large as the page of itself; pdftopdf
///   then only counts its copies.
StepOptions stepOptions(const OptionList& job, const Label& label, bool isPicture);

}  // namespace intake
