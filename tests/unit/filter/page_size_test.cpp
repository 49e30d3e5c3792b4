// The page size of a queue in millimetres.
#include <memory>

#include "filter/job_settings.h"
#include "tests/unit/filter/test_support.h"

namespace {

struct PpdCloser {
    void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};

class PageSizeLookup : public testing::Test {
protected:
    Settings settings = {};
    std::string log;

    PageSizeLookup() { settings.pageWidth = settings.pageHeight = 77; }

    void lookUp(const QueueText& queue, const char* choice = nullptr) {
        const TemporaryFolder folder;
        const std::unique_ptr<ppd_file_t, PpdCloser> ppd(
            ppdOpenFile(folder.write("queue.ppd", queue.text()).c_str()));
        ASSERT_NE(ppd, nullptr);
        ppdMarkDefaults(ppd.get());
        if (choice != nullptr) {
            ppdMarkOption(ppd.get(), "PageSize", choice);
        }
        log = errorOutputOf([&] { getPageWidthPageHeight(ppd.get(), &settings); });
    }
    void expectSize(double width, double height) const {
        EXPECT_EQ(settings.pageWidth, static_cast<float>(width));
        EXPECT_EQ(settings.pageHeight, static_cast<float>(height));
    }
};

QueueText twoSizes() {
    return QueueText().sizes({{"w100h200", 100, 200}, {"A4", 595, 842}});
}

TEST_F(PageSizeLookup, TakesAPointFor0Point3528Millimetres) {
    lookUp(twoSizes());
    expectSize(35.28, 70.56);
}

TEST_F(PageSizeLookup, TakesTheChosenSize) {
    lookUp(twoSizes(), "A4");
    expectSize(209.916, 297.0576);
}

TEST_F(PageSizeLookup, LogsTheSizeInPointsAndInMillimetres) {
    lookUp(twoSizes());
    EXPECT_EQ(log,
              "DEBUG:PageSizeName: w100h200\n"
              "DEBUG:Custom Size: (100.000000,200.000000,9.000000,18.000000,73.000000,"
              "164.000000)\n"
              "DEBUG:Set page size: width 35.279999 mm, height 70.559998 mm\n");
}

TEST_F(PageSizeLookup, FindsACustomSize) {
    QueueText queue = twoSizes();
    queue.line("*VariablePaperSize: True")
        .line("*ParamCustomPageSize Width: 1 points 36 3600")
        .line("*ParamCustomPageSize Height: 2 points 36 3600")
        .line("*ParamCustomPageSize WidthOffset: 3 points 0 0")
        .line("*ParamCustomPageSize HeightOffset: 4 points 0 0")
        .line("*ParamCustomPageSize Orientation: 5 int 0 0")
        .line("*CustomPageSize True: \"\"")
        .line("*HWMargins: 1 2 3 4");
    lookUp(queue, "Custom.250x500");
    expectSize(88.2, 176.4);
    EXPECT_EQ(log.find("DEBUG:PageSizeName: Custom\n"
                       "DEBUG:Custom Size: (250.000000,500.000000,"),
              0U)
        << log;
}

TEST_F(PageSizeLookup, GivesNoSizeForAChoiceWithoutDimensions) {
    lookUp(QueueText().option("PageSize", {"Odd"}));
    expectSize(0, 0);
    EXPECT_EQ(log,
              "DEBUG:PageSizeName: Odd\n"
              "DEBUG:Custom Size: (0.000000,0.000000,0.000000,0.000000,0.000000,0.000000)\n"
              "DEBUG:Set page size: width 0.000000 mm, height 0.000000 mm\n");
}

TEST_F(PageSizeLookup, GivesNoSizeWithoutTheOption) {
    lookUp(QueueText());
    expectSize(0, 0);
    EXPECT_EQ(log, "DEBUG:PageSizeName: \n");
}

TEST_F(PageSizeLookup, GivesNoSizeWithoutAPpd) {
    log = errorOutputOf([this] { getPageWidthPageHeight(nullptr, &settings); });
    expectSize(0, 0);
    EXPECT_EQ(log, "DEBUG:PageSizeName: \n");
}

TEST_F(PageSizeLookup, ChangesNothingElse) {
    settings.Darkness = 5;
    lookUp(twoSizes());
    EXPECT_EQ(settings.Darkness, 5);
    EXPECT_STREQ(settings.PageSize, "");
}

}  // namespace
