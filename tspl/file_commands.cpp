#include "tspl/command_rules.h"

#include "tspl/data_heads.h"
#include "tspl/picture_file.h"
#include "tspl/text.h"
#include "tspl/text_argument.h"

namespace tspl {
namespace {

// DOWNLOAD "NAME" without a size: a program follows, up to EOP.
void startStoring(Printer& printer, const Command& command) {
    const std::string& last = command.arguments.back();
    const bool isProgram = last.size() > 1 && last.starts_with('"') && last.ends_with('"');
    if (isProgram) {
        printer.storingSince = command;
    } else if (const auto file = parseDownloadHead(command)) {
        if (!printer.files.begin(file->name, file->bytes)) {
            printer.remark(command, "there is no room to store a file as large as this");
        }
    } else {
        printer.complain(command,
                         "DOWNLOAD needs a name, and for a file its size: " + quoted(command));
    }
}

void endStoring(Printer& printer, const Command& /*command*/) {
    printer.storingSince.reset();
}

// KILL "name", with or without a memory's letter before it.
void remove(Printer& printer, const Command& command) {
    printer.files.remove(nameOf(command.arguments.back()));
}

using Read = std::optional<PictureDots> (*)(std::span<const std::uint8_t>);

void drawPicture(Printer& printer, const PictureDots& picture, const Area& at) {
    for (std::int64_t y = 0; y < picture.height; ++y) {
        printer.label.canvas().drawBits(at.x, at.y + y, picture.row(y), DrawMode::Or);
    }
}

template <Read read>
void putPicture(Printer& printer, const Command& command) {
    const auto x = parseInteger(command.arguments[0]);
    const auto y = parseInteger(command.arguments[1]);
    const std::string name = nameOf(command.arguments[2]);
    if (!x || !y) {
        printer.complain(command, command.name + " needs a position: " + quoted(command));
        return;
    }
    const StoredFiles::Bytes* file = printer.files.find(name);
    if (file == nullptr) {
        printer.remarkUndrawn(
            command, command.name + " is not drawn: the stream does not store " + printable(name));
        return;
    }
    if (const auto picture = read(*file)) {
        drawPicture(printer, *picture, printer.placed({*x, *y, 0, 0}));
    } else {
        printer.complain(command, command.name + " cannot read " + printable(name));
    }
}

constexpr CommandRule rules[] = {
    {"PUTBMP", 3, 5, ArgumentKind::Any, Effect::Obeyed, putPicture<readBmp>},
    {"PUTPCX", 3, 3, ArgumentKind::Any, Effect::Obeyed, putPicture<readPcx>},
    {"DOWNLOAD", 1, anyNumber, ArgumentKind::Any, Effect::Obeyed, startStoring},
    {"EOP", 0, 0, ArgumentKind::Any, Effect::Obeyed, endStoring},
    {"FILES", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"KILL", 1, 2, ArgumentKind::Any, Effect::NoMark, remove},
    {"MOVE", 0, 0, ArgumentKind::Any, Effect::NoMark},
    {"RUN", 1, 1, ArgumentKind::Any, Effect::NoMark},
};

}  // namespace

std::span<const CommandRule> fileCommands() {
    return rules;
}

}  // namespace tspl
