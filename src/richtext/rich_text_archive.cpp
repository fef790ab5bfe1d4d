// A text in archives: its string, and for each run the length and the attributes.

#include <unordered_map>
#include <utility>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/model/archive.h"
#include "QZCore/richtext/archived_rich_text.h"
#include "QZCore/richtext/rich_text.h"
#include "richtext/archived_attributes.h"
#include "richtext/flat_text.h"

namespace QZCore {
namespace {

// Stored in documents.
constexpr StringView kString = u"string";
constexpr StringView kRuns = u"runs";
constexpr StringView kAttributes = u"attributes";

// ---- Attribute sets ----

void encodeAttributes(const TextAttributes& attributes, ArchiveEncoder& coder) {
    Dictionary entries;
    for (const auto& [name, value] : attributes.entries()) entries.setObject(value, name.text());
    coder.encodeContent(std::move(entries), kAttributes);
}

std::optional<TextAttributes> decodeAttributes(ArchiveDecoder& coder) {
    const auto entries = coder.decodeContent(kAttributes);
    if (!entries || entries->dictionary() == nullptr) return std::nullopt;
    std::vector<TextAttribute> attributes;
    for (const auto& [name, value] : *entries->dictionary()) {
        if (name.string() == nullptr) return std::nullopt;
        attributes.push_back({*name.string(), value});
    }
    return TextAttributes(std::move(attributes));
}

// ---- Texts ----

void encodeText(const RichText& text, ArchiveEncoder& coder) {
    std::unordered_map<std::size_t, Value> sets;  // by hash, which is their identity
    Array runs;
    for (const TextRunView run : text.runs()) {
        Value& set = sets[run.attributes.hash()];
        if (set.isAbsent()) set = Value::boxed(run.attributes);
        runs.push_back(run.range.length);
        runs.push_back(set);
    }
    coder.encodeContent(text.string(), kString);
    coder.encodeContent(std::move(runs), kRuns);
}

/// The runs of a text of `length` units: a length and an attribute set each.
std::optional<FlatRuns> flatRuns(const Array& runs, std::size_t length) {
    FlatRuns flat;
    std::size_t end = 0;
    for (std::size_t i = 0; i + 1 < runs.size(); i += 2) {
        const auto* attributes = runs[i + 1].boxedValue<TextAttributes>();
        const std::uint64_t units = runs[i].unsignedIntegerValue();
        if (attributes == nullptr || units > length - end) return std::nullopt;
        end += units;
        appendRun(flat.runs, static_cast<std::uint32_t>(end), flat.palette.idOf(*attributes));
    }
    return end == length && runs.size() % 2 == 0 ? std::optional(std::move(flat)) : std::nullopt;
}

std::optional<RichText> decodeText(ArchiveDecoder& coder) {
    const auto string = coder.decodeContent(kString);
    const auto runs = coder.decodeContent(kRuns);
    if (!string || string->string() == nullptr) return std::nullopt;
    if (!runs || runs->array() == nullptr) return std::nullopt;
    const String& units = *string->string();
    if (units.size() >= kFlatTextLimit) return std::nullopt;
    const auto flat = flatRuns(*runs->array(), units.size());
    if (!flat) return std::nullopt;
    RichText text(units);
    FlatTextAccess::replaceRuns(text, 0, *flat);
    return text;
}

}  // namespace

ArchivedClass archivedRichText() {
    return archivedBox<RichText, encodeText, decodeText>(
        u"RichText", {archivedBox<TextAttributes, encodeAttributes, decodeAttributes>(
                         u"TextAttributes", archivedAttributeValues())});
}

}  // namespace QZCore
