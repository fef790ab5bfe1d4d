#include <algorithm>

#include "QZCore/bezier/bezier_path.h"

namespace QZCore {
namespace {

constexpr std::size_t kMostDashes = 30;

/// The numbers between commas, times `unit`. An empty piece between two commas
/// repeats the number before; an empty first or last piece is none.
std::vector<double> dashesOf(StringView pattern, double unit) {
    std::vector<double> dashes;
    while (!pattern.empty() && dashes.size() < kMostDashes) {
        const StringView piece = pattern.substr(0, pattern.find(u','));
        if (!piece.empty()) {
            dashes.push_back(doubleValue(piece) * unit);
        } else if (!dashes.empty()) {
            dashes.push_back(dashes.back());
        }
        pattern.remove_prefix(std::min(piece.size() + 1, pattern.size()));
    }
    return dashes;
}

}  // namespace

void BezierPath::setLineDashFromString(StringView string) {
    if (string == u"0") return;
    const std::size_t semicolon = string.find(u';');
    std::vector<double> dashes = dashesOf(string.substr(0, semicolon), lineWidth_);
    if (dashes.empty()) return;
    const bool hasPhase = semicolon != StringView::npos;
    setLineDash(std::move(dashes),
                hasPhase ? doubleValue(string.substr(semicolon + 1)) * lineWidth_ : 0);
}

}  // namespace QZCore
