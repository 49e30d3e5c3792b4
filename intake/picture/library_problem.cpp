#include "intake/picture/library_problem.h"

#include <cstring>

#include "intake/job_failure.h"

namespace intake::picture {

bool LibraryProblem::isDamage() const {
    return says("remature end") || says("uffman code") || says("resync");
}

bool LibraryProblem::says(const char* words) const {
    return info_.reason != nullptr && std::strstr(info_.reason, words) != nullptr;
}

std::string LibraryProblem::text(std::string_view path) const {
    if (info_.reason == nullptr || *info_.reason == '\0') {
        return "the decoder does not say why";
    }
    // What libjpeg says when its memory is used up.
    if (says("Backing store")) {
        return "it takes more memory than a picture may have";
    }
    std::string text = GetLocaleExceptionMessage(info_.severity, info_.reason);
    if (const std::string name = std::string(path) + ": "; text.starts_with(name)) {
        text.erase(0, name.size());
    }
    // "Disk space limit exceeded (see -limit Disk)"
    return text.substr(0, text.find(" (see -"));
}

void failToRead(const std::string& reason) {
    throw JobFailure("The picture cannot be read: " + reason);
}

}  // namespace intake::picture
