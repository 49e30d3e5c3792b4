#include <cctype>
#include <regex>

#include "tests/unit/driver/test_support.h"

namespace {

std::string notice() {
    return TestPrinter().getCopyRight();
}

TEST(MakersNotice, IsAPrefixAndUpperCaseHexadecimalBytesWithSingleBlanksBetween) {
    EXPECT_TRUE(std::regex_match(notice(), std::regex("MFT:[0-9A-F]{2}( [0-9A-F]{2})*")))
        << notice();
}

TEST(MakersNotice, DecodesToAReadableText) {
    const std::string hexadecimal = notice().substr(4);
    std::string text;
    for (std::size_t at = 0; at < hexadecimal.size(); at += 3) {
        text += static_cast<char>(std::stoi(hexadecimal.substr(at, 2), nullptr, 16));
    }
    EXPECT_GT(text.size(), 10U);
    for (const char c : text) {
        EXPECT_TRUE(std::isprint(static_cast<unsigned char>(c)) != 0) << static_cast<int>(c);
    }
    EXPECT_NE(text.find("Copyright"), std::string::npos) << text;
}

TEST(MakersNotice, IsTheSameForEveryPrinter) {
    EXPECT_EQ(TestPrinter().getCopyRight(), TestPrinter().getCopyRight());
}

}  // namespace
