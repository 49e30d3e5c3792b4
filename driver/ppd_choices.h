#pragma once

#include <cups/ppd.h>

#include <cstdint>

// Access to the choices and attributes of a queue description. Every function takes a null
// `ppd` for a queue without one and then returns the default. Texts belong to the PPD.

/// The marked choice of an option, else its default choice, else null.
extern "C" ppd_choice_t* kestoPpdGetChoice(ppd_file_t* ppd, const char* keyword);

/// The name of the choice.
extern "C" const char* kestoPpdGetChoiceAsStrDefault(ppd_file_t* ppd, const char* keyword,
                                                     const char* defaultValue);

/// The choice's name as a decimal number, 0 when it is none.
extern "C" int kestoPpdGetChoiceAsIntDefault(ppd_file_t* ppd, const char* keyword,
                                             int defaultValue);

/// 1 for "true" and "yes", 0 for "false" and "no" in any case; other names count as decimal
/// numbers of which the low 8 bits are kept.
extern "C" std::int8_t kestoPpdGetChoiceAsBoolDefault(ppd_file_t* ppd, const char* keyword,
                                                      std::int8_t defaultValue);

/// The value of an attribute; `spec` may be null.
extern "C" const char* kestoPpdGetAttrAsStrDefault(ppd_file_t* ppd, const char* name,
                                                   const char* spec, const char* defaultValue);

/// The value of an attribute as a decimal number.
extern "C" double kestoPpdGetAttrAsFloatDefault(ppd_file_t* ppd, const char* name, const char* spec,
                                                double defaultValue);
