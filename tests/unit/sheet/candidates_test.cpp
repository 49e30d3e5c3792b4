#include "intake/sheet/candidates.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace intake::sheet {
namespace {

using Kind = Candidate::Kind;

constexpr std::int64_t sPage = 612 * 792;

Candidate candidate(const DotRectangle& extent, Kind kind = Kind::Block) {
    const sizes::PointSize size{static_cast<double>(extent.width()),
                                static_cast<double>(extent.height())};
    return {extent, fitOf(size, {288, 432}, {612, 792}), kind};
}

std::vector<DotRectangle> chosen(const std::vector<Candidate>& candidates) {
    std::vector<DotRectangle> extents;
    for (const Candidate& label : chooseAmong(candidates, sPage)) {
        extents.push_back(label.extent);
    }
    return extents;
}

using Extents = std::vector<DotRectangle>;

TEST(Candidates, BesideEachOtherAreAllLabels) {
    EXPECT_EQ(chosen({candidate({0, 0, 288, 432}), candidate({300, 0, 588, 432})}).size(), 2U);
}

TEST(Candidates, MayShareTheLineBetweenThem) {
    EXPECT_EQ(chosen({candidate({0, 0, 288, 432}, Kind::Frame),
                      candidate({287, 0, 575, 432}, Kind::Frame)})
                  .size(),
              2U);
}

TEST(Candidates, OverEachOtherAreOneLabel) {
    EXPECT_EQ(chosen({candidate({0, 0, 288, 432}), candidate({230, 0, 518, 432})}).size(), 1U);
}

TEST(Candidates, ThatAreFramesGoBeforeBlocks) {
    const Candidate frame = candidate({0, 0, 288, 432}, Kind::Frame);
    EXPECT_EQ(chosen({candidate({0, 0, 300, 450}), frame}), Extents{frame.extent});
}

TEST(Candidates, ThatAreClosedFramesGoBeforeOpenOnes) {
    const Candidate closed = candidate({0, 0, 274, 410}, Kind::Frame);
    const Candidate open = candidate({0, 0, 286, 410}, Kind::OpenFrame);
    EXPECT_EQ(chosen({open, closed}), Extents{closed.extent});
}

TEST(Candidates, OfFramesWithinEachOtherAreTheOuterOnes) {
    const Candidate outer = candidate({0, 0, 288, 432}, Kind::Frame);
    const Candidate inner = candidate({10, 10, 260, 390}, Kind::Frame);
    EXPECT_EQ(chosen({inner, outer}), Extents{outer.extent});
}

TEST(Candidates, OfFramesAreThoseThatTheLabelTakesWithoutScaling) {
    const Candidate outer = candidate({0, 0, 340, 510}, Kind::Frame);
    const Candidate inner = candidate({30, 40, 318, 472}, Kind::Frame);
    EXPECT_EQ(chosen({outer, inner}), Extents{inner.extent});
}

TEST(Candidates, OfALargeFrameAreNotItsFields) {
    const Candidate label = candidate({18, 16, 588, 396}, Kind::Frame);
    const Candidate field = candidate({335, 16, 588, 396}, Kind::Frame);
    EXPECT_EQ(chosen({field, label}), Extents{label.extent});
}

TEST(Candidates, OnASheetOfTheLabelsShapeAreItsLabels) {
    const Candidate sheet = candidate({0, 0, 560, 840}, Kind::Frame);
    EXPECT_EQ(chosen({sheet, candidate({5, 5, 275, 410}, Kind::Frame),
                      candidate({285, 5, 555, 410}, Kind::Frame)})
                  .size(),
              2U);
    EXPECT_EQ(chosen({sheet, candidate({0, 0, 280, 420}, Kind::Frame),
                      candidate({280, 0, 560, 420}, Kind::Frame)})
                  .size(),
              2U)
        << "fields of the sheet";
}

TEST(Candidates, WithinTheBorderOfThePageGoBeforeIt) {
    const Candidate border = candidate({30, 20, 560, 780}, Kind::Frame);
    const Candidate label = candidate({100, 100, 370, 510});
    EXPECT_EQ(chosen({border, label}), Extents{label.extent});
    EXPECT_EQ(chosen({border}), Extents{border.extent});
}

TEST(Candidates, OfBlocksAreThoseOfTheLabelsShape) {
    const Candidate exact = candidate({0, 0, 264, 396});
    const Candidate longer = candidate({0, 0, 264, 420});
    EXPECT_EQ(chosen({longer, exact}), Extents{exact.extent});
}

TEST(Candidates, OfBlocksOfOneShapeAreTheLargest) {
    const Candidate large = candidate({0, 0, 280, 420});
    const Candidate small = candidate({20, 30, 270, 405});
    EXPECT_EQ(chosen({small, large}), Extents{large.extent});
}

}  // namespace
}  // namespace intake::sheet
