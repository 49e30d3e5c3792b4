// What the tests of the driver share, and those of the filter with them.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "driver/kesto_printer.h"
#include "tests/reference/grey_image.h"
#include "tests/reference/page_process.h"
#include "tests/reference/text.h"
#include "tests/support/ppd_opening.h"
#include "tests/support/temporary_folder.h"

/// What `action` writes to standard error.
template <typename Action>
std::string errorOutputOf(Action action) {
    testing::internal::CaptureStderr();
    action();
    return testing::internal::GetCapturedStderr();
}

/// What `action` writes to standard output.
template <typename Action>
std::string outputOf(Action action) {
    testing::internal::CaptureStdout();
    action();
    return testing::internal::GetCapturedStdout();
}

/// A nameless file that a printer can write to.
class ScratchStream {
public:
    ScratchStream() : file_(std::tmpfile()) {
        if (file_ == nullptr) {
            throw std::runtime_error("no temporary file");
        }
    }
    ~ScratchStream() { std::fclose(file_); }
    ScratchStream(const ScratchStream&) = delete;
    ScratchStream& operator=(const ScratchStream&) = delete;

    std::FILE* get() const { return file_; }
    /// Everything written so far.
    std::string text() const {
        std::string text(static_cast<std::size_t>(std::ftell(file_)), '\0');
        std::rewind(file_);
        text.resize(std::fread(text.data(), 1, text.size(), file_));
        std::fseek(file_, 0, SEEK_END);
        return text;
    }

private:
    std::FILE* file_;
};

/// An environment variable that has its old value back at the end of a test.
class EnvironmentVariable {
public:
    /// A null value takes the variable away.
    EnvironmentVariable(const char* name, const char* value) : name_(name) {
        if (const char* old = std::getenv(name)) {
            old_ = old;
        }
        set(value);
    }
    ~EnvironmentVariable() { set(old_ ? old_->c_str() : nullptr); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    void set(const char* value) const {
        if (value != nullptr) {
            setenv(name_, value, 1);
        } else {
            unsetenv(name_);
        }
        tzset();
    }

    const char* name_;
    std::optional<std::string> old_;
};

/// The TZ value under which the local time is now 09:05:02 on a day of the present.
inline std::string timeZoneOfFiveMinutesPastNine() {
    constexpr int day = 24 * 3600;
    const int now = static_cast<int>(std::time(nullptr) % day);
    int west = now - (9 * 3600 + 5 * 60 + 2);
    if (west > day / 2) {
        west -= day;
    }
    const int size = std::abs(west);
    return reference::formatted("TST%c%02d:%02d:%02d", west < 0 ? '-' : '+', size / 3600,
                                size / 60 % 60, size % 60);
}

/// The seconds from its making until now, as local times.
class TimeWindow {
public:
    std::vector<std::tm> times() const {
        std::vector<std::tm> times;
        for (std::time_t time = start_; time <= std::time(nullptr); ++time) {
            times.push_back(*std::localtime(&time));
        }
        return times;
    }

private:
    std::time_t start_ = std::time(nullptr);
};

/// The part of a dump's name that holds its time: numbers without leading zeros.
inline std::string dumpTime(const std::tm& time) {
    using std::to_string;
    return to_string(time.tm_year + 1900) + "-" + to_string(time.tm_mon + 1) + "-" +
           to_string(time.tm_mday) + "_" + to_string(time.tm_hour) + "_" + to_string(time.tm_min) +
           "_" + to_string(time.tm_sec);
}

/// The dumps that printing leaves in the spooler's folder; removes them at the end of a test.
class SpoolDumps {
public:
    SpoolDumps() = default;
    ~SpoolDumps() {
        for (std::uint64_t index = firstIndex_; index < page_index; ++index) {
            take("origin", index);
            take("dithered", index);
        }
    }
    SpoolDumps(const SpoolDumps&) = delete;
    SpoolDumps& operator=(const SpoolDumps&) = delete;

    /// Content of a dump of a kind, "origin" or "dithered"; nothing when there is none.
    std::optional<reference::Bytes> take(const std::string& kind, std::uint64_t index) const {
        for (const std::tm& time : window_.times()) {
            const std::string path =
                folder() + kind + "_" + dumpTime(time) + "_" + std::to_string(index) + ".bmp";
            if (std::filesystem::exists(path)) {
                const reference::Bytes content = readBytes(path);
                std::filesystem::remove(path);
                return content;
            }
        }
        return std::nullopt;
    }

    /// Running number of the first dump since the making of this object.
    std::uint64_t firstIndex() const { return firstIndex_; }

    /// Whether this process can write dumps at all.
    static bool folderIsWritable() {
        const std::string probe = folder() + "kesto-probe";
        const bool writable = std::ofstream(probe).is_open();
        std::error_code ignored;
        std::filesystem::remove(probe, ignored);
        return writable;
    }

private:
    static std::string folder() { return "/var/spool/cups/tmp/"; }

    // Dumps of other processes at the same time must not bear the same names.
    static std::uint64_t numbersOfThisProcess() {
        constexpr std::uint64_t share = 1000000;
        page_index = std::max(page_index, static_cast<std::uint64_t>(getpid()) * share);
        return page_index;
    }

    std::uint64_t firstIndex_ = numbersOfThisProcess();
    TimeWindow window_;
};

/// A printer that keeps the pages it is to print, with its fields open to the tests.
class TestPrinter : public KestoPrinter {
public:
    struct PrintedPage {
        reference::Bytes bits;
        std::size_t bytesPerLine;
        std::size_t height;
        std::size_t width;

        bool operator==(const PrintedPage&) const = default;
    };

    using KestoPrinter::ditheredImage_;
    using KestoPrinter::image_;
    using KestoPrinter::imagePath_;
    using KestoPrinter::pimage_;
    using KestoPrinter::resolution_;

    void setImagePath(const std::string& path) {
        std::snprintf(imagePath_, sizeof imagePath_, "%s", path.c_str());
    }

    std::vector<PrintedPage> pages;

protected:
    void doPrintImage(const unsigned char* bits, std::size_t bytesPerLine, std::size_t height,
                      std::size_t width) override {
        pages.push_back({{bits, bits + bytesPerLine * height}, bytesPerLine, height, width});
    }
};

/// The rows of an image, padding included.
inline reference::Bytes bytesOf(const RasterImage& image) {
    const std::uint8_t* bits = image.GetBits(0);
    return {bits,
            bits + std::size_t{image.GetEffWidth()} * static_cast<std::size_t>(image.GetHeight())};
}

/// A page header that names a page size.
inline cups_page_header2_t headerNamed(const std::string& pageSizeName) {
    cups_page_header2_t header = {};
    std::snprintf(header.cupsPageSizeName, sizeof header.cupsPageSizeName, "%s",
                  pageSizeName.c_str());
    return header;
}

/// Grey levels without a pattern, the same ones in every run.
inline reference::Bytes noise(std::size_t size, std::uint32_t seed = 1) {
    reference::Bytes levels(size);
    for (std::uint8_t& level : levels) {
        seed = seed * 1664525 + 1013904223;
        level = static_cast<std::uint8_t>(seed >> 24);
    }
    return levels;
}

/// A page of the reference: `bytesPerLine` × `height` bytes of noise.
inline reference::Page noisyPage(std::uint32_t width, std::uint32_t height,
                                 std::uint32_t bytesPerLine, std::uint32_t seed = 1) {
    reference::Page page;
    page.header.width = width;
    page.header.height = height;
    page.header.bytesPerLine = bytesPerLine;
    page.rows = noise(std::size_t{bytesPerLine} * height, seed);
    return page;
}

inline void setProperties(KestoPrinter& printer, const reference::PageProperties& properties) {
    printer.setBrightness(properties.brightness);
    printer.setContrast(properties.contrast);
    printer.setHalftoneType(static_cast<DitherType>(properties.halftoneType));
    printer.setMirrorPrint(properties.mirror);
    printer.setNegativePrint(properties.negative);
    printer.setRotate180Print(properties.rotate180);
    printer.setAntiWrinkle(properties.antiWrinkle);
    printer.setRemoveBlankEdges(static_cast<unsigned char>(properties.removeBlankEdges));
    printer.setSkipRightPixels(properties.skipRightPixels);
}
