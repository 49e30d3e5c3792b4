#include "driver/kesto_printer.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

constexpr std::string_view noticeText = "Kesto TSPL. Copyright 2026 the kesto-tspl authors.";

// "MFT:" and the notice's bytes as two-digit hexadecimal numbers with single blanks between.
constexpr auto makeNotice() {
    constexpr std::string_view prefix = "MFT:";
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::array<char, prefix.size() + noticeText.size() * 3> notice{};
    auto* out = std::copy(prefix.begin(), prefix.end(), notice.begin());
    for (const char c : noticeText) {
        const auto byte = static_cast<unsigned char>(c);
        *out++ = digits[byte / 16];
        *out++ = digits[byte % 16];
        *out++ = ' ';
    }
    notice.back() = '\0';
    return notice;
}

constexpr auto notice = makeNotice();
const char* const sMakersNotice = notice.data();

int clampToPercent(int value) {
    return std::clamp(value, -100, 100);
}

}  // namespace

KestoPrinter::KestoPrinter() {
    outputStreams_.push_back(stdout);
    setDumpTemplate("/var/spool/cups/tmp/prnimg_%d-%d-%d_%d_%d_%d_%ld.bmp");
}

void KestoPrinter::setDumpTemplate(const char* pathTemplate) {
    std::snprintf(imagePath_, sizeof imagePath_, "%s", pathTemplate);
}

void KestoPrinter::setBrightness(int brightness) {
    brightness_ = clampToPercent(brightness);
}

void KestoPrinter::setContrast(int contrast) {
    contrast_ = clampToPercent(contrast);
}

void KestoPrinter::setPrintSpeed(const char* speed) {
    printSpeed_ = std::clamp(std::atoi(speed), 1, 15);
}

void KestoPrinter::setPrintDensity(int density) {
    printDensity_ = std::clamp(density, 0, 15);
}

const char* KestoPrinter::getCopyRight() const {
    return sMakersNotice;
}
