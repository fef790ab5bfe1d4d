#include "color/legacy_color.h"

#include "QZCore/color/stored_colors.h"
#include "QZCore/foundation/property_list.h"
#include "support/color_printing.h"
#include "support/log_capture.h"

namespace QZCore {
namespace {

std::string streamOf(std::string_view start, std::string_view rest) {
    std::string stream(start);
    stream.append("\x84\x01@\x84\x84\x84\x07NSColor", 14).append(1, '\0');
    stream.append("\x84\x84\x08NSObject", 11)
        .append(
            "\0\x85\x84\x01"
            "c",
            5)
        .append(rest);
    return stream;
}

std::string little(std::string_view rest) {
    return streamOf("\x04\x0Bstreamtyped\x81\xE8\x03", rest);
}

std::string big(std::string_view rest) { return streamOf("\x04\x0Btypedstream\x81\x03\xE8", rest); }

template <std::size_t size>
std::string_view bytes(const char (&text)[size]) {
    return {text, size - 1};
}

/// A keyed archive whose root is a dictionary with the entries.
Data keyed(const Dictionary& root) {
    const Dictionary reference{{u"CF$UID", 1}};
    return writePropertyList(Dictionary{{u"$top", Dictionary{{u"root", reference}}},
                                        {u"$objects", Array{u"$null", root}}})
        .data.value();
}

Data dataOf(std::string_view text) {
    const DataView view = bytesOf(text);
    return {view.begin(), view.end()};
}

}  // namespace

TEST_CASE("colours that older versions archived are read from preferences") {
    struct Row {
        const char* why;
        Data data;
        std::optional<Color> color;
    };
    const Row rows[] = {
        {"white level",
         dataOf(little(bytes("\x03\x84\x02"
                             "ff\0\x01\x86"))),
         Color::colorWithCalibratedWhite(0, 1)},
        {"whole components",
         dataOf(little(bytes("\x01\x84\x04"
                             "ffff\x01\0\0\x01\x86"))),
         Color::colorWithCalibratedRed(1, 0, 0, 1)},
        {"real components, the low byte first",
         dataOf(little(bytes("\x02\x84\x04"
                             "ffff\x83\0\0\0\x3F\0\x01\x83\0\0\x80\x3E\x86"))),
         Color::colorWithDeviceRed(0.5, 0, 1, 0.25)},
        {"real components, the high byte first",
         dataOf(big(bytes("\x04\x84\x02"
                          "ff\x83\x3F\0\0\0\x01\x86"))),
         Color::colorWithCalibratedWhite(0.5, 1)},
        {"a colour of another model",
         dataOf(little(bytes("\x05\x84\x05"
                             "fffff\0\0\0\0\x01\x86"))),
         {}},
        {"components of another number",
         dataOf(little(bytes("\x01\x84\x02"
                             "ff\0\x01\x86"))),
         {}},
        {"cut off",
         dataOf(little(bytes("\x03\x84\x02"
                             "ff\x83\0\0"))),
         {}},
        {"keyed", keyed({{u"NSColorSpace", 1}, {u"NSRGB", dataOf("0.25 0.5 1")}}),
         Color::colorWithCalibratedRed(0.25, 0.5, 1, 1)},
        {"keyed, with an alpha and a zero byte",
         keyed({{u"NSColorSpace", 2}, {u"NSRGB", dataOf(bytes("0 0 1 0.5\0"))}}),
         Color::colorWithDeviceRed(0, 0, 1, 0.5)},
        {"keyed white level", keyed({{u"NSColorSpace", 3}, {u"NSWhite", dataOf("0.75 1")}}),
         Color::colorWithCalibratedWhite(0.75, 1)},
        {"keyed, too few components", keyed({{u"NSColorSpace", 1}, {u"NSRGB", dataOf("1 0")}}), {}},
        {"keyed, another model", keyed({{u"NSColorSpace", 6}, {u"NSRGB", dataOf("1 0 0")}}), {}},
        {"keyed, no data", keyed({{u"NSColorSpace", 1}, {u"NSRGB", u"1 0 0"}}), {}},
        {"a property list", writePropertyList(Dictionary{}).data.value(), {}},
        {"nothing", {}, {}},
    };
    const testing::LogCapture log;
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const Preferences preferences({{u"color", row.data}});
        CHECK(colorForKey(preferences, u"color", Color::whiteColor()) == row.color);
        CHECK_FALSE(colorForKey(Dictionary{{u"color", row.data}}, u"color").has_value());
        for (std::size_t length = 0; length < row.data.size(); ++length) {
            (void)legacyColor(DataView(row.data).first(length));
        }
    }
    CHECK(log.lines().empty());
}

}  // namespace QZCore
