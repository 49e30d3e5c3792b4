#include "intake/queue_description.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "sizes/ascii.h"
#include "sizes/dot_grid.h"
#include "sizes/ppd_statement.h"
#include "sizes/size_spelling.h"

namespace intake {
namespace {

using sizes::PpdStatement;

constexpr std::string_view sWhite = " \t\r\n";

// The next word, which is taken from the text.
std::string_view takeWord(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(sWhite), text.size()));
    const std::string_view word = text.substr(0, text.find_first_of(sWhite));
    text.remove_prefix(word.size());
    return word;
}

// A number in C's notation; 0 for anything else.
double numberOf(std::string_view word) {
    double number = 0;
    std::from_chars(word.data(), word.data() + word.size(), number);
    return number;
}

sizes::PointSize pointsOf(std::string_view text) {
    const double width = numberOf(takeWord(text));
    return {width, numberOf(takeWord(text))};
}

double millimetres(double points) {
    return points * sizes::millimetresPerInch / sizes::pointsPerInch;
}

// "203dpi" and "203x203dpi".
int resolutionOf(std::string_view text) {
    int dpi = 0;
    std::from_chars(text.data(), text.data() + text.size(), dpi);
    return std::max(dpi, 0);
}

// Clients of older descriptions, whose pages were those of the dots, ask for these.
void takePrintedPage(QueueSize& size, int dpi) {
    const sizes::NominalSize& page = size.offered.page;
    constexpr double hair = 0.05;
    const bool isWholeLabel = std::abs(page.width - size.nominal.width) < hair &&
                              std::abs(page.height - size.nominal.height) < hair;
    if (isWholeLabel && dpi > 0) {
        size.offered.page = sizes::printedSize(sizes::dotsOf(size.nominal, dpi), dpi);
    }
}

class Reader {
public:
    Reader(std::string_view ppd, const OptionList& options, const MediaLookup& knownMedia)
        : statements_(sizes::ppdStatements(ppd)), options_(options), knownMedia_(knownMedia) {}

    QueueDescription read() const {
        QueueDescription queue;
        for (const PpdStatement& statement : statements_) {
            if (isOf(statement, "PaperDimension") && !statement.option.empty()) {
                queue.sizes.push_back(sizeOf(statement));
            }
        }
        queue.defaultSize = valueOf("DefaultPageSize");
        queue.dpi = dpi();
        queue.limits = {least(), most(queue.sizes)};
        for (QueueSize& size : queue.sizes) {
            takePrintedPage(size, queue.dpi);
        }
        return queue;
    }

private:
    static bool isOf(const PpdStatement& statement, std::string_view keyword) {
        return statement.keyword == keyword && statement.language.empty();
    }

    const PpdStatement* find(std::string_view keyword, std::string_view option = {}) const {
        const auto found = std::find_if(
            statements_.begin(), statements_.end(), [&](const PpdStatement& statement) {
                return isOf(statement, keyword) &&
                       (option.empty() || sizes::equalsIgnoringCase(statement.option, option));
            });
        return found == statements_.end() ? nullptr : &*found;
    }

    std::string_view valueOf(std::string_view keyword) const {
        const PpdStatement* found = find(keyword);
        return found == nullptr ? std::string_view() : found->value;
    }

    QueueSize sizeOf(const PpdStatement& statement) const {
        QueueSize size{std::string(statement.option), {}, {}};
        size.offered = sizes::offeredSize(size.name, pointsOf(statement.value));
        size.nominal = size.offered.label;
        if (!sizes::parseSizeSpelling(size.name)) {
            size.offered.label = knownMedia_(size.name).value_or(size.offered.label);
        }
        return size;
    }

    // A choice that the description does not have is none.
    int dpi() const {
        const std::string* chosen = options_.find("Resolution");
        if (chosen != nullptr && !chosen->empty() && find("Resolution", *chosen) != nullptr) {
            return resolutionOf(*chosen);
        }
        return resolutionOf(valueOf("DefaultResolution"));
    }

    // "Width: 1 points 20 312": which of the numbers, in mm.
    std::optional<double> customLimit(std::string_view length, int which) const {
        const PpdStatement* found = find("ParamCustomPageSize", length);
        if (found == nullptr) {
            return std::nullopt;
        }
        std::string_view text = found->value;
        std::string_view word;
        for (int i = 0; i <= which; ++i) {
            word = takeWord(text);
        }
        const double limit = millimetres(numberOf(word));
        return limit > 0 ? std::optional(limit) : std::nullopt;
    }

    sizes::Reach least() const {
        constexpr int smallest = 2;
        return {customLimit("Width", smallest).value_or(0),
                customLimit("Height", smallest).value_or(0)};
    }

    std::optional<double> mediaLimit(std::string_view length, std::string_view keyword) const {
        constexpr int largest = 3;
        if (const auto limit = customLimit(length, largest)) {
            return limit;
        }
        const double limit = millimetres(numberOf(valueOf(keyword)));
        return limit > 0 ? std::optional(limit) : std::nullopt;
    }

    sizes::Reach most(const std::vector<QueueSize>& offered) const {
        const sizes::Reach otherwise = reachOfModel(offered);
        return {mediaLimit("Width", "MaxMediaWidth").value_or(otherwise.width),
                mediaLimit("Height", "MaxMediaHeight").value_or(otherwise.height)};
    }

    // Of a model that is not known nothing can be said but what its sizes say.
    sizes::Reach reachOfModel(const std::vector<QueueSize>& offered) const {
        const auto* model = sizes::findModelOfDescription(valueOf("PCFileName"));
        sizes::Reach reach = model == nullptr ? sizes::Reach{} : model->reach;
        for (const QueueSize& size : offered) {
            reach.width = std::max(reach.width, size.nominal.width);
            reach.height = std::max(reach.height, size.nominal.height);
        }
        return reach;
    }

    std::vector<PpdStatement> statements_;
    const OptionList& options_;
    const MediaLookup& knownMedia_;
};

}  // namespace

QueueDescription readDescription(std::string_view ppd, const OptionList& options,
                                 const MediaLookup& knownMedia) {
    return Reader(ppd, options, knownMedia).read();
}

}  // namespace intake
