#include "tspl/command_rules.h"

namespace tspl {
namespace {

constexpr CommandRule rules[] = {
    {"TEXT", 6, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
    {"BLOCK", 8, anyNumber, ArgumentKind::Any, Effect::NotDrawn},
};

}  // namespace

std::span<const CommandRule> textCommands() {
    return rules;
}

}  // namespace tspl
