#include "tests/system/ppd_writer.h"

#include "tests/reference/text.h"
#include "tests/support/ppd_opening.h"

namespace {

constexpr const char* halftoneNames[] = {"None",   "FloydSteinberg",    "Ordered", "Burkes",
                                         "Stucki", "JarvisJudiceNinke", "Sierra",  "StevensonArce",
                                         "Tattoo", "Tattoo_X8"};

std::string choiceLine(const std::string& keyword, const std::string& choice) {
    return "*" + keyword + " " + choice + ": \"\"\n";
}

}  // namespace

void PpdWriter::setChoice(const std::string& keyword, const std::string& choice) {
    if (!choice.empty()) {
        options_[keyword].defaultChoice = choice;
    }
}

void PpdWriter::addChoice(const std::string& keyword, const std::string& choice) {
    options_[keyword].furtherChoices += choiceLine(keyword, choice);
}

void PpdWriter::setAttribute(const std::string& name, const std::string& value) {
    attributes_ += "*" + name + ": \"" + value + "\"\n";
}

void PpdWriter::setPageSize(const std::string& name, const reference::PpdSize& size) {
    using reference::formatted;
    const auto wide = [](float points) { return static_cast<double>(points); };
    setChoice("PageSize", name);
    pageSize_ = "*DefaultPageRegion: " + name + "\n*DefaultImageableArea: " + name +
                "\n*DefaultPaperDimension: " + name + "\n" +
                formatted("*ImageableArea %s: \"%.9f %.9f %.9f %.9f\"\n", name.c_str(),
                          wide(size.left), wide(size.bottom), wide(size.right), wide(size.top)) +
                formatted("*PaperDimension %s: \"%.9f %.9f\"\n", name.c_str(), wide(size.width),
                          wide(size.length));
}

std::string PpdWriter::text() const {
    std::string ppd = ppdOpening + attributes_;
    for (const auto& [keyword, option] : options_) {
        ppd.append("*OpenUI *").append(keyword).append(": PickOne\n");
        ppd.append("*OrderDependency: 10 AnySetup *").append(keyword).append("\n");
        if (!option.defaultChoice.empty()) {
            ppd += "*Default" + keyword + ": " + option.defaultChoice + "\n" +
                   choiceLine(keyword, option.defaultChoice);
        }
        ppd += option.furtherChoices + "*CloseUI: *" + keyword + "\n";
    }
    return ppd + pageSize_;
}

PpdWriter ppdFor(const reference::Settings& settings, const reference::PpdSize& size) {
    PpdWriter ppd;
    if (size.found) {
        ppd.setPageSize(settings.pageSize, size);
    }
    ppd.setChoice("Resolution", settings.resolution);
    ppd.setChoice("MediaMethod", settings.mediaMethod);
    ppd.setChoice("PaperType", settings.paperType);
    ppd.setChoice("GapsHeight", std::to_string(settings.gapsHeight));
    ppd.setChoice("PostAction", settings.postAction);
    ppd.setChoice("Occurrence", settings.occurrence);
    ppd.setChoice("Origin", settings.origin);
    ppd.setChoice("HalftoneType", halftoneNames[settings.halftoneType]);
    ppd.setChoice("MirrorImage", std::to_string(settings.mirrorImage));
    ppd.setChoice("NegativeImage", std::to_string(settings.negativeImage));
    ppd.setChoice("PrintSpeed", settings.printSpeed);
    ppd.setChoice("Darkness", std::to_string(settings.darkness));
    ppd.setChoice("Brightness", std::to_string(settings.brightness));
    ppd.setChoice("ForceRotation", std::to_string(settings.forceRotation));
    return ppd;
}
