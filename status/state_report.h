#pragma once

#include <functional>
#include <string>
#include <vector>

#include "status/status_byte.h"

namespace status {

/// Says what has changed about the printer, in the lines that the scheduler reads from a filter's
/// standard error: STATE with the keywords, then one line for people.
class StateReport {
public:
    using Line = std::function<void(const std::string&)>;

    /// `standing` are the keywords that the queue has already, with commas between: what an earlier
    /// job has left there is cleared like this one's own.
    StateReport(Line line, const std::string& standing);
    /// Clears what stands.
    ~StateReport();
    StateReport(const StateReport&) = delete;
    StateReport& operator=(const StateReport&) = delete;

    void show(StatusByte status);
    /// Clears what stands, without a line for people.
    void clear();

private:
    void set(const std::vector<std::string>& reasons);

    Line line_;
    std::vector<std::string> standing_;
    StatusByte shown_;
};

}  // namespace status
