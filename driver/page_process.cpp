#include "driver/kesto_printer.h"
#include "driver/log.h"
#include "enhance/tattoo_dithering.h"

// From the grey page to the finished image, in the order of printing: load, tone, rotate,
// mirror, halftone, invert, frame, copy out. A page for which no image can be had leaves the one of
// the page before in its place. Where memory runs out in a step behind loading, the image stays as
// it was, or is lost and nothing is printed.
std::int64_t KestoPrinter::PageProcess(DitherType type, const unsigned char* src, int stride,
                                       int width, int height, std::span<unsigned char> out) {
    useQMDithering_ = halftoneType_ == DitherType::Tattoo || halftoneType_ == DitherType::Tattoo_X8;
    kestoLogCommon(kestoLogTrace, "PageProcess: QM dithering is %s",
                   useQMDithering_ ? "enabled" : "disabled");
    pageOutcome_ = PageOutcome::Repeated;
    if (!loadPage(src, stride, width, height) || !adjustPage()) {
        return 0;
    }
    if (!useQMDithering_) {
        halftonePage(type);
    } else if (!stencilPage(stride, width, height, out)) {
        return 0;
    }

    kestoLogCommon(kestoLogTrace, "PageProcess: negativePrint_ %d", negativePrint_ ? 1 : 0);
    if (negativePrint_) {
        kestoLogCommon(kestoLogTrace, "PageProcess: Inverting the image for negative print");
        pimage_->Negative();
    }
    if (antiWrinkle_ != 0) {
        EnableAntiWrink(*pimage_);
    }
    copyProcessedPixels(pimage_, out, pimage_->GetWidth(), pimage_->GetHeight(),
                        static_cast<int>(pimage_->GetEffWidth()));
    const auto length = static_cast<int>(static_cast<unsigned>(height) * pimage_->GetEffWidth());
    kestoLogCommon(kestoLogTrace,
                   "PageProcess: Filled the output buffer with processed pixels, length: %d",
                   length);
    return length;
}

bool KestoPrinter::loadPage(const unsigned char* src, int stride, int width, int height) {
    if (!image_.LoadGrey(src, static_cast<unsigned>(width), static_cast<unsigned>(height),
                         static_cast<unsigned>(stride))) {
        kestoLogCommon(kestoLogCritical, "rasterimage.CreateFromArray with grey failed!");
        return false;
    }
    kestoLogCommon(kestoLogTrace,
                   "PageProcess: Successfully created RasterImage from array with stride %d",
                   stride);
    return true;
}

// False, and nothing is left to print, when there was no memory for the turned or mirrored image.
bool KestoPrinter::adjustPage() {
    if (brightness_ != 0 || contrast_ != 0) {
        const int brightness = brightness_ * 5;
        const int contrast = contrast_ * 2;
        image_.Light(brightness, contrast);
        kestoLogCommon(kestoLogTrace, "PageProcess: Adjusted brightness to %d and contrast to %d",
                       brightness, contrast);
    }
    if (rotate180Print_) {
        image_.Rotate180(nullptr);
        kestoLogCommon(kestoLogTrace, "PageProcess: Rotated the image 180 degrees");
    }
    if (mirrorPrint_) {
        image_.Mirror();
        kestoLogCommon(kestoLogTrace, "PageProcess: Mirrored the image");
    }
    if (!image_.IsValid()) {
        kestoLogCommon(kestoLogError, "PageProcess: The image of the page is lost: %s",
                       image_.GetLastError());
        pimage_ = nullptr;
    }
    return image_.IsValid();
}

void KestoPrinter::halftonePage(DitherType type) {
    constexpr std::uint32_t printedDepth = 8;
    pageOutcome_ = PageOutcome::Printed;
    if (!image_.Dither(static_cast<long>(type))) {
        pageOutcome_ = PageOutcome::WithoutHalftone;
        kestoLogCommon(kestoLogError, "PageProcess: The page is printed without a halftone: %s",
                       image_.GetLastError());
    }
    image_.IncreaseBpp(printedDepth);
    pimage_ = &image_;
    kestoLogCommon(kestoLogTrace, "PageProcess: Applied default dithering and increased bit depth");
}

// The result goes straight into its image: where there is no memory for that one, the image of the
// page before stays what it was.
bool KestoPrinter::stencilPage(int stride, int width, int height, std::span<unsigned char> out) {
    copyPixels(image_, out, width, height, stride);
    kestoLogCommon(kestoLogTrace,
                   "PageProcess: Copied pixels to the output buffer for QM dithering, with stride "
                   "%d, EffWidth %d",
                   stride, static_cast<int>(image_.GetEffWidth()));
    if (stride != width) {
        // Rows with gaps are read as if they had none, so a stencil of such a page leans.
        image_.LoadGrey(out.data(), static_cast<unsigned>(width), static_cast<unsigned>(height),
                        static_cast<unsigned>(width));
    }
    const GreyRows page = {image_.GetBits(0), static_cast<std::ptrdiff_t>(image_.GetEffWidth()),
                           width, height};
    const bool created =
        ditheredImage_.ReplaceByGrey(static_cast<unsigned>(width), static_cast<unsigned>(height));
    if (created) {
        makeStencil(
            page,
            halftoneType_ == DitherType::Tattoo_X8 ? StencilType::TattooX8 : StencilType::Tattoo,
            ditheredImage_.GetBits(0), ditheredImage_.GetEffWidth());
    }
    kestoLogCommon(kestoLogTrace, "PageProcess: Applied QM dithering with stride %d, width %d",
                   (width + 3) / 4 * 4, width);
    if (!created) {
        kestoLogCommon(kestoLogError,
                       "PageProcess: Failed to create a new RasterImage from QM dithered data");
        return false;
    }
    kestoLogCommon(kestoLogTrace,
                   "PageProcess: Successfully created a new RasterImage from QM dithered data");
    pimage_ = &ditheredImage_;
    pageOutcome_ = PageOutcome::Printed;
    return true;
}
