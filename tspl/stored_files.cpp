#include "tspl/stored_files.h"

#include "tspl/text.h"

namespace tspl {

bool StoredFiles::begin(std::string_view name, std::uint64_t bytes) {
    open_ = nullptr;
    files_.erase(upperCase(name));
    if (bytes > room - this->bytes()) {
        return false;
    }
    open_ = &files_[upperCase(name)];
    return true;
}

void StoredFiles::append(std::span<const std::uint8_t> data) {
    if (open_ != nullptr) {
        open_->insert(open_->end(), data.begin(), data.end());
    }
}

void StoredFiles::remove(std::string_view name) {
    open_ = nullptr;
    if (name == "*") {
        files_.clear();
    } else {
        files_.erase(upperCase(name));
    }
}

const StoredFiles::Bytes* StoredFiles::find(std::string_view name) const {
    const auto file = files_.find(upperCase(name));
    return file == files_.end() ? nullptr : &file->second;
}

std::uint64_t StoredFiles::bytes() const {
    std::uint64_t sum = 0;
    for (const auto& [name, file] : files_) {
        sum += file.size();
    }
    return sum;
}

}  // namespace tspl
