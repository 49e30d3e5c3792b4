// A list of sinks.
#include "preview/sink_list.h"

#include "tests/unit/tspl/test_support.h"

namespace preview {
namespace {

constexpr auto sStream = "SIZE 8 dot,1 dot\nWHAT\nPRINT 1\nSIZE 0,0\nPRINT 1\n";

// Writes its name for everything that it takes.
class NamedSink : public tspl::Sink {
public:
    NamedSink(std::string& written, char name) : written_(written), name_(name) {}
    void onEntry(const tspl::Entry&) override { written_ += name_; }
    void onFinding(const tspl::Finding&) override { written_ += name_; }
    void onLabel(const tspl::PrintedLabel&) override { written_ += name_; }
    void onLostLabel() override { written_ += name_; }

private:
    std::string& written_;
    char name_;
};

TEST(SinkList, PassesEverythingOnAsItCame) {
    tspl::RecordingSink direct;
    tspl::RecordingSink listed;
    SinkList sinks;
    sinks.add(listed);
    tspl::obeyStream(sStream, direct);
    tspl::obeyStream(sStream, sinks);
    EXPECT_EQ(listed.order, direct.order);
    EXPECT_EQ(listed.findings, direct.findings);
    ASSERT_EQ(listed.entries.size(), 5U);
    EXPECT_EQ(listed.entries[1].text, "WHAT");
    ASSERT_EQ(listed.labels.size(), 1U);
    EXPECT_EQ(listed.labels.front().rows, tspl::Texts{"........"});
}

// Five entries, three findings, one label and one that is lost.
TEST(SinkList, PassesEachThingOnInTheOrderOfItsSinks) {
    std::string written;
    NamedSink first(written, '1');
    NamedSink second(written, '2');
    SinkList sinks;
    sinks.add(first);
    sinks.add(second);
    tspl::obeyStream(sStream, sinks);
    EXPECT_EQ(written, "12121212121212121212");
}

TEST(SinkList, MayBeEmpty) {
    SinkList sinks;
    EXPECT_NO_THROW(tspl::obeyStream(sStream, sinks));
}

}  // namespace
}  // namespace preview
