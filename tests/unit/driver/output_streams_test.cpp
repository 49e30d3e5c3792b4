#include <fcntl.h>
#include <unistd.h>

#include <climits>

#include "tests/unit/driver/test_support.h"

namespace {

// A stream that notes its mark in a common record whenever it is written to.
struct NotingStream {
    std::string* record;
    char mark;

    static ssize_t write(void* stream, const char* text, std::size_t size) {
        auto* self = static_cast<NotingStream*>(stream);
        *self->record += self->mark + std::string(text, size);
        return static_cast<ssize_t>(size);
    }
    std::FILE* open() {
        cookie_io_functions_t functions = {};
        functions.write = write;
        std::FILE* file = fopencookie(this, "w", functions);
        std::setvbuf(file, nullptr, _IONBF, 0);
        return file;
    }
};

// Two unbuffered streams with one record of who was written to when.
class TwoStreams : public testing::Test {
protected:
    std::string record;
    NotingStream first{&record, '1'};
    NotingStream second{&record, '2'};
    TestPrinter printer;

    TwoStreams() { *printer.getOutputStreams() = {first.open(), second.open()}; }
    ~TwoStreams() override {
        for (std::FILE* stream : *printer.getOutputStreams()) {
            std::fclose(stream);
        }
    }
};

TEST_F(TwoStreams, AreWrittenInListOrderByPrintByte) {
    printer.printByte('b');
    EXPECT_EQ(record, "1b2b");
}

TEST_F(TwoStreams, AreWrittenInListOrderByPrintStr) {
    printer.printStr("s");
    EXPECT_EQ(record, "1s2s");
}

TEST_F(TwoStreams, AreWrittenInListOrderByPrintBytes) {
    const unsigned char bytes[] = {'x', 'y'};
    printer.printBytes(bytes, 2);
    EXPECT_EQ(record, "1xy2xy");
}

TEST_F(TwoStreams, AreWrittenInListOrderByPrintFormat) {
    printer.printFormat("%s", "f");
    EXPECT_EQ(record, "1f2f");
}

// Standard output and one more stream.
class RecordedPrinter : public testing::Test {
protected:
    ScratchStream recording;
    TestPrinter printer;

    RecordedPrinter() { printer.getOutputStreams()->push_back(recording.get()); }

    template <typename Action>
    void expectOnBoth(Action action, const std::string& expected) {
        EXPECT_EQ(outputOf(action), expected);
        EXPECT_EQ(recording.text(), expected);
    }
};

TEST_F(RecordedPrinter, HasStandardOutputFirst) {
    EXPECT_EQ(*printer.getOutputStreams(), (std::list<std::FILE*>{stdout, recording.get()}));
}

TEST_F(RecordedPrinter, GetsTheIdenticalFormattedTextOnBothStreams) {
    expectOnBoth([this] { printer.printFormat("SIZE %.1f mm, %.1f mm\r\n", 50.0, 30.0); },
                 "SIZE 50.0 mm, 30.0 mm\r\n");
}

TEST_F(RecordedPrinter, FormatsManyValuesAfreshForEachStream) {
    expectOnBoth([this] { printer.printFormat("%d,%s,%.2f,%c,%ld", 7, "t", 0.25, 'q', LONG_MAX); },
                 "7,t,0.25,q," + std::to_string(LONG_MAX));
}

TEST_F(RecordedPrinter, DoesNotTakePrintStrForAFormat) {
    expectOnBoth([this] { printer.printStr("100%d %s\r\n"); }, "100%d %s\r\n");
}

TEST_F(RecordedPrinter, GetsEveryByteOnBothStreams) {
    const std::string bytes("\0\n\xFF\r", 4);
    const auto print = [this, &bytes] {
        for (const char byte : bytes) {
            printer.printByte(static_cast<unsigned char>(byte));
        }
    };
    expectOnBoth(print, bytes);
}

TEST_F(RecordedPrinter, GetsBlocksWithZeroBytesOnBothStreams) {
    const unsigned char block[] = {0x00, 0x41, 0x00, 0xFE, 0x0A};
    expectOnBoth([this, &block] { printer.printBytes(block, 4); }, std::string("\0\x41\0\xFE", 4));
}

TEST_F(RecordedPrinter, GetsNothingForAnEmptyBlock) {
    const unsigned char block[] = {0x41};
    expectOnBoth([this, &block] { printer.printBytes(block, 0); }, "");
}

TEST_F(RecordedPrinter, KeepsTheOrderOfMixedOperations) {
    const unsigned char block[] = {'c', 'd'};
    const auto print = [this, &block] {
        printer.printStr("a");
        printer.printByte('b');
        printer.printBytes(block, 2);
        printer.printFormat("%d", 5);
    };
    expectOnBoth(print, "abcd5");
}

class PrintResult : public testing::Test {
protected:
    ScratchStream scratch;
    std::FILE* readOnly = std::fopen("/dev/null", "r");
    TestPrinter printer;

    ~PrintResult() override { std::fclose(readOnly); }
};

TEST_F(PrintResult, IsFalseForAllButFormattedText) {
    *printer.getOutputStreams() = {scratch.get()};
    const unsigned char block[] = {1};
    EXPECT_FALSE(printer.printByte(1));
    EXPECT_FALSE(printer.printStr("a"));
    EXPECT_FALSE(printer.printBytes(block, 1));
}

TEST_F(PrintResult, OfFormattedTextIsItsLength) {
    *printer.getOutputStreams() = {scratch.get()};
    EXPECT_EQ(printer.printFormat("%s\r\n", "CLS"), 5);
}

TEST_F(PrintResult, OfFormattedTextIsThatOfTheLastStream) {
    *printer.getOutputStreams() = {scratch.get(), readOnly};
    EXPECT_LT(printer.printFormat("text"), 0);
    *printer.getOutputStreams() = {readOnly, scratch.get()};
    EXPECT_EQ(printer.printFormat("text"), 4);
}

TEST_F(PrintResult, DoesNotKeepAFailedStreamFromBeingFollowedByAGoodOne) {
    *printer.getOutputStreams() = {readOnly, scratch.get()};
    printer.printStr("after");
    EXPECT_EQ(scratch.text(), "after");
}

TEST(DestroyedPrinter, LeavesEveryStreamOpen) {
    const ScratchStream recording;
    {
        TestPrinter printer;
        printer.getOutputStreams()->push_back(recording.get());
        outputOf([&printer] { printer.printStr("before "); });
    }
    EXPECT_NE(fcntl(fileno(recording.get()), F_GETFD), -1);
    EXPECT_NE(fcntl(STDOUT_FILENO, F_GETFD), -1);
    EXPECT_GE(std::fputs("after", recording.get()), 0);
    EXPECT_EQ(recording.text(), "before after");
}

}  // namespace
