#include "enhance/qm_image.h"

#include <gtest/gtest.h>

#include <vector>

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

TEST(QMImage, AWidthOrHeightOfZeroGivesAnEmptyBuffer) {
    const unsigned char unused = 0;
    EXPECT_EQ(QMImage(0, 5, QM_IMG_GRAY, &unused).size(), 0U);
    EXPECT_EQ(QMImage(5, 0, QM_IMG_BGR).size(), 0U);
    const QMImage empty(0, 0, QM_IMG_GRAY);
    EXPECT_EQ(QMImage(empty).size(), 0U);
}

}  // namespace
