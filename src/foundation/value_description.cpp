#include <deque>
#include <utility>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/value.h"

namespace QZCore {
namespace {

/// Writes a value and what it contains, without recursion: what is still to be
/// written waits in a list, texts and values alike.
class Description {
public:
    String of(const Value& value) {
        pending_.push_back({&value, u""});
        while (!pending_.empty()) {
            const auto [next, text] = pending_.back();
            pending_.pop_back();
            if (next == nullptr) {
                result_ += text;
            } else {
                write(*next);
            }
        }
        return std::move(result_);
    }

private:
    void write(const Value& value) {
        switch (value.kind()) {
            case ValueKind::Absent:
                result_ += u"(null)";
                break;
            case ValueKind::Date:
                result_ += shortestString(value.date()->secondsSince1970);
                break;
            case ValueKind::Bytes:
                result_ += u"<" + unsignedString(value.data()->size()) + u" bytes>";
                break;
            case ValueKind::List:
                writeLater(*value.array(), u"[", u"]");
                break;
            case ValueKind::Set:
                sets_.push_back(value.set()->allObjects());
                writeLater(sets_.back(), u"{(", u")}");
                break;
            case ValueKind::Dictionary:
                writeLater(*value.dictionary());
                break;
            case ValueKind::Object:
                result_ += value.object()->description();
                break;
            default:
                result_ += value.stringValue();
                break;
        }
    }

    void writeLater(const Array& elements, StringView open, StringView close) {
        result_ += open;
        pending_.push_back({nullptr, close});
        for (std::size_t i = elements.size(); i-- > 0;) {
            pending_.push_back({&elements[i], u""});
            if (i > 0) pending_.push_back({nullptr, u", "});
        }
    }

    void writeLater(const Dictionary& entries) {
        result_ += u"{";
        pending_.push_back({nullptr, u"}"});
        std::vector<const DictionaryEntry*> inOrder;
        for (const DictionaryEntry& entry : entries) inOrder.push_back(&entry);
        for (std::size_t i = inOrder.size(); i-- > 0;) {
            pending_.push_back({&inOrder[i]->value, u""});
            pending_.push_back({nullptr, u" = "});
            pending_.push_back({&inOrder[i]->key, u""});
            if (i > 0) pending_.push_back({nullptr, u"; "});
        }
    }

    std::vector<std::pair<const Value*, StringView>> pending_;
    std::deque<Array> sets_;  // stays in place while its values wait
    String result_;
};

}  // namespace

String Value::description() const { return Description().of(*this); }

}  // namespace QZCore
