// What becomes of every page when memory ends anywhere, and whether the log says so.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>

#include "tests/reference/page_process.h"
#include "tests/reference/tspl.h"
#include "tests/support/sanitizers.h"
#include "tests/system/fault_job.h"
#include "tests/system/test_job.h"

namespace {

#ifndef KESTO_ADDRESS_SANITIZER

constexpr int notLoaded = 127;  // what the loader says of a program that it has no memory for

enum class Fate { AsItIs, WithoutHalftone, AsThePageBefore, LeftOut, EndsTheJob };

/// Reads a stream from its front.
class StreamReader {
public:
    explicit StreamReader(const std::string& stream) : rest_(stream) {}

    bool isAtEnd() const { return rest_.empty(); }
    /// Whether this comes next; it is then behind the reader.
    bool take(const std::string& text) {
        const bool found = rest_.starts_with(text);
        rest_.erase(0, found ? text.size() : 0);
        return found;
    }
    /// A whole BITMAP command; nothing when another command comes next.
    std::string takeBitmap() {
        int widthBytes = 0;
        int height = 0;
        int head = 0;
        if (std::sscanf(rest_.c_str(), "BITMAP 0,0,%d,%d,0,%n", &widthBytes, &height, &head) != 2) {
            return "";
        }
        const std::size_t size =
            static_cast<std::size_t>(head) + static_cast<std::size_t>(widthBytes * height) + 2;
        std::string bitmap = rest_.substr(0, size);
        rest_.erase(0, size);
        return bitmap;
    }

private:
    std::string rest_;
};

/// A job, and what its pages are as they should be.
class ExpectedJob {
public:
    explicit ExpectedJob(const reference::Job& job) : job_(job) {
        for (const reference::Page& page : job.pages) {
            setUps_.push_back(
                reference::setUpBlock(reference::withPageSize(job.settings, page.header)) +
                reference::clearCommand());
            bitmaps_.push_back(reference::bitmapCommand(
                *reference::processPage(page, reference::propertiesOf(job.settings)).finished));
        }
    }

    /// The fate of every page by what was sent. The first one that was not begun ends the job.
    std::vector<Fate> fatesIn(const std::string& stream) const {
        std::vector<Fate> fates;
        StreamReader reader(stream);
        EXPECT_TRUE(reader.take(reference::preamble()) || stream.empty());
        for (std::size_t page = 0; page < setUps_.size(); ++page) {
            if (!reader.take(setUps_[page])) {
                fates.push_back(Fate::EndsTheJob);
                break;
            }
            fates.push_back(fateOf(page, reader.takeBitmap()));
            EXPECT_TRUE(fates.back() == Fate::LeftOut || reader.take(reference::printCommand(1)));
        }
        EXPECT_TRUE(reader.isAtEnd());
        return fates;
    }

private:
    Fate fateOf(std::size_t page, const std::string& bitmap) const {
        if (bitmap.empty()) {
            return Fate::LeftOut;
        }
        const auto found = std::find(bitmaps_.begin(), bitmaps_.end(), bitmap);
        if (found == bitmaps_.end()) {
            return Fate::WithoutHalftone;
        }
        const auto printed = static_cast<std::size_t>(found - bitmaps_.begin());
        EXPECT_LE(printed, page);
        return printed == page ? Fate::AsItIs : Fate::AsThePageBefore;
    }

    reference::Job job_;
    std::vector<std::string> setUps_;
    std::vector<std::string> bitmaps_;
};

// What the log says of a page, counted from 1, that met this fate.
std::string lineOn(std::size_t page, Fate fate) {
    const std::string number = std::to_string(page);
    switch (fate) {
        case Fate::WithoutHalftone:
            return "ERROR:Page " + number + " was printed without its halftone";
        case Fate::AsThePageBefore:
            return "ERROR:Page " + number + " was not printed; the page before it was, once more";
        case Fate::LeftOut:
            return "ERROR:Page " + number + " was not printed";
        default:
            return "";
    }
}

reference::Lines linesOn(const std::vector<Fate>& fates) {
    reference::Lines lines;
    for (std::size_t i = 0; i < fates.size(); ++i) {
        if (const std::string line = lineOn(i + 1, fates[i]); !line.empty()) {
            lines.push_back(line);
        }
    }
    return lines;
}

reference::Lines pageLinesIn(const std::string& log) {
    reference::Lines lines;
    for (const std::string& line : complaintsIn(log)) {
        if (line.starts_with("ERROR:Page ")) {
            lines.push_back(line);
        }
    }
    return lines;
}

bool saysThatTheJobEnds(const std::string& log, std::size_t page) {
    return log.find("\nERROR:Unable to print page " + std::to_string(page) +
                    ": no memory for its ") != std::string::npos ||
           log.find("CRIT:Out of memory, the job ends\n") != std::string::npos;
}

/// Prints a job in ever less memory and counts the fates of its pages.
class LostPages {
public:
    explicit LostPages(const reference::Job& job)
        : expected_(job),
          setting_(job),
          call_(setting_.callWith(rasterStream(job.pages, RasterForm::Plain))),
          least_(leastMemory(call_, reference::runJob(job).standardOutput)) {}

    /// Up to so many KiB less than all pages need.
    void printInLess(std::size_t most, std::size_t step) {
        for (std::size_t less = 16; less < most; less += step) {
            call_.addressSpace = (least_ - less) * kibibyte;
            setting_.swarm().run(
                call_, [this, less](const FilterResult& result) { account(result, less); });
        }
        setting_.swarm().finish();
    }
    std::size_t count(Fate fate) { return counts_[fate]; }

private:
    void account(const FilterResult& result, std::size_t less) {
        SCOPED_TRACE(less);
        if (result.status == notLoaded) {
            EXPECT_EQ(result.standardOutput, "");
            return;
        }
        const std::vector<Fate> fates = expected_.fatesIn(result.standardOutput);
        const bool ended = fates.back() == Fate::EndsTheJob;
        EXPECT_EQ(result.status, ended ? 1 : 0);
        EXPECT_EQ(saysThatTheJobEnds(result.standardError, fates.size()), ended);
        EXPECT_EQ(pageLinesIn(result.standardError), linesOn(fates));
        for (const Fate fate : fates) {
            ++counts_[fate];
        }
    }

    ExpectedJob expected_;
    FaultRuns setting_;
    FilterCall call_;
    std::size_t least_;
    std::map<Fate, std::size_t> counts_;
};

TEST(LostPage, OfGrowingPagesIsNamedWithItsFate) {
    LostPages job(
        labelJob({greyPage(1000, 1000, 1), greyPage(1000, 1100, 2), greyPage(1000, 1200, 3)}));
    job.printInLess(10000, 64);
    EXPECT_GT(job.count(Fate::AsThePageBefore), 0U);
    EXPECT_GT(job.count(Fate::LeftOut), 0U);
    EXPECT_GT(job.count(Fate::EndsTheJob), 0U);
}

TEST(LostPage, OfMirroredStencilsIsNamedAndNeverAnotherPage) {
    reference::Job stencils = labelJob({greyPage(1000, 800, 1), greyPage(1000, 800, 2)});
    stencils.settings.halftoneType = 8;
    stencils.settings.mirrorImage = 1;
    LostPages job(stencils);
    job.printInLess(9000, 64);
    EXPECT_EQ(job.count(Fate::AsThePageBefore), 0U);
    EXPECT_GT(job.count(Fate::LeftOut), 0U);
    EXPECT_GT(job.count(Fate::EndsTheJob), 0U);
}

// Between what the halftone needs and what the page does lies an eighth of the page.
TEST(LostPage, WithoutItsHalftoneIsNamed) {
    LostPages job(labelJob({greyPage(2000, 2000)}));
    job.printInLess(500, 60);
    EXPECT_GT(job.count(Fate::WithoutHalftone), 0U);
}

#endif

}  // namespace
