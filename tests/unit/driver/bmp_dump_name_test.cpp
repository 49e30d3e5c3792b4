// Names of the image dumps.
#include <regex>

#include "tests/unit/driver/test_support.h"

namespace {

// Before any test can have dumped an image.
const std::uint64_t indexAtStart = page_index;

class DumpName : public testing::Test {
protected:
    TemporaryFolder folder;
    TestPrinter printer;

    DumpName() { printer.setImagePath(folder.path("shot_%d-%d-%d_%d_%d_%d_%ld.bmp")); }

    std::string dump() {
        const unsigned char pixels[] = {1, 2, 3, 4};
        return errorOutputOf([&] { printer.saveImage(pixels, 4, 1, 4, 8); });
    }
    // Whether the folder holds the dump of this number, made in this time.
    bool holds(const TimeWindow& window, std::uint64_t index) const {
        for (const std::tm& time : window.times()) {
            const std::string name =
                "shot_" + dumpTime(time) + "_" + std::to_string(index) + ".bmp";
            if (folder.names().count(name) != 0) {
                return true;
            }
        }
        return false;
    }
};

TEST_F(DumpName, CountsFromZeroInEveryProcess) {
    EXPECT_EQ(indexAtStart, 0U);
}

TEST_F(DumpName, CarriesTheLocalTimeAndTheRunningNumber) {
    const TimeWindow window;
    const std::uint64_t index = page_index;
    EXPECT_EQ(dump(), "");
    EXPECT_EQ(folder.names().size(), 1U);
    EXPECT_TRUE(holds(window, index)) << *folder.names().begin();
}

TEST_F(DumpName, HasNumbersWithoutLeadingZeros) {
    const EnvironmentVariable zone("TZ", timeZoneOfFiveMinutesPastNine().c_str());
    const TimeWindow window;
    const std::uint64_t index = page_index;
    dump();
    EXPECT_TRUE(holds(window, index));
    const std::string pattern =
        "shot_[0-9]{4}-[1-9][0-9]?-[1-9][0-9]?_9_5_[0-9]{1,2}_" + std::to_string(index) + "\\.bmp";
    EXPECT_TRUE(std::regex_match(*folder.names().begin(), std::regex(pattern)))
        << *folder.names().begin();
}

TEST_F(DumpName, DiffersForTwoDumpsOfTheSameSecond) {
    const TimeWindow window;
    const std::uint64_t index = page_index;
    dump();
    dump();
    EXPECT_EQ(folder.names().size(), 2U);
    EXPECT_TRUE(holds(window, index));
    EXPECT_TRUE(holds(window, index + 1));
    EXPECT_EQ(page_index, index + 2);
}

TEST_F(DumpName, IsGivenOnStandardErrorWhenTheFileCannotBeOpened) {
    printer.setImagePath(folder.path("missing/%d-%d-%d_%d_%d_%d_%ld.bmp"));
    const TimeWindow window;
    const std::uint64_t index = page_index;
    const std::string message = dump();
    std::set<std::string> expected;
    for (const std::tm& time : window.times()) {
        expected.insert("KestoPrinter::saveImage: unable to open the file " +
                        folder.path("missing/") + dumpTime(time) + "_" + std::to_string(index) +
                        ".bmp\n");
    }
    EXPECT_EQ(expected.count(message), 1U) << message;
}

TEST_F(DumpName, UsesUpANumberEvenWhenTheFileCannotBeOpened) {
    printer.setImagePath(folder.path("missing/%d-%d-%d_%d_%d_%d_%ld.bmp"));
    const std::uint64_t index = page_index;
    dump();
    EXPECT_EQ(page_index, index + 1);
}

// The names of the coming seconds with this running number.
std::set<std::string> comingNames(std::uint64_t index) {
    std::set<std::string> names;
    for (std::time_t time = std::time(nullptr); time < std::time(nullptr) + 20; ++time) {
        names.insert("shot_" + dumpTime(*std::localtime(&time)) + "_" + std::to_string(index) +
                     ".bmp");
    }
    return names;
}

TEST_F(DumpName, HasTheNextNumberWhereAJobOfTheSameSecondHasTheName) {
    const TimeWindow window;
    const std::uint64_t index = page_index;
    std::size_t taken = 0;
    for (const std::uint64_t number : {index, index + 1}) {
        for (const std::string& name : comingNames(number)) {
            folder.write(name, "of another job");
            ++taken;
        }
    }
    EXPECT_EQ(dump(), "");
    EXPECT_TRUE(holds(window, index + 2));
    EXPECT_EQ(page_index, index + 3);
    EXPECT_EQ(folder.names().size(), taken + 1);
    for (const std::string& name : comingNames(index)) {
        if (folder.names().count(name) != 0) {
            EXPECT_EQ(readFile(folder.path(name)), "of another job") << name;
        }
    }
}

TEST_F(DumpName, IsTriedForAThousandNumbers) {
    printer.setImagePath(folder.write("fixed.bmp", "of another job"));
    const std::uint64_t index = page_index;
    EXPECT_EQ(dump(), "KestoPrinter::saveImage: unable to open the file " +
                          folder.path("fixed.bmp") + "\n");
    EXPECT_EQ(page_index, index + 1000);
    EXPECT_EQ(readFile(folder.path("fixed.bmp")), "of another job");
}

TEST_F(DumpName, IsThatOfAFileForItsUserAlone) {
    dump();
    ASSERT_EQ(folder.names().size(), 1U);
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(folder.path(*folder.names().begin())).permissions(),
              perms::owner_read | perms::owner_write);
}

TEST_F(DumpName, DoesNotLeadThroughALinkThatSomebodyPlanted) {
    const std::string target = folder.write("target", "kept");
    const std::string path = folder.path("fixed.bmp");
    std::filesystem::create_symlink(target, path);
    printer.setImagePath(path);
    EXPECT_EQ(dump(), "KestoPrinter::saveImage: unable to open the file " + path + "\n");
    EXPECT_EQ(readFile(target), "kept");
    EXPECT_TRUE(std::filesystem::is_symlink(path));
}

TEST_F(DumpName, MayBeLong) {
    std::string path = folder.path("");
    while (path.size() < 900) {
        path += "./";
    }
    printer.setImagePath(path + "long_%d-%d-%d_%d_%d_%d_%ld.bmp");
    EXPECT_EQ(dump(), "");
    EXPECT_EQ(folder.names().size(), 1U);
}

}  // namespace
