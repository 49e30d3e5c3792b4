#pragma once

#include "enhance/qm_image.h"

// Gaussian smoothing of grey images. Kernel sizes are odd: `ksize` / 2 taps lie on each side of
// a pixel, and the nearest edge pixel stands in for what lies outside the image. With an even
// size the last tap has no place in the kernel and is left out.

/// Fills `out` with `ksize` weights that add up to 1; sigma in pixels.
void generateGaussianKernel1D(int ksize, double sigma, double* out);

/// Filters rows (`horizontal`) or columns with a one-dimensional kernel of `ksize` weights. The
/// sum is formed in double precision from the first tap to the last and rounded to a byte.
QMImage convolve1D(const QMImage& src, const double* kernel, int ksize, bool horizontal);

/// Gaussian filter as two one-dimensional passes, rows first, each rounded to bytes.
QMImage enh_gaussian_filter_fast(const QMImage& src, int ksize, double sigma);

/// Fills `out` with `ksize` × `ksize` weights, row by row, that add up to 1.
void generateGaussianKernel(int ksize, double sigmaX, double sigmaY, double* out);

/// Gaussian filter as one two-dimensional pass: `ksize` × `ksize` products a pixel.
QMImage enh_gaussian_filter(const QMImage& src, int ksize, double sigmaX, double sigmaY);
