// What the tests of the previewer share.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tspl/printer_model.h"
#include "tspl/stream_parser.h"

namespace tspl {

using Texts = std::vector<std::string>;

/// The bytes of a text, which must outlive them.
inline std::span<const std::uint8_t> bytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/// Writes down what a parser tells, one text per event; the data of a bitmap are one event,
/// whatever pieces they come in.
class RecordingHandler : public StreamHandler {
public:
    [[nodiscard]] const Texts& events() const { return events_; }

    void onBlankLines(const Place& place, std::uint64_t count) override {
        add("blank", {place.offset, count});
    }
    void onCommand(const Command& command) override {
        add("command", {command.offset}, command.text);
    }
    void onBitmap(const BitmapHead& head) override {
        add("bitmap", {head.offset},
            std::to_string(head.x) + "," + std::to_string(head.y) + "," +
                std::to_string(head.rowBytes) + "," + std::to_string(head.rows) + "," +
                std::to_string(head.mode));
        data_.clear();
    }
    void onBitmapData(std::uint64_t position, std::span<const std::uint8_t> data) override {
        EXPECT_EQ(position, data_.size());
        EXPECT_FALSE(data.empty());
        data_.append(data.begin(), data.end());
    }
    void onBitmapEnd(std::uint64_t received) override { add("data", {received}, data_); }
    void onDownloadCutShort(const Place& place, std::uint64_t expected,
                            std::uint64_t received) override {
        add("cut", {place.offset, expected, received});
    }
    void onLongLine(const Place& place) override { add("long", {place.offset}); }

private:
    void add(std::string kind, const std::vector<std::uint64_t>& numbers,
             const std::string& text = "") {
        for (const std::uint64_t number : numbers) {
            kind += " " + std::to_string(number);
        }
        events_.push_back(text.empty() ? kind : kind + " " + text);
    }

    Texts events_;
    std::string data_;
};

/// What a parser tells of a stream that comes in these pieces.
inline Texts eventsOfPieces(const std::vector<std::string_view>& pieces) {
    RecordingHandler handler;
    StreamParser parser(handler);
    for (const std::string_view piece : pieces) {
        parser.feed(bytesOf(piece));
    }
    parser.finish();
    return handler.events();
}

inline Texts eventsOf(std::string_view stream) {
    return eventsOfPieces({stream});
}

/// A printed label as a test sees it.
struct SeenLabel {
    std::uint64_t number = 0;
    std::int32_t sets = 0;
    std::int32_t copies = 0;
    int dpi = 0;
    std::int64_t width = 0;
    std::uint64_t burntDots = 0;
    /// A text for each row: # for a burnt dot, . for a bare one.
    Texts rows;
};

inline Texts rowsOf(const LabelPicture& picture) {
    Texts rows;
    for (std::int64_t y = 0; y < picture.height(); ++y) {
        std::string row;
        for (std::int64_t x = 0; x < picture.width(); ++x) {
            row += picture.burns(x, y) ? '#' : '.';
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

inline Texts rowsOf(const DotCanvas& canvas) {
    return rowsOf(LabelPicture(canvas, canvas.width(), canvas.height(), 203, {}));
}

/// Keeps what it takes.
class RecordingSink : public Sink {
public:
    std::vector<Entry> entries;
    /// "complaint OFFSET TEXT" or "remark OFFSET TEXT".
    Texts findings;
    std::vector<SeenLabel> labels;
    /// In which order everything came: "entry OFFSET", "finding OFFSET", "label NUMBER", "lost".
    Texts order;

    void onEntry(const Entry& entry) override {
        entries.push_back(entry);
        order.push_back("entry " + std::to_string(entry.offset));
    }
    void onFinding(const Finding& finding) override {
        const bool isComplaint = finding.kind == Finding::Kind::Complaint;
        findings.push_back((isComplaint ? "complaint " : "remark ") +
                           std::to_string(finding.offset) + " " + finding.text);
        order.push_back("finding " + std::to_string(finding.offset));
    }
    void onLabel(const PrintedLabel& label) override {
        const LabelPicture& picture = label.picture;
        labels.push_back({label.number, label.sets, label.copies, picture.dpi(), picture.width(),
                          picture.burntDots(), rowsOf(picture)});
        order.push_back("label " + std::to_string(label.number));
    }
    void onLostLabel() override { order.emplace_back("lost"); }
};

/// Lets a printer obey a stream.
inline void obeyStream(std::string_view stream, Sink& sink, const PrinterOptions& options = {}) {
    PrinterModel model(sink, options);
    StreamParser parser(model);
    parser.feed(bytesOf(stream));
    parser.finish();
}

inline Texts findingsOf(std::string_view stream, const PrinterOptions& options = {}) {
    RecordingSink sink;
    obeyStream(stream, sink, options);
    return sink.findings;
}

/// The rows of the only label that a stream prints.
inline Texts pictureOf(std::string_view stream, const PrinterOptions& options = {}) {
    RecordingSink sink;
    obeyStream(stream, sink, options);
    EXPECT_EQ(sink.labels.size(), 1U);
    return sink.labels.size() == 1 ? sink.labels.front().rows : Texts{};
}

/// Picture data for rows of # and ., the same multiple of 8 dots each: a 0 bit for every #.
inline std::string dataOf(const Texts& rows) {
    std::string data;
    for (const std::string& row : rows) {
        for (std::size_t i = 0; i < row.size(); i += 8) {
            unsigned byte = 0;
            for (std::size_t bit = 0; bit < 8; ++bit) {
                byte |= row[i + bit] == '#' ? 0U : 0x80U >> bit;
            }
            data += static_cast<char>(byte);
        }
    }
    return data;
}

/// A BITMAP command of such rows with its upper left corner at "X,Y".
inline std::string bitmapOf(const std::string& corner, const Texts& rows, int mode = 0) {
    return "BITMAP " + corner + "," + std::to_string(rows.front().size() / 8) + "," +
           std::to_string(rows.size()) + "," + std::to_string(mode) + "," + dataOf(rows) + "\r\n";
}

}  // namespace tspl
