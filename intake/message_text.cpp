#include "intake/message_text.h"

namespace intake {

std::string printable(std::string_view text) {
    constexpr std::size_t longest = 80;
    std::string result(text.substr(0, longest));
    for (char& c : result) {
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7f') {
            c = '?';
        }
    }
    return text.size() > longest ? result + "..." : result;
}

}  // namespace intake
