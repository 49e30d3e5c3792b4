#include "tspl/code128.h"

#include <gtest/gtest.h>

#include "tspl/code_arguments.h"
#include "tspl/code_symbol.h"

namespace tspl {
namespace {

constexpr int sLibraryCode128 = 20;

std::vector<bool> modulesOf(const CodeSymbol& symbol) {
    return symbol.rows.size() == 1 ? symbol.rows.front().modules : std::vector<bool>();
}

// The code in the subsets that libzint chooses.
std::vector<bool> automatic(const std::string& content) {
    CodeRequest request;
    request.symbology = sLibraryCode128;
    return modulesOf(encode(request, content));
}

std::vector<bool> manual(const std::string& content) {
    return modulesOf(manualCode128(content));
}

std::string faultOf(const std::string& content) {
    try {
        manualCode128(content);
    } catch (const CodeFault& fault) {
        return fault.what();
    }
    return "";
}

TEST(ManualCode128, HasThePatternOfEveryCharacterOfSubsetB) {
    for (char c = ' '; c < '\x7f'; ++c) {
        const std::string text = {c, 'a'};
        EXPECT_EQ(manual("!104" + text), automatic(text)) << text;
    }
}

TEST(ManualCode128, HasThePatternOfEveryPairOfDigits) {
    for (int pair = 0; pair < 100; ++pair) {
        const std::string digits = std::to_string(pair / 10) + std::to_string(pair % 10) + "00";
        EXPECT_EQ(manual("!105" + digits), automatic(digits)) << digits;
    }
}

TEST(ManualCode128, HasControlCharactersInSubsetA) {
    EXPECT_EQ(manual("!103\x01\x02\x1f"), automatic("\x01\x02\x1f"));
}

TEST(ManualCode128, BeginsInSubsetB) {
    EXPECT_EQ(manual("ab"), manual("!104ab"));
}

TEST(ManualCode128, ChangesItsSubset) {
    EXPECT_EQ(manual("!105123456!100ab"), automatic("123456ab"));
    EXPECT_EQ(manual("!104ab!101\x01\x02"), automatic("ab\x01\x02"));
    EXPECT_EQ(manual("ab!099123456"), automatic("ab123456"));
}

TEST(ManualCode128, ShiftsOneCharacter) {
    EXPECT_EQ(manual("!104ab!098\x01"
                     "ab"),
              automatic("ab\x01"
                        "ab"));
}

TEST(ManualCode128, LeavesWhatIsNoControlAsItIs) {
    for (const char* text : {"!", "!!a", "!1", "!10x", "!095a", "!106a", "a!-12"}) {
        EXPECT_EQ(manual(text), automatic(text)) << text;
    }
}

TEST(ManualCode128, NamesForPeopleOnlyItsCharacters) {
    EXPECT_EQ(manualCode128("!105!102!100Ab!09912").text, "Ab12");
}

TEST(ManualCode128, RefusesWhatItsSubsetDoesNotHave) {
    EXPECT_EQ(faultOf("!1051"), "subset C takes pairs of digits, not 1");
    EXPECT_EQ(faultOf("!10512a"), "subset C takes pairs of digits, not a");
    EXPECT_EQ(faultOf("!103a"), "subset A does not have a");
    EXPECT_EQ(faultOf("\xe4"), "subset B does not have \\xe4");
    EXPECT_EQ(faultOf("\x01"), "subset B does not have \\x01");
    EXPECT_EQ(faultOf("a!104"), "a start stands within the code: !104");
}

}  // namespace
}  // namespace tspl
