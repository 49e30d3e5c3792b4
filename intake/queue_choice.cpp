#include "intake/queue_choice.h"

#include <algorithm>

#include "sizes/ascii.h"
#include "sizes/ppd_statement.h"

namespace intake {

using sizes::PpdStatement;

std::string queueChoice(std::string_view ppd, const OptionList& options, std::string_view option) {
    const std::string* const wanted = options.find(option);
    const std::string defaultKeyword = "Default" + std::string(option);
    std::string choice;
    for (const PpdStatement& statement : sizes::ppdStatements(ppd)) {
        if (!statement.language.empty()) {
            continue;
        }
        if (statement.keyword == option && wanted != nullptr &&
            sizes::equalsIgnoringCase(statement.option, *wanted)) {
            return std::string(statement.option);
        }
        if (statement.keyword == defaultKeyword) {
            choice = statement.value;
        }
    }
    return choice;
}

bool separatesContent(std::string_view ppd, const OptionList& options) {
    return queueChoice(ppd, options, "Content") == "Mixed";
}

bool findsLabels(std::string_view ppd, const OptionList& options) {
    return queueChoice(ppd, options, "LabelOnPage") == "Find";
}

}  // namespace intake
