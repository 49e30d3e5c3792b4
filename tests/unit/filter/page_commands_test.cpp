// CLS, BITMAP and PRINT.
#include "filter/tspl_commands.h"
#include "tests/unit/filter/test_support.h"

namespace {

class PageCommand : public CommandTest {};

TEST_F(PageCommand, SetClsClearsTheImage) {
    setCls();
    EXPECT_EQ(sent(), "CLS\r\n");
}

TEST_F(PageCommand, SetPrintSendsSetsAndCopies) {
    setPrint(1, 3);
    setPrint(2, 1);
    EXPECT_EQ(sent(), "PRINT 1,3\r\nPRINT 2,1\r\n");
}

TEST_F(PageCommand, SetBitmapCmdHeadEndsWithACommaForItsDataToFollow) {
    setBitmapCmdHead(1, 2, 3, 4, 5);
    EXPECT_EQ(sent(), "BITMAP 1,2,3,4,5,");
}

TEST_F(PageCommand, EndPagePrintsOneCopyOfOneSetWhateverTheSettings) {
    Settings settings = {};
    settings.pageWidth = 50;
    settings.Darkness = 9;
    endPage(settings);
    EXPECT_EQ(sent(), "\r\nPRINT 1,1\r\n");
}

TEST_F(PageCommand, GoesToEveryStreamOfThePrinter) {
    const ScratchStream recording;
    sPrinter->getOutputStreams()->push_back(recording.get());
    setCls();
    setPrint(1, 2);
    EXPECT_EQ(sent(), "CLS\r\nPRINT 1,2\r\n");
    EXPECT_EQ(recording.text(), sent());
}

}  // namespace
