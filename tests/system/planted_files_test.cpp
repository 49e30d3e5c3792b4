// What others may have put where the filter writes, for root and for an ordinary user.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <functional>

#include "tests/system/comparison.h"
#include "tests/system/fault_job.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/test_job.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* traceFile = "/tmp/xxxxx.log";

enum class User { Root, Ordinary };

std::string userName(const testing::TestParamInfo<User>& user) {
    return user.param == User::Root ? "AsRoot" : "AsOrdinaryUser";
}

/// A job of one page, and a file that belongs to somebody else.
class PlantedFile : public testing::TestWithParam<User> {
protected:
    const reference::Job job = labelJob({greyPage(16, 6)});
    const SpoolFiles files;
    const TemporaryFolder folder;
    const std::string precious = folder.write("precious", "kept");
    FilterCall call = callFor(job, folder);

    PlantedFile() {
        if (GetParam() == User::Ordinary) {
            call.userId = ordinaryUser();
        }
        call.longestRun = 20;
        // A filter that counts its coverage must find a place for the counters.
        fs::permissions(folder.path(""), fs::perms::all);
        call.environment.emplace_back("GCOV_PREFIX", folder.path(""));
    }
    ~PlantedFile() override {
        files.takeDumps();
        fs::remove_all(traceFile);
    }

    uid_t filterUser() const { return call.userId.value_or(0); }

    // The job prints as if nothing were there, and the precious file stays what it was.
    FilterResult expectPrints() const {
        FilterResult result = runFilter(call);
        EXPECT_EQ(result.status, 0);
        expectSameBytes(reference::runJob(job).standardOutput, result.standardOutput, "output");
        EXPECT_EQ(readFile(precious), "kept");
        return result;
    }
};

class PlantedTrace : public PlantedFile {};

TEST_P(PlantedTrace, ThatIsASymbolicLinkIsNotFollowed) {
    fs::create_symlink(precious, traceFile);
    EXPECT_EQ(complaintsIn(expectPrints().standardError), reference::Lines());
    EXPECT_TRUE(fs::is_symlink(traceFile));
}

TEST_P(PlantedTrace, ThatLeadsToAMissingFileDoesNotCreateIt) {
    fs::create_symlink(folder.path("missing"), traceFile);
    expectPrints();
    EXPECT_FALSE(fs::exists(folder.path("missing")));
}

TEST_P(PlantedTrace, ThatIsASecondNameOfAFileLeavesTheFile) {
    ASSERT_EQ(chown(precious.c_str(), filterUser(), filterUser()), 0);
    fs::create_hard_link(precious, traceFile);
    expectPrints();
}

TEST_P(PlantedTrace, ThatBelongsToAnotherUserIsNotWritten) {
    const uid_t other = GetParam() == User::Root ? ordinaryUser() : 0;
    fs::copy_file(precious, traceFile);
    ASSERT_EQ(chmod(traceFile, 0666), 0);
    ASSERT_EQ(chown(traceFile, other, other), 0);
    expectPrints();
    EXPECT_EQ(readFile(traceFile), "kept");
}

TEST_P(PlantedTrace, ThatIsANamedPipeIsNotWaitedFor) {
    ASSERT_EQ(mkfifo(traceFile, 0666), 0);
    ASSERT_EQ(chmod(traceFile, 0666), 0);
    expectPrints();
}

TEST_P(PlantedTrace, ThatIsTheUsersOwnIsWrittenAnew) {
    fs::copy_file(precious, traceFile);
    ASSERT_EQ(chown(traceFile, filterUser(), filterUser()), 0);
    expectPrints();
    EXPECT_EQ(files.takeTrace(), reference::runJob(job).trace);
}

INSTANTIATE_TEST_SUITE_P(BothUsers, PlantedTrace, testing::Values(User::Root, User::Ordinary),
                         userName);

/// Recording into a folder that every user may write to.
class PlantedRecording : public PlantedFile {
protected:
    const TemporaryFolder target;
    const std::string base = target.path("rec");

    PlantedRecording() {
        fs::permissions(target.path(""), fs::perms::all);
        PpdWriter ppd = ppdFor(job.settings, job.ppdSize);
        ppd.setChoice("RecordPrinterCommands", "1");
        ppd.setAttribute("kestoFilterOutputFile", base);
        call.environment.emplace_back("PPD", folder.write("recording.ppd", ppd.text()));
    }
    // Does something with every name that a recording of the next seconds can have.
    void plant(const std::function<void(const std::string&)>& make) const {
        for (std::time_t time = std::time(nullptr); time < std::time(nullptr) + 10; ++time) {
            char stamp[64];
            std::strftime(stamp, sizeof stamp, "-%Y%m%d%H%M%S.bin", std::localtime(&time));
            make(base + stamp);
        }
    }
    // The recording has the next name that is free, and nothing to complain of.
    void expectNextName() const {
        const std::size_t planted = target.names().size();
        EXPECT_EQ(complaintsIn(expectPrints().standardError), reference::Lines());
        const std::set<std::string> names = target.names();
        EXPECT_EQ(names.size(), planted + 1);
        const auto own = std::find_if(names.begin(), names.end(), [](const std::string& name) {
            return name.ends_with("-2.bin");
        });
        ASSERT_NE(own, names.end());
        expectSameBytes(reference::runJob(job).standardOutput, readFile(target.path(*own)),
                        "recording");
    }
};

TEST_P(PlantedRecording, ThatIsASymbolicLinkIsNotFollowed) {
    plant([this](const std::string& name) { fs::create_symlink(precious, name); });
    expectNextName();
}

TEST_P(PlantedRecording, ThatIsANamedPipeIsNotWaitedFor) {
    plant([](const std::string& name) {
        mkfifo(name.c_str(), 0666);
        chmod(name.c_str(), 0666);
    });
    expectNextName();
}

TEST_P(PlantedRecording, IsReadableByTheSpoolersUserAlone) {
    expectPrints();
    const std::set<std::string> names = target.names();
    ASSERT_EQ(names.size(), 1U);
    struct stat status = {};
    ASSERT_EQ(stat(target.path(*names.begin()).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600U);
    EXPECT_EQ(status.st_uid, filterUser());
}

INSTANTIATE_TEST_SUITE_P(BothUsers, PlantedRecording, testing::Values(User::Root, User::Ordinary),
                         userName);

/// Dumps: an ordinary user cannot write any, see OrdinaryUser.
class PlantedDump : public PlantedFile {};

// Names of the raw dump in the next seconds, with the running numbers from 0 to `numbers` - 1.
std::vector<std::string> nextDumpNames(int numbers) {
    std::vector<std::string> names;
    for (std::time_t time = std::time(nullptr); time < std::time(nullptr) + 10; ++time) {
        const std::tm local = *std::localtime(&time);
        for (int number = 0; number < numbers; ++number) {
            names.push_back(
                reference::formatted("/var/spool/cups/tmp/origin_%d-%d-%d_%d_%d_%d_%d.bmp",
                                     local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                                     local.tm_hour, local.tm_min, local.tm_sec, number));
        }
    }
    return names;
}

void removeAll(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        fs::remove(name);
    }
}

TEST_P(PlantedDump, ThatIsASymbolicLinkIsPassedOver) {
    const std::vector<std::string> planted = nextDumpNames(1);
    for (const std::string& name : planted) {
        fs::create_symlink(precious, name);
    }
    const FilterResult result = expectPrints();
    EXPECT_EQ(complaintsIn(result.standardError), reference::Lines());
    removeAll(planted);
    EXPECT_EQ(files.takeDumps().size(), 2U);
}

TEST_P(PlantedDump, IsGivenUpWhereAThousandNamesAreTaken) {
    const std::vector<std::string> planted = nextDumpNames(1000);
    for (const std::string& name : planted) {
        fs::create_symlink(precious, name);
    }
    const FilterResult result = expectPrints();
    removeAll(planted);
    EXPECT_NE(result.standardError.find("\nKestoPrinter::saveImage: unable to open the file "
                                        "/var/spool/cups/tmp/origin_"),
              std::string::npos);
}

TEST_P(PlantedDump, IsReadableByTheSpoolersUserAlone) {
    expectPrints();
    std::size_t dumps = 0;
    for (const auto& entry : fs::directory_iterator("/var/spool/cups/tmp")) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with("origin_") || name.starts_with("dithered_")) {
            ++dumps;
            EXPECT_EQ(entry.status().permissions(), fs::perms::owner_read | fs::perms::owner_write)
                << name;
        }
    }
    EXPECT_GE(dumps, 2U);
}

INSTANTIATE_TEST_SUITE_P(OneUser, PlantedDump, testing::Values(User::Root), userName);

}  // namespace
