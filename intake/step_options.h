#pragma once

#include <string_view>

#include "intake/label_choice.h"
#include "intake/option_list.h"

namespace intake {

/// The options of a job for each of the programs that print it.
struct StepOptions {
    OptionList picture;  ///< picturetokestolabel: what places a picture and chooses pages
    OptionList sheet;    ///< pdftokestolabels: what chooses pages
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
/// - A picture comes to pdftopdf as pages of the label's size, which need no more turning, and
///   none of them has been left out yet.
StepOptions stepOptions(const OptionList& job, const Label& label, bool isPicture);

/// The same for a document whose pages pdftokestolabels cuts labels out of: it has to choose among
/// the pages, since all that come out of it are labels.
StepOptions withSheets(StepOptions steps);

/// Whether a picture's pages have to be laid out further: several on a label, as a booklet, with
/// a border or a text, or the last one first.
bool needsLayout(const OptionList& job);

}  // namespace intake
