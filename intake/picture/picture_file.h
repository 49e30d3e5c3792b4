#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "intake/document_kind.h"
#include "intake/picture/decoded_picture.h"
#include "intake/picture/placement.h"
#include "intake/picture/turn.h"

// NOLINTNEXTLINE(bugprone-reserved-identifier): a name of GraphicsMagick
struct _ImageInfo;

namespace intake::picture {

class LibraryProblem;

/// What is known of one picture of a file before it is decoded.
struct PictureOutline {
    unsigned width = 1;    ///< samples, as it lies in the file
    unsigned height = 1;   ///<
    double ppiAcross = 0;  ///< in the file's direction; 0 when it does not say
    double ppiDown = 0;    ///<
    Turn turn;             ///< that makes it upright

    PictureSize seen() const;
};

/// A file of one or, in TIFF, more pictures.
class PictureFile {
public:
    /// Reads the outlines. Throws JobFailure when there is no picture in the file that can be read.
    explicit PictureFile(std::string path);

    const std::vector<PictureOutline>& pictures() const { return pictures_; }
    /// Why pictures after these could not be read; empty when these are all.
    const std::string& problem() const { return problem_; }

    /// Whether its decoder can make pictures smaller on its own.
    bool canReduce() const;
    /// Decodes one, made smaller by `reduction`: 1, or 2, 4 or 8 if it can. Throws JobFailure.
    DecodedPicture decode(std::size_t index, unsigned reduction);

private:
    void readOutlines();
    bool hasPages() const;
    LibraryImage ping(const _ImageInfo& info, LibraryProblem& problem) const;
    LibraryImage read(std::size_t index, unsigned reduction) const;
    LibraryImage readAny(std::size_t index, unsigned reduction, LibraryProblem& problem) const;
    LibraryImage readWith(std::size_t index, unsigned reduction, LibraryProblem& problem) const;

    std::string path_;
    Document document_;
    FileDetails details_;
    LibraryImage decoded_;  // of formats that have to be decoded for their outlines
    std::vector<PictureOutline> pictures_;
    std::string problem_;
};

}  // namespace intake::picture
