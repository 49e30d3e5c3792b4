#include "driver/kesto_printer.h"
#include "driver/log.h"
#include "enhance/tattoo_dithering.h"

namespace {

// Loaded into a new image first: when that fails, the target stays what it was.
bool loadGrey(RasterImage& target, const unsigned char* pixels, int width, int height, int stride) {
    RasterImage loaded;
    return loaded.CreateFromArray(pixels, static_cast<unsigned>(width),
                                  static_cast<unsigned>(height), 8, static_cast<unsigned>(stride),
                                  false) &&
           target.Transfer(loaded);
}

}  // namespace

// From the grey page to the finished image, in the order of printing: load, tone, rotate,
// mirror, halftone, invert, frame, copy out. The results of the steps behind loading are not
// looked at: where memory runs out, the image stays as it was or is left empty, and an empty one
// is not printed.
std::int64_t KestoPrinter::PageProcess(DitherType type, const unsigned char* src, int stride,
                                       int width, int height, std::span<unsigned char> out) {
    useQMDithering_ = halftoneType_ == DitherType::Tattoo || halftoneType_ == DitherType::Tattoo_X8;
    kestoLogCommon(kestoLogTrace, "PageProcess: QM dithering is %s",
                   useQMDithering_ ? "enabled" : "disabled");
    if (!loadPage(src, stride, width, height)) {
        return 0;
    }
    adjustPage();
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
    if (!loadGrey(image_, src, width, height, stride)) {
        kestoLogCommon(kestoLogCritical, "rasterimage.CreateFromArray with grey failed!");
        return false;
    }
    kestoLogCommon(kestoLogTrace,
                   "PageProcess: Successfully created RasterImage from array with stride %d",
                   stride);
    return true;
}

void KestoPrinter::adjustPage() {
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
}

void KestoPrinter::halftonePage(DitherType type) {
    constexpr std::uint32_t printedDepth = 8;
    image_.Dither(static_cast<long>(type));
    image_.IncreaseBpp(printedDepth);
    pimage_ = &image_;
    kestoLogCommon(kestoLogTrace, "PageProcess: Applied default dithering and increased bit depth");
}

// The output buffer serves as the packed input of the pipeline; the two images of the stencil
// library are gone before the finished page is copied into it.
bool KestoPrinter::stencilPage(int stride, int width, int height, std::span<unsigned char> out) {
    copyPixels(image_, out, width, height, stride);
    kestoLogCommon(kestoLogTrace,
                   "PageProcess: Copied pixels to the output buffer for QM dithering, with stride "
                   "%d, EffWidth %d",
                   stride, static_cast<int>(image_.GetEffWidth()));
    const QMImage page(width, height, QM_IMG_GRAY, out.data());
    const QMImage stencil = halftoneType_ == DitherType::Tattoo_X8 ? qmTattooDitheringX8(page)
                                                                   : qmTattooDithering(page);
    kestoLogCommon(kestoLogTrace, "PageProcess: Applied QM dithering with stride %d, width %d",
                   (stencil.width + 3) / 4 * 4, width);
    if (!loadGrey(ditheredImage_, stencil.data, width, height, width)) {
        kestoLogCommon(kestoLogError,
                       "PageProcess: Failed to create a new RasterImage from QM dithered data");
        return false;
    }
    kestoLogCommon(kestoLogTrace,
                   "PageProcess: Successfully created a new RasterImage from QM dithered data");
    pimage_ = &ditheredImage_;
    return true;
}
