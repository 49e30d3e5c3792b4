#pragma once

#include <cstdint>

/// Halftone methods by the choice names of the queue option "HalftoneType".
///
/// The names are kept for the queues that use them; page processing hands the number on, and
/// from `FloydSteinberg` to `StevensonArce` it selects the method of the next name.
enum class DitherType : std::int32_t {
    None = 0,
    FloydSteinberg = 1,
    Ordered = 2,
    Burkes = 3,
    Stucki = 4,
    JarvisJudiceNinke = 5,
    Sierra = 6,
    StevensonArce = 7,
    Tattoo = 8,
    Tattoo_X8 = 9,
};

/// The choice name of a type; "None" for a number outside 0 to 9.
extern "C" const char* kestoHalftoneTypeToStr(DitherType type);

/// The type of a choice name, compared exactly; `None` for an unknown one.
extern "C" DitherType kestoHalftoneTypeFromStr(const char* name);
