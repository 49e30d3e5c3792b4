#include "driver/ppd_choices.h"

#include <strings.h>

#include <cstdlib>

extern "C" ppd_choice_t* kestoPpdGetChoice(ppd_file_t* ppd, const char* keyword) {
    if (ppd_choice_t* marked = ppdFindMarkedChoice(ppd, keyword)) {
        return marked;
    }
    ppd_option_t* option = ppdFindOption(ppd, keyword);
    return option != nullptr ? ppdFindChoice(option, option->defchoice) : nullptr;
}

extern "C" const char* kestoPpdGetChoiceAsStrDefault(ppd_file_t* ppd, const char* keyword,
                                                     const char* defaultValue) {
    const ppd_choice_t* choice = kestoPpdGetChoice(ppd, keyword);
    return choice != nullptr ? choice->choice : defaultValue;
}

extern "C" int kestoPpdGetChoiceAsIntDefault(ppd_file_t* ppd, const char* keyword,
                                             int defaultValue) {
    const char* name = kestoPpdGetChoiceAsStrDefault(ppd, keyword, nullptr);
    return name != nullptr ? std::atoi(name) : defaultValue;
}

extern "C" std::int8_t kestoPpdGetChoiceAsBoolDefault(ppd_file_t* ppd, const char* keyword,
                                                      std::int8_t defaultValue) {
    const char* name = kestoPpdGetChoiceAsStrDefault(ppd, keyword, nullptr);
    if (name == nullptr) {
        return defaultValue;
    }
    if (strcasecmp(name, "true") == 0 || strcasecmp(name, "yes") == 0) {
        return 1;
    }
    if (strcasecmp(name, "false") == 0 || strcasecmp(name, "no") == 0) {
        return 0;
    }
    return static_cast<std::int8_t>(std::atoi(name));
}

extern "C" const char* kestoPpdGetAttrAsStrDefault(ppd_file_t* ppd, const char* name,
                                                   const char* spec, const char* defaultValue) {
    const ppd_attr_t* attribute = ppdFindAttr(ppd, name, spec);
    return attribute != nullptr && attribute->value != nullptr ? attribute->value : defaultValue;
}

extern "C" double kestoPpdGetAttrAsFloatDefault(ppd_file_t* ppd, const char* name, const char* spec,
                                                double defaultValue) {
    const char* value = kestoPpdGetAttrAsStrDefault(ppd, name, spec, nullptr);
    return value != nullptr ? std::atof(value) : defaultValue;
}
