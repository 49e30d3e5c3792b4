#pragma once

#include <cups/raster.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <list>
#include <span>

#include "driver/halftone_type.h"
#include "driver/own_file.h"
#include "image/malloc_buffer.h"
#include "image/raster_image.h"

/// A printer: takes grey pages through tone, geometry and halftoning to a finished image, and
/// writes command bytes to its output streams. A derived class knows one command language and
/// supplies `doPrintImage`.
///
/// Properties are set per page. Setters clamp where a range is given and store anything else
/// as it comes.
class KestoPrinter {
public:
    /// Whatever the owner wants to keep with the printer; never looked into.
    struct UserData;
    /// What became of a page that was to be printed. Where no image can be made of it, the image of
    /// the page before is printed again, if there is one.
    enum class PageOutcome { Printed, WithoutHalftone, Repeated, LeftOut };

    KestoPrinter();
    /// Leaves every stream open: streams belong to the owner.
    virtual ~KestoPrinter() = default;
    KestoPrinter(const KestoPrinter&) = delete;
    KestoPrinter& operator=(const KestoPrinter&) = delete;

    // Properties (kesto_printer.cpp)

    void SetPrintWidth(std::int64_t width) { printWidth_ = width; }
    std::int64_t GetPrintWidth() const { return printWidth_; }
    /// Header of the page being printed; not owned, null before the first page.
    void setPageHeader(cups_page_header2_t* header) { pageHdr_ = header; }
    cups_page_header2_t* getPageHeader() const { return pageHdr_; }
    /// Thickness of the frame's side bars in mm; 0 for no frame.
    void setAntiWrinkle(int level) { antiWrinkle_ = level; }
    int getAntiWrinkle() const { return antiWrinkle_; }
    /// Worked out anew from the halftone type for every page.
    void setUseQMDithering(bool use) { useQMDithering_ = use; }
    bool getUseQMDithering() const { return useQMDithering_; }
    void setMaxMediaWidth(int width) { maxMediaWidth_ = width; }
    int getMaxMediaWidth() const { return maxMediaWidth_; }
    void setVBarcodeOpt(int option) { vBarcodeOpt_ = option; }
    int getVBarcodeOpt() const { return vBarcodeOpt_; }
    /// -100 (every level down) to 100.
    void setBrightness(int brightness);
    int getBrightness() const { return brightness_; }
    /// -100 to 100.
    void setContrast(int contrast);
    int getContrast() const { return contrast_; }
    /// A decimal number, 1 to 15.
    void setPrintSpeed(const char* speed);
    int getPrintSpeed() const { return printSpeed_; }
    /// 0 to 15.
    void setPrintDensity(int density);
    int getPrintDensity() const { return printDensity_; }
    void setHalftoneType(DitherType type) { halftoneType_ = type; }
    DitherType getHalftoneType() const { return halftoneType_; }
    void setNegativePrint(bool on) { negativePrint_ = on; }
    bool isNegativePrint() const { return negativePrint_; }
    void setRotate180Print(bool on) { rotate180Print_ = on; }
    bool isRotate180Print() const { return rotate180Print_; }
    void setMirrorPrint(bool on) { mirrorPrint_ = on; }
    bool isMirrorPrint() const { return mirrorPrint_; }
    /// Edges whose blank rows are counted and logged: 2 top, 8 bottom, 10 both.
    void setRemoveBlankEdges(unsigned char edges) { removeBlankEdges_ = edges; }
    unsigned char getRemoveBlankEdges() const { return removeBlankEdges_; }
    /// Columns at the right edge that blank-row counting and `GrayToMono` leave out.
    void setSkipRightPixels(std::size_t pixels) { skipRightPixels_ = pixels; }
    std::size_t getSkipRightPixels() const { return skipRightPixels_; }
    void setUserData(UserData* data) { userData_ = data; }
    UserData* getUserData() const { return userData_; }
    /// The maker's notice: "MFT:" and the bytes of its text in hexadecimal.
    const char* getCopyRight() const;

    // Output (output_streams.cpp): the same bytes to every stream, in list order. Write errors
    // are neither detected nor reported here.

    /// The streams: standard output, then what the owner appends.
    std::list<std::FILE*>* getOutputStreams() { return &outputStreams_; }
    bool printBytes(const unsigned char* buf, std::size_t size);
    bool printStr(const char* s);
    // Here, as every byte of the dots comes this way. With no threads there is nothing to lock a
    // stream against.
    bool printByte(unsigned char c) {
        for (std::FILE* stream : outputStreams_) {
            putc_unlocked(c, stream);
        }
        return false;
    }
    /// Returns what the last stream's `vfprintf` did: characters written, or negative.
    int printFormat(const char* format, ...) __attribute__((format(printf, 2, 3)));

    // Pages

    /// Prints one page of `height` rows of `width` grey bytes, `bytesPerLine` bytes apart, and
    /// dumps its raw and its finished image (print_image.cpp). What cannot be done is logged, and
    /// `getPageOutcome` tells what became of the page.
    void printImage(const unsigned char* data, std::size_t bytesPerLine, std::size_t height,
                    std::size_t width);
    PageOutcome getPageOutcome() const { return pageOutcome_; }

    /// Turns a grey page into the finished image that printing uses, one byte per pixel, and
    /// copies its pixels into `out` as far as they fit (page_process.cpp). `out` holds at least
    /// `stride` × `height` bytes, and `stride` is at least `width`. Returns `height` × the
    /// finished row width in bytes, 0 on failure.
    std::int64_t PageProcess(DitherType type, const unsigned char* src, int stride, int width,
                             int height, std::span<unsigned char> out);

    // Pixel copies (pixel_copy.cpp): row y of the target starts at y × `stride`; pixels beyond
    // the end of `out` are dropped

    void copyPixels(const RasterImage& image, std::span<unsigned char> out, int width, int height,
                    int stride) const;
    /// As `copyPixels`, with index 1 as 255, and every value inverted for negative printing.
    void copyProcessedPixels(const RasterImage* image, std::span<unsigned char> out, int width,
                             int height, int stride) const;
    /// Packs `h` rows of `bpl` grey bytes in place to one bit per pixel, 1 for a non-zero byte,
    /// first pixel in the highest bit, rows in whole bytes. Returns the packed size in bytes.
    int GrayToMono(int bpl, int h, unsigned char* buf) const;

    /// Draws the anti-wrinkle frame of the page's named size into a finished 8-bit image,
    /// enlarging it where the frame is larger (anti_wrinkle.cpp).
    void EnableAntiWrink(RasterImage& image) const;

    /// Writes an image of `height` rows of one byte per pixel to a BMP file named after the
    /// local time and a running number (bmp_dump.cpp). `bitCount` 8 keeps grey levels; with 1 a
    /// zero byte is white and any other black. Where a file cannot be made, or would leave less
    /// than 64 MiB of its file system free, a line on standard error says so.
    void saveImage(const unsigned char* data, std::size_t bytesPerLine, std::size_t height,
                   std::size_t width, unsigned short bitCount);

protected:
    /// Sends a finished page: `height` rows, `bytesPerLine` bytes apart, of `width` palette
    /// indices, 0 apart from all others.
    virtual void doPrintImage(const unsigned char* bits, std::size_t bytesPerLine,
                              std::size_t height, std::size_t width) = 0;

    RasterImage image_;
    RasterImage ditheredImage_;
    RasterImage* pimage_ = nullptr;  ///< the finished page: one of the two above, or null
    char imagePath_[1024];           ///< printf template of the next dump's path
    std::list<std::FILE*> outputStreams_;
    cups_page_header2_t* pageHdr_ = nullptr;
    std::int32_t maxMediaWidth_ = 0;
    std::int64_t printWidth_ = 0;
    std::int32_t brightness_ = 0;
    std::int32_t vBarcodeOpt_ = 0;
    std::int32_t contrast_ = 0;
    std::int32_t printSpeed_ = 7;
    std::int32_t printDensity_ = 8;
    DitherType halftoneType_ = DitherType::None;
    bool negativePrint_ = false;
    bool mirrorPrint_ = false;
    bool rotate180Print_ = false;
    std::int32_t antiWrinkle_ = 0;
    bool useQMDithering_ = false;
    std::uint8_t removeBlankEdges_ = 0;
    std::uint64_t skipRightPixels_ = 0;
    UserData* userData_ = nullptr;
    std::int32_t resolution_ = 300;  ///< dots per inch; nothing changes it
    PageOutcome pageOutcome_ = PageOutcome::LeftOut;
    bool spaceIsShort_ = false;

private:
    struct BlankEdges {
        std::size_t top = 0;
        std::size_t bottom = 0;
    };

    /// Rows of one byte per pixel, `bytesPerLine` bytes apart; none when `data` is null.
    struct PixelRows {
        const unsigned char* data = nullptr;
        std::size_t bytesPerLine = 0;
        std::size_t height = 0;
        std::size_t width = 0;
    };

    OwnedFile openDump(std::span<char> path, std::uint64_t size);
    void setDumpTemplate(const char* pathTemplate);
    BlankEdges countBlankEdges(const unsigned char* data, std::size_t bytesPerLine,
                               std::size_t height, std::size_t width) const;
    void logProcessedPage(const unsigned char* processed, std::size_t bytesPerLine,
                          std::size_t height, std::size_t width, BlankEdges edges) const;
    void dumpImage(const char* pathTemplate, const char* kind, const PixelRows& rows);
    PixelRows finishedRows() const;
    void printFinishedImage();
    bool loadPage(const unsigned char* src, int stride, int width, int height);
    bool adjustPage();
    void halftonePage(DitherType type);
    bool stencilPage(int stride, int width, int height, std::span<unsigned char> out);
};

/// Running number of the BMP dumps of this process.
extern std::uint64_t page_index;
