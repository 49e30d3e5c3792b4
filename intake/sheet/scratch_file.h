#pragma once

#include <cstdio>
#include <memory>
#include <span>

namespace intake::sheet {

/// A temporary file below $TMPDIR without a name, so that nothing of it is left however this
/// process ends.
class ScratchFile {
public:
    /// Throws JobFailure.
    ScratchFile();
    ~ScratchFile();
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    std::FILE* stream() { return stream_.get(); }

    /// All that was written to the stream, good as long as this lives. Throws JobFailure.
    std::span<const char> map();

private:
    struct Close {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };

    std::unique_ptr<std::FILE, Close> stream_;
    std::span<const char> bytes_;
};

}  // namespace intake::sheet
