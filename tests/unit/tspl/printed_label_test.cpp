// PRINT: how often a label is printed, how large and in which resolution.
#include "tests/unit/tspl/test_support.h"

namespace tspl {
namespace {

std::vector<SeenLabel> labelsOf(std::string_view stream, const PrinterOptions& options = {}) {
    RecordingSink sink;
    obeyStream(stream, sink, options);
    return sink.labels;
}

SeenLabel labelOf(std::string_view stream, const PrinterOptions& options = {}) {
    const auto labels = labelsOf(stream, options);
    EXPECT_EQ(labels.size(), 1U);
    return labels.empty() ? SeenLabel{} : labels.front();
}

TEST(Print, PrintsOneLabelForEachCommandInTheStreamsOrder) {
    const auto labels =
        labelsOf("SIZE 3 dot,1 dot\nBAR 0,0,1,1\nPRINT 1\nCLS\nBAR 2,0,1,1\nPRINT 2,3\nPRINT 4\n");
    ASSERT_EQ(labels.size(), 3U);
    EXPECT_EQ(labels[0].number, 1U);
    EXPECT_EQ(labels[1].number, 2U);
    EXPECT_EQ(labels[2].number, 3U);
    EXPECT_EQ(labels[0].rows, Texts{"#.."});
    EXPECT_EQ(labels[1].rows, Texts{"..#"});
    EXPECT_EQ(labels[2].rows, Texts{"..#"});
}

TEST(Print, TellsTheSetsAndTheCopies) {
    const SeenLabel one = labelOf("SIZE 1,1\nPRINT 1");
    EXPECT_EQ(one.sets, 1);
    EXPECT_EQ(one.copies, 1);
    const SeenLabel sets = labelOf("SIZE 1,1\nPRINT 3");
    EXPECT_EQ(sets.sets, 3);
    EXPECT_EQ(sets.copies, 1);
    const SeenLabel both = labelOf("SIZE 1,1\nPRINT 3,5");
    EXPECT_EQ(both.sets, 3);
    EXPECT_EQ(both.copies, 5);
    EXPECT_EQ(labelOf("SIZE 1,1\nPRINT 2147483647,2147483647").copies, INT32_MAX);
}

TEST(Print, PrintsNothingWithoutSetsOrCopies) {
    EXPECT_EQ(labelsOf("SIZE 1,1\nPRINT 0\nPRINT 0,1\nPRINT 1,0\nPRINT -1\nPRINT 1,-1\n").size(),
              0U);
}

TEST(Print, PrintsABareLabelToo) {
    const SeenLabel label = labelOf("SIZE 2 dot,1 dot\nPRINT 1");
    EXPECT_EQ(label.rows, Texts{".."});
    EXPECT_EQ(label.burntDots, 0U);
}

TEST(Print, CutsTheLabelAtItsEdges) {
    EXPECT_EQ(pictureOf("SIZE 3 dot,2 dot\nBAR 2,-1,9,9\nPRINT 1"), (Texts{"..#", "..#"}));
}

TEST(Print, CountsTheDotsOfTheLabel) {
    EXPECT_EQ(labelOf("SIZE 3 dot,2 dot\nBAR 2,-1,9,9\nPRINT 1").burntDots, 2U);
}

TEST(Print, TakesSizesInInchesMillimetresAndDots) {
    const SeenLabel inches = labelOf("SIZE 0.5,0.2\nPRINT 1");
    EXPECT_EQ(inches.width, 102);
    EXPECT_EQ(inches.rows.size(), 41U);
    const SeenLabel millimetres = labelOf("SIZE 12.7 mm,5 mm\nPRINT 1");
    EXPECT_EQ(millimetres.width, 102);
    EXPECT_EQ(millimetres.rows.size(), 40U);
    const SeenLabel dots = labelOf("SIZE 12 dot,5 dot\nPRINT 1");
    EXPECT_EQ(dots.width, 12);
    EXPECT_EQ(dots.rows.size(), 5U);
}

TEST(Print, TakesTheResolutionFromTheWidthOfTheBitmap) {
    for (const int dpi : {203, 300, 600}) {
        const std::string bytes((static_cast<std::size_t>(dpi) + 7) / 8, '\xFF');
        const std::string stream = "SIZE 1,0.1\nBITMAP 0,0," + std::to_string(bytes.size()) +
                                   ",1,0," + bytes + "\nBAR 0,0,1,1\nPRINT 1";
        const SeenLabel label = labelOf(stream);
        EXPECT_EQ(label.dpi, dpi);
        EXPECT_EQ(label.width, dpi);
        EXPECT_EQ(findingsOf(stream), Texts{});
    }
}

TEST(Print, TakesTheGivenResolution) {
    PrinterOptions options;
    options.dpi = 400;
    const SeenLabel label = labelOf("SIZE 0.5,0.2\nBITMAP 0,0,1,1,0,a\nPRINT 1", options);
    EXPECT_EQ(label.dpi, 400);
    EXPECT_EQ(label.width, 200);
    EXPECT_EQ(label.rows.size(), 80U);
}

TEST(Print, KeepsWhatIsDrawnForTheNextLabel) {
    const auto labels = labelsOf("SIZE 3 dot,1 dot\nBAR 0,0,1,1\nPRINT 1\nBAR 2,0,1,1\nPRINT 1\n");
    ASSERT_EQ(labels.size(), 2U);
    EXPECT_EQ(labels[1].rows, Texts{"#.#"});
}

TEST(Print, KeepsWhatIsDrawnWhenTheSameSizeComesAgain) {
    EXPECT_EQ(pictureOf("SIZE 3 dot,1 dot\nBAR 0,0,1,1\nSIZE 3 dot,1 dot\nPRINT 1"), Texts{"#.."});
}

TEST(Print, LosesWhatIsDrawnWhenAnotherSizeComes) {
    EXPECT_EQ(pictureOf("SIZE 3 dot,1 dot\nBAR 0,0,1,1\nSIZE 4 dot,1 dot\nPRINT 1"), Texts{"...."});
}

TEST(Print, WithoutASizeEndsWhereTheBitmapDoes) {
    EXPECT_EQ(pictureOf(bitmapOf("1,1", {"#......#", "........"}) + "PRINT 1"),
              (Texts{".........", ".#......#", "........."}));
}

TEST(Print, WithoutASizeEndsWhereTheLastDotBurns) {
    EXPECT_EQ(pictureOf("BAR 1,0,2,2\nPRINT 1"), (Texts{".##", ".##"}));
}

TEST(Print, PrintsNoLabelWithoutASizeThatCanBeTold) {
    EXPECT_EQ(labelsOf("PRINT 1\n").size(), 0U);
    EXPECT_EQ(labelsOf("SIZE 0,0\nPRINT 1\n").size(), 0U);
    EXPECT_EQ(labelsOf("SIZE 4,0\nBAR 0,0,9,9\nPRINT 1\n").size(), 0U);
    EXPECT_EQ(labelsOf("SIZE 90000,90000\nBAR 0,0,9,9\nPRINT 1\n").size(), 0U);
}

TEST(Print, PrintsAgainAfterALabelThatIsTooLarge) {
    PrinterOptions options;
    options.mostDots = 100;
    const auto labels = labelsOf(
        "SIZE 20 dot,20 dot\nBAR 0,0,1,1\nPRINT 1\nSIZE 3 dot,1 dot\nBAR 1,0,1,1\nPRINT 1\n",
        options);
    ASSERT_EQ(labels.size(), 1U);
    EXPECT_EQ(labels[0].number, 2U);
    EXPECT_EQ(labels[0].rows, Texts{".#."});
}

TEST(Print, TellsOfALabelThatCannotBeDrawn) {
    RecordingSink sink;
    obeyStream(
        "PRINT 1\nSIZE 3 dot,1 dot\nPRINT 0\nBAR 0,0,1,1\nPRINT 1\nSIZE 90000,90000\nPRINT 1\n",
        sink);
    EXPECT_EQ(sink.order, (Texts{"finding 0", "lost", "entry 0", "entry 8", "finding 25",
                                 "entry 25", "entry 33", "label 2", "entry 45", "finding 53",
                                 "entry 53", "finding 70", "lost", "entry 70"}));
}

TEST(Cls, MakesTheLabelBare) {
    EXPECT_EQ(pictureOf("SIZE 3 dot,1 dot\nBAR 0,0,9,1\ncls\nPRINT 1"), Texts{"..."});
}

}  // namespace
}  // namespace tspl
