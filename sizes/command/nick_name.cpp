#include "sizes/command/nick_name.h"

#include <algorithm>
#include <vector>

#include "sizes/command/failure.h"

namespace sizes {
namespace {

constexpr std::string_view sWith = " with ";
constexpr std::string_view sBetween = ", ";
constexpr std::string_view sMore = ", ...";

struct NickName {
    std::string_view model;
    std::vector<std::string> sizes;
    bool hasMore = false;
};

void addOnce(std::vector<std::string>& texts, std::string_view text) {
    if (std::find(texts.begin(), texts.end(), text) == texts.end()) {
        texts.emplace_back(text);
    }
}

std::vector<std::string> parts(std::string_view list) {
    std::vector<std::string> texts;
    while (!list.empty()) {
        const auto end = std::min(list.find(sBetween), list.size());
        addOnce(texts, list.substr(0, end));
        list.remove_prefix(std::min(end + sBetween.size(), list.size()));
    }
    return texts;
}

NickName parsed(std::string_view text) {
    const auto with = text.find(sWith);
    if (with == std::string_view::npos) {
        return {text, {}, false};
    }
    std::string_view list = text.substr(with + sWith.size());
    const bool hasMore = list.ends_with(sMore);
    if (hasMore) {
        list.remove_suffix(sMore.size());
    }
    return {text.substr(0, with), parts(list), hasMore};
}

// As many as there is room for, and for the mark that there are more.
std::string joined(const NickName& name) {
    std::string text(name.model);
    std::string_view before = sWith;
    for (std::size_t i = 0; i < name.sizes.size(); ++i) {
        const bool isLast = i + 1 == name.sizes.size() && !name.hasMore;
        const std::size_t size = text.size() + before.size() + name.sizes[i].size();
        if (size + (isLast ? 0 : sMore.size()) > longestNickName) {
            return i == 0 ? std::string() : text.append(sMore);
        }
        text.append(before).append(name.sizes[i]);
        before = sBetween;
    }
    return name.hasMore ? text.append(sMore) : text;
}

}  // namespace

std::string nickNameWith(std::string_view nickName, std::span<const std::string> sizeTexts) {
    NickName former = parsed(nickName);
    NickName name{former.model, {}, former.hasMore};
    for (const std::string& text : sizeTexts) {
        addOnce(name.sizes, text);
    }
    for (const std::string& text : former.sizes) {
        addOnce(name.sizes, text);
    }
    std::string result = joined(name);
    if (result.empty()) {
        throw Failure("the NickName of the PPD file is too long");
    }
    return result;
}

}  // namespace sizes
