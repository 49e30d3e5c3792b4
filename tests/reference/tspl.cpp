#include "tests/reference/tspl.h"

#include <cstdlib>

namespace reference {

namespace {

bool contains(const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
}

bool isNoGap(float height) {
    return 0.000001 >= static_cast<double>(height);
}

/// The data byte of columns 8 × group to 8 × group + 7 of one printed row. A pixel 0 sets
/// its bit, and so does a column past the width.
char packedByte(const GreyImage& image, std::size_t row, std::size_t group) {
    unsigned byte = 0;
    for (std::size_t bit = 0; bit < 8; ++bit) {
        const std::size_t column = group * 8 + bit;
        if (column >= image.width || image.bytes[row * image.width + column] == 0) {
            byte |= 0x80U >> bit;
        }
    }
    return static_cast<char>(byte);
}

std::string packedRows(const GreyImage& image) {
    const std::size_t widthBytes = (image.width + 7) / 8;
    std::string data;
    for (std::size_t row = 0; row < image.height; ++row) {
        for (std::size_t group = 0; group < widthBytes; ++group) {
            data += packedByte(image, row, group);
        }
    }
    return data;
}

std::string modes(const char* tear, const char* peel, const char* cutter) {
    return formatted("SET TEAR %s\r\nSET PEEL %s\r\nSET CUTTER %s\r\n", tear, peel, cutter);
}

}  // namespace

std::string preamble() {
    return std::string(64, '\n');
}

Settings withPageSize(const Settings& settings, const PageHeader& header) {
    Settings sized = settings;
    sized.pageWidth = static_cast<float>(header.width * 25.4 / header.xDpi);
    sized.pageHeight = static_cast<float>(header.height * 25.4 / header.yDpi);
    return sized;
}

std::string sizeCommand(float width, float height) {
    return formatted("SIZE %.1f mm, %.1f mm\r\n", static_cast<double>(width),
                     static_cast<double>(height));
}

std::string gapCommand(float height, const std::string& paperType) {
    if (contains(paperType, "Normal")) {
        return "";
    }
    if (contains(paperType, "Continue") || isNoGap(height)) {
        return "GAP 0, 0\r\n";
    }
    if (contains(paperType, "LabelGaps")) {
        return formatted("GAP %.1f mm, 0.0 mm\r\n", static_cast<double>(height));
    }
    if (contains(paperType, "LabelMark")) {
        return formatted("BLINE %.1f mm, 0.0 mm\r\n", static_cast<double>(height));
    }
    return "";
}

Lines gapLog(float height, const std::string& paperType) {
    if (contains(paperType, "Normal")) {
        return {debugLine("Skip the GAP cmd by Normal paper type")};
    }
    if (gapCommand(height, paperType).empty()) {
        return {debugLine("Unknown paper type: " + paperType + "!")};
    }
    return {};
}

std::string directionCommand(const std::string& origin) {
    return contains(origin, "Rotation180") ? "DIRECTION 1,0\r\n" : "DIRECTION 0,0\r\n";
}

std::string speedCommand(const std::string& speed) {
    if (contains(speed, "Normal") || !(std::atof(speed.c_str()) > 1e-15)) {
        return "";
    }
    return "SPEED " + speed + "\r\n";
}

std::string densityCommand(int darkness) {
    if (darkness < 0 || darkness > 30) {
        return "";
    }
    return formatted("DENSITY %d\r\n", darkness);
}

std::string ribbonCommand(const std::string& mediaMethod) {
    if (contains(mediaMethod, "Direct")) {
        return "SET RIBBON OFF\r\n";
    }
    return contains(mediaMethod, "Transfer") ? "SET RIBBON ON\r\n" : "";
}

std::string postActionCommands(const std::string& postAction) {
    if (contains(postAction, "Normal") || contains(postAction, "None")) {
        return modes("OFF", "OFF", "OFF");
    }
    if (contains(postAction, "TearOff")) {
        return modes("ON", "OFF", "OFF");
    }
    if (contains(postAction, "PeelOff")) {
        return modes("OFF", "ON", "OFF");
    }
    // A partial cut holds this word as well.
    if (contains(postAction, "Cut")) {
        return modes("OFF", "OFF", "ON");
    }
    return "";
}

std::string setUpBlock(const Settings& settings) {
    return sizeCommand(settings.pageWidth, settings.pageHeight) +
           gapCommand(static_cast<float>(settings.gapsHeight), settings.paperType) +
           "REFERENCE 0,0\r\n" + directionCommand(settings.origin) +
           speedCommand(settings.printSpeed) + densityCommand(settings.darkness) +
           ribbonCommand(settings.mediaMethod) + "OFFSET 0.0 mm\r\n" +
           postActionCommands(settings.postAction);
}

Lines setUpLog(const Settings& settings) {
    return gapLog(static_cast<float>(settings.gapsHeight), settings.paperType);
}

std::string clearCommand() {
    return "CLS\r\n";
}

std::string bitmapCommand(const GreyImage& image) {
    const auto widthBytes = static_cast<int>((image.width + 7) / 8);
    return formatted("BITMAP 0,0,%d,%d,0,", widthBytes, static_cast<int>(image.height)) +
           packedRows(image) + "\r\n";
}

std::string printCommand(std::uint32_t copies) {
    return formatted("PRINT 1,%d\r\n", static_cast<int>(copies));
}

std::string tsplPage(const Settings& settings, const PageHeader& header, const GreyImage& image) {
    return setUpBlock(withPageSize(settings, header)) + clearCommand() + bitmapCommand(image) +
           printCommand(header.copies);
}

}  // namespace reference
