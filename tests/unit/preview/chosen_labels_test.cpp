// Labels of a range.
#include "preview/chosen_labels.h"

#include "tests/unit/tspl/test_support.h"

namespace preview {
namespace {

// The second of its four labels has no size and is lost.
constexpr auto sStream =
    "SIZE 8 dot,1 dot\nPRINT 1\nSIZE 0,0\nPRINT 1\nSIZE 8 dot,1 dot\nPRINT 1\n"
    "WHAT\nPRINT 1\n";

tspl::Texts orderOf(const std::optional<LabelRange>& range, const std::string& kind) {
    tspl::RecordingSink seen;
    ChosenLabels chosen(seen, range);
    tspl::obeyStream(sStream, chosen);
    EXPECT_EQ(chosen.labels(), 4U);
    tspl::Texts found;
    for (const std::string& event : seen.order) {
        if (event.starts_with(kind)) {
            found.push_back(event);
        }
    }
    return found;
}

TEST(ChosenLabels, AreAllOfThemWithoutARange) {
    EXPECT_EQ(orderOf({}, "l"), (tspl::Texts{"label 1", "lost", "label 3", "label 4"}));
}

TEST(ChosenLabels, KeepTheirNumbers) {
    EXPECT_EQ(orderOf(LabelRange{1, 1}, "l"), tspl::Texts{"label 1"});
    EXPECT_EQ(orderOf(LabelRange{2, 3}, "l"), (tspl::Texts{"lost", "label 3"}));
    EXPECT_EQ(orderOf(LabelRange{4, 9}, "l"), tspl::Texts{"label 4"});
    EXPECT_EQ(orderOf(LabelRange{5, 9}, "l"), tspl::Texts{});
}

TEST(ChosenLabels, LeaveCommandsAndFindingsAlone) {
    for (const char* kind : {"entry", "finding"}) {
        EXPECT_EQ(orderOf(LabelRange{5, 5}, kind), orderOf({}, kind));
        EXPECT_FALSE(orderOf({}, kind).empty());
    }
}

TEST(ChosenLabels, MissARangeOfWhichNothingCame) {
    tspl::RecordingSink seen;
    ChosenLabels third(seen, LabelRange{3, 3});
    ChosenLabels fifth(seen, LabelRange{5, 6});
    ChosenLabels every(seen, std::nullopt);
    EXPECT_TRUE(third.missesRange());
    EXPECT_FALSE(every.missesRange());
    tspl::obeyStream(sStream, third);
    tspl::obeyStream(sStream, fifth);
    EXPECT_FALSE(third.missesRange());
    EXPECT_TRUE(fifth.missesRange());
}

}  // namespace
}  // namespace preview
