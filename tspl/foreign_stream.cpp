#include "tspl/foreign_stream.h"

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
    {"CT~~CD,", "ZPL"},
    {"${^", "ZPL"},
    {"%PDF-", "PDF"},
    {"%!", "PostScript"},
    {"\xFF\xFE"sv, "UTF-16"},
    {"\xFE\xFF"sv, "UTF-16"},
    {"S\0I\0Z\0E"sv, "UTF-16"},
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

}  // namespace

std::string_view foreignFormat(std::string_view firstLine) {
    for (const auto& [beginning, name] : sBeginnings) {
        if (firstLine.starts_with(beginning)) {
            return name;
        }
    }
    // What clears the buffer there, alone on its line.
    return trimmed(firstLine) == "N" ? "EPL" : "";
}

}  // namespace tspl
