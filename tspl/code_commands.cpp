#include "tspl/command_rules.h"

namespace tspl {
namespace {

constexpr CommandRule rules[] = {
    {"BARCODE", 8, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"QRCODE", 6, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"DMATRIX", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"PDF417", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"MPDF417", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"AZTEC", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"MAXICODE", 3, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"CODABLOCK", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"RSS", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"TLC39", 4, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
};

}  // namespace

std::span<const CommandRule> codeCommands() {
    return rules;
}

}  // namespace tspl
