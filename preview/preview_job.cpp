#include "preview/preview_job.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "preview/ending_signals.h"
#include "preview/input_stream.h"
#include "preview/json_listing.h"
#include "preview/output_buffer.h"
#include "preview/stream_preview.h"
#include "preview/unfinished_file.h"

namespace preview {
namespace {

class PreviewJob {
public:
    explicit PreviewJob(const Options& options) : options_(options) {
        if (options.pdf) {
            pdf_ = std::make_unique<PdfPages>(*options.pdf, std::cerr);
        }
    }

    int run() {
        keepStreams();
        if (options_.listing == Listing::Json) {
            JsonListing::writeSchema(output_);
        }
        for (const Source& source : options_.sources) {
            if (isWritable()) {
                show(source);
            }
        }
        if (pdf_ && isWritable()) {
            pdf_->complete(options_.listing == Listing::None ? &output_ : nullptr);
            output_.flush();
            failed_ = failed_ || pdf_->hasFailed();
        }
        if (!isWritable()) {
            fail("standard output", buffer_.error());
        }
        return failed_ ? EXIT_FAILURE : EXIT_SUCCESS;
    }

private:
    // All of them, before the first picture is written.
    void keepStreams() const {
        for (const Source& source : options_.sources) {
            struct stat status {};
            if ((source.isStandardInput() ? fstat(STDIN_FILENO, &status)
                                          : stat(source.file.c_str(), &status)) == 0) {
                keepFile(status);
            }
        }
    }

    // What is written nowhere is not read either.
    [[nodiscard]] bool isWritable() const { return buffer_.error().empty(); }

    void show(const Source& source) {
        InputStream input;
        if (!source.isStandardInput()) {
            if (const std::string error = input.open(source.file); !error.empty()) {
                fail(nameOf(source), error);
                return;
            }
        }
        if (options_.follows) {
            follow(source, input);
        } else {
            showAll(source, input);
        }
        if (!input.error().empty()) {
            fail(nameOf(source), input.error());
        }
    }

    void showAll(const Source& source, InputStream& input) {
        StreamPreview preview(options_, source, output_, pdf_.get(), input.bytes());
        for (auto piece = input.read(); !piece.empty() && isWritable(); piece = input.read()) {
            preview.feed(piece);
        }
        if (input.error().empty() && isWritable()) {
            preview.finish();
        }
        end(preview);
    }

    // Reads on where a stream ends, until a signal comes; each stream that the file has held is one
    // of its own.
    void follow(const Source& source, InputStream& input) {
        deferEndingSignals();
        while (followOne(source, input)) {
            if (input.isReplaced()) {
                tell(source, "another file has this name now, which is read from its start");
                if (const std::string error = input.open(source.file); !error.empty()) {
                    fail(nameOf(source), error);
                    return;
                }
                keepStreams();
            } else {
                tell(source, "the file has become shorter and is read from its start");
                input.rewind();
            }
        }
    }

    // True when another stream begins.
    bool followOne(const Source& source, InputStream& input) {
        StreamPreview preview(options_, source, output_, pdf_.get(), 0);
        while (isWritable() && notedSignal() == 0) {
            if (!input.isReady()) {
                pause(input);
                continue;
            }
            const auto piece = input.read();
            if (!piece.empty()) {
                preview.feed(piece);
                continue;
            }
            if (!input.error().empty()) {
                break;
            }
            const bool isOther = input.hasShrunk() || input.isReplaced();
            if (isOther || !input.mayGrow()) {
                preview.finish();
                end(preview);
                return isOther;
            }
            pause(input);
        }
        // What is not complete by now is neither shown nor complained of.
        end(preview);
        return false;
    }

    void pause(const InputStream& input) {
        output_.flush();
        input.await();
    }

    void end(StreamPreview& preview) {
        preview.end();
        failed_ = failed_ || preview.hasFailed();
    }

    static void tell(const Source& source, const std::string& what) {
        std::cerr << "tsplpreview: " << nameOf(source) << ": " << what << '\n';
    }

    void fail(const std::string& what, const std::string& why) {
        std::cerr << "tsplpreview: " << what << ": " << why << '\n';
        failed_ = true;
    }

    const Options& options_;
    OutputBuffer buffer_{STDOUT_FILENO};
    std::ostream output_{&buffer_};
    std::unique_ptr<PdfPages> pdf_;
    bool failed_ = false;
};

}  // namespace

int runPreview(const Options& options) {
    return PreviewJob(options).run();
}

}  // namespace preview
