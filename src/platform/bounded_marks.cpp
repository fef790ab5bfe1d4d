#include "platform/bounded_marks.h"

#include "platform/characters.h"

namespace QZCore {
namespace {

constexpr std::size_t kMostMarks = 30;
constexpr char16_t kGraphemeJoiner = 0x034F;

}  // namespace

std::optional<String> withBoundedMarks(StringView text) {
    if (text.size() <= kMostMarks) return std::nullopt;
    std::optional<String> bounded;
    std::size_t copied = 0;
    std::size_t marks = 0;
    for (std::size_t at = 0; at < text.size();) {
        const CodePoint point = codePointAt(text, at);
        marks = isReorderedMark(point.value) ? marks + 1 : 0;
        if (marks > kMostMarks) {
            if (!bounded) bounded.emplace();
            bounded->append(text.substr(copied, at - copied)).push_back(kGraphemeJoiner);
            copied = at;
            marks = 1;
        }
        at += point.length;
    }
    if (bounded) bounded->append(text.substr(copied));
    return bounded;
}

}  // namespace QZCore
