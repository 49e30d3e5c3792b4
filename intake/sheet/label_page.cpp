#include "intake/sheet/label_page.h"

#include <qpdf/Buffer.hh>

#include <initializer_list>
#include <string>
#include <vector>

#include "sizes/nominal_size.h"

namespace intake::sheet {
namespace {

constexpr int sDecimals = 5;

QPDFObjectHandle number(double value) {
    return QPDFObjectHandle::newReal(value, sDecimals);
}

QPDFObjectHandle box(double left, double bottom, double right, double top) {
    auto array = QPDFObjectHandle::newArray();
    for (const double edge : {left, bottom, right, top}) {
        array.appendItem(number(edge));
    }
    return array;
}

std::string words(std::initializer_list<double> numbers) {
    std::string text;
    for (const double value : numbers) {
        text += sizes::lengthText(value, sDecimals) + " ";
    }
    return text;
}

sizes::PointSize turnedSize(const LabelCut& label) {
    const sizes::PointSize size{label.place.width(), label.place.height()};
    return label.quarters % 2 == 0 ? size : sizes::PointSize{size.height, size.width};
}

std::string contentOf(const LabelCut& label, const LabelSides& sides) {
    const sizes::PointSize part = turnedSize(label);
    const double scale = scaleFor(part, sides);
    const double width = part.width * scale;
    const double height = part.height * scale;
    const double left = (sides.page.width - width) / 2;
    const double low = (sides.page.height - height) / 2;
    const Matrix m = toSeen(label.page) * toLabel(label.place, label.quarters) *
                     Matrix{scale, 0, 0, scale, left, low};
    return "q " + words({left, low, width, height}) + "re W n " +
           words({m.a, m.b, m.c, m.d, m.e, m.f}) + "cm /Sheet Do Q\n";
}

// Streams in the order in which they are drawn, with a line end behind each, which may end a word.
std::string joined(const std::vector<QPDFObjectHandle>& streams) {
    std::string content;
    for (QPDFObjectHandle stream : streams) {
        if (stream.isStream()) {
            const auto data = stream.getStreamData();
            content.append(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
            content += "\n";
        }
    }
    return content;
}

QPDFObjectHandle contentOfPage(QPDF& pdf, QPDFObjectHandle contents) {
    if (contents.isStream()) {
        return contents.copyStream();
    }
    return pdf.newStream(contents.isArray() ? joined(contents.getArrayAsVector()) : "");
}

}  // namespace

QPDFObjectHandle formOfPage(QPDF& pdf, QPDFObjectHandle& page, const PageView& view) {
    QPDFObjectHandle form = contentOfPage(pdf, page.getKey("/Contents"));
    QPDFObjectHandle entries = form.getDict();
    entries.replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
    entries.replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
    entries.replaceKey("/BBox", box(view.left, view.bottom, view.right, view.top));
    for (const char* const name : {"/Resources", "/Group"}) {
        if (page.getKey(name).isDictionary()) {
            entries.replaceKey(name, page.getKey(name));
        }
    }
    return form;
}

QPDFObjectHandle makeLabelPage(QPDF& pdf, const QPDFObjectHandle& form, const LabelCut& label,
                               const LabelSides& sides) {
    auto objects = QPDFObjectHandle::newDictionary();
    objects.replaceKey("/Sheet", form);
    auto resources = QPDFObjectHandle::newDictionary();
    resources.replaceKey("/XObject", objects);
    auto page = QPDFObjectHandle::newDictionary();
    page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
    page.replaceKey("/MediaBox", box(0, 0, sides.page.width, sides.page.height));
    page.replaceKey("/Resources", resources);
    page.replaceKey("/Contents", QPDFObjectHandle::newStream(&pdf, contentOf(label, sides)));
    return pdf.makeIndirectObject(page);
}

}  // namespace intake::sheet
