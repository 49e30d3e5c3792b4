#include "filter/tspl_commands.h"

#include <cstdlib>
#include <cstring>

#include "driver/log.h"
#include "filter/current_printer.h"

namespace {

constexpr double nothing = 0.000001;

bool contains(const char* text, const char* part) {
    return std::strstr(text, part) != nullptr;
}

void sendPostAction(const char* tear, const char* peel, const char* cutter) {
    sPrinter->printFormat("SET TEAR %s\r\n", tear);
    sPrinter->printFormat("SET PEEL %s\r\n", peel);
    sPrinter->printFormat("SET CUTTER %s\r\n", cutter);
}

}  // namespace

void setSize(float width, float height) {
    sPrinter->printFormat("SIZE %.1f mm, %.1f mm\r\n", static_cast<double>(width),
                          static_cast<double>(height));
}

void setGap(float height, float offset, const char* paperType) {
    const auto sendTracking = [height, offset](const char* command) {
        sPrinter->printFormat("%s %.1f mm, %.1f mm\r\n", command, static_cast<double>(height),
                              static_cast<double>(offset));
    };
    if (contains(paperType, "Normal")) {
        kestoLogCommon(kestoLogTrace, "Skip the GAP cmd by Normal paper type");
    } else if (contains(paperType, "Continue") || nothing >= static_cast<double>(height)) {
        sPrinter->printFormat("GAP 0, 0\r\n");
    } else if (contains(paperType, "LabelGaps")) {
        sendTracking("GAP");
    } else if (contains(paperType, "LabelMark")) {
        sendTracking("BLINE");
    } else {
        kestoLogCommon(kestoLogTrace, "Unknown paper type: %s!", paperType);
    }
}

void setReference() {
    sPrinter->printFormat("REFERENCE 0,0\r\n");
}

void setDirection(const char* origin, int /*mirror*/) {
    sPrinter->printFormat("DIRECTION %d,0\r\n", contains(origin, "Rotation180") ? 1 : 0);
}

void setSpeedAndDensity(const char* speed, int density) {
    if (!contains(speed, "Normal") && std::atof(speed) > 1e-15) {
        sPrinter->printFormat("SPEED %s\r\n", speed);
    }
    if (density >= 0 && density <= 30) {
        sPrinter->printFormat("DENSITY %d\r\n", density);
    }
}

void setRibbon(const char* mediaMethod) {
    if (contains(mediaMethod, "Direct")) {
        sPrinter->printFormat("SET RIBBON OFF\r\n");
    } else if (contains(mediaMethod, "Transfer")) {
        sPrinter->printFormat("SET RIBBON ON\r\n");
    }
}

void setOffset(float offset) {
    sPrinter->printFormat("OFFSET %.1f mm\r\n", static_cast<double>(offset));
}

void setPostAction(const char* postAction) {
    if (contains(postAction, "Normal") || contains(postAction, "None")) {
        sendPostAction("OFF", "OFF", "OFF");
    } else if (contains(postAction, "TearOff")) {
        sendPostAction("ON", "OFF", "OFF");
    } else if (contains(postAction, "PeelOff")) {
        sendPostAction("OFF", "ON", "OFF");
    } else if (contains(postAction, "Cut")) {
        // A partial cut is a full one to these printers.
        sendPostAction("OFF", "OFF", "ON");
    }
}

void setCls() {
    sPrinter->printFormat("CLS\r\n");
}

void setBitmapCmdHead(int x, int y, int widthBytes, int height, int mode) {
    sPrinter->printFormat("BITMAP %d,%d,%d,%d,%d,", x, y, widthBytes, height, mode);
}

void setPrint(int sets, int copies) {
    sPrinter->printFormat("PRINT %d,%d\r\n", sets, copies);
}

// By value: the signature is part of the command set.
void endPage(Settings /*settings*/) {  // NOLINT(performance-unnecessary-value-param)
    sPrinter->printStr("\r\n");
    setPrint(1, 1);
}

void jobSetup(const Settings* settings) {
    setSize(settings->pageWidth, settings->pageHeight);
    setGap(static_cast<float>(settings->GapsHeight), 0.0F, settings->PaperType);
    setReference();
    setDirection(settings->Origin, settings->MirrorImage);
    setSpeedAndDensity(settings->PrintSpeed, settings->Darkness);
    setRibbon(settings->MediaMethod);
    setOffset(0.0F);
    setPostAction(settings->PostAction);
}
