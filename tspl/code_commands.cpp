#include "tspl/code_commands.h"

#include "tspl/code_arguments.h"
#include "tspl/command_rules.h"

namespace tspl {
namespace {

template <Obey draw>
void drawCode(Printer& printer, const Command& command) {
    try {
        draw(printer, command);
    } catch (const UnknownContent& unknown) {
        printer.remark(command, command.name + " is not drawn: " + unknown.what());
    } catch (const CodeFault& fault) {
        printer.complain(command, command.name + ": " + fault.what());
    }
}

constexpr auto sAny = ArgumentKind::Any;

constexpr CommandRule rules[] = {
    {"BARCODE", 9, 10, sAny, Effect::Obeyed, drawCode<drawBarcode>},
    {"QRCODE", 7, 11, sAny, Effect::Obeyed, drawCode<drawQrCode>},
    {"DMATRIX", 5, 11, sAny, Effect::Obeyed, drawCode<drawDataMatrix>},
    {"PDF417", 4, anyNumber, sAny, Effect::NotDrawn},
    {"MPDF417", 4, anyNumber, sAny, Effect::NotDrawn},
    {"AZTEC", 4, anyNumber, sAny, Effect::NotDrawn},
    {"MAXICODE", 3, anyNumber, sAny, Effect::NotDrawn},
    {"CODABLOCK", 4, anyNumber, sAny, Effect::NotDrawn},
    {"RSS", 4, anyNumber, sAny, Effect::NotDrawn},
    {"TLC39", 4, anyNumber, sAny, Effect::NotDrawn},
};

}  // namespace

std::span<const CommandRule> codeCommands() {
    return rules;
}

}  // namespace tspl
