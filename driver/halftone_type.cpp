#include "driver/halftone_type.h"

#include <cstring>
#include <iterator>

namespace {

constexpr const char* sHalftoneTypeStrTable[] = {
    "None",   "FloydSteinberg", "Ordered", "Burkes",   "Stucki", "JarvisJudiceNinke",
    "Sierra", "StevensonArce",  "Tattoo",  "Tattoo_X8"};

constexpr auto typeCount = static_cast<std::int32_t>(std::size(sHalftoneTypeStrTable));

}  // namespace

extern "C" const char* kestoHalftoneTypeToStr(DitherType type) {
    const auto index = static_cast<std::int32_t>(type);
    return sHalftoneTypeStrTable[index >= 0 && index < typeCount ? index : 0];
}

extern "C" DitherType kestoHalftoneTypeFromStr(const char* name) {
    for (std::int32_t i = 0; i < typeCount; ++i) {
        if (std::strcmp(name, sHalftoneTypeStrTable[i]) == 0) {
            return static_cast<DitherType>(i);
        }
    }
    return DitherType::None;
}
