// Media that CUPS knows by name.
#include "intake/known_media.h"

#include <gtest/gtest.h>

namespace intake {
namespace {

TEST(KnownMedia, AreFoundInAnyCaseOfLetters) {
    for (const char* name : {"A6", "a6", "iso_a6_105x148mm", "iso-a6", "ISO-A6"}) {
        const auto size = knownMedia(name);
        ASSERT_TRUE(size) << name;
        EXPECT_DOUBLE_EQ(size->width, 105) << name;
        EXPECT_DOUBLE_EQ(size->height, 148) << name;
    }
    for (const char* name : {"Letter", "letter", "LETTER", "na-letter"}) {
        ASSERT_TRUE(knownMedia(name)) << name;
        EXPECT_DOUBLE_EQ(knownMedia(name)->width, 215.9) << name;
    }
}

TEST(KnownMedia, AreNotFoundUnderOtherNames) {
    for (const char* name : {"", "nonsense", "auto", "labels", "A"}) {
        EXPECT_FALSE(knownMedia(name)) << name;
    }
}

}  // namespace
}  // namespace intake
