// A page whose job is cancelled, in processes that end.
#include <array>
#include <csignal>

#include "filter/cancellation.h"
#include "filter/tspl_printer.h"
#include "tests/support/child_process.h"
#include "tests/unit/filter/test_support.h"

namespace {

class OpenTsplPrinter : public TsplPrinter {
public:
    using TsplPrinter::doPrintImage;
};

// A stream that hands everything on to a file, in small pieces, and is the end of the job as soon
// as the first piece leaves it.
class FatefulStream {
public:
    explicit FatefulStream(std::FILE* target) : target_(target) {
        stream_ = fopencookie(this, "w", {nullptr, write, nullptr, nullptr});
        std::setvbuf(stream_, buffer_.data(), _IOFBF, buffer_.size());
    }
    ~FatefulStream() { std::fclose(stream_); }
    FatefulStream(const FatefulStream&) = delete;
    FatefulStream& operator=(const FatefulStream&) = delete;

    std::FILE* get() const { return stream_; }

private:
    static ssize_t write(void* cookie, const char* bytes, std::size_t size) {
        auto& self = *static_cast<FatefulStream*>(cookie);
        if (!self.written_) {
            self.written_ = true;
            std::raise(SIGTERM);
        }
        return static_cast<ssize_t>(std::fwrite(bytes, 1, size, self.target_));
    }

    std::FILE* target_;
    std::FILE* stream_;
    std::array<char, 64> buffer_{};
    bool written_ = false;
};

constexpr std::size_t side = 80;

// Prints a blank page of 80 × 80 dots to a stream.
void printPage(std::FILE* stream) {
    OpenTsplPrinter printer;
    cups_page_header2_t header = {};
    header.NumCopies = 1;
    const std::string pixels(side * side, '\xFF');
    *printer.getOutputStreams() = {stream};
    printer.setPageHeader(&header);
    sPrinter = &printer;
    printer.doPrintImage(reinterpret_cast<const unsigned char*>(pixels.data()), side, side, side);
    std::fflush(stream);
    sPrinter = nullptr;
}

TEST(CancelledPage, IsNotBegun) {
    const ScratchStream output;
    EXPECT_EQ(endOfChild([&output] {
                  heedCancellation(-1);
                  std::raise(SIGTERM);
                  printPage(output.get());
                  return 0;
              }),
              0);
    std::fseek(output.get(), 0, SEEK_END);
    EXPECT_EQ(output.text(), "");
}

TEST(CancelledPage, IsSentToTheEndOfItsBitmapAndNotPrinted) {
    const ScratchStream output;
    EXPECT_EQ(endOfChild([&output] {
                  heedCancellation(-1);
                  const FatefulStream stream(output.get());
                  printPage(stream.get());
                  std::fflush(output.get());
                  return 0;
              }),
              0);
    std::fseek(output.get(), 0, SEEK_END);
    EXPECT_EQ(output.text(), "BITMAP 0,0,10,80,0," + std::string(800, '\0') + "\r\n");
}

// The whole page fits the stream's buffer: it leaves in one piece, and the job ends meanwhile.
TEST(CancelledPage, IsNotPrintedWhenTheLastOfItsBitmapIsStillOnItsWay) {
    const ScratchStream output;
    EXPECT_EQ(endOfChild([&output] {
                  heedCancellation(-1);
                  const FatefulStream stream(output.get());
                  std::array<char, 4096> large{};
                  std::setvbuf(stream.get(), large.data(), _IOFBF, large.size());
                  printPage(stream.get());
                  std::fflush(output.get());
                  return 0;
              }),
              0);
    std::fseek(output.get(), 0, SEEK_END);
    EXPECT_EQ(output.text(), "BITMAP 0,0,10,80,0," + std::string(800, '\0') + "\r\n");
}

}  // namespace
