#pragma once

#include "image/diffusion_kernels.h"

// The cells of the error-diffusion kernels; who described them stands in error_diffusion.h.

inline constexpr DiffusionCell floydSteinbergCells[] = {
    {+1, 0, 7},  //
    {-1, 1, 3},
    {0, 1, 5},
    {+1, 1, 1},  //
};

inline constexpr DiffusionCell burkesCells[] = {
    {+1, 0, 8}, {+2, 0, 4},                                     //
    {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {+1, 1, 4}, {+2, 1, 2},  //
};

inline constexpr DiffusionCell stuckiCells[] = {
    {+1, 0, 8}, {+2, 0, 4},                                     //
    {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {+1, 1, 4}, {+2, 1, 2},  //
    {-2, 2, 1}, {-1, 2, 2}, {0, 2, 4}, {+1, 2, 2}, {+2, 2, 1},  //
};

inline constexpr DiffusionCell jarvisJudiceNinkeCells[] = {
    {+1, 0, 7}, {+2, 0, 5},                                     //
    {-2, 1, 3}, {-1, 1, 5}, {0, 1, 7}, {+1, 1, 5}, {+2, 1, 3},  //
    {-2, 2, 1}, {-1, 2, 3}, {0, 2, 5}, {+1, 2, 3}, {+2, 2, 1},  //
};

inline constexpr DiffusionCell sierraCells[] = {
    {+1, 0, 5}, {+2, 0, 3},                                      //
    {-2, 1, 2}, {-1, 1, 4}, {0, 1, 5},  {+1, 1, 4}, {+2, 1, 2},  //
    {-1, 2, 2}, {0, 2, 3},  {+1, 2, 2},                          //
};

inline constexpr DiffusionCell stevensonArceCells[] = {
    {+2, 0, 32},                                         //
    {-3, 1, 12}, {-1, 1, 26}, {+1, 1, 30}, {+3, 1, 16},  //
    {-2, 2, 12}, {0, 2, 26},  {+2, 2, 12},               //
    {-3, 3, 5},  {-1, 3, 12}, {+1, 3, 12}, {+3, 3, 5},   //
};
