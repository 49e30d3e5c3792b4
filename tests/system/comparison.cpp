#include "tests/system/comparison.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

#include "tests/system/remarks.h"

namespace {

std::string hexadecimal(const std::string& decimal) {
    char text[32];
    std::snprintf(text, sizeof text, "0x%llx", std::stoull(decimal));
    return text;
}

void replaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

void expectDumps(const std::vector<reference::Bytes>& expected,
                 const std::vector<DumpFile>& actual) {
    ASSERT_EQ(expected.size(), actual.size()) << "number of dumps";
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(actual[i].index, static_cast<long>(i)) << actual[i].name;
        EXPECT_EQ(actual[i].kind, i % 2 == 0 ? "origin" : "dithered") << actual[i].name;
        EXPECT_TRUE(expected[i] == actual[i].content) << actual[i].name << " differs";
    }
}

}  // namespace

std::string withoutAddresses(const std::string& log) {
    static const std::regex pattern("pointer address: ([0-9]+)");
    std::string result = log;
    std::smatch match;
    for (std::string rest = log; std::regex_search(rest, match, pattern); rest = match.suffix()) {
        replaceAll(result, "pointer address: " + match.str(1) + ",", "pointer address: <address>,");
        replaceAll(result, "processing result, address: " + hexadecimal(match.str(1)) + "\n",
                   "processing result, address: <address>\n");
    }
    return result;
}

void expectSameBytes(const std::string& expected, const std::string& actual, const char* what) {
    const auto difference =
        std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end()).first;
    EXPECT_TRUE(expected == actual)
        << what << ": expected " << expected.size() << " bytes, got " << actual.size()
        << ", first difference at byte " << difference - expected.begin();
}

void expectOutcome(const reference::Outcome& expected, const FilterResult& actual,
                   const SpoolFiles& files) {
    EXPECT_EQ(expected.status, actual.status);
    expectSameBytes(expected.standardOutput, actual.standardOutput, "standard output");
    EXPECT_EQ(expected.standardError, withoutRemarks(withoutAddresses(actual.standardError)));
    EXPECT_EQ(expected.trace, files.takeTrace());
    expectDumps(expected.dumps, files.takeDumps());
}
