#include "tspl/stored_files.h"

#include <iterator>

#include "tspl/downloaded_font.h"
#include "tspl/text.h"

namespace tspl {

bool StoredFiles::begin(std::string_view name, std::uint64_t bytes) {
    open_ = nullptr;
    if (const auto before = files_.find(upperCase(name)); before != files_.end()) {
        erase(before);
    }
    if (bytes > room - bytes_ || files_.size() == mostFiles) {
        return false;
    }
    File& file = files_[upperCase(name)];
    file.bytes = std::make_shared<Bytes>();
    open_ = file.bytes.get();
    return true;
}

void StoredFiles::append(std::span<const std::uint8_t> data) {
    if (open_ != nullptr) {
        open_->insert(open_->end(), data.begin(), data.end());
        bytes_ += data.size();
    }
}

void StoredFiles::remove(std::string_view name) {
    open_ = nullptr;
    const std::string pattern = upperCase(name);
    const bool isEnding = pattern.starts_with('*');
    for (auto file = files_.begin(); file != files_.end();) {
        const bool isMeant =
            isEnding ? file->first.ends_with(pattern.substr(1)) : file->first == pattern;
        file = isMeant ? erase(file) : std::next(file);
    }
}

StoredFiles::Files::iterator StoredFiles::erase(Files::iterator file) {
    bytes_ -= file->second.bytes->size();
    return files_.erase(file);
}

const StoredFiles::Bytes* StoredFiles::find(std::string_view name) const {
    const auto file = files_.find(upperCase(name));
    return file == files_.end() ? nullptr : file->second.bytes.get();
}

std::shared_ptr<const DownloadedFont> StoredFiles::font(std::string_view name) {
    const auto found = files_.find(upperCase(name));
    if (found == files_.end()) {
        return nullptr;
    }
    File& file = found->second;
    if (!file.font) {
        file.font = DownloadedFont::read(file.bytes);
    }
    return *file.font;
}

}  // namespace tspl
