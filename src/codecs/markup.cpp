#include <algorithm>
#include <array>

#include "QZCore/codecs/transforming.h"
#include "codecs/literal_search.h"

namespace QZCore {
namespace {

bool beginsWithOneOf(StringView tag, std::initializer_list<StringView> beginnings) {
    return std::ranges::any_of(beginnings,
                               [tag](StringView beginning) { return tag.starts_with(beginning); });
}

StringView replacementFor(StringView tag) {
    if (beginsWithOneOf(tag,
                        {u"<span", u"</span>", u"<b>", u"</b>", u"<u>", u"</u>", u"<i>", u"</i>"}))
        return u"";
    if (beginsWithOneOf(tag, {u"<p>", u"</p>", u"<p/>"})) return u"\n";
    return u" ";
}

/// Whether `rest` begins with a comment. What is shorter than "<!---->x" is
/// read as a tag.
bool startsComment(StringView rest) {
    constexpr std::size_t kShortest = 8;
    return rest.size() >= kShortest && rest.starts_with(u"<!--");
}

/// Takes the comment or tag that begins `rest` and returns what takes its
/// place; without its end all of `rest` is taken.
StringView takeMarkup(StringView& rest) {
    const bool isComment = startsComment(rest);
    const StringView opening = isComment ? u"<!--" : u"<";
    const StringView closing = isComment ? u"-->" : u">";
    const StringView markup = rest;
    const std::size_t close = rest.find(closing, opening.size());
    if (close == StringView::npos) {
        rest = {};
        return markup.substr(opening.size());
    }
    rest.remove_prefix(close + closing.size());
    return isComment ? StringView() : replacementFor(markup);
}

String withoutMarkup(StringView text) {
    String result;
    for (StringView rest = text; !rest.empty();) {
        const std::size_t start = std::min(rest.find(u'<'), rest.size());
        result.append(rest.substr(0, start));
        rest.remove_prefix(start);
        if (!rest.empty()) result.append(takeMarkup(rest));
    }
    return result;
}

struct EntityRow {
    StringView entity;
    StringView character;
};

constexpr std::array kEntities{
    EntityRow{u"&nbsp;", u" "},
    EntityRow{u"&lt;", u"<"},
    EntityRow{u"&gt;", u">"},
    EntityRow{u"%20", u" "},
};

}  // namespace

String stringByRemovingHTML(StringView text) {
    String result = withoutMarkup(text);
    for (const EntityRow& row : kEntities) {
        result = replacingOccurrences(result, row.entity, row.character);
    }
    return result;
}

}  // namespace QZCore
