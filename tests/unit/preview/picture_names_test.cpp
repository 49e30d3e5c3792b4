// How the names of pictures begin.
#include "preview/picture_names.h"

#include <gtest/gtest.h>

namespace preview {
namespace {

using Names = std::vector<std::string>;

TEST(PictureNames, AreThoseOfTheFilesWithoutFoldersAndEnding) {
    EXPECT_EQ(pictureNames({"a/b.tspl", "/c.v2.bin", "-", "d", ".e"}, {}),
              (Names{"b", "c.v2", "label", "d", ".e"}));
}

TEST(PictureNames, ArePrefixesOfASingleFile) {
    EXPECT_EQ(pictureNames({"a/b.tspl"}, "out/p"), Names{"out/p"});
    EXPECT_EQ(pictureNames({"-"}, "p"), Names{"p"});
}

TEST(PictureNames, HaveThePrefixBeforeTheNamesOfSeveralFiles) {
    EXPECT_EQ(pictureNames({"a.tspl", "b.tspl"}, "out/p"), (Names{"out/p-a", "out/p-b"}));
}

TEST(PictureNames, StandInAFolderThatThePrefixIs) {
    EXPECT_EQ(pictureNames({"a.tspl"}, "out/"), Names{"out/a"});
    EXPECT_EQ(pictureNames({"a.tspl", "b.tspl"}, "out/"), (Names{"out/a", "out/b"}));
}

TEST(PictureNames, OfFilesOfTheSameNameAreNumbered) {
    EXPECT_EQ(pictureNames({"1/a.x", "2/a.x", "a.y", "b"}, {}), (Names{"a", "a_2", "a_3", "b"}));
    EXPECT_EQ(pictureNames({"1/a.x", "1/a.x"}, "p"), (Names{"p-a", "p-a_2"}));
    EXPECT_EQ(pictureNames({"-", "label.tspl"}, {}), (Names{"label", "label_2"}));
}

TEST(PictureNames, ThatFilesHaveThemselvesAreNotMadeUp) {
    EXPECT_EQ(pictureNames({"1/a", "2/a", "a_2", "a_3"}, {}), (Names{"a", "a_4", "a_2", "a_3"}));
    EXPECT_EQ(pictureNames({"a_2", "1/a", "2/a", "3/a_2"}, {}),
              (Names{"a_2", "a", "a_3", "a_2_2"}));
}

TEST(PictureName, IsItsBeginningAHyphenANumberAndItsEnding) {
    EXPECT_TRUE(isPictureName("a", "a-1.png"));
    EXPECT_TRUE(isPictureName("a", "./a-12.png"));
    EXPECT_TRUE(isPictureName("/usr/a", "/usr/../usr/a-1.png"));
    for (const char* file : {"a.png", "a-.png", "a-1.tspl", "a-x.png", "b-1.png", "aa-1.png",
                             "/usr/a-1.png", "-", "", "a-1"}) {
        EXPECT_FALSE(isPictureName("a", file)) << file;
    }
}

}  // namespace
}  // namespace preview
