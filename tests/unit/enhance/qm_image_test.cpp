#include "enhance/qm_image.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <new>
#include <vector>

#include "tests/support/test_new.h"

namespace {

using Bytes = std::vector<unsigned char>;

Bytes bytesOf(const QMImage& image) {
    return {image.data, image.data + image.size()};
}

TEST(QMImage, WithoutArgumentsIsEmptyBlueGreenRedWithFourChannels) {
    const QMImage image;
    EXPECT_EQ(image.width, 0);
    EXPECT_EQ(image.height, 0);
    EXPECT_EQ(image.channels, 4);
    EXPECT_EQ(image.color, 1);
    EXPECT_EQ(image.data, nullptr);
}

TEST(QMImage, TheColourFixesTheNumberOfChannels) {
    EXPECT_EQ(QMImage(2, 1, QM_IMG_GRAY).channels, 1);
    EXPECT_EQ(QMImage(2, 1, QM_IMG_BGR).channels, 3);
    EXPECT_EQ(QMImage(2, 1, QM_IMG_RGB).channels, 3);
    EXPECT_EQ(QMImage(2, 1, QM_IMG_BGRA).channels, 4);
    EXPECT_EQ(QMImage(2, 1, QM_IMG_RGBA).channels, 4);
}

TEST(QMImage, AnyOtherColourHasFourChannels) {
    EXPECT_EQ(QMImage(2, 1, static_cast<QM_IMG_COLOR>(5)).channels, 4);
    EXPECT_EQ(QMImage(2, 1, static_cast<QM_IMG_COLOR>(-1)).channels, 4);
}

TEST(QMImage, TheColourNamesHaveTheNumbersZeroToFour) {
    EXPECT_EQ(QM_IMG_GRAY, 0);
    EXPECT_EQ(QM_IMG_BGR, 1);
    EXPECT_EQ(QM_IMG_RGB, 2);
    EXPECT_EQ(QM_IMG_BGRA, 3);
    EXPECT_EQ(QM_IMG_RGBA, 4);
}

TEST(QMImage, CopiesTheBytesItIsGivenAndLeavesThemToTheirOwner) {
    Bytes source = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    const QMImage image(2, 2, QM_IMG_BGR, source.data());
    const Bytes before = source;
    source.assign(source.size(), 0);
    EXPECT_EQ(bytesOf(image), before);
}

TEST(QMImage, ACopySharesNothingWithItsOriginal) {
    const Bytes source = {1, 2, 3, 4, 5, 6};
    QMImage original(3, 2, QM_IMG_GRAY, source.data());
    const QMImage copy(original);
    original.data[0] = 99;
    EXPECT_EQ(bytesOf(copy), source);
    EXPECT_EQ(copy.width, 3);
    EXPECT_EQ(copy.height, 2);
    EXPECT_EQ(copy.channels, 1);
    EXPECT_EQ(copy.color, QM_IMG_GRAY);
}

TEST(QMImage, AssignmentReplacesSizeLayoutAndBytes) {
    const Bytes source = {1, 2, 3, 4, 5, 6, 7, 8};
    const QMImage original(1, 2, QM_IMG_RGBA, source.data());
    QMImage target(5, 5, QM_IMG_GRAY, Bytes(25, 7).data());
    QMImage& result = (target = original);
    EXPECT_EQ(&result, &target);
    EXPECT_EQ(target.width, 1);
    EXPECT_EQ(target.height, 2);
    EXPECT_EQ(target.channels, 4);
    EXPECT_EQ(target.color, QM_IMG_RGBA);
    EXPECT_EQ(bytesOf(target), source);
}

TEST(QMImage, AssignmentToAnEmptyImageAllocates) {
    const Bytes source = {9, 8, 7};
    const QMImage original(3, 1, QM_IMG_GRAY, source.data());
    QMImage target;
    target = original;
    EXPECT_EQ(bytesOf(target), source);
}

TEST(QMImage, SurvivesBeingAssignedToItself) {
    const Bytes source = {1, 2, 3, 4};
    QMImage image(2, 2, QM_IMG_GRAY, source.data());
    const QMImage& itself = image;
    image = itself;
    EXPECT_EQ(bytesOf(image), source);
}

TEST(QMImage, AnAssignedImageSharesNothingWithItsSource) {
    const Bytes source = {1, 2, 3, 4};
    QMImage original(2, 2, QM_IMG_GRAY, source.data());
    QMImage target(2, 2, QM_IMG_GRAY, Bytes(4, 7).data());
    target = original;
    original.data[0] = 99;
    EXPECT_EQ(bytesOf(target), source);
}

TEST(QMImage, AssignmentFreesTheFormerBuffer) {
    const QMImage original(3, 1, QM_IMG_GRAY, Bytes(3, 1).data());
    QMImage target(5, 5, QM_IMG_RGB, Bytes(75, 7).data());
    const std::ptrdiff_t blocks = liveNewBlocks();
    target = original;
    EXPECT_EQ(liveNewBlocks(), blocks);
}

TEST(QMImage, AssignmentOfAnEmptyImageLeavesAnEmptyOne) {
    const QMImage empty;
    QMImage target(2, 2, QM_IMG_GRAY, Bytes(4, 7).data());
    target = empty;
    EXPECT_EQ(target.width, 0);
    EXPECT_EQ(target.height, 0);
    EXPECT_EQ(target.channels, 4);
    EXPECT_EQ(target.color, QM_IMG_BGR);
    EXPECT_EQ(target.size(), 0U);
}

TEST(QMImage, AssignmentWithoutMemoryLeavesTheTargetAsItWas) {
    const Bytes before = {1, 2, 3, 4};
    const QMImage original(3, 1, QM_IMG_RGB, Bytes(9, 7).data());
    QMImage target(2, 2, QM_IMG_GRAY, before.data());
    const std::ptrdiff_t blocks = liveNewBlocks();
    {
        const FailingNew failing(1);
        EXPECT_THROW(target = original, std::bad_alloc);
    }
    EXPECT_EQ(liveNewBlocks(), blocks);
    EXPECT_EQ(target.width, 2);
    EXPECT_EQ(target.height, 2);
    EXPECT_EQ(target.channels, 1);
    EXPECT_EQ(target.color, QM_IMG_GRAY);
    EXPECT_EQ(bytesOf(target), before);
}

/// What is left of an image's members, read where it lay.
struct Remains {
    int width = -1;
    int height = -1;
    int channels = -1;
};

template <typename... Arguments>
Remains remainsOf(Arguments... arguments) {
    alignas(QMImage) std::array<std::byte, sizeof(QMImage)> place{};
    auto* image = new (place.data()) QMImage(arguments...);
    const auto at = [&place](const int& member) {
        return reinterpret_cast<const std::byte*>(&member) - place.data();
    };
    const std::ptrdiff_t offsets[] = {at(image->width), at(image->height), at(image->channels)};
    image->~QMImage();
    const auto read = [&place](std::ptrdiff_t offset) {
        int value = -1;
        std::memcpy(&value, place.data() + offset, sizeof value);
        return value;
    };
    return {read(offsets[0]), read(offsets[1]), read(offsets[2])};
}

void expectNothing(const Remains& remains) {
    EXPECT_EQ(remains.width, 0);
    EXPECT_EQ(remains.height, 0);
    EXPECT_EQ(remains.channels, 0);
}

TEST(QMImage, ADestroyedImageHasSizesOfZero) {
    expectNothing(remainsOf(3, 2, QM_IMG_RGB));
    expectNothing(remainsOf(0, 2, QM_IMG_GRAY));
    expectNothing(remainsOf());
}

TEST(QMImage, ADestroyedImageHasFreedItsBuffer) {
    const std::ptrdiff_t blocks = liveNewBlocks();
    remainsOf(3, 2, QM_IMG_RGB);
    EXPECT_EQ(liveNewBlocks(), blocks);
}

TEST(QMImage, AWidthOrHeightOfZeroGivesAnEmptyBuffer) {
    const unsigned char unused = 0;
    EXPECT_EQ(QMImage(0, 5, QM_IMG_GRAY, &unused).size(), 0U);
    EXPECT_EQ(QMImage(5, 0, QM_IMG_BGR).size(), 0U);
    const QMImage empty(0, 0, QM_IMG_GRAY);
    EXPECT_EQ(QMImage(empty).size(), 0U);
}

}  // namespace
