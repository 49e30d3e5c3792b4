#include "sizes/command/size_command.h"

#include "sizes/command/cups_check.h"
#include "sizes/command/input_file.h"
#include "sizes/command/installed_model.h"
#include "sizes/command/output_file.h"
#include "sizes/command/own_description.h"
#include "sizes/command/own_size.h"
#include "sizes/command/size_listing.h"

namespace sizes {
namespace {

std::string descriptionOf(const Options& options, std::span<const OwnSize> sizes) {
    const std::string base =
        options.base ? readFile(*options.base) : installedDescription(*options.model);
    std::string description = ownDescription(base, sizes, options.model->dpi);
    requireThatCupsTakes(description);
    return description;
}

std::string productOf(const Options& options, std::span<const OwnSize> sizes) {
    switch (options.product) {
        case Product::List:
            return sizeListing(sizes, options.model->dpi);
        case Product::Media:
            return mediaLines(sizes);
        case Product::Description:
            break;
    }
    return descriptionOf(options, sizes);
}

}  // namespace

void runSizeCommand(const Options& options) {
    const std::vector<OwnSize> sizes = ownSizes(options.sizes, options.model->dpi);
    const std::string product = productOf(options, sizes);
    if (options.output) {
        writeFile(*options.output, product);
    } else {
        writeToStandardOutput(product);
    }
}

}  // namespace sizes
