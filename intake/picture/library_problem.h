#pragma once

#include <magick/api.h>

#include <string>
#include <string_view>

namespace intake::picture {

/// What GraphicsMagick has to say of a call.
class LibraryProblem {
public:
    LibraryProblem() { GetExceptionInfo(&info_); }
    ~LibraryProblem() { DestroyExceptionInfo(&info_); }
    LibraryProblem(const LibraryProblem&) = delete;
    LibraryProblem& operator=(const LibraryProblem&) = delete;

    ExceptionInfo* info() { return &info_; }
    bool isError() const { return info_.severity >= ErrorException; }
    /// A warning that a part of the picture is missing. Of much else that is warned of nothing can
    /// be seen.
    bool isDamage() const;
    /// The reason, for people, who know what file it is and cannot set the library's options.
    std::string text(std::string_view path = {}) const;

private:
    bool says(const char* words) const;

    ExceptionInfo info_{};
};

/// Throws JobFailure: the picture cannot be read, for this reason.
[[noreturn]] void failToRead(const std::string& reason);

}  // namespace intake::picture
