#include "intake/picture/picture_file.h"

#include <magick/api.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <utility>

#include "intake/document_file.h"
#include "intake/job_failure.h"
#include "intake/picture/library_problem.h"

namespace intake::picture {
namespace {

constexpr std::size_t sMostPictures = 1000;

struct DestroyInfo {
    void operator()(ImageInfo* info) const { DestroyImageInfo(info); }
};
using Info = std::unique_ptr<ImageInfo, DestroyInfo>;

// The format stands before the name, so that no other decoder has a look at the file.
Info infoOf(const Document& document, const std::string& path) {
    const std::string name = std::string(document.decoder) + ":" + path;
    if (name.size() >= MaxTextExtent) {
        throw JobFailure("The name of the picture's file is too long: " + path);
    }
    Info info(CloneImageInfo(nullptr));
    std::ranges::copy(name, info->filename);
    info->filename[name.size()] = '\0';
    return info;
}

void selectPictures(ImageInfo& info, std::size_t first, std::size_t count) {
    info.subimage = first;
    info.subrange = count;
}

// EXIF's numbers and the library's are the same.
int orientationOf(const Image& image) {
    if (image.orientation != UndefinedOrientation) {
        return image.orientation;
    }
    const ImageAttribute* const exif = GetImageAttribute(&image, "EXIF:Orientation");
    return exif == nullptr || exif->value == nullptr ? 1 : std::atoi(exif->value);
}

bool isTurnedByDecoder(const Document& document) {
    return document.decoder == "HEIC" || document.decoder == "AVIF" || document.decoder == "JXL";
}

double perInch(double resolution, ResolutionType unit) {
    constexpr double centimetresPerInch = 2.54;
    // What has no unit is a ratio only.
    return unit == UndefinedResolution || !(resolution > 0)
               ? 0
               : resolution * (unit == PixelsPerCentimeterResolution ? centimetresPerInch : 1);
}

PictureOutline outlineOf(const Image& image, const Document& document) {
    PictureOutline outline;
    outline.width = static_cast<unsigned>(image.columns);
    outline.height = static_cast<unsigned>(image.rows);
    outline.ppiAcross = perInch(image.x_resolution, image.units);
    outline.ppiDown = perInch(image.y_resolution, image.units);
    if (!isTurnedByDecoder(document)) {
        outline.turn = turnOfOrientation(orientationOf(image));
    }
    return outline;
}

}  // namespace

PictureSize PictureOutline::seen() const {
    return turn.isTransposed ? PictureSize{height, width, ppiDown, ppiAcross}
                             : PictureSize{width, height, ppiAcross, ppiDown};
}

PictureFile::PictureFile(std::string path) : path_(std::move(path)), document_(documentAt(path_)) {
    if (document_.kind != DocumentKind::Picture) {
        failToRead("it is no picture of a kind that is known");
    }
    const Info info = infoOf(document_, path_);
    const bool hasPages = document_.decoder == "TIFF";
    selectPictures(*info, 0, hasPages ? sMostPictures : 1);
    LibraryProblem problem;
    const LibraryImage images(PingImage(info.get(), problem.info()));
    for (const Image* image = images.get(); image != nullptr;
         image = hasPages ? image->next : nullptr) {
        pictures_.push_back(outlineOf(*image, document_));
    }
    if (problem.isError()) {
        problem_ = problem.text();
    }
    if (pictures_.empty()) {
        failToRead(problem.text());
    }
}

bool PictureFile::canReduce() const {
    return document_.decoder == "JPEG";
}

DecodedPicture PictureFile::decode(std::size_t index, unsigned reduction) const {
    const Info info = infoOf(document_, path_);
    selectPictures(*info, index, 1);
    if (reduction > 1) {
        const PictureOutline& outline = pictures_.at(index);
        const std::string size = std::to_string(outline.width / reduction) + "x" +
                                 std::to_string(outline.height / reduction);
        CloneString(&info->size, size.c_str());
    }
    LibraryProblem problem;
    LibraryImage image(ReadImage(info.get(), problem.info()));
    if (!image || problem.isError() || problem.isDamage()) {
        failToRead(problem.text());
    }
    return DecodedPicture(std::move(image));
}

}  // namespace intake::picture
