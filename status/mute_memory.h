#pragma once

#include <string>

namespace status {

/// Remembers for a day that a queue's printer does not answer, as an empty file in a folder of the
/// spooler. Only files of this user count, and nothing is written through a link. Where the folder
/// cannot be written to, nothing is remembered, and nobody is told: the printer is asked once more.
class MuteMemory {
public:
    /// `folder` may be empty: then there is no memory. A queue whose device is another one than it
    /// was is another printer.
    MuteMemory(std::string folder, const std::string& queue, const std::string& device);

    [[nodiscard]] bool isMute() const;
    void remember() const;
    void forget() const;

    /// The name of the file in its folder.
    [[nodiscard]] const std::string& name() const { return name_; }

private:
    std::string folder_;
    std::string name_;
};

}  // namespace status
