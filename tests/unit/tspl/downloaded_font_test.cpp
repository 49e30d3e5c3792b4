// TEXT and BLOCK in fonts that the stream brings along.
#include "tspl/downloaded_font.h"

#include <fstream>
#include <iterator>
#include <random>

#include "tests/unit/tspl/test_support.h"
#include "tspl/text_drawing.h"

namespace tspl {
namespace {

// A font of the package that the previewer's stand-ins are from.
std::string fontFile(const std::string& name) {
    std::ifstream file("/usr/share/fonts/truetype/dejavu/" + name + ".ttf", std::ios::binary);
    std::string bytes(std::istreambuf_iterator<char>(file), {});
    EXPECT_GT(bytes.size(), 100000U) << name;
    return bytes;
}

std::string download(const std::string& name, const std::string& bytes) {
    return "DOWNLOAD " + name + "," + std::to_string(bytes.size()) + "," + bytes + "\r\n";
}

Texts drawn(const std::string& commands) {
    return pictureOf("SIZE 200 dot,100 dot\nCLS\n" + commands + "\nPRINT 1\n");
}

std::string textIn(const std::string& font, const std::string& text = "Rag 8") {
    return "TEXT 20,20,\"" + font + "\",0,20,14,\"" + text + "\"\n";
}

// The findings of a text without their places, and without those of the DOWNLOAD before it.
Texts saidOf(const std::string& stream) {
    Texts said;
    for (const std::string& finding : findingsOf(stream)) {
        const auto place = finding.find(' ');
        said.push_back(finding.substr(0, place) + finding.substr(finding.find(' ', place + 1)));
    }
    return said;
}

const std::string sOwn =
    "remark TEXT is drawn in the font that the stream brings along; its dots are only alike";
const std::string sStandIn = "remark TEXT is drawn in a font that is only alike";
const std::string sDamaged = "complaint the font \"A.TTF\" of TEXT is damaged or has no outlines";
const std::string sMissing =
    "complaint the font \"A.TTF\" of TEXT is not in the stream; the printer needs it in its memory";

// Font 0 is drawn by DejaVu Sans: the same file from the stream gives the same dots.
TEST(DownloadedFont, DrawsWhatTheSameFontOfTheSystemDraws) {
    const std::string sans = download("\"A.TTF\"", fontFile("DejaVuSans"));
    EXPECT_NE(drawn(textIn("0")), drawn(""));
    EXPECT_EQ(drawn(sans + textIn("A.TTF")), drawn(textIn("0")));
    EXPECT_EQ(drawn(sans + "BLOCK 9,9,80,80,\"A.TTF\",90,12,12,0,2,\"one two three\""),
              drawn("BLOCK 9,9,80,80,\"0\",90,12,12,0,2,\"one two three\""));
}

TEST(DownloadedFont, IsNotTheOneThatStandsForIt) {
    const std::string serif = download("\"A.TTF\"", fontFile("DejaVuSerif"));
    EXPECT_NE(drawn(serif + textIn("A.TTF")), drawn(textIn("0")));
    EXPECT_EQ(saidOf(serif + textIn("A.TTF")), Texts{sOwn});
}

TEST(DownloadedFont, HasAnyNameAndAnyMemory) {
    const std::string bold = fontFile("DejaVuSans-Bold");
    const Texts expected = drawn(download("\"A.TTF\"", bold) + textIn("A.TTF"));
    for (const std::string name : {"F,\"A.TTF\"", "E,\"a.ttf\"", "\"A.Ttf\""}) {
        EXPECT_EQ(drawn(download(name, bold) + textIn("A.TTF")), expected) << name;
    }
    EXPECT_EQ(drawn(download("\"B.OTF\"", bold) + textIn("b.otf")), expected);
    EXPECT_EQ(drawn(download("\"BOLD\"", bold) + textIn("BOLD")), expected);
}

TEST(DownloadedFont, GoesBeforeABuiltInOneOfItsName) {
    const std::string serif = fontFile("DejaVuSerif");
    EXPECT_EQ(drawn(download("\"ROMAN.TTF\"", serif) + textIn("ROMAN.TTF")),
              drawn(download("\"A.TTF\"", serif) + textIn("A.TTF")));
    // Cells are not read, and those of the built-in font are known.
    EXPECT_EQ(drawn(download("\"TST24.BF2\"", "abc") + "TEXT 9,9,\"TST24.BF2\",0,1,1,\"a\""),
              drawn("TEXT 9,9,\"TST24.BF2\",0,1,1,\"a\""));
}

TEST(DownloadedFont, IsReplacedByALaterOneOfItsName) {
    const std::string serif = download("\"A.TTF\"", fontFile("DejaVuSerif"));
    const std::string sans = download("\"A.TTF\"", fontFile("DejaVuSans"));
    EXPECT_EQ(drawn(serif + textIn("A.TTF") + "CLS\n" + sans + textIn("A.TTF")),
              drawn(textIn("0")));
}

TEST(DownloadedFont, IsForgottenWhenItIsKilled) {
    const std::string serif = download("\"A.TTF\"", fontFile("DejaVuSerif"));
    for (const std::string kill : {"KILL \"A.TTF\"\n", "KILL F,\"a.ttf\"\n", "KILL \"*\"\n"}) {
        EXPECT_EQ(saidOf(serif + textIn("A.TTF") + kill + textIn("A.TTF")),
                  (Texts{sOwn, sMissing, sStandIn}));
        EXPECT_EQ(drawn(serif + textIn("A.TTF") + "CLS\n" + kill + textIn("A.TTF")),
                  drawn(textIn("0")));
    }
}

TEST(DownloadedFont, ShowsCharactersThatItLacksAsItDoesItself) {
    const std::string mono = download("\"A.TTF\"", fontFile("DejaVuSansMono-Bold"));
    const std::string utf8 = "CODEPAGE UTF-8\n";
    const Texts lacking = drawn(utf8 + mono + textIn("A.TTF", "你"));
    EXPECT_NE(lacking, drawn(""));
    EXPECT_EQ(drawn(utf8 + mono + textIn("A.TTF", "好")), lacking);
}

TEST(DownloadedFont, ThatIsNoneIsComplainedOfAndAnotherStandsForIt) {
    const std::string sans = fontFile("DejaVuSans");
    std::string noOutlines = sans;
    noOutlines.replace(noOutlines.find("glyf"), 4, "GLYF");
    for (const std::string& bytes :
         {std::string(), std::string("abc"), std::string(5000, '\0'), sans.substr(0, 4),
          sans.substr(0, 300), sans.substr(0, sans.size() / 2), "x" + sans, noOutlines}) {
        const std::string damaged = download("\"A.TTF\"", bytes);
        EXPECT_EQ(saidOf(damaged + textIn("A.TTF")), (Texts{sDamaged, sStandIn})) << bytes.size();
        EXPECT_EQ(drawn(damaged + textIn("A.TTF")), drawn(textIn("0"))) << bytes.size();
    }
}

// The printer's own format of cells is not read.
TEST(DownloadedFont, OfCellsIsStoodFor) {
    EXPECT_EQ(saidOf(download("\"A.FNT\"", "abc") + "TEXT 0,0,\"A.FNT\",0,1,1,\"a\""),
              Texts{sStandIn});
}

// Whatever it draws then: it neither crashes nor takes long.
TEST(DownloadedFont, MayHaveAnyByteDamaged) {
    const std::string whole = fontFile("DejaVuSansMono-Bold");
    std::mt19937 random(18);
    for (int i = 0; i < 60; ++i) {
        std::string bytes = whole;
        for (int k = 0; k < 1 << (i % 12); ++k) {
            // The directory and the short tables at its front are what most depends on.
            const std::size_t end = i % 2 == 0 ? 400 : bytes.size();
            bytes[random() % end] = static_cast<char>(random());
        }
        EXPECT_FALSE(saidOf(download("\"A.TTF\"", bytes) + textIn("A.TTF")).empty());
    }
}

// Where a table of the font begins: its place stands in the directory, behind its name and sum.
std::size_t tableOf(const std::string& font, const std::string& name) {
    std::size_t place = 0;
    const std::size_t entry = font.find(name) + 8;
    for (std::size_t i = 0; i < 4; ++i) {
        place = place * 256 + static_cast<unsigned char>(font[entry + i]);
    }
    return place;
}

std::string twoBytes(unsigned number) {
    return {static_cast<char>(number >> 8U), static_cast<char>(number & 0xFFU)};
}

// DejaVu Sans with lines so many units high, of which so many make an em.
std::string fontOfLines(unsigned height, unsigned unitsPerEm) {
    std::string font = fontFile("DejaVuSans");
    font.replace(tableOf(font, "hhea") + 4, 4, twoBytes(height) + twoBytes(0));
    // The same again for other systems: numbers of lines as they are set, and of windows.
    font.replace(tableOf(font, "OS/2") + 68, 10, std::string(10, '\0'));
    font.replace(tableOf(font, "head") + 18, 2, twoBytes(unitsPerEm));
    return font;
}

TEST(DownloadedFont, WhoseLinesHaveNoHeightIsDrawnAsHighAsItsSize) {
    const std::string flat = download("\"A.TTF\"", fontOfLines(0, 2048));
    EXPECT_EQ(saidOf(flat + textIn("A.TTF")), Texts{sOwn});
    EXPECT_NE(drawn(flat + textIn("A.TTF", "RH8")), drawn(""));
    // 14 points are 39 dots at 203 dpi.
    EXPECT_EQ(drawn(flat + textIn("A.TTF", "RH8") + "ERASE 20,20,180,39"), drawn(""));
}

// An H is 1138 x 1493 units large: where 32 units make an em, and a line is a quarter of that high,
// 15,000 x 20,000 dots in a size of 39 points.
TEST(DownloadedFont, OfHugeLettersLeavesThemOut) {
    const auto drawnH = [](unsigned height, unsigned unitsPerEm, const std::string& place) {
        return drawn(download("\"A.TTF\"", fontOfLines(height, unitsPerEm)) + "TEXT " + place +
                     ",\"H\"");
    };
    EXPECT_EQ(drawnH(8, 32, "-2900,0,\"A.TTF\",0,39,39"), drawn(""));
    EXPECT_EQ(drawnH(8, 32, "-80,0,\"A.TTF\",0,1,1"), drawn(""));
    // Three times as high as a line.
    EXPECT_NE(drawnH(512, 512, "0,0,\"A.TTF\",0,39,39"), drawn(""));
}

std::shared_ptr<const DownloadedFont::Bytes> sharedBytes(const std::string& text) {
    return std::make_shared<const DownloadedFont::Bytes>(text.begin(), text.end());
}

TEST(DownloadedFont, GivesItsBytesBackWhenNobodyNeedsItAnyMore) {
    auto bytes = sharedBytes(fontFile("DejaVuSerif"));
    const std::weak_ptr<const DownloadedFont::Bytes> watched = bytes;
    auto font = DownloadedFont::read(std::exchange(bytes, nullptr));
    ASSERT_NE(font, nullptr);
    DotCanvas canvas(100, 100);
    for (const std::int32_t size : {9, 20, 33}) {
        drawTextLine(canvas, {0, 0, 0}, {fontOf(font), size, size}, 0, 0, U"abc");
    }
    EXPECT_GT(canvas.burntDots(), 0U);
    EXPECT_FALSE(watched.expired());
    font.reset();
    EXPECT_TRUE(watched.expired());
}

TEST(DownloadedFont, HasAKeyOfItsOwn) {
    const auto bytes = sharedBytes(fontFile("DejaVuSerif"));
    EXPECT_NE(DownloadedFont::read(bytes)->key(), DownloadedFont::read(bytes)->key());
}

}  // namespace
}  // namespace tspl
