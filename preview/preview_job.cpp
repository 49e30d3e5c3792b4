#include "preview/preview_job.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string>

#include "preview/input_stream.h"
#include "preview/output_buffer.h"
#include "preview/stream_preview.h"

namespace preview {
namespace {

class PreviewJob {
public:
    explicit PreviewJob(const Options& options) : options_(options) {}

    int run() {
        for (const Source& source : options_.sources) {
            if (isWritable()) {
                show(source);
            }
        }
        if (!isWritable()) {
            fail("standard output", buffer_.error());
        }
        return failed_ ? EXIT_FAILURE : EXIT_SUCCESS;
    }

private:
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
        StreamPreview preview(options_, source, output_, input.bytes());
        const std::string error = input.readAll([&](std::span<const std::uint8_t> piece) {
            preview.feed(piece);
            return isWritable();
        });
        if (error.empty()) {
            preview.finish();
        }
        preview.end();
        failed_ = failed_ || preview.hasFailed();
        if (!error.empty()) {
            fail(nameOf(source), error);
        }
    }

    void fail(const std::string& what, const std::string& why) {
        std::cerr << "tsplpreview: " << what << ": " << why << '\n';
        failed_ = true;
    }

    const Options& options_;
    OutputBuffer buffer_{STDOUT_FILENO};
    std::ostream output_{&buffer_};
    bool failed_ = false;
};

}  // namespace

int runPreview(const Options& options) {
    return PreviewJob(options).run();
}

}  // namespace preview
