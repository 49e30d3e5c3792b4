#include "intake/size_request.h"

#include <array>
#include <cmath>

#include "sizes/ascii.h"
#include "sizes/size_spelling.h"

namespace intake {
namespace {

using sizes::NominalSize;

// The scheduler takes the first size that is nearer than this to the wanted one, in mm.
constexpr double schedulersTolerance = 1.76;

bool isNear(const NominalSize& one, const NominalSize& other) {
    return std::abs(one.width - other.width) < schedulersTolerance &&
           std::abs(one.height - other.height) < schedulersTolerance;
}

template <typename Equal>
const QueueSize* findOffered(const QueueDescription& queue, Equal isMeant) {
    for (const QueueSize& size : queue.sizes) {
        if (isMeant(size.name)) {
            return &size;
        }
    }
    return nullptr;
}

const QueueSize* offeredAs(std::string_view name, const QueueDescription& queue) {
    if (const auto* same = findOffered(queue, [&](auto& offered) { return offered == name; })) {
        return same;
    }
    const sizes::BareName bare = sizes::bareName(name);
    if (bare.transverse) {
        return nullptr;
    }
    return findOffered(queue, [&](std::string_view offered) {
        return sizes::equalsIgnoringCase(offered, name) ||
               sizes::equalsIgnoringCase(offered, bare.name);
    });
}

std::optional<NominalSize> dimensionsOf(std::string_view name, const MediaLookup& knownMedia) {
    if (const auto spelt = sizes::parseSizeSpelling(name)) {
        return spelt;
    }
    const sizes::BareName bare = sizes::bareName(name);
    const auto known = knownMedia(bare.name);
    return known && bare.transverse ? sizes::turned(*known) : known;
}

// "Custom.206x116", as the scheduler makes it.
bool isInWholePoints(std::string_view name) {
    return sizes::startsIgnoringCase(name, "Custom.") &&
           name.substr(7).find_first_not_of("0123456789x") == std::string_view::npos;
}

/// Goes through the names of an option.
class Names {
public:
    explicit Names(std::string_view text) : rest_(text) {}

    // Empty behind the last one.
    std::string_view next() {
        while (rest_.starts_with(',')) {
            rest_.remove_prefix(1);
        }
        const std::string_view name = rest_.substr(0, rest_.find(','));
        rest_.remove_prefix(name.size());
        return name;
    }

private:
    std::string_view rest_;
};

class RequestReader {
public:
    RequestReader(const OptionList& options, const QueueDescription& queue,
                  const MediaLookup& knownMedia)
        : options_(options), queue_(queue), knownMedia_(knownMedia) {}

    SizeRequest read() {
        const auto media = wishOf("media");
        auto wish = wishOf("PageSize");
        if (!wish) {
            wish = wishOf("PageRegion");
        }
        if (!wish || (media && isNear(wish->size, media->size))) {
            wish = media ? media : wish;
        }
        return {wish, unknown_};
    }

private:
    // The first name that means something: "4x6in,auto".
    std::optional<SizeWish> wishOf(std::string_view option) {
        const std::string* value = options_.find(option);
        Names names(value == nullptr ? std::string_view() : *value);
        for (auto name = names.next(); !name.empty(); name = names.next()) {
            if (auto wish = readWish(name, queue_, knownMedia_)) {
                return wish;
            }
            unknown_ = name;
        }
        return std::nullopt;
    }

    const OptionList& options_;
    const QueueDescription& queue_;
    const MediaLookup& knownMedia_;
    std::string unknown_;
};

}  // namespace

std::optional<SizeWish> readWish(std::string_view name, const QueueDescription& queue,
                                 const MediaLookup& knownMedia) {
    if (const QueueSize* offered = offeredAs(name, queue)) {
        return SizeWish{std::string(name), offered, offered->offered.label, false};
    }
    if (const auto size = dimensionsOf(name, knownMedia)) {
        return SizeWish{std::string(name), nullptr, *size, isInWholePoints(name)};
    }
    return std::nullopt;
}

SizeRequest readRequest(const OptionList& options, const QueueDescription& queue,
                        const MediaLookup& knownMedia, const SpoolerQuestion& askSpooler) {
    SizeRequest request = RequestReader(options, queue, knownMedia).read();
    if (!request.wish || request.wish->isWholePoints) {
        const auto exact = askSpooler();
        // A size of its own in the options counts for more than that of the job.
        if (exact && (!request.wish || isNear(request.wish->size, exact->size))) {
            request.wish = exact;
        }
    }
    return request;
}

}  // namespace intake
