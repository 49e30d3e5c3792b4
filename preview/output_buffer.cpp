#include "preview/output_buffer.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace preview {

OutputBuffer::OutputBuffer(int descriptor) : descriptor_(descriptor) {
    setp(bytes_.data(), bytes_.data() + bytes_.size());
}

OutputBuffer::int_type OutputBuffer::overflow(int_type byte) {
    if (!send()) {
        return traits_type::eof();
    }
    if (!traits_type::eq_int_type(byte, traits_type::eof())) {
        sputc(traits_type::to_char_type(byte));
    }
    return traits_type::not_eof(byte);
}

bool OutputBuffer::send() {
    const char* next = pbase();
    while (next < pptr() && error_.empty()) {
        const ssize_t count = write(descriptor_, next, static_cast<std::size_t>(pptr() - next));
        if (count >= 0) {
            next += count;
        } else if (errno != EINTR) {
            error_ = std::strerror(errno);
        }
    }
    setp(bytes_.data(), bytes_.data() + bytes_.size());
    return error_.empty();
}

}  // namespace preview
