#include "richtext/html_tokenizer.h"

#include <algorithm>
#include <utility>

#include "foundation/unit_search.h"
#include "richtext/css_values.h"
#include "richtext/html_references.h"

namespace QZCore {
namespace {

constexpr StringView kBlanks = u" \t\n\f";

bool isAsciiLetter(char16_t unit) {
    return (unit | 0x20) >= u'a' && (unit | 0x20) <= u'z' && unit < 0x80;
}

}  // namespace

const String* HtmlToken::find(StringView name) const {
    const auto at = std::ranges::find(attributes, name, &HtmlAttribute::name);
    return at == attributes.end() ? nullptr : &at->value;
}

HtmlTokenizer::Contents HtmlTokenizer::contentsOf(StringView element) {
    for (const StringView raw :
         {u"script", u"style", u"xmp", u"iframe", u"noembed", u"noframes", u"plaintext"}) {
        if (element == raw) return Contents::Raw;
    }
    const bool hasReferences = element == u"title" || element == u"textarea";
    return hasReferences ? Contents::References : Contents::Markup;
}

bool HtmlTokenizer::next(HtmlToken& token) {
    if (contents_ != Contents::Markup) {
        const std::size_t end = endOfContents();
        const bool isThere = end > at_;
        if (isThere) readText(token, end);
        contents_ = Contents::Markup;
        if (isThere) return true;
    }
    while (at_ < html_.size()) {
        if (html_[at_] == u'<' && readMarkup(token)) return true;
        // What was no markup was skipped, or is a text that starts here.
        if (at_ < html_.size() && (html_[at_] != u'<' || isTextAhead_)) {
            readText(token, findUnit(html_, at_ + 1, u'<'));
            isTextAhead_ = false;
            return true;
        }
    }
    return false;
}

/// Reads what stands behind a "<" and returns whether it is a tag.
bool HtmlTokenizer::readMarkup(HtmlToken& token) {
    const char16_t next = unitAt(at_ + 1);
    if (isAsciiLetter(next) || (next == u'/' && isAsciiLetter(unitAt(at_ + 2)))) {
        return readTag(token);
    }
    if (html_.substr(at_, 4) == u"<!--") {
        skipComment();
    } else if (next == u'!' || next == u'?' || (next == u'/' && at_ + 2 < html_.size())) {
        skipThrough(u">");
    } else {
        isTextAhead_ = true;
    }
    return false;
}

void HtmlTokenizer::readText(HtmlToken& token, std::size_t end) {
    const StringView text = html_.substr(at_, end - at_);
    at_ = end;
    token.kind = HtmlTokenKind::Text;
    token.attributes.clear();
    token.text = contents_ == Contents::Raw ? String(text)
                                            : withReferencesResolved(text, ReferencePlace::Text);
}

/// The end tag of the element that holds no markup, or the end of the text.
std::size_t HtmlTokenizer::endOfContents() const {
    for (std::size_t at = at_;; ++at) {
        at = html_.find(u"</", at);
        if (at == StringView::npos || element_ == u"plaintext") return html_.size();
        const StringView name = html_.substr(at + 2, element_.size());
        const char16_t next = unitAt(at + 2 + element_.size());
        const bool isWhole = next == u'>' || next == u'/' || kBlanks.find(next) != kBlanks.npos;
        if (isWhole && equalsIgnoringAsciiCase(name, element_)) return at;
    }
}

/// A tag that the text ends in is none.
bool HtmlTokenizer::readTag(HtmlToken& token) {
    const bool isEnd = html_[at_ + 1] == u'/';
    at_ += isEnd ? 2 : 1;
    token.kind = isEnd ? HtmlTokenKind::EndTag : HtmlTokenKind::StartTag;
    token.text = readName(u" \t\n\f/>");
    token.attributes.clear();
    if (!readAttributes(token)) return false;
    if (isEnd) return true;
    contents_ = contentsOf(token.text);
    if (contents_ != Contents::Markup) element_ = token.text;
    return true;
}

/// Reads up to the end of the tag and returns whether there is one.
bool HtmlTokenizer::readAttributes(HtmlToken& token) {
    for (;;) {
        while (unitAt(at_) == u'/' || kBlanks.find(unitAt(at_)) != kBlanks.npos) ++at_;
        if (at_ >= html_.size()) return false;
        if (html_[at_] == u'>') break;
        token.attributes.push_back(readAttribute());
    }
    ++at_;
    return true;
}

HtmlAttribute HtmlTokenizer::readAttribute() {
    constexpr StringView kEnds = u" \t\n\f/>=";
    String name;
    if (html_[at_] == u'=') {  // a name may start with one
        ++at_;
        name = u"=";
    }
    name += readName(kEnds);
    skipBlanks();
    if (unitAt(at_) != u'=') return {std::move(name), {}};
    ++at_;
    skipBlanks();
    return {std::move(name), readValue()};
}

String HtmlTokenizer::readValue() {
    const char16_t quote = unitAt(at_);
    const bool isQuoted = quote == u'"' || quote == u'\'';
    if (isQuoted) ++at_;
    const std::size_t end = isQuoted
                                ? findUnit(html_, std::min(at_, html_.size()), quote)
                                : std::min(html_.find_first_of(u" \t\n\f>", at_), html_.size());
    const StringView value = html_.substr(at_, end - at_);
    at_ = isQuoted ? std::min(end + 1, html_.size()) : end;
    return withReferencesResolved(value, ReferencePlace::Attribute);
}

String HtmlTokenizer::readName(StringView ends) {
    const std::size_t end = std::min(html_.find_first_of(ends, at_), html_.size());
    String name = inAsciiLowerCase(html_.substr(at_, end - at_));
    at_ = end;
    return name;
}

void HtmlTokenizer::skipComment() {
    at_ += 4;
    const StringView rest = html_.substr(at_);
    if (rest.starts_with(u">") || rest.starts_with(u"->")) return skipThrough(u">");
    const std::size_t end = std::min(rest.find(u"-->"), rest.size());
    const std::size_t otherEnd = rest.substr(0, end).find(u"--!>");
    at_ += otherEnd == StringView::npos ? end : otherEnd;
    skipThrough(u">");
}

void HtmlTokenizer::skipThrough(StringView end) {
    const std::size_t found = html_.find(end, at_);
    at_ = found == StringView::npos ? html_.size() : found + end.size();
}

void HtmlTokenizer::skipBlanks() {
    while (at_ < html_.size() && kBlanks.find(html_[at_]) != kBlanks.npos) ++at_;
}

}  // namespace QZCore
