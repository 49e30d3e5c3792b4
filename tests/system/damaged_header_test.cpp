// Page headers with wrong bits and with numbers that nobody means.
#include <cups/raster.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <random>

#include "tests/support/raster_reader.h"
#include "tests/system/fault_job.h"
#include "tests/system/test_job.h"

namespace {

constexpr unsigned width = 16;
constexpr unsigned height = 6;

reference::Page smallPage() {
    return greyPage(width, height);
}

std::string pageWithFlippedBit(const std::string& page, std::size_t bit) {
    std::string flipped = page;
    flipped[bit / 8] =
        static_cast<char>(static_cast<unsigned char>(flipped[bit / 8]) ^ (1U << (bit % 8)));
    return flipped;
}

// Most bits of a header decide nothing about what follows in the stream, so a page can follow
// with the next bit wrong: one process prints the 32 pages of a word. Where one of them ends the
// job or is not what it was, each gets a process.
TEST(DamagedHeader, WithAnySingleBitFlippedIsPrintedOrRefusedAsTheReferenceSays) {
    const std::string stream = rasterStream({smallPage()}, RasterForm::Plain);
    const std::string sync = stream.substr(0, rasterSyncBytes);
    const std::string page = stream.substr(rasterSyncBytes);
    constexpr std::size_t wordBits = 32;
    FaultRuns runs(labelJob({smallPage()}));
    std::size_t alone = 0;
    for (std::size_t word = 0; word < rasterHeaderBytes * 8; word += wordBits) {
        std::string all = sync;
        for (std::size_t bit = word; bit < word + wordBits; ++bit) {
            all += pageWithFlippedBit(page, bit);
        }
        const bool together = pagesIn(all, all.size()).size() == wordBits;
        for (std::size_t bit = word; bit < word + wordBits && !together; ++bit) {
            runs.expectReference(
                std::string(sync).append(pageWithFlippedBit(page, bit)).append(page),
                "bit " + std::to_string(bit));
            ++alone;
        }
        if (together && word / wordBits % faultStride == 0) {
            runs.expectReference(all, "bits from " + std::to_string(word));
        }
    }
    EXPECT_GE(alone, 5 * wordBits);
    EXPECT_LE(alone, 20 * wordBits);
}

constexpr std::size_t meaningfulFields[] = {
    offsetof(cups_page_header2_t, HWResolution[0]),
    offsetof(cups_page_header2_t, HWResolution[1]),
    offsetof(cups_page_header2_t, NumCopies),
    offsetof(cups_page_header2_t, cupsWidth),
    offsetof(cups_page_header2_t, cupsHeight),
    offsetof(cups_page_header2_t, cupsBitsPerColor),
    offsetof(cups_page_header2_t, cupsBitsPerPixel),
    offsetof(cups_page_header2_t, cupsBytesPerLine),
    offsetof(cups_page_header2_t, cupsColorOrder),
    offsetof(cups_page_header2_t, cupsColorSpace),
    offsetof(cups_page_header2_t, cupsCompression),
    offsetof(cups_page_header2_t, cupsRowCount),
    offsetof(cups_page_header2_t, cupsNumColors),
    offsetof(cups_page_header2_t, PageSize[0]),
};

constexpr unsigned likelyNumbers[] = {
    0,     1,         2,          3,          4,          6,          7,
    8,     9,         15,         16,         17,         24,         32,
    96,    203,       255,        256,        32767,      32768,      65535,
    65536, 536870913, 0x7FFFFFFF, 0x80000000, 0x80000001, 0xFFFFFFF8, 0xFFFFFFFF};

template <typename Numbers>
auto anyOf(const Numbers& numbers, std::mt19937& random) {
    return numbers[random() % std::size(numbers)];
}

// A stream of a page whose header is partly or wholly random, pixels for a small page, and a
// good page.
std::string randomStream(std::mt19937& random) {
    std::string stream = rasterStream({smallPage(), smallPage()}, RasterForm::Plain);
    if (random() % 8 == 0) {
        for (std::size_t i = 0; i < rasterHeaderBytes; ++i) {
            stream[rasterSyncBytes + i] = static_cast<char>(random());
        }
        return stream;
    }
    for (unsigned changes = 1 + random() % 4; changes > 0; --changes) {
        const unsigned number =
            random() % 8 == 0 ? static_cast<unsigned>(random()) : anyOf(likelyNumbers, random);
        patchFirstHeader(stream, anyOf(meaningfulFields, random), number);
    }
    return stream;
}

TEST(DamagedHeader, OfRandomNumbersIsPrintedOrRefusedAsTheReferenceSays) {
    constexpr std::size_t headers = 5000;
    std::mt19937 random(20260721);
    FaultRuns runs(labelJob({smallPage()}));
    for (std::size_t i = 0; i < headers; ++i) {
        const std::string stream = randomStream(random);
        if (i % faultStride == 0) {
            runs.expectReference(stream, "header " + std::to_string(i));
        }
    }
}

}  // namespace
