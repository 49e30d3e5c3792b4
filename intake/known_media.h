#pragma once

#include <optional>
#include <string_view>

#include "sizes/nominal_size.h"

namespace intake {

/// The size of a medium that CUPS knows by a name, be it of PPD files ("A6"), of PWG 5101.1
/// ("iso_a6_105x148mm") or of older jobs ("iso-a6"), in any case of letters.
std::optional<sizes::NominalSize> knownMedia(std::string_view name);

}  // namespace intake
