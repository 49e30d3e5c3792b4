#pragma once

#include <memory>
#include <string>

#include "intake/picture/grey_image.h"
#include "intake/picture/placement.h"

namespace intake::picture {

/// The page that labels are written as.
struct OutputPage {
    LabelDots dots;
    std::string sizeName;  ///< of the page size
    unsigned copies = 1;   ///< of each label
};

/// Takes the labels of a job, each of the page's dots, one after another.
class LabelOutput {
public:
    virtual ~LabelOutput() = default;
    /// Throws JobFailure when it cannot be written.
    virtual void write(const GreyImage& label) = 0;
    virtual void finish() = 0;
};

/// Writes CUPS raster to a descriptor: of the colour space K, 8 bits, not packed.
std::unique_ptr<LabelOutput> rasterOutput(int descriptor, const OutputPage& page);

/// Writes a PDF file to a descriptor, for further layout: each label a page of its size with one
/// grey picture. It cannot say how many copies there are to be.
std::unique_ptr<LabelOutput> pdfOutput(int descriptor, const OutputPage& page);

/// Writes all bytes. Throws JobFailure.
void writeAll(int descriptor, std::span<const char> bytes);

}  // namespace intake::picture
