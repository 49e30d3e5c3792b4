#include "intake/cups_options.h"

#include <cups/cups.h>

namespace intake {

OptionList readOptions(const std::string& text) {
    cups_option_t* options = nullptr;
    const int count = cupsParseOptions(text.c_str(), 0, &options);
    OptionList list;
    for (int i = 0; i < count; ++i) {
        list.set(options[i].name, options[i].value);
    }
    cupsFreeOptions(count, options);
    return list;
}

}  // namespace intake
