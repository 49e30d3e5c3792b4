#include "sizes/command/failure.h"

#include <system_error>

namespace sizes {

FileFailure::FileFailure(const std::string& file, int errorNumber)
    : Failure(file + ": " + std::generic_category().message(errorNumber)) {}

}  // namespace sizes
