#include "tests/reference/job_log.h"

#include "tests/reference/tspl.h"

namespace reference {

namespace {

void trace(Lines& log, const std::string& message) {
    log.push_back(debugLine(message));
}

void traceChoice(Lines& log, const char* field, const std::string& value) {
    trace(log, formatted("settings->%s:%s", field, value.c_str()));
}

void traceNumber(Lines& log, const char* field, int value) {
    trace(log, formatted("settings->%s:%d", field, value));
}

void traceLength(Lines& log, const char* field, float value) {
    trace(log, formatted("settings->%s:%f", field, static_cast<double>(value)));
}

void traceHeader(Lines& log, const char* field, std::uint32_t value) {
    trace(log, formatted("header.%s:%d", field, static_cast<int>(value)));
}

Lines ppdSizeLog(const Settings& settings, const PpdSize& size) {
    Lines log;
    trace(log, "PageSizeName: " + settings.pageSize);
    if (!size.found) {
        return log;
    }
    trace(log, formatted("Custom Size: (%f,%f,%f,%f,%f,%f)", static_cast<double>(size.width),
                         static_cast<double>(size.length), static_cast<double>(size.left),
                         static_cast<double>(size.bottom), static_cast<double>(size.right),
                         static_cast<double>(size.top)));
    trace(log, formatted("Set page size: width %f mm, height %f mm",
                         static_cast<double>(settings.pageWidth),
                         static_cast<double>(settings.pageHeight)));
    return log;
}

Lines headerLog(const PageHeader& header) {
    Lines log;
    // This one line brings its own line end.
    trace(log, formatted("header.HWResolution[0]:%d\n", static_cast<int>(header.xDpi)));
    traceHeader(log, "HWResolution[1]", header.yDpi);
    traceHeader(log, "cupsWidth", header.width);
    traceHeader(log, "cupsHeight", header.height);
    traceHeader(log, "cupsMediaType", header.mediaType);
    traceHeader(log, "cupsBitsPerColor", header.bitsPerColor);
    traceHeader(log, "cupsBitsPerPixel", header.bitsPerPixel);
    traceHeader(log, "cupsBytesPerLine", header.bytesPerLine);
    traceHeader(log, "cupsColorOrder", header.colorOrder);
    traceHeader(log, "cupsColorSpace", header.colorSpace);
    traceHeader(log, "cupsCompression", header.compression);
    traceHeader(log, "cupsRowCount", header.rowCount);
    traceHeader(log, "cupsRowFeed", header.rowFeed);
    traceHeader(log, "cupsRowStep", header.rowStep);
    return log;
}

}  // namespace

Settings withPpdSize(const Settings& settings, const PpdSize& size) {
    Settings sized = settings;
    sized.pageWidth = 0;
    sized.pageHeight = 0;
    if (size.found) {
        sized.pageWidth = static_cast<float>(static_cast<double>(size.width) * 0.3528);
        sized.pageHeight = static_cast<float>(static_cast<double>(size.length) * 0.3528);
    }
    return sized;
}

Lines settingsLog(const Settings& settings, const PpdSize& size) {
    Lines log = ppdSizeLog(settings, size);
    traceChoice(log, "Resolution", settings.resolution);
    traceChoice(log, "MediaMethod", settings.mediaMethod);
    traceChoice(log, "PaperType", settings.paperType);
    traceNumber(log, "GapsHeight", settings.gapsHeight);
    traceChoice(log, "PostAction", settings.postAction);
    traceChoice(log, "Occurrence", settings.occurrence);
    traceChoice(log, "Origin", settings.origin);
    traceNumber(log, "MirrorImage", settings.mirrorImage);
    traceNumber(log, "NegativeImage", settings.negativeImage);
    traceChoice(log, "PrintSpeed", settings.printSpeed);
    traceNumber(log, "Darkness", settings.darkness);
    traceNumber(log, "halftoneType", settings.halftoneType);
    traceNumber(log, "DirectBuffer", settings.directBuffer);
    traceNumber(log, "StoredGraphics", settings.storedGraphics);
    traceNumber(log, "OptionDisplayUnit", settings.optionDisplayUnit);
    traceChoice(log, "PageSize", settings.pageSize);
    traceLength(log, "pageWidth", settings.pageWidth);
    traceLength(log, "pageHeight", settings.pageHeight);
    return log;
}

std::string recordingLine(const std::string& name) {
    return debugLine("Filter data output to: " + name);
}

std::string paperSizeLine(const Settings& settings) {
    return formatted("ERROR: Paper size must not less than 1.0 : (%f, %f)",
                     static_cast<double>(settings.pageWidth),
                     static_cast<double>(settings.pageHeight));
}

std::string depthLine(const PageHeader& header) {
    return errorLine(formatted("Unsupported bits per pixel : %d ! Requires 8 bits per pixel!",
                               static_cast<int>(header.bitsPerPixel)));
}

Lines pageStartLog(const Settings& settings, const PageHeader& header, int number) {
    Lines log;
    trace(log, formatted("pageWidth: %f,pageHeight: %f", static_cast<double>(settings.pageWidth),
                         static_cast<double>(settings.pageHeight)));
    append(log, setUpLog(settings));
    // This line brings its own line end.
    trace(log, formatted("PAGE: %d %d\n", number, static_cast<int>(header.copies)));
    append(log, headerLog(header));
    return log;
}

std::string usageText(const std::string& program) {
    return program + " v3.13.32\n\nUsage:\n\n    " + program +
           " job_id user title copyies options [file]\n\n";
}

std::string rasterFileErrorText() {
    return "ERROR: Unable to open raster file - ";
}

}  // namespace reference
