// What every command takes.
#include "tspl/command_rules.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tspl {
namespace {

constexpr std::size_t anyNumber = 0;

struct Expected {
    const char* name;
    std::size_t fewest;
    std::size_t most;  // anyNumber: no end
    ArgumentKind kind;
    Effect effect;
};

// How GoogleTest shows a row.
void PrintTo(const Expected& expected, std::ostream* stream) {
    *stream << expected.name;
}

constexpr auto sInteger = ArgumentKind::Integers;
constexpr auto sLength = ArgumentKind::Lengths;
constexpr auto sSigned = ArgumentKind::SignedLengths;
constexpr auto sAny = ArgumentKind::Any;

constexpr Expected sCommands[] = {
    {"SIZE", 1, 2, sLength, Effect::Obeyed},
    {"GAP", 1, 2, sLength, Effect::NoMark},
    {"BLINE", 1, 2, sLength, Effect::NoMark},
    {"OFFSET", 1, 1, sSigned, Effect::NoMark},
    {"REFERENCE", 2, 2, sInteger, Effect::Obeyed},
    {"SHIFT", 1, 2, sInteger, Effect::Obeyed},
    {"DIRECTION", 1, 2, sInteger, Effect::Obeyed},
    {"SPEED", 1, 1, sAny, Effect::Obeyed},
    {"DENSITY", 1, 1, sInteger, Effect::Obeyed},
    {"SET", 1, anyNumber, sAny, Effect::Obeyed},
    {"COUNTRY", 1, 1, sInteger, Effect::NoMark},
    {"CODEPAGE", 1, 1, sAny, Effect::Obeyed},
    {"CLS", 0, 0, sAny, Effect::Obeyed},
    {"BAR", 4, 4, sInteger, Effect::Obeyed},
    {"BOX", 5, 6, sInteger, Effect::Obeyed},
    {"ERASE", 4, 4, sInteger, Effect::Obeyed},
    {"REVERSE", 4, 4, sInteger, Effect::Obeyed},
    {"TEXT", 7, 8, sAny, Effect::Obeyed},
    {"BLOCK", 9, 12, sAny, Effect::Obeyed},
    {"BARCODE", 9, 10, sAny, Effect::Obeyed},
    {"QRCODE", 7, 11, sAny, Effect::Obeyed},
    {"DMATRIX", 5, 11, sAny, Effect::Obeyed},
    {"PDF417", 6, anyNumber, sAny, Effect::Obeyed},
    {"MPDF417", 4, 7, sAny, Effect::Obeyed},
    {"AZTEC", 4, 10, sAny, Effect::Obeyed},
    {"MAXICODE", 4, 8, sAny, Effect::Obeyed},
    {"CODABLOCK", 4, 6, sAny, Effect::Obeyed},
    {"RSS", 7, 8, sAny, Effect::Obeyed},
    {"TLC39", 4, anyNumber, sAny, Effect::NotDrawn},
    {"CIRCLE", 4, 4, sInteger, Effect::Obeyed},
    {"ELLIPSE", 5, 5, sInteger, Effect::Obeyed},
    {"DIAGONAL", 5, 5, sInteger, Effect::Obeyed},
    {"PUTBMP", 3, 5, sAny, Effect::Obeyed},
    {"PUTPCX", 3, 3, sAny, Effect::Obeyed},
    {"PRINT", 1, 2, sInteger, Effect::Obeyed},
    {"FEED", 1, 1, sInteger, Effect::NoMark},
    {"BACKFEED", 1, 1, sInteger, Effect::NoMark},
    {"BACKUP", 1, 1, sInteger, Effect::NoMark},
    {"FORMFEED", 0, 0, sAny, Effect::NoMark},
    {"HOME", 0, 0, sAny, Effect::NoMark},
    {"CUT", 0, 0, sAny, Effect::NoMark},
    {"LIMITFEED", 1, 3, sLength, Effect::NoMark},
    {"GAPDETECT", 0, 2, sAny, Effect::NoMark},
    {"BLINEDETECT", 0, 2, sAny, Effect::NoMark},
    {"AUTODETECT", 0, 2, sAny, Effect::NoMark},
    {"EOP", 0, 0, sAny, Effect::Obeyed},
    {"EOJ", 0, 0, sAny, Effect::NoMark},
    {"END", 0, 0, sAny, Effect::NoMark},
    {"MENU", 0, 1, sAny, Effect::NoMark},
    {"BEEP", 0, 2, sAny, Effect::NoMark},
    {"WLAN", 1, anyNumber, sAny, Effect::NoMark},
    {"NET", 1, anyNumber, sAny, Effect::NoMark},
    {"NFC", 1, anyNumber, sAny, Effect::NoMark},
    {"DELAY", 1, 1, sInteger, Effect::NoMark},
    {"SOUND", 2, 2, sInteger, Effect::NoMark},
    {"DISPLAY", 1, 1, sAny, Effect::NoMark},
    {"SELFTEST", 0, 1, sAny, Effect::NoMark},
    {"INITIALPRINTER", 0, 0, sAny, Effect::NoMark},
    {"DOWNLOAD", 1, anyNumber, sAny, Effect::Obeyed},
    {"FILES", 0, 0, sAny, Effect::NoMark},
    {"KILL", 1, 2, sAny, Effect::NoMark},
    {"MOVE", 0, 0, sAny, Effect::NoMark},
    {"RUN", 1, 1, sAny, Effect::NoMark},
    {"OUT", 1, anyNumber, sAny, Effect::NoMark},
};

// "NAME argument,argument" with that many arguments.
std::string lineOf(const std::string& name, std::size_t count, const std::string& argument) {
    std::string line = name;
    for (std::size_t i = 0; i < count; ++i) {
        line += (i == 0 ? " " : ",") + argument;
    }
    return line;
}

std::string faultOf(const std::string& line) {
    const Command command = parseCommand({}, line);
    const CommandRule* rule = findRule(command.name);
    return rule == nullptr ? "no rule" : findFault(*rule, command).value_or("");
}

class EveryCommand : public testing::TestWithParam<Expected> {
protected:
    // The fault of the command with so many of the same argument.
    static std::string faultWith(std::size_t count, const std::string& argument = "1") {
        return faultOf(lineOf(GetParam().name, count, argument));
    }
};

TEST_P(EveryCommand, HasARuleWithItsNameAndItsEffect) {
    const CommandRule* rule = findRule(GetParam().name);
    ASSERT_NE(rule, nullptr);
    EXPECT_EQ(rule->name, GetParam().name);
    EXPECT_EQ(rule->effect, GetParam().effect);
}

TEST_P(EveryCommand, TakesItsFewestArgumentsAndNoFewer) {
    const std::size_t fewest = GetParam().fewest;
    EXPECT_EQ(faultWith(fewest), "");
    if (fewest > 0) {
        EXPECT_NE(faultWith(fewest - 1), "");
    }
}

TEST_P(EveryCommand, TakesItsMostArgumentsAndNoMore) {
    const std::size_t most = GetParam().most;
    const bool hasEnd = most != anyNumber || GetParam().fewest == 0;
    EXPECT_EQ(faultWith(hasEnd ? most : 99), "");
    if (hasEnd) {
        EXPECT_NE(faultWith(most + 1), "");
    }
}

TEST_P(EveryCommand, TakesArgumentsOfItsKindOnly) {
    const ArgumentKind kind = GetParam().kind;
    const std::size_t count = GetParam().fewest;
    EXPECT_EQ(faultWith(count, "-1").empty(), kind != sLength);
    EXPECT_EQ(faultWith(count, "1.5").empty(), kind != sInteger);
    EXPECT_EQ(faultWith(count, "1 mm").empty(), kind != sInteger);
    EXPECT_EQ(faultWith(count, "nan").empty(), kind == sAny);
    EXPECT_EQ(faultWith(count, "x").empty(), kind == sAny);
    EXPECT_EQ(faultWith(count, "2147483648").empty(), kind != sInteger);
}

TEST_P(EveryCommand, TakesNoQuotationMarkThatIsNeverClosed) {
    const std::string line = lineOf(GetParam().name, GetParam().fewest, "1") + "\"";
    EXPECT_EQ(faultOf(line),
              std::string(GetParam().name) + " has a quotation mark that is never closed");
}

INSTANTIATE_TEST_SUITE_P(Table, EveryCommand, testing::ValuesIn(sCommands),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(FindRule, IsNullForNamesThatTsplDoesNotHave) {
    for (const char* name : {"", "SIZES", "SIZ", "size", "BITMAP", " CLS", "CLS "}) {
        EXPECT_EQ(findRule(name), nullptr) << name;
    }
}

TEST(FindFault, TellsTheNumberOfArgumentsThatACommandTakes) {
    EXPECT_EQ(faultOf("CLS 1"), "CLS takes 0 arguments, not 1");
    EXPECT_EQ(faultOf("FEED 1,2"), "FEED takes 1 argument, not 2");
    EXPECT_EQ(faultOf("REFERENCE 4"), "REFERENCE takes 2 arguments, not 1");
    EXPECT_EQ(faultOf("SHIFT 1,2,3"), "SHIFT takes 1 to 2 arguments, not 3");
    EXPECT_EQ(faultOf("TEXT 1"), "TEXT takes 7 to 8 arguments, not 1");
}

TEST(FindFault, ShowsTheArgumentThatACommandDoesNotTake) {
    EXPECT_EQ(faultOf("FEED x"), "FEED does not take \"x\"");
    EXPECT_EQ(faultOf("BAR 1,2,\xFF,y"), "BAR does not take \"\\xff\"");
    EXPECT_EQ(faultOf("SIZE 4,6 cm"), "SIZE does not take \"6 cm\"");
    EXPECT_EQ(faultOf("SIZE 4,-6"), "SIZE does not take \"-6\"");
    EXPECT_EQ(faultOf("SIZE nan,inf"), "SIZE does not take \"nan\"");
    EXPECT_EQ(faultOf("BAR 1,,2,3"), "BAR does not take \"\"");
}

TEST(FindFault, TakesLengthsInEveryUnit) {
    for (const char* line :
         {"SIZE 4,6", "SIZE 4 in,6 inch", "SIZE 101.1 mm, 152.4 mm", "SIZE 812 dot,1218 dots",
          "GAP 0, 0", "GAP 2.0 mm, 0.0 mm", "BLINE 3 mm,0", "OFFSET 0.0 mm"}) {
        EXPECT_EQ(faultOf(line), "") << line;
    }
}

// A label is moved back to be peeled or torn off.
TEST(FindFault, TakesANegativeOffset) {
    EXPECT_EQ(faultOf("OFFSET -3.0 mm"), "");
}

TEST(FindFault, TakesAnyNumberOfArgumentsWhereThereIsNoEnd) {
    EXPECT_EQ(faultOf(lineOf("TLC39", 100, "1")), "");
    EXPECT_EQ(faultOf(lineOf("OUT", 5000, "1")), "");
}

// \["] stands for a quotation mark within a text.
TEST(FindFault, TakesAnythingInAComment) {
    for (const char* line : {"REM", "REM a, b", "REM 5\"", "rem \"\",\""}) {
        EXPECT_EQ(faultOf(line), "") << line;
    }
    EXPECT_EQ(findRule("REM")->effect, Effect::NoMark);
}

TEST(FindFault, TakesAQuotationMarkWithinAText) {
    EXPECT_EQ(faultOf("TEXT 0,0,\"3\",0,1,1,\"a 5\\[\"] pipe\""), "");
}

}  // namespace
}  // namespace tspl
