#pragma once

#include <cstddef>
#include <cstdint>

/// Pixel layouts of a `QMImage`: interleaved 8-bit channels in the order of the name.
enum QM_IMG_COLOR : std::int32_t {
    QM_IMG_GRAY = 0,
    QM_IMG_BGR = 1,
    QM_IMG_RGB = 2,
    QM_IMG_BGRA = 3,
    QM_IMG_RGBA = 4,
};

/// A packed image: `height` rows of `width` pixels of `channels` bytes, no gap between rows.
///
/// Owns its buffer and copies deeply; two images never share one. Constructors and assignment
/// raise the standard allocation exception when memory is short.
class QMImage {
public:
    QMImage() = default;
    /// Copies width × height × channels bytes from `src`.
    QMImage(int width, int height, QM_IMG_COLOR color, const unsigned char* src);
    /// Leaves the pixels undefined: the caller writes every byte.
    QMImage(int width, int height, QM_IMG_COLOR color);
    QMImage(const QMImage& other);
    QMImage& operator=(const QMImage& other);
    /// Frees the buffer and leaves a size of 0 behind.
    ~QMImage();

    /// Buffer length in bytes.
    std::size_t size() const;

    int width = 0;
    int height = 0;
    int channels = 4;
    QM_IMG_COLOR color = QM_IMG_BGR;
    unsigned char* data = nullptr;  ///< owned, from array new
};
