#pragma once

#include <string>

#include "intake/document.h"
#include "intake/filter_programs.h"
#include "intake/job_arguments.h"
#include "intake/label_choice.h"
#include "intake/option_list.h"
#include "intake/queue_description.h"
#include "intake/supervisor.h"
#include "intake/temporary_folder.h"

namespace intake {

/// One job: its members are the steps of main. All but the first need those before them. They
/// throw JobFailure and JobCancelled.
class PrintJob {
public:
    explicit PrintJob(JobArguments arguments);

    void takeDocument();
    void readQueue();
    void findPrograms();
    void chooseLabel();
    void print();

private:
    JobArguments arguments_;
    TemporaryFolder folder_;
    // Behind the folder: when it goes, nobody is left who writes there.
    Supervisor supervisor_;
    PrintableDocument document_;
    FilterPrograms programs_;
    OptionList options_;
    std::string description_;
    QueueDescription queue_;
    Label label_;
    // Whether labels are looked for on the document's pages.
    bool separatesContent_ = false;
    bool isSheet_ = false;
};

}  // namespace intake
