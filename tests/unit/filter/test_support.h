// What the tests of the filter share.
#pragma once

#include <unistd.h>

#include <string>
#include <utility>
#include <vector>

#include "filter/current_printer.h"
#include "filter/settings.h"
#include "tests/reference/page.h"
#include "tests/support/raster_writer.h"
#include "tests/unit/driver/test_support.h"

/// Puts a printer up as `sPrinter` for one test; its commands end up in a text.
class CommandTest : public testing::Test {
protected:
    CommandTest() {
        *printer_.getOutputStreams() = {stream_.get()};
        sPrinter = &printer_;
    }
    ~CommandTest() override { sPrinter = nullptr; }

    std::string sent() const { return stream_.text(); }

private:
    ScratchStream stream_;
    TestPrinter printer_;
};

/// A queue description: the choices of its options, the first of each the default, its page
/// sizes in points, and attributes.
class QueueText {
public:
    QueueText& option(const std::string& keyword, const std::vector<std::string>& choices) {
        open(keyword, choices.front());
        for (const std::string& choice : choices) {
            text_.append("*").append(keyword).append(" ").append(choice).append(": \"\"\n");
        }
        text_ += "*CloseUI: *" + keyword + "\n";
        return *this;
    }
    /// Page sizes by name, width and length; the first is the default. Each has margins of
    /// 9, 18, 27 and 36 points at the left, bottom, right and top.
    struct Size {
        std::string name;
        int width;
        int length;
    };
    QueueText& sizes(const std::vector<Size>& sizes) {
        std::vector<std::string> names;
        for (const Size& size : sizes) {
            names.push_back(size.name);
            areas_ += reference::formatted("*ImageableArea %s: \"9 18 %d %d\"\n", size.name.c_str(),
                                           size.width - 27, size.length - 36) +
                      reference::formatted("*PaperDimension %s: \"%d %d\"\n", size.name.c_str(),
                                           size.width, size.length);
        }
        areas_ += "*DefaultImageableArea: " + names.front() +
                  "\n*DefaultPaperDimension: " + names.front() + "\n";
        return option("PageSize", names);
    }
    QueueText& attribute(const std::string& name, const std::string& value) {
        text_ += "*" + name + ": \"" + value + "\"\n";
        return *this;
    }
    QueueText& line(const std::string& line) {
        text_ += line + "\n";
        return *this;
    }
    std::string text() const { return ppdOpening + text_ + areas_; }

private:
    void open(const std::string& keyword, const std::string& choice) {
        text_ += "*OpenUI *" + keyword + "/" + keyword +
                 ": PickOne\n*OrderDependency: 10 AnySetup *" + keyword + "\n*Default" + keyword +
                 ": " + choice + "\n";
    }

    std::string text_;
    std::string areas_;
};

/// A queue description in a file that the environment names.
class CurrentQueue {
public:
    explicit CurrentQueue(const QueueText& queue)
        : path_(folder_.write("queue.ppd", queue.text())), environment_("PPD", path_.c_str()) {}

    const std::string& path() const { return path_; }

private:
    TemporaryFolder folder_;
    std::string path_;
    EnvironmentVariable environment_;
};
