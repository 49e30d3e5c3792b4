#include "intake/picture/picture_file.h"

#include <magick/api.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include "intake/document_file.h"
#include "intake/job_failure.h"
#include "intake/picture/decoder.h"
#include "intake/picture/library_problem.h"
#include "intake/picture/mapped_file.h"
#include "intake/picture/tiff_chain.h"
#include "intake/quiet_errors.h"

namespace intake::picture {
namespace {

constexpr std::size_t sMostPictures = 5000;

struct DestroyInfo {
    void operator()(ImageInfo* info) const { DestroyImageInfo(info); }
};
using Info = std::unique_ptr<ImageInfo, DestroyInfo>;

// The format stands before the name, so that no other decoder has a look at the file.
Info infoOf(std::string_view decoder, const std::string& path) {
    const std::string name = std::string(decoder) + ":" + path;
    if (name.size() >= MaxTextExtent) {
        throw JobFailure("The name of the picture's file is too long: " + path);
    }
    Info info(CloneImageInfo(nullptr));
    std::ranges::copy(name, info->filename);
    info->filename[name.size()] = '\0';
    return info;
}

void setSize(ImageInfo& info, unsigned width, unsigned height) {
    const std::string size = std::to_string(width) + "x" + std::to_string(height);
    CloneString(&info.size, size.c_str());
}

// The decoder of PNM takes such samples for packed ones: read as bytes without a head they are not.
LibraryImage readNarrow(const NarrowSamples& samples, const std::string& path,
                        LibraryProblem& problem) {
    const Info info = infoOf(samples.isColour ? "RGB" : "GRAY", {});
    setSize(*info, samples.width, samples.height);
    info->depth = 8;
    const MappedFile file(path);
    const auto bytes = file.bytes().subspan(std::min(samples.begin, file.bytes().size()));
    return LibraryImage(BlobToImage(info.get(), bytes.data(), bytes.size(), problem.info()));
}

// The decoder wants something behind the last number.
LibraryImage readWithLineEnd(const std::string& path, LibraryProblem& problem) {
    const MappedFile file(path);
    std::vector<unsigned char> bytes(file.bytes().begin(), file.bytes().end());
    bytes.push_back('\n');
    const Info info = infoOf("PNM", {});
    return LibraryImage(BlobToImage(info.get(), bytes.data(), bytes.size(), problem.info()));
}

void selectPictures(ImageInfo& info, std::size_t first, std::size_t count) {
    info.subimage = first;
    info.subrange = count;
}

int orientationOf(const Image& image, const FileDetails& details) {
    if (details.orientation) {
        return *details.orientation;
    }
    if (image.orientation != UndefinedOrientation) {
        return image.orientation;
    }
    std::size_t size = 0;
    const unsigned char* const exif = GetImageProfile(&image, "EXIF", &size);
    return exif == nullptr ? 1 : exifOrientation({exif, size}).value_or(1);
}

bool isTurnedByDecoder(const Document& document) {
    return document.decoder == "HEIC" || document.decoder == "AVIF";
}

// Those that tell all but the samples without decoding them.
bool hasOutlines(const Document& document) {
    return document.decoder == "JPEG" || document.decoder == "TIFF";
}

double perInch(double resolution, ResolutionType unit) {
    constexpr double centimetresPerInch = 2.54;
    // What has no unit is a ratio only.
    return unit == UndefinedResolution || !(resolution > 0)
               ? 0
               : resolution * (unit == PixelsPerCentimeterResolution ? centimetresPerInch : 1);
}

PictureOutline outlineOf(const Image& image, const Document& document, const FileDetails& details) {
    PictureOutline outline;
    outline.width = static_cast<unsigned>(image.columns);
    outline.height = static_cast<unsigned>(image.rows);
    outline.ppiAcross = perInch(image.x_resolution, image.units);
    outline.ppiDown = perInch(image.y_resolution, image.units);
    if (!isTurnedByDecoder(document)) {
        outline.turn = turnOfOrientation(orientationOf(image, details));
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
    details_ = detailsOf(path_, document_);
    if (hasOutlines(document_)) {
        readOutlines();
    } else {
        decoded_ = read(0, 1);
        pictures_.push_back(outlineOf(*decoded_, document_, details_));
    }
}

void PictureFile::readOutlines() {
    const Info info = infoOf(document_.decoder, path_);
    selectPictures(*info, 0, hasPages() ? sMostPictures : 1);
    LibraryProblem problem;
    const LibraryImage images = ping(*info, problem);
    for (const Image* image = images.get(); image != nullptr; image = image->next) {
        pictures_.push_back(outlineOf(*image, document_, details_));
    }
    if (pictures_.empty()) {
        failToRead(problem.text(path_));
    }
    if (problem.isError()) {
        problem_ = problem.text(path_);
    } else if (pictures_.size() == sMostPictures) {
        problem_ = "there may be " + std::to_string(sMostPictures - 1) + " at most";
    } else if (hasPages() && !isTiffChainWhole(path_)) {
        problem_ = "the list of its pages breaks off";
    }
}

LibraryImage PictureFile::ping(const ImageInfo& info, LibraryProblem& problem) const {
    const QuietErrors quiet;
    std::optional<RoomForReduction> room;
    if (canReduce()) {
        room.emplace();
    }
    return LibraryImage(PingImage(&info, problem.info()));
}

LibraryImage PictureFile::read(std::size_t index, unsigned reduction) const {
    LibraryProblem problem;
    LibraryImage image = readAny(index, reduction, problem);
    if (!image || problem.isError() || problem.isDamage()) {
        failToRead(problem.text(path_));
    }
    return image;
}

LibraryImage PictureFile::readAny(std::size_t index, unsigned reduction,
                                  LibraryProblem& problem) const {
    const QuietErrors quiet;
    if (details_.narrow) {
        return readNarrow(*details_.narrow, path_, problem);
    }
    return details_.lacksLineEnd ? readWithLineEnd(path_, problem)
                                 : readWith(index, reduction, problem);
}

LibraryImage PictureFile::readWith(std::size_t index, unsigned reduction,
                                   LibraryProblem& problem) const {
    const Info info = infoOf(document_.decoder, path_);
    // The decoder of Photo CD takes that for the number of the resolution.
    if (document_.decoder != "PCD") {
        selectPictures(*info, index, 1);
    }
    if (reduction > 1) {
        const PictureOutline& outline = pictures_.at(index);
        setSize(*info, outline.width / reduction, outline.height / reduction);
    }
    std::optional<RoomForReduction> room;
    if (canReduce()) {
        room.emplace();
    }
    return LibraryImage(ReadImage(info.get(), problem.info()));
}

bool PictureFile::hasPages() const {
    return document_.decoder == "TIFF";
}

bool PictureFile::canReduce() const {
    return document_.decoder == "JPEG";
}

DecodedPicture PictureFile::decode(std::size_t index, unsigned reduction) {
    LibraryImage image = decoded_ ? std::move(decoded_) : read(index, reduction);
    return {std::move(image), details_};
}

}  // namespace intake::picture
