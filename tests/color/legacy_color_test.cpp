#include "color/legacy_color.h"

#include "QZCore/color/stored_colors.h"
#include "QZCore/foundation/property_list.h"
#include "support/bytes.h"
#include "support/color_printing.h"
#include "support/log_capture.h"

namespace QZCore {
namespace {

// Everything before the model of a colour, the low byte of numbers first or last.
constexpr StringView kLittle =
    u"040B73747265616D747970656481E803"
    u"840140848484074E53436F6C6F72008484084E534F626A6563740085840163";
constexpr StringView kBig =
    u"040B747970656473747265616D8103E8"
    u"840140848484074E53436F6C6F72008484084E534F626A6563740085840163";

Data streamOf(StringView start, StringView rest) {
    return testing::fromHex(String(start).append(rest));
}

/// A keyed archive whose root is a dictionary with the entries.
Data keyed(const Dictionary& root) {
    const Dictionary reference{{u"CF$UID", 1}};
    return writePropertyList(Dictionary{{u"$top", Dictionary{{u"root", reference}}},
                                        {u"$objects", Array{u"$null", root}}})
        .data.value();
}

Data dataOf(std::string_view text) { return {text.begin(), text.end()}; }

}  // namespace

TEST_CASE("colours that older versions archived are read from preferences") {
    struct Row {
        const char* why;
        Data data;
        std::optional<Color> color;
    };
    const Row rows[] = {
        {"white level", streamOf(kLittle, u"0384026666000186"),
         Color::colorWithCalibratedWhite(0, 1)},
        {"whole components", streamOf(kLittle, u"018404666666660100000186"),
         Color::colorWithCalibratedRed(1, 0, 0, 1)},
        {"real components", streamOf(kLittle, u"02840466666666830000003F0001830000803E86"),
         Color::colorWithDeviceRed(0.5, 0, 1, 0.25)},
        {"real components, the high byte first", streamOf(kBig, u"0484026666833F0000000186"),
         Color::colorWithCalibratedWhite(0.5, 1)},
        {"another model", streamOf(kLittle, u"05840566666666660000000001"), {}},
        {"components of another number", streamOf(kLittle, u"0184026666000186"), {}},
        {"cut off", streamOf(kLittle, u"0384026666830000"), {}},
        {"keyed", keyed({{u"NSColorSpace", 1}, {u"NSRGB", dataOf("0.25 0.5 1")}}),
         Color::colorWithCalibratedRed(0.25, 0.5, 1, 1)},
        {"keyed, with an alpha and a zero byte",
         keyed({{u"NSColorSpace", 2}, {u"NSRGB", dataOf({"0 0 1 0.5\0", 10})}}),
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
