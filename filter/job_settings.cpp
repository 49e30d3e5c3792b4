#include "filter/job_settings.h"

#include <cups/cups.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>

#include "driver/log.h"
#include "driver/ppd_choices.h"
#include "driver/text.h"

namespace {

struct PpdCloser {
    void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};
using PpdFile = std::unique_ptr<ppd_file_t, PpdCloser>;

PpdFile openMarkedPpd(const char* options) {
    PpdFile ppd(ppdOpenFile(std::getenv("PPD")));
    ppdMarkDefaults(ppd.get());
    cups_option_t* list = nullptr;
    const int count = cupsParseOptions(options, 0, &list);
    if (count != 0 && list != nullptr) {
        cupsMarkOptions(ppd.get(), count, list);
        cupsFreeOptions(count, list);
    }
    return ppd;
}

void readText(ppd_file_t* ppd, const char* keyword, char (&field)[settingsTextSize]) {
    kestoStrCpy(field, kestoPpdGetChoiceAsStrDefault(ppd, keyword, ""), settingsTextSize);
}

// Sign-extended: a choice of -1 stays -1, which counts as on.
std::int32_t readSwitch(ppd_file_t* ppd, const char* keyword) {
    return static_cast<std::int32_t>(kestoPpdGetChoiceAsBoolDefault(ppd, keyword, 0));
}

void readChoices(ppd_file_t* ppd, Settings& settings) {
    readText(ppd, "PageSize", settings.PageSize);
    readText(ppd, "Resolution", settings.Resolution);
    readText(ppd, "MediaMethod", settings.MediaMethod);
    readText(ppd, "PaperType", settings.PaperType);
    settings.GapsHeight = kestoPpdGetChoiceAsIntDefault(ppd, "GapsHeight", 0);
    readText(ppd, "PostAction", settings.PostAction);
    readText(ppd, "Occurrence", settings.Occurrence);
    readText(ppd, "Origin", settings.Origin);
    settings.halftoneType =
        kestoHalftoneTypeFromStr(kestoPpdGetChoiceAsStrDefault(ppd, "HalftoneType", ""));
    settings.MirrorImage = readSwitch(ppd, "MirrorImage");
    settings.NegativeImage = readSwitch(ppd, "NegativeImage");
    readText(ppd, "PrintSpeed", settings.PrintSpeed);
    settings.Darkness = kestoPpdGetChoiceAsIntDefault(ppd, "Darkness", 0);
    settings.Brightness = kestoPpdGetChoiceAsIntDefault(ppd, "Brightness", 0);
    getPageWidthPageHeight(ppd, &settings);
    settings.ForceRotation = kestoPpdGetChoiceAsIntDefault(ppd, "ForceRotation", 0);
}

// The name's base comes from the PPD and is cut where the field ends.
void nameRecordingFile(ppd_file_t* ppd, Settings& settings) {
    const int recording = kestoPpdGetChoiceAsIntDefault(ppd, "RecordPrinterCommands", 0);
    const char* base = kestoPpdGetAttrAsStrDefault(ppd, "kestoFilterOutputFile", nullptr, "");
    if (recording <= 0) {
        return;
    }
    const std::time_t now = std::time(nullptr);
    const std::tm local = *std::localtime(&now);
    std::snprintf(settings.outputFileName, sizeof settings.outputFileName,
                  "%s-%d%02d%02d%02d%02d%02d.bin", base, local.tm_year + 1900, local.tm_mon + 1,
                  local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

void logSettings(const Settings& settings) {
    kestoLogCommon(kestoLogTrace, "settings->Resolution:%s", settings.Resolution);
    kestoLogCommon(kestoLogTrace, "settings->MediaMethod:%s", settings.MediaMethod);
    kestoLogCommon(kestoLogTrace, "settings->PaperType:%s", settings.PaperType);
    kestoLogCommon(kestoLogTrace, "settings->GapsHeight:%d", settings.GapsHeight);
    kestoLogCommon(kestoLogTrace, "settings->PostAction:%s", settings.PostAction);
    kestoLogCommon(kestoLogTrace, "settings->Occurrence:%s", settings.Occurrence);
    kestoLogCommon(kestoLogTrace, "settings->Origin:%s", settings.Origin);
    kestoLogCommon(kestoLogTrace, "settings->MirrorImage:%d", settings.MirrorImage);
    kestoLogCommon(kestoLogTrace, "settings->NegativeImage:%d", settings.NegativeImage);
    kestoLogCommon(kestoLogTrace, "settings->PrintSpeed:%s", settings.PrintSpeed);
    kestoLogCommon(kestoLogTrace, "settings->Darkness:%d", settings.Darkness);
    kestoLogCommon(kestoLogTrace, "settings->halftoneType:%d",
                   static_cast<int>(settings.halftoneType));
    kestoLogCommon(kestoLogTrace, "settings->DirectBuffer:%d", settings.DirectBuffer);
    kestoLogCommon(kestoLogTrace, "settings->StoredGraphics:%d", settings.StoredGraphics);
    kestoLogCommon(kestoLogTrace, "settings->OptionDisplayUnit:%d", settings.OptionDisplayUnit);
    kestoLogCommon(kestoLogTrace, "settings->PageSize:%s", settings.PageSize);
    kestoLogCommon(kestoLogTrace, "settings->pageWidth:%f",
                   static_cast<double>(settings.pageWidth));
    kestoLogCommon(kestoLogTrace, "settings->pageHeight:%f",
                   static_cast<double>(settings.pageHeight));
}

}  // namespace

void parseSettings(Settings* settings, const char* options) {
    const PpdFile ppd = openMarkedPpd(options);
    *settings = Settings{};
    readChoices(ppd.get(), *settings);
    nameRecordingFile(ppd.get(), *settings);
    logSettings(*settings);
}

void getPageWidthPageHeight(ppd_file_t* ppd, Settings* settings) {
    // Slightly more than 25.4 / 72: the start-up check and the log have always used this.
    constexpr double millimetresPerPoint = 0.3528;
    const char* name = kestoPpdGetChoiceAsStrDefault(ppd, "PageSize", "");
    settings->pageWidth = 0;
    settings->pageHeight = 0;
    kestoLogCommon(kestoLogTrace, "PageSizeName: %s", name);
    const ppd_size_t* size = ppdPageSize(ppd, name);
    if (size == nullptr) {
        return;
    }
    const auto wide = [](float points) { return static_cast<double>(points); };
    kestoLogCommon(kestoLogTrace, "Custom Size: (%f,%f,%f,%f,%f,%f)", wide(size->width),
                   wide(size->length), wide(size->left), wide(size->bottom), wide(size->right),
                   wide(size->top));
    settings->pageWidth = static_cast<float>(wide(size->width) * millimetresPerPoint);
    settings->pageHeight = static_cast<float>(wide(size->length) * millimetresPerPoint);
    kestoLogCommon(kestoLogTrace, "Set page size: width %f mm, height %f mm",
                   wide(settings->pageWidth), wide(settings->pageHeight));
}
