// DOWNLOAD of files, PUTBMP, PUTPCX and KILL.
#include "tspl/stored_files.h"

#include "tests/unit/tspl/picture_bytes.h"

namespace tspl {
namespace {

using namespace std::string_literals;

std::string download(const std::string& name, const std::string& file) {
    return "DOWNLOAD \"" + name + "\"," + std::to_string(file.size()) + "," + file + "\r\n";
}

const std::string checks = bmpOf(8, 2, 1, "\xFF\xFF\xFF\0\0\0\0\0"s, "\x55\0\0\0\xAA\0\0\0"s);

Texts drawn(const std::string& commands) {
    return pictureOf("SIZE 10 dot,4 dot\nCLS\n" + commands + "PRINT 1\n");
}

TEST(StoredPicture, IsPutWithItsUpperLeftCornerAtAPoint) {
    EXPECT_EQ(drawn(download("A.BMP", checks) + "PUTBMP 1,2,\"A.BMP\"\n"),
              (Texts{"..........", "..........", ".#.#.#.#..", "..#.#.#.#."}));
}

TEST(StoredPicture, IsMovedByReferenceAndAddsToWhatIsThere) {
    EXPECT_EQ(drawn(download("A.BMP", checks) +
                    "REFERENCE 2,0\nBAR 0,0,2,1\nPUTBMP 0,0,\"A.BMP\",1,80\n"),
              (Texts{"..###.#.#.", "...#.#.#.#", "..........", ".........."}));
}

TEST(StoredPicture, MayBeOfPcx) {
    EXPECT_EQ(drawn(download("A.PCX", pcxOf(8, 1, 1, 2, "\x0F\x00"s)) + "PUTPCX 0,0,\"A.PCX\"\n"),
              (Texts{"####......", "..........", "..........", ".........."}));
}

TEST(StoredPicture, HasANameThatMindsNoCaseAndNoLetterOfAMemory) {
    const std::string stored =
        "DOWNLOAD F,\"a.bmp\"," + std::to_string(checks.size()) + "," + checks;
    EXPECT_EQ(drawn(stored + "\nPUTBMP 0,0,\"A.Bmp\"\n")[0], "#.#.#.#...");
}

// \["] stands for a quotation mark of the name.
TEST(StoredPicture, HasItsNameInEveryCommand) {
    const std::string stored = download("5\\[\"].BMP", checks);
    EXPECT_EQ(drawn(stored + "PUTBMP 0,0,\"5\\[\"].BMP\"\n")[0], "#.#.#.#...");
    EXPECT_EQ(findingsOf(stored + "TEXT 0,0,\"5\\[\"].BMP\",0,1,1,\"a\"\n").size(), 1U);
    EXPECT_EQ(findingsOf(stored + "KILL \"5\\[\"].BMP\"\nPUTBMP 0,0,\"5\\[\"].BMP\"\n").size(), 1U);
}

TEST(StoredPicture, IsReplacedByALaterOneOfItsName) {
    const std::string other = bmpOf(8, 1, 1, "\xFF\xFF\xFF\0\0\0\0\0"s, "\xFF\0\0\0"s);
    EXPECT_EQ(
        drawn(download("A.BMP", checks) + download("A.BMP", other) + "PUTBMP 0,0,\"A.BMP\"\n")[0],
        "########..");
}

TEST(StoredPicture, ThatIsNotInTheStreamIsRemarkedOn) {
    EXPECT_EQ(findingsOf("PUTBMP 0,0,\"LOGO.BMP\"\n"),
              Texts{"remark 0 PUTBMP is not drawn: the stream does not store LOGO.BMP"});
    for (const std::string kill : {"KILL \"A.BMP\"", "KILL F,\"A.BMP\"", "KILL \"*\""}) {
        EXPECT_EQ(findingsOf(download("A.BMP", checks) + kill + "\nPUTBMP 0,0,\"A.BMP\"\n").size(),
                  1U)
            << kill;
    }
}

TEST(StoredFiles, AreNoMoreThanPrintersHave) {
    StoredFiles files;
    for (std::size_t i = 0; i < StoredFiles::mostFiles; ++i) {
        ASSERT_TRUE(files.begin("F" + std::to_string(i), 0));
    }
    EXPECT_FALSE(files.begin("ONE MORE", 0));
    EXPECT_TRUE(files.begin("f0", 0));
    files.remove("F1");
    EXPECT_TRUE(files.begin("ONE MORE", 0));
}

TEST(StoredFiles, GiveTheirRoomBackWhenTheyAreRemovedOrReplaced) {
    StoredFiles files;
    const std::vector<std::uint8_t> half(StoredFiles::room / 2);
    ASSERT_TRUE(files.begin("A.BMP", half.size()));
    files.append(half);
    ASSERT_TRUE(files.begin("B.BMP", half.size()));
    files.append(half);
    EXPECT_FALSE(files.begin("C", 1));
    EXPECT_TRUE(files.begin("A.BMP", half.size()));
    files.append(half);
    EXPECT_FALSE(files.begin("C", 1));
    files.remove("B.BMP");
    EXPECT_TRUE(files.begin("C", half.size()));
    files.append(half);
    EXPECT_FALSE(files.begin("D", 1));
    files.remove("*.BMP");
    EXPECT_TRUE(files.begin("D", half.size()));
}

TEST(StoredPicture, ThatCannotBeReadIsComplainedOf) {
    EXPECT_EQ(findingsOf(download("A.BMP", "no picture") + "PUTBMP 0,0,\"A.BMP\"\n"),
              Texts{"complaint 32 PUTBMP cannot read A.BMP"});
    EXPECT_EQ(findingsOf("PUTBMP x,0,\"A.BMP\"\n"),
              Texts{"complaint 0 PUTBMP needs a position: PUTBMP x,0,\"A.BMP\""});
}

TEST(StoredPicture, IsNoneOfTheDataBehindAProgram) {
    EXPECT_EQ(findingsOf(download("A.BMP", checks) + "DOWNLOAD \"P.BAS\"\n" +
                         download("B.BMP", "xx") + "EOP\nPUTBMP 0,0,\"A.BMP\"\n"),
              Texts{});
}

TEST(StoredFiles, HaveRoomForSoMuchTogether) {
    StoredFiles files;
    EXPECT_TRUE(files.begin("a", StoredFiles::room));
    EXPECT_FALSE(files.begin("a", StoredFiles::room + 1));
    const std::vector<std::uint8_t> data(1000);
    EXPECT_TRUE(files.begin("a", 1000));
    files.append(data);
    EXPECT_FALSE(files.begin("b", StoredFiles::room - 999));
    files.append(data);
    EXPECT_EQ(files.find("b"), nullptr);
    EXPECT_EQ(files.find("a")->size(), 1000U);
    EXPECT_TRUE(files.begin("b", StoredFiles::room - 1000));
}

TEST(StoredFiles, AreForgottenByTheirEnding) {
    StoredFiles files;
    for (const std::string name : {"a.bmp", "b.BMP", "a.pcx"}) {
        EXPECT_TRUE(files.begin(name, 1));
    }
    files.remove("*.Bmp");
    EXPECT_EQ(files.find("a.bmp"), nullptr);
    EXPECT_EQ(files.find("b.bmp"), nullptr);
    EXPECT_NE(files.find("a.pcx"), nullptr);
    files.remove("*");
    EXPECT_EQ(files.find("a.pcx"), nullptr);
}

TEST(StoredFiles, TooLargeToBeStoredAreRemarkedOn) {
    EXPECT_EQ(findingsOf("DOWNLOAD \"A.BMP\",100000000,x").front(),
              "remark 0 there is no room to store a file as large as this");
}

}  // namespace
}  // namespace tspl
