#include "intake/label_choice.h"

#include <cmath>
#include <vector>

#include "intake/message_text.h"
#include "sizes/nearness.h"
#include "sizes/printer_model.h"

namespace intake {
namespace {

using sizes::NominalSize;

double points(double millimetres) {
    return millimetres / sizes::millimetresPerInch * sizes::pointsPerInch;
}

// Whether the wish is the label's size cut to whole points.
bool isCutFrom(const NominalSize& label, const NominalSize& wish) {
    const auto cut = [](double whole, double length) {
        constexpr double roundedAway = 0.05;
        const double lost = points(whole) - points(length);
        return lost > -roundedAway && lost < 1;
    };
    return cut(label.width, wish.width) && cut(label.height, wish.height);
}

std::string differs(const NominalSize& label, const SizeWish& wish, bool turned) {
    return "The label is " + sizes::sizeText(label) + (turned ? ", turned; " : "; ") +
           sizes::sizeText(wish.size) + " was asked for";
}

std::optional<Label> makeLabel(std::string name, const NominalSize& nominal,
                               const NominalSize& known, int dpi) {
    const auto page = sizes::exactPage(nominal, dpi);
    if (!page) {
        return std::nullopt;
    }
    return Label{std::move(name), known, *page, {}};
}

std::optional<Label> labelOf(const QueueSize& size, int dpi) {
    return makeLabel(size.name, size.nominal, size.offered.label, dpi);
}

bool isLargeEnough(const NominalSize& size, const sizes::Reach& least) {
    constexpr double hair = 0.005;
    return size.width >= least.width - hair && size.height >= least.height - hair;
}

class Chooser {
public:
    Chooser(const QueueDescription& queue, const MediaLookup& knownMedia)
        : queue_(queue), knownMedia_(knownMedia) {}

    std::optional<Label> choose(const SizeRequest& request) const {
        if (request.wish) {
            if (auto label = labelFor(*request.wish)) {
                return label;
            }
        }
        auto label = defaultLabel();
        if (label) {
            label->difference = whyDefault(request, *label);
        }
        return label;
    }

private:
    std::optional<Label> labelFor(const SizeWish& wish) const {
        if (wish.offered != nullptr) {
            return labelOf(*wish.offered, queue_.dpi);
        }
        if (auto label = nearLabel(wish)) {
            return label;
        }
        return labelOfItsOwn(wish);
    }

    std::optional<Label> nearLabel(const SizeWish& wish) const {
        std::vector<sizes::OfferedSize> offered;
        offered.reserve(queue_.sizes.size());
        for (const QueueSize& size : queue_.sizes) {
            offered.push_back(size.offered);
        }
        const auto near = sizes::nearestSize(offered, wish.size);
        if (!near) {
            return std::nullopt;
        }
        auto label = labelOf(queue_.sizes[near->index], queue_.dpi);
        if (label && !isTheSame(*near, *label, wish)) {
            label->difference = differs(label->nominal, wish, near->turned);
        }
        return label;
    }

    static bool isTheSame(const sizes::NearSize& near, const Label& label, const SizeWish& wish) {
        if (near.turned) {
            return false;
        }
        return near.exact || (wish.isWholePoints && isCutFrom(label.nominal, wish.size));
    }

    std::optional<Label> labelOfItsOwn(const SizeWish& wish) const {
        const sizes::Fit fit = sizes::fitOf(wish.size, queue_.limits.most);
        if (fit == sizes::Fit::None || !isLargeEnough(wish.size, queue_.limits.least)) {
            return std::nullopt;
        }
        const bool isTurned = fit == sizes::Fit::Turned;
        const NominalSize size = isTurned ? sizes::turned(wish.size) : wish.size;
        auto label = makeLabel(sizes::sizeName(size), size, size, queue_.dpi);
        if (label && isTurned) {
            label->difference = differs(size, wish, true);
        }
        return label;
    }

    // A queue's default may be a custom size.
    std::optional<Label> defaultLabel() const {
        if (const auto wish = readWish(queue_.defaultSize, queue_, knownMedia_)) {
            if (auto label = labelFor(*wish)) {
                return label;
            }
        }
        return labelOf(queue_.sizes.front(), queue_.dpi);
    }

    std::string whyDefault(const SizeRequest& request, const Label& label) const {
        const std::string start =
            "The label is " + sizes::sizeText(label.nominal) + ", the queue's default; ";
        if (request.wish) {
            const bool isLarge =
                sizes::fitOf(request.wish->size, queue_.limits.most) == sizes::Fit::None;
            return start + sizes::sizeText(request.wish->size) + " was asked for, which is " +
                   (isLarge ? "larger" : "smaller") + " than the printer takes";
        }
        if (request.unknown.empty()) {
            return {};
        }
        return start + "\"" + printable(request.unknown) +
               "\" was asked for, which is no known size";
    }

    const QueueDescription& queue_;
    const MediaLookup& knownMedia_;
};

}  // namespace

std::optional<Label> chooseLabel(const SizeRequest& request, const QueueDescription& queue,
                                 const MediaLookup& knownMedia) {
    // Descriptions of jobs are made from the lines of a size.
    if (queue.dpi <= 0 || queue.sizes.empty()) {
        return std::nullopt;
    }
    return Chooser(queue, knownMedia).choose(request);
}

}  // namespace intake
