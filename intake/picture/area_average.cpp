#include "intake/picture/area_average.h"

#include <algorithm>
#include <vector>

namespace intake::picture {
namespace {

// The samples under one dot. Lengths are counted in units of which a sample has `scaled` and a dot
// `source`, so that all of them are whole.
struct Coverage {
    unsigned first;       // sample
    unsigned last;        // sample, not before the first
    unsigned firstShare;  // units of the first sample that lie under the dot
    unsigned lastShare;   // of the last one; 0 when that is the first one, too
};

Coverage coverageOf(const ScaledAxis& axis, unsigned dot) {
    const auto begin = std::uint64_t{dot} * axis.source;
    const auto end = begin + axis.source;
    const auto first = static_cast<unsigned>(begin / axis.scaled);
    const auto last = static_cast<unsigned>((end - 1) / axis.scaled);
    const auto endOf = [&](unsigned sample) { return (std::uint64_t{sample} + 1) * axis.scaled; };
    const auto firstShare = static_cast<unsigned>(std::min(end, endOf(first)) - begin);
    const auto lastShare =
        last == first ? 0U : static_cast<unsigned>(end - std::uint64_t{last} * axis.scaled);
    return {first, last, firstShare, lastShare};
}

bool isWhole(const ScaledAxis& axis) {
    return axis.source == axis.scaled;
}

class Averager {
public:
    Averager(const ScaledAxis& across, const ScaledAxis& down, unsigned channels,
             const SampleRows& samples, const DotRows& dots)
        : across_(across),
          down_(down),
          channels_(channels),
          samples_(samples),
          dots_(dots),
          sums_(std::size_t{across.count} * channels),
          area_(sums_.size()),
          result_(sums_.size()) {
        for (unsigned dot = 0; dot < across.count; ++dot) {
            columns_.push_back(coverageOf(across, across.first + dot));
        }
    }

    void run() {
        for (unsigned dot = 0; dot < down_.count; ++dot) {
            const Coverage rows = coverageOf(down_, down_.first + dot);
            std::ranges::fill(area_, 0U);
            add(rows.first, rows.firstShare);
            for (unsigned row = rows.first + 1; row < rows.last; ++row) {
                add(row, down_.scaled);
            }
            if (rows.lastShare > 0) {
                add(rows.last, rows.lastShare);
            }
            emit();
        }
    }

private:
    // Two dots may share a row, upward many do.
    void add(unsigned row, unsigned share) {
        if (!hasRow_ || row != row_) {
            sumRow(samples_(row));
            row_ = row;
            hasRow_ = true;
        }
        for (std::size_t index = 0; index < area_.size(); ++index) {
            area_[index] += sums_[index] * share;
        }
    }

    void sumRow(std::span<const std::uint16_t> samples) {
        for (unsigned channel = 0; channel < channels_; ++channel) {
            for (unsigned dot = 0; dot < across_.count; ++dot) {
                sums_[std::size_t{dot} * channels_ + channel] =
                    sumUnder(columns_[dot], samples.subspan(channel));
            }
        }
    }

    std::uint64_t sumUnder(const Coverage& dot, std::span<const std::uint16_t> samples) const {
        const auto sample = [&](unsigned column) {
            return std::uint64_t{samples[std::size_t{column} * channels_]};
        };
        std::uint64_t whole = 0;
        for (unsigned column = dot.first + 1; column < dot.last; ++column) {
            whole += sample(column);
        }
        return whole * across_.scaled + sample(dot.first) * dot.firstShare +
               (dot.lastShare > 0 ? sample(dot.last) * dot.lastShare : 0);
    }

    void emit() {
        const auto total = std::uint64_t{across_.source} * down_.source;
        for (std::size_t index = 0; index < area_.size(); ++index) {
            result_[index] = static_cast<std::uint16_t>((area_[index] + total / 2) / total);
        }
        dots_(result_);
    }

    const ScaledAxis& across_;
    const ScaledAxis& down_;
    unsigned channels_;
    const SampleRows& samples_;
    const DotRows& dots_;
    std::vector<Coverage> columns_;
    std::vector<std::uint64_t> sums_;
    std::vector<std::uint64_t> area_;
    std::vector<std::uint16_t> result_;
    unsigned row_ = 0;
    bool hasRow_ = false;
};

void copyRows(const ScaledAxis& across, const ScaledAxis& down, unsigned channels,
              const SampleRows& samples, const DotRows& dots) {
    for (unsigned row = down.first; row < down.first + down.count; ++row) {
        dots(samples(row).subspan(std::size_t{across.first} * channels,
                                  std::size_t{across.count} * channels));
    }
}

}  // namespace

void averageArea(const ScaledAxis& across, const ScaledAxis& down, unsigned channels,
                 const SampleRows& samples, const DotRows& dots) {
    if (isWhole(across) && isWhole(down)) {
        copyRows(across, down, channels, samples, dots);
    } else {
        Averager(across, down, channels, samples, dots).run();
    }
}

}  // namespace intake::picture
