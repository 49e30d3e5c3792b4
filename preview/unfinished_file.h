#pragma once

#include <sys/stat.h>

#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include "preview/ending_signals.h"

namespace preview {

/// Keeps a file, by its status, from being replaced: a stream that is read cannot be made again.
void keepFile(const struct stat& status);

/// A file that gets its name when it is complete: a write that fails or is interrupted leaves a
/// file of that name as it was. Until then it is called name.part, which is removed when it is not
/// completed, also by a signal.
class UnfinishedFile {
public:
    /// Where the name is that of a link, the file is the one that it leads to.
    explicit UnfinishedFile(const std::string& name);
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile();

    /// Begins the file. Returns why it could not, as where a device has its name or a file that is
    /// kept; empty when it could.
    std::string open();

    /// The open file.
    [[nodiscard]] std::FILE* file() const { return file_.get(); }

    /// Gives the file its name. Returns why it could not; empty when it could.
    std::string complete();

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    std::string given_;
    std::string name_;
    std::string part_;
    std::optional<UnfinishedName> removal_;
    std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace preview
