// Queue descriptions and option strings that are none.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "tests/system/fault_job.h"
#include "tests/system/ppd_writer.h"
#include "tests/system/test_job.h"

namespace {

namespace fs = std::filesystem;

const std::string noPaper = "ERROR: Paper size must not less than 1.0 : (0.000000, 0.000000)";

class BadSettings : public testing::Test {
protected:
    const reference::Job job = labelJob({greyPage(16, 6)});
    const std::string raster = rasterStream(job.pages, RasterForm::Plain);
    FaultRuns setting{job};

    FilterCall callWithPpd(const std::string& path) const {
        FilterCall call = setting.callWith(raster);
        call.environment.emplace_back("PPD", path);
        return call;
    }
    void expectNoPaper(const std::string& path) const {
        const FilterResult result = runFilter(callWithPpd(path));
        EXPECT_EQ(result.status, 1) << path;
        EXPECT_EQ(result.standardOutput, "") << path;
        EXPECT_EQ(complaintsIn(result.standardError), reference::Lines{noPaper}) << path;
    }
    std::string ppdText() const { return ppdFor(job.settings, job.ppdSize).text(); }
};

TEST_F(BadSettings, APpdThatIsMissingEndsTheJob) {
    expectNoPaper("/nonexistent/queue.ppd");
    expectNoPaper("");
}

TEST_F(BadSettings, APpdThatMayNotBeReadEndsTheJob) {
    const std::string path = setting.folder().write("secret.ppd", ppdText());
    fs::permissions(path, fs::perms::none);
    expectNoPaper(path);
}

TEST_F(BadSettings, APpdThatIsAFolderEndsTheJob) {
    expectNoPaper(setting.folder().path(""));
}

TEST_F(BadSettings, APpdThatIsEmptyEndsTheJob) {
    expectNoPaper(setting.folder().write("empty.ppd", ""));
}

TEST_F(BadSettings, APpdOfBinaryDataEndsTheJob) {
    std::mt19937 random(7);
    for (const std::size_t size : {1U, 100U, 5000U, 200000U}) {
        std::string bytes;
        for (std::size_t i = 0; i < size; ++i) {
            bytes += static_cast<char>(random());
        }
        expectNoPaper(setting.folder().write("binary.ppd", bytes));
        expectNoPaper(setting.folder().write("binary.ppd", "*PPD-Adobe: \"4.3\"\n" + bytes));
        expectNoPaper(setting.folder().write("binary.ppd", std::string(size, '\0')));
    }
}

TEST_F(BadSettings, APpdThatIsCutAnywhereEndsTheJobOrPrints) {
    const std::string text = ppdText();
    for (std::size_t kept = 0; kept < text.size(); kept += 17 * faultStride) {
        const std::string path =
            setting.folder().write("cut-" + std::to_string(kept) + ".ppd", text.substr(0, kept));
        setting.swarm().run(callWithPpd(path), [kept](const FilterResult& result) {
            const reference::Lines complaints = complaintsIn(result.standardError);
            if (result.status == 0) {
                EXPECT_EQ(complaints, reference::Lines()) << kept;
                EXPECT_TRUE(result.standardOutput.ends_with("\r\nPRINT 1,1\r\n")) << kept;
            } else {
                EXPECT_EQ(result.status, 1) << kept;
                EXPECT_EQ(complaints.size(), 1U) << kept;
                EXPECT_EQ(result.standardOutput, "") << kept;
            }
        });
    }
}

// The system takes no single argument of more than 128 KiB, so what stands here for an option
// string of a megabyte is the longest that can be handed over.
constexpr std::size_t longestArgument = std::size_t{128} * 1024 - 1;

TEST_F(BadSettings, TheLongestOptionStringThatCanBeHandedOverChangesNothing) {
    for (const std::string& piece :
         {std::string("x"), std::string("a=b "), std::string("{"), std::string("\""),
          std::string("'"), std::string("\\"), std::string(" "), std::string("PageSize="),
          std::string("\xFF\x01")}) {
        std::string options;
        while (options.size() + piece.size() <= longestArgument) {
            options += piece;
        }
        FilterCall call = setting.callWith(raster);
        call.arguments[4] = options;
        setting.expectOutcome(call, job.pages, "options of " + piece);
    }
}

}  // namespace
