#include "intake/content/raster_job.h"

#include <cups/raster.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "intake/content/content_separation.h"
#include "intake/job_failure.h"

namespace intake::content {
namespace {

struct Close {
    void operator()(cups_raster_t* raster) const { cupsRasterClose(raster); }
};
using RasterReader = std::unique_ptr<cups_raster_t, Close>;

/// A row at a time would be a system call at a time.
class Output {
public:
    explicit Output(int descriptor) : descriptor_(descriptor) {}

    void write(std::span<const unsigned char> bytes) {
        buffer_.insert(buffer_.end(), bytes.begin(), bytes.end());
        constexpr std::size_t piece = std::size_t{1} << 16U;
        if (buffer_.size() >= piece) {
            flush();
        }
    }

    void flush() {
        std::span<const unsigned char> rest(buffer_);
        while (!rest.empty()) {
            const ssize_t written = ::write(descriptor_, rest.data(), rest.size());
            if (written < 0 && errno != EINTR) {
                failWithReason("Unable to hand the raster on");
            }
            rest = rest.subspan(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
        }
        buffer_.clear();
    }

private:
    int descriptor_;
    std::vector<unsigned char> buffer_;
};

bool isSeparable(const cups_page_header2_t& header) {
    return header.cupsBitsPerColor == 8 && header.cupsBitsPerPixel == 8 &&
           header.cupsColorSpace == CUPS_CSPACE_K && header.cupsWidth > 0 &&
           header.cupsHeight > 0 && header.cupsBytesPerLine >= header.cupsWidth;
}

class RasterJob {
public:
    RasterJob(int input, int output)
        : reader_(cupsRasterOpen(input, CUPS_RASTER_READ)), output_(output) {}

    void run() {
        constexpr unsigned syncWord = CUPS_RASTER_SYNC;
        output_.write({reinterpret_cast<const unsigned char*>(&syncWord), sizeof syncWord});
        cups_page_header2_t header;
        while (reader_ && cupsRasterReadHeader2(reader_.get(), &header) != 0) {
            copyPage(header);
        }
        output_.flush();
    }

private:
    void copyPage(cups_page_header2_t& header) {
        ++page_;
        // What is written is not compressed.
        header.cupsCompression = 0;
        output_.write({reinterpret_cast<const unsigned char*>(&header), sizeof header});
        row_.resize(header.cupsBytesPerLine);
        if (isSeparable(header)) {
            return separate(header);
        }
        for (unsigned i = 0; i < header.cupsHeight; ++i) {
            readRow();
            output_.write(row_);
        }
    }

    void separate(const cups_page_header2_t& header) {
        const std::vector<unsigned char> behind(header.cupsBytesPerLine - header.cupsWidth);
        ContentSeparation separation({header.cupsWidth, header.cupsHeight, header.HWResolution[0]},
                                     [&](std::span<const unsigned char> row) {
                                         output_.write(row);
                                         output_.write(behind);
                                     });
        for (unsigned i = 0; i < header.cupsHeight; ++i) {
            readRow();
            separation.push(std::span(row_).first(header.cupsWidth));
        }
    }

    void readRow() {
        const auto size = static_cast<unsigned>(row_.size());
        if (cupsRasterReadPixels(reader_.get(), row_.data(), size) != size) {
            output_.flush();
            throw JobFailure("Unable to read page " + std::to_string(page_) +
                             ": the raster ends inside it or is damaged");
        }
    }

    RasterReader reader_;
    Output output_;
    std::vector<unsigned char> row_;
    int page_ = 0;
};

}  // namespace

void separateRaster(int input, int output) {
    RasterJob(input, output).run();
}

}  // namespace intake::content
