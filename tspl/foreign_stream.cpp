#include "tspl/foreign_stream.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "tspl/text.h"

namespace tspl {
namespace {

using namespace std::string_view_literals;

constexpr std::pair<std::string_view, std::string_view> sBeginnings[] = {
    {"^XA", "ZPL"},
    {"^xa", "ZPL"},
    {"~CC", "ZPL"},
    {"~CT", "ZPL"},
    {"~DG", "ZPL"},
    {"~SD", "ZPL"},
    {"^FX", "ZPL"},
    {"\x10"
     "CT~~CD,",
     "ZPL"},
    {"CT~~CD,", "ZPL"},
    {"${^", "ZPL"},
    {"%PDF-", "PDF"},
    {"%!", "PostScript"},
    {"\xFF\xFE"sv, "UTF-16"},
    {"\xFE\xFF"sv, "UTF-16"},
    {"\x1b@"sv, "ESC/POS"},
    {"\x1b"
     "E",
     "PCL"},
    {"\x1b%-12345X"sv, "PJL"},
    {"\x89PNG"sv, "a PNG picture"},
    {"\xFF\xD8\xFF"sv, "a JPEG picture"},
    {"GIF8", "a GIF picture"},
    {"PK\x03\x04"sv, "a ZIP archive"},
    {"\x1f\x8b"sv, "gzip data"},
    {"! 0 ", "CPCL"},
    {"! U1", "CPCL"},
    {"\x02L"sv, "DPL"},
    {"\x02n"sv, "DPL"},
    {"RaS2", "CUPS raster"},
    {"2SaR", "CUPS raster"},
    {"RaS3", "CUPS raster"},
    {"3SaR", "CUPS raster"},
    {"<?xml", "XML"},
    {"<html", "HTML"},
    {"<!DOCTYPE", "HTML"},
    {"\x7f"
     "ELF",
     "a program"},
};

// Letters, each in front of or behind a byte of 0.
bool isWideText(std::string_view text) {
    const auto isLetter = [](char c) { return c >= 'A' && c <= 'z'; };
    return text.size() >= 4 &&
           ((isLetter(text[0]) && text[1] == '\0' && isLetter(text[2]) && text[3] == '\0') ||
            (text[0] == '\0' && isLetter(text[1]) && text[2] == '\0' && isLetter(text[3])));
}

// What streams of EPL begin with: a letter or two alone on a line, or a letter in front of a number
// or two. No command of TSPL is like them.
bool isSettingOfEpl(std::string_view line) {
    constexpr std::string_view alone[] = {"N", "O", "ZT", "ZB", "rN", "rY", "JF", "JB"};
    constexpr std::string_view beforeNumbers = "QqSDR";
    constexpr std::string_view numbers = "0123456789,";
    const std::string_view text = trimmed(line);
    return std::find(std::begin(alone), std::end(alone), text) != std::end(alone) ||
           text.starts_with("I8,") ||
           (text.size() > 1 && beforeNumbers.find(text[0]) != std::string_view::npos &&
            text.find_first_not_of(numbers, 1) == std::string_view::npos);
}

}  // namespace

std::string_view foreignFormat(std::string_view firstLine) {
    const std::string_view format = foreignBeginning(firstLine);
    return format.empty() && isSettingOfEpl(firstLine) ? "EPL" : format;
}

std::string_view foreignBeginning(std::string_view line) {
    if (isWideText(line)) {
        return "UTF-16";
    }
    for (const auto& [beginning, name] : sBeginnings) {
        if (line.starts_with(beginning)) {
            return name;
        }
    }
    return "";
}

}  // namespace tspl
