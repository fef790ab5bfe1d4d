#include "platform/pango_font_weights.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <array>

namespace QZCore {
namespace {

struct WeightRow {
    double from;  // in OpenType's scale, where 400 is regular and 700 bold
    int weight;
};

// Each row begins half-way between two of the names that OpenType gives to
// multiples of 100, so that a face between two names goes to the nearer one.
// 380 is the book weight, which is a regular one.
constexpr std::array kWeights{
    WeightRow{0, 0},     // hairline
    WeightRow{50, 1},    // thin, 100
    WeightRow{150, 2},   // extra light, 200
    WeightRow{250, 3},   // light, 300
    WeightRow{325, 4},   // semilight, 350
    WeightRow{375, 5},   // book, 380, and regular, 400
    WeightRow{450, 6},   // medium, 500
    WeightRow{550, 8},   // semibold, 600
    WeightRow{650, 9},   // bold, 700
    WeightRow{750, 10},  // extra bold, 800
    WeightRow{850, 12},  // black, 900
    WeightRow{925, 14},  // extra black, 950
};
static_assert(std::ranges::is_sorted(kWeights, {}, &WeightRow::from));

}  // namespace

int fontWeightFromFontconfig(double weight) {
    const double openType = FcWeightToOpenTypeDouble(weight);
    int found = kWeights.front().weight;
    for (const WeightRow& row : kWeights) {
        if (openType >= row.from) found = row.weight;
    }
    return found;
}

}  // namespace QZCore
