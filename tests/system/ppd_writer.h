#pragma once

#include <map>
#include <string>

#include "tests/reference/job_log.h"
#include "tests/reference/page.h"

/// A queue description in the making: options with one default choice each, attributes and one
/// page size.
class PpdWriter {
public:
    /// An option whose default is `choice`; an empty choice leaves the option out.
    void setChoice(const std::string& keyword, const std::string& choice);
    /// A further choice of an option.
    void addChoice(const std::string& keyword, const std::string& choice);
    void setAttribute(const std::string& name, const std::string& value);
    /// The size of the page size choice, in points.
    void setPageSize(const std::string& name, const reference::PpdSize& size);

    std::string text() const;

private:
    struct Option {
        std::string defaultChoice;
        std::string furtherChoices;
    };

    std::map<std::string, Option> options_;
    std::string attributes_;
    std::string pageSize_;
};

/// The description of a queue whose defaults are these settings. Fields that are empty have no
/// option; numbers always have one.
PpdWriter ppdFor(const reference::Settings& settings, const reference::PpdSize& size);
