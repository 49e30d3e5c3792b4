#include "tspl/code_commands.h"

#include "tspl/code_arguments.h"
#include "tspl/command_rules.h"

namespace tspl {
namespace {

template <Obey draw>
void drawCode(Printer& printer, const Command& command) {
    try {
        draw(printer, command);
    } catch (const CodeNotDrawn& reason) {
        printer.remarkUndrawn(command, command.name + " is not drawn: " + reason.what());
    } catch (const CodeFault& fault) {
        printer.label.noteUndrawn();
        printer.complain(command, command.name + ": " + fault.what());
    }
}

constexpr auto sAny = ArgumentKind::Any;

constexpr CommandRule rules[] = {
    {"BARCODE", 9, 10, sAny, Effect::Obeyed, drawCode<drawBarcode>},
    {"QRCODE", 7, 11, sAny, Effect::Obeyed, drawCode<drawQrCode>},
    {"DMATRIX", 5, 11, sAny, Effect::Obeyed, drawCode<drawDataMatrix>},
    {"PDF417", 6, anyNumber, sAny, Effect::Obeyed, drawCode<drawPdf417>},
    {"MPDF417", 4, 7, sAny, Effect::Obeyed, drawCode<drawMicroPdf417>},
    {"AZTEC", 4, 10, sAny, Effect::Obeyed, drawCode<drawAztec>},
    {"MAXICODE", 4, 8, sAny, Effect::Obeyed, drawCode<drawMaxiCode>},
    {"CODABLOCK", 4, 6, sAny, Effect::Obeyed, drawCode<drawCodablock>},
    {"RSS", 7, 8, sAny, Effect::Obeyed, drawCode<drawDataBar>},
    {"TLC39", 4, anyNumber, sAny, Effect::NotDrawn},
};

}  // namespace

std::span<const CommandRule> codeCommands() {
    return rules;
}

}  // namespace tspl
