#include "tests/system/stream_ends.h"

#include <algorithm>

#include "tests/reference/page_process.h"
#include "tests/reference/tspl.h"
#include "tests/system/filter_process.h"

namespace {

struct PageCommands {
    std::string setUp;
    std::string bitmap;
    std::string print;
};

PageCommands commandsOf(const reference::Job& job, const reference::Page& page) {
    const reference::PageProperties properties = reference::propertiesOf(job.settings);
    return {reference::setUpBlock(reference::withPageSize(job.settings, page.header)) +
                reference::clearCommand(),
            reference::bitmapCommand(*reference::processPage(page, properties).finished),
            reference::printCommand(page.header.copies)};
}

}  // namespace

std::set<std::string> wholeBeginnings(const reference::Job& job) {
    std::string sent;
    std::set<std::string> beginnings = {sent};
    const auto send = [&](const std::string& commands) {
        sent += commands;
        beginnings.insert(sent);
    };
    // Each of its line feeds is a command of its own.
    for (const char lineFeed : reference::preamble()) {
        send(std::string(1, lineFeed));
    }
    for (const reference::Page& page : job.pages) {
        const PageCommands commands = commandsOf(job, page);
        send(commands.setUp);
        send(commands.bitmap);
        send(commands.print);
    }
    return beginnings;
}

std::string cancelledInBitmap(const reference::Job& job, std::size_t page) {
    std::string sent = reference::preamble();
    for (std::size_t i = 0; i < page; ++i) {
        const PageCommands commands = commandsOf(job, job.pages[i]);
        sent += commands.setUp + commands.bitmap + commands.print;
    }
    const PageCommands last = commandsOf(job, job.pages[page]);
    return sent + last.setUp + last.bitmap;
}

bool passesPreviewCheck(const std::string& stream) {
    FilterCall call;
    call.program = KESTO_PREVIEWER;
    call.arguments = {"--check"};
    call.standardInput = stream;
    const FilterResult result = runFilter(call);
    // One line: how many labels there are.
    return result.status == 0 &&
           std::count(result.standardOutput.begin(), result.standardOutput.end(), '\n') == 1;
}
