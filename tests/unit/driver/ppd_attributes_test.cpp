#include <memory>

#include "driver/ppd_choices.h"
#include "tests/unit/driver/test_support.h"

namespace {

struct PpdCloser {
    void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};

// A queue with attributes of its own.
class PpdAttribute : public testing::Test {
protected:
    TemporaryFolder folder;
    std::unique_ptr<ppd_file_t, PpdCloser> ppd;

    PpdAttribute()
        : ppd(ppdOpenFile(folder
                              .write("queue.ppd", std::string(ppdOpening) +
                                                      "*kestoPath: \"/some/where\"\n"
                                                      "*kestoLength: \"12.75\"\n"
                                                      "*kestoSized Small: \"1.5\"\n"
                                                      "*kestoSized Large: \"-2.5e2\"\n")
                              .c_str())) {}

    const char* text(const char* name, const char* spec) const {
        return kestoPpdGetAttrAsStrDefault(ppd.get(), name, spec, "none");
    }
    double number(const char* name, const char* spec) const {
        return kestoPpdGetAttrAsFloatDefault(ppd.get(), name, spec, 0.5);
    }
};

TEST_F(PpdAttribute, IsReadAsText) {
    EXPECT_STREQ(text("kestoPath", nullptr), "/some/where");
}

TEST_F(PpdAttribute, IsChosenByItsSpec) {
    EXPECT_STREQ(text("kestoSized", "Small"), "1.5");
    EXPECT_STREQ(text("kestoSized", "Large"), "-2.5e2");
}

TEST_F(PpdAttribute, GivesTheDefaultTextWhenMissing) {
    EXPECT_STREQ(text("kestoOther", nullptr), "none");
    EXPECT_STREQ(text("kestoSized", "Medium"), "none");
}

TEST_F(PpdAttribute, GivesTheDefaultWithoutAValue) {
    ppd_attr_t* attribute = ppdFindAttr(ppd.get(), "kestoPath", nullptr);
    ASSERT_NE(attribute, nullptr);
    char* value = attribute->value;
    attribute->value = nullptr;
    EXPECT_STREQ(text("kestoPath", nullptr), "none");
    EXPECT_EQ(number("kestoPath", nullptr), 0.5);
    attribute->value = value;
}

TEST_F(PpdAttribute, IsReadAsANumber) {
    EXPECT_EQ(number("kestoLength", nullptr), 12.75);
    EXPECT_EQ(number("kestoSized", "Large"), -250.0);
}

TEST_F(PpdAttribute, CountsAsZeroWhenItIsNoNumber) {
    EXPECT_EQ(number("kestoPath", nullptr), 0.0);
}

TEST_F(PpdAttribute, GivesTheDefaultNumberWhenMissing) {
    EXPECT_EQ(number("kestoOther", nullptr), 0.5);
}

TEST(PpdAttributeWithoutAPpd, GivesTheDefault) {
    EXPECT_STREQ(kestoPpdGetAttrAsStrDefault(nullptr, "kestoPath", nullptr, "none"), "none");
    EXPECT_EQ(kestoPpdGetAttrAsFloatDefault(nullptr, "kestoLength", nullptr, 2.5), 2.5);
}

}  // namespace
