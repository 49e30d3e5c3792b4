#include "intake/raster_road.h"

#include <cups/raster.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <memory>
#include <string>
#include <vector>

#include "intake/descriptor.h"
#include "intake/job_failure.h"
#include "intake/printing_step.h"
#include "intake/raster_page.h"
#include "intake/step_options.h"
#include "sizes/job_description.h"

namespace intake {
namespace {

struct Close {
    void operator()(cups_raster_t* raster) const { cupsRasterClose(raster); }
};
using RasterReader = std::unique_ptr<cups_raster_t, Close>;

RasterPage pageOf(const cups_page_header2_t& header) {
    return {header.cupsWidth,        header.cupsHeight,       header.cupsBytesPerLine,
            header.cupsBitsPerColor, header.cupsBitsPerPixel, header.cupsColorOrder,
            header.cupsColorSpace,   header.HWResolution[0],  header.HWResolution[1]};
}

unsigned copiesOf(const std::string& text) {
    unsigned copies = 1;
    std::from_chars(text.data(), text.data() + text.size(), copies);
    return std::max(copies, 1U);
}

class RasterRoad {
public:
    RasterRoad(const RoadPlan& plan, const TemporaryFolder& folder, Supervisor& supervisor)
        : plan_(plan), folder_(folder), supervisor_(supervisor) {}

    void print() {
        const Descriptor file = openFile(plan_.document.path);
        reader_.reset(cupsRasterOpen(file.number(), CUPS_RASTER_READ));
        try {
            printAllPages();
        } catch (const JobFailure&) {
            letFinish();
            throw;
        }
        if (printing_.filter == 0) {
            throw JobFailure("The document has no page to print");
        }
        finish();
    }

private:
    void printAllPages() {
        cups_page_header2_t header;
        while (reader_ && cupsRasterReadHeader2(reader_.get(), &header) != 0) {
            printPage(header);
        }
    }

    void printPage(cups_page_header2_t& header) {
        const RasterTreatment treatment = treatmentOf(pageOf(header), plan_.dpi);
        if (!treatment.refusal.empty()) {
            throw JobFailure("The raster cannot be printed: " + treatment.refusal);
        }
        ++page_;
        if (printing_.filter == 0) {
            start();
        }
        std::vector<unsigned char> line(std::max(header.cupsBytesPerLine, treatment.width));
        const unsigned given = header.cupsBytesPerLine;
        const unsigned width = header.cupsWidth;
        write(treatedHeader(header, treatment));
        for (unsigned row = 0; row < header.cupsHeight; ++row) {
            readLine(line, given);
            treat(line, width, treatment);
            write({line.data(), treatment.width});
        }
    }

    // Of K, where 0 is paper: chunks of 8 bits, as long as the page is wide.
    std::span<const unsigned char> treatedHeader(cups_page_header2_t& header,
                                                 const RasterTreatment& treatment) const {
        header.cupsWidth = treatment.width;
        header.cupsBytesPerLine = treatment.width;
        header.cupsColorSpace = CUPS_CSPACE_K;
        header.cupsCompression = 0;
        // As the first program of the chain; behind another one, that has seen to the copies.
        if (!plan_.arguments.file.empty() && header.NumCopies <= 1) {
            header.NumCopies = copiesOf(plan_.arguments.copies);
        }
        return {reinterpret_cast<const unsigned char*>(&header), sizeof header};
    }

    void readLine(std::vector<unsigned char>& line, unsigned size) const {
        if (cupsRasterReadPixels(reader_.get(), line.data(), size) == 0) {
            throw JobFailure("Unable to read page " + std::to_string(page_) +
                             ": the raster ends inside it or is damaged");
        }
    }

    static void treat(std::vector<unsigned char>& line, unsigned width,
                      const RasterTreatment& treatment) {
        if (treatment.isInverted) {
            std::transform(line.begin(), line.begin() + width, line.begin(),
                           [](unsigned char level) { return static_cast<unsigned char>(~level); });
        }
        if (width < treatment.width) {
            std::fill(line.begin() + width, line.end(), static_cast<unsigned char>(0));
        }
    }

    void start() {
        const std::string description = folder_.write(
            "layout.ppd", sizes::jobDescription(plan_.description, plan_.label.page,
                                                plan_.label.name, sizes::JobStep::Layout));
        Pipe raster = makePipe();
        const StepOptions options = stepOptions(plan_.options, plan_.label, false);
        printing_ = startPrinting(plan_, description, options.laidOut.text(),
                                  raster.readEnd.number(), folder_, supervisor_);
        output_ = std::move(raster.writeEnd);
        fcntl(output_.number(), F_SETFL, O_NONBLOCK);
        constexpr unsigned syncWord = CUPS_RASTER_SYNC;
        write({reinterpret_cast<const unsigned char*>(&syncWord), sizeof syncWord});
    }

    void write(std::span<const unsigned char> bytes) {
        buffer_.insert(buffer_.end(), bytes.begin(), bytes.end());
        constexpr std::size_t piece = 1U << 16U;
        if (buffer_.size() >= piece) {
            flush();
        }
    }

    void flush() {
        std::span<const unsigned char> rest(buffer_);
        while (!rest.empty()) {
            pollfd pipe{output_.number(), POLLOUT, 0};
            supervisor_.wait({&pipe, 1});
            const ssize_t written = ::write(output_.number(), rest.data(), rest.size());
            if (written > 0) {
                rest = rest.subspan(static_cast<std::size_t>(written));
            } else if (errno == EPIPE) {
                // The filter's end is the reason.
                return finishEarly();
            }
        }
        buffer_.clear();
    }

    // What came before a failure is printed.
    void letFinish() {
        if (printing_.filter != 0 && supervisor_.isRunning(printing_.filter)) {
            flush();
            output_.close();
            supervisor_.waitForEnd(printing_.filter);
        }
    }

    [[noreturn]] void finishEarly() {
        finishPrinting(printing_, supervisor_);
        throw JobFailure("rastertokestotspl ended before its raster did");
    }

    void finish() {
        flush();
        output_.close();
        finishPrinting(printing_, supervisor_);
    }

    const RoadPlan& plan_;
    const TemporaryFolder& folder_;
    Supervisor& supervisor_;
    RasterReader reader_;
    PrintingPrograms printing_;
    Descriptor output_;
    std::vector<unsigned char> buffer_;
    int page_ = 0;
};

}  // namespace

void printRaster(const RoadPlan& plan, const TemporaryFolder& folder, Supervisor& supervisor) {
    RasterRoad(plan, folder, supervisor).print();
}

}  // namespace intake
