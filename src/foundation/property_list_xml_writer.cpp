#include <algorithm>
#include <utility>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/property_list.h"
#include "foundation/base64.h"
#include "foundation/property_list_scalars.h"

namespace QZCore {
namespace {

constexpr std::string_view kHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<plist version=\"1.0\">\n";
constexpr std::string_view kTail = "</plist>\n";

/// Values that share containers can unfold beyond all bounds.
constexpr std::size_t kMostBytes = std::size_t{1} << 30;

/// Deeper lines are not indented further, so that depth costs nothing.
constexpr std::size_t kMostTabs = 16;

/// What stands for a character that would not be read back as itself; empty
/// for all others.
constexpr std::string_view escapeOf(char16_t unit) {
    switch (unit) {
        case u'&':
            return "&amp;";
        case u'<':
            return "&lt;";
        case u'>':
            return "&gt;";
        case u'\r':
            return "&#13;";
        default:
            return {};
    }
}

/// Writes a value and what it contains, without recursion: the containers that
/// have begun wait in a list.
class XmlWriter {
public:
    PropertyListData write(const Value& root) {
        xml_ = kHead;
        writeValue(root);
        while (!levels_.empty() && error_.empty()) writeNext();
        if (!error_.empty()) return {std::nullopt, std::move(error_)};
        xml_ += kTail;
        return {Data(xml_.begin(), xml_.end()), {}};
    }

private:
    /// A container that has begun, and what of it is still to be written.
    struct Level {
        std::string_view tag;
        const Value* element;
        const Value* elementsEnd;
        Dictionary::Iterator entry;
        Dictionary::Iterator entriesEnd;
    };

    void writeNext() {
        Level& level = levels_.back();
        if (level.element != level.elementsEnd) return writeValue(*level.element++);
        if (level.entry == level.entriesEnd) return endContainer();
        const DictionaryEntry& entry = *level.entry;
        ++level.entry;
        if (entry.key.string() == nullptr) return fail(u"a key that is not a string");
        indent();
        writeText("key", *entry.key.string());
        writeValue(entry.value);
    }

    void writeValue(const Value& value) {
        if (xml_.size() > kMostBytes) return fail(u"the list is too large");
        indent();
        switch (value.kind()) {
            case ValueKind::Boolean:
                xml_ += value.boolValue() ? "<true/>\n" : "<false/>\n";
                return;
            case ValueKind::Integer:
                return writeElement("integer", std::to_string(value.integerValue()));
            case ValueKind::Unsigned:
                return writeElement("integer", std::to_string(value.unsignedIntegerValue()));
            case ValueKind::Real:
                return writeElement("real", propertyListText(value.doubleValue()));
            case ValueKind::Date:
                return writeDate(*value.date());
            case ValueKind::Text:
                return writeText("string", *value.string());
            case ValueKind::Bytes:
                return writeData(*value.data());
            case ValueKind::List:
                return beginContainer(*value.array());
            case ValueKind::Dictionary:
                return beginContainer(*value.dictionary());
            default:
                return fail(u"a value that a property list cannot hold");
        }
    }

    // ---- Containers ----

    void beginContainer(const Array& array) {
        const Dictionary::Iterator none(nullptr, nullptr);
        begin({"array", array.data(), array.data() + array.size(), none, none}, array.empty());
    }

    void beginContainer(const Dictionary& dictionary) {
        begin({"dict", nullptr, nullptr, dictionary.begin(), dictionary.end()}, dictionary.empty());
    }

    void begin(const Level& level, bool isEmpty) {
        // A container that holds itself ends here, too.
        if (levels_.size() == static_cast<std::size_t>(kPropertyListDepthLimit)) {
            return fail(u"containers are nested too deeply");
        }
        xml_.append("<").append(level.tag).append(isEmpty ? "/>\n" : ">\n");
        if (!isEmpty) levels_.push_back(level);
    }

    void endContainer() {
        const std::string_view tag = levels_.back().tag;
        levels_.pop_back();
        indent();
        xml_.append("</").append(tag).append(">\n");
    }

    // ---- Elements ----

    void indent() { xml_.append(std::min(levels_.size(), kMostTabs), '\t'); }

    void openTag(std::string_view tag) { xml_.append("<").append(tag).append(">"); }

    void closeTag(std::string_view tag) { xml_.append("</").append(tag).append(">\n"); }

    void writeElement(std::string_view tag, std::string_view content) {
        openTag(tag);
        xml_ += content;
        closeTag(tag);
    }

    void writeDate(Date date) {
        const auto text = propertyListText(date);
        if (!text) return fail(u"a date that is none or too far away");
        writeElement("date", *text);
    }

    void writeData(DataView data) {
        openTag("data");
        appendBase64(xml_, data);
        closeTag("data");
    }

    void writeText(std::string_view tag, StringView text) {
        if (!isPropertyListText(text)) return fail(u"a text with characters that XML cannot hold");
        openTag(tag);
        appendEscaped(text);
        closeTag(tag);
    }

    void appendEscaped(StringView text) {
        const auto isEscaped = [](char16_t unit) { return !escapeOf(unit).empty(); };
        while (true) {
            const auto* end = std::ranges::find_if(text, isEscaped);
            xml_ += toUTF8({text.begin(), end});
            if (end == text.end()) return;
            xml_ += escapeOf(*end);
            text = {end + 1, text.end()};
        }
    }

    void fail(StringView reason) {
        if (error_.empty()) error_ = reason;
    }

    std::string xml_;
    std::vector<Level> levels_;
    String error_;
};

}  // namespace

PropertyListData writePropertyList(const Value& value) { return XmlWriter().write(value); }

}  // namespace QZCore
