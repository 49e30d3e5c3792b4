#pragma once

#include <stdexcept>
#include <string>

namespace sizes {

/// Why something cannot be made; what() is the text for people.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What the system has to say of a file: "/etc/shadow: Permission denied".
class FileFailure : public Failure {
public:
    FileFailure(const std::string& file, int errorNumber);
};

}  // namespace sizes
