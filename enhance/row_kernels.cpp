#include "enhance/row_kernels.h"

#include <algorithm>

#include "enhance/numeric.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace {

float sumOfTaps(const double* const* taps, const double* weights, std::size_t count,
                std::size_t x) {
    double sum = 0.0;
    for (std::size_t k = 0; k < count; ++k) {
        sum = taps[k][x] * weights[k] + sum;
    }
    return static_cast<float>(sum);
}

unsigned char weightedByte(unsigned char a, unsigned char b, float weight) {
    const float sum =
        static_cast<float>(a) * (1.0F + weight) + static_cast<float>(b) * (-weight) + 0.0F;
    return static_cast<unsigned char>(myClamp(my_round(sum), 0, 255));
}

#if defined(__SSE2__)

// Four sums of two pixels each, which do not wait for each other.
void addWeightedTaps8(const double* const* taps, const double* weights, std::size_t count,
                      std::size_t x, float* sums) {
    __m128d sum01 = _mm_setzero_pd();
    __m128d sum23 = _mm_setzero_pd();
    __m128d sum45 = _mm_setzero_pd();
    __m128d sum67 = _mm_setzero_pd();
    for (std::size_t k = 0; k < count; ++k) {
        const double* pixels = taps[k] + x;
        const __m128d weight = _mm_set1_pd(weights[k]);
        sum01 = _mm_add_pd(_mm_mul_pd(_mm_loadu_pd(pixels), weight), sum01);
        sum23 = _mm_add_pd(_mm_mul_pd(_mm_loadu_pd(pixels + 2), weight), sum23);
        sum45 = _mm_add_pd(_mm_mul_pd(_mm_loadu_pd(pixels + 4), weight), sum45);
        sum67 = _mm_add_pd(_mm_mul_pd(_mm_loadu_pd(pixels + 6), weight), sum67);
    }
    _mm_storeu_ps(sums, _mm_movelh_ps(_mm_cvtpd_ps(sum01), _mm_cvtpd_ps(sum23)));
    _mm_storeu_ps(sums + 4, _mm_movelh_ps(_mm_cvtpd_ps(sum45), _mm_cvtpd_ps(sum67)));
}

// As my_round does: numbers without a place in 32 bits become the smallest integer.
__m128i rounded4(__m128 numbers) {
    const __m128 negative =
        _mm_andnot_ps(_mm_cmpge_ps(numbers, _mm_setzero_ps()), _mm_set1_ps(-0.0F));
    return _mm_cvttps_epi32(_mm_add_ps(numbers, _mm_or_ps(_mm_set1_ps(0.5F), negative)));
}

__m128i lowBytes4(const float* sums) {
    return _mm_and_si128(rounded4(_mm_loadu_ps(sums)), _mm_set1_epi32(0xFF));
}

void roundToBytes16(const float* sums, unsigned char* bytes) {
    const __m128i first = _mm_packs_epi32(lowBytes4(sums), lowBytes4(sums + 4));
    const __m128i second = _mm_packs_epi32(lowBytes4(sums + 8), lowBytes4(sums + 12));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(bytes), _mm_packus_epi16(first, second));
}

__m128i loadEight(const unsigned char* bytes) {
    return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(bytes)),
                             _mm_setzero_si128());
}

// Packing limits to 0..255.
void addWeightedRow8(const unsigned char* a, const unsigned char* b, float weight,
                     unsigned char* out) {
    const __m128 gain = _mm_set1_ps(1.0F + weight);
    const __m128 loss = _mm_set1_ps(-weight);
    const __m128i zero = _mm_setzero_si128();
    const auto sum4 = [&](__m128i fourOfA, __m128i fourOfB) {
        const __m128 sum = _mm_add_ps(_mm_mul_ps(_mm_cvtepi32_ps(fourOfA), gain),
                                      _mm_mul_ps(_mm_cvtepi32_ps(fourOfB), loss));
        return rounded4(_mm_add_ps(sum, _mm_setzero_ps()));
    };
    const __m128i as = loadEight(a);
    const __m128i bs = loadEight(b);
    const __m128i words =
        _mm_packs_epi32(sum4(_mm_unpacklo_epi16(as, zero), _mm_unpacklo_epi16(bs, zero)),
                        sum4(_mm_unpackhi_epi16(as, zero), _mm_unpackhi_epi16(bs, zero)));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(out), _mm_packus_epi16(words, words));
}

#endif

}  // namespace

void addWeightedTaps(const double* const* taps, const double* weights, std::size_t count,
                     std::size_t width, float* sums) {
    std::size_t x = 0;
#if defined(__SSE2__)
    for (; x + 8 <= width; x += 8) {
        addWeightedTaps8(taps, weights, count, x, sums + x);
    }
#endif
    for (; x < width; ++x) {
        sums[x] = sumOfTaps(taps, weights, count, x);
    }
}

void roundToBytes(const float* sums, std::size_t width, unsigned char* bytes) {
    std::size_t x = 0;
#if defined(__SSE2__)
    for (; x + 16 <= width; x += 16) {
        roundToBytes16(sums + x, bytes + x);
    }
#endif
    for (; x < width; ++x) {
        bytes[x] = static_cast<unsigned char>(my_round(sums[x]));
    }
}

void addWeightedRow(const unsigned char* a, const unsigned char* b, float weight, std::size_t width,
                    unsigned char* out) {
    std::size_t x = 0;
#if defined(__SSE2__)
    for (; x + 8 <= width; x += 8) {
        addWeightedRow8(a + x, b + x, weight, out + x);
    }
#endif
    for (; x < width; ++x) {
        out[x] = weightedByte(a[x], b[x], weight);
    }
}

void widenToDoubles(const unsigned char* bytes, std::size_t width, double* doubles) {
    std::transform(bytes, bytes + width, doubles,
                   [](unsigned char byte) { return static_cast<double>(byte); });
}
