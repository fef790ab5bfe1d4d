#include <deque>
#include <unordered_set>
#include <utility>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/value.h"

namespace QZCore {
namespace {

/// Writes a value and what it contains, without recursion: what is still to be
/// written waits in a list, texts and values alike. A container inside itself,
/// and what goes beyond all that anybody reads, become dots.
class Description {
public:
    String of(const Value& value) {
        constexpr std::size_t kMostUnits = std::size_t{1} << 24;
        pending_.push_back({&value, {}, nullptr});
        while (!pending_.empty()) {
            const Piece next = pending_.back();
            pending_.pop_back();
            if (result_.size() > kMostUnits) return std::move(result_ += u"...");
            if (next.value == nullptr) {
                result_ += next.text;
                open_.erase(next.closes);
            } else {
                write(*next.value);
            }
        }
        return std::move(result_);
    }

private:
    /// A value, or a text and the container that ends with it.
    struct Piece {
        const Value* value;
        StringView text;
        const void* closes;
    };

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
                if (open(value.array(), u"[", u"]")) writeLater(*value.array());
                break;
            case ValueKind::Set:
                if (open(value.set(), u"{(", u")}")) writeLater(*value.set());
                break;
            case ValueKind::Dictionary:
                if (open(value.dictionary(), u"{", u"}")) writeLater(*value.dictionary());
                break;
            case ValueKind::Object:
                write(*value.object());
                break;
            default:
                result_ += value.stringValue();
                break;
        }
    }

    void write(const Object& object) {
        const Dictionary* held = object.heldEntries();
        result_ += held == nullptr ? object.description() : object.heading();
        if (held != nullptr && open(held, u"{", u"}")) writeLater(*held);
    }

    /// Whether `container` begins here; it has begun already when it is inside
    /// itself.
    bool open(const void* container, StringView opening, StringView closing) {
        if (!open_.insert(container).second) {
            result_ += u"...";
            return false;
        }
        result_ += opening;
        pending_.push_back({nullptr, closing, container});
        return true;
    }

    void writeLater(const Array& elements) {
        for (std::size_t i = elements.size(); i-- > 0;) {
            writeLater(elements[i]);
            if (i > 0) writeLater(u", ");
        }
    }

    void writeLater(const Set& members) {
        sets_.push_back(members.allObjects());
        writeLater(sets_.back());
    }

    void writeLater(const Dictionary& entries) {
        std::vector<const DictionaryEntry*> inOrder;
        for (const DictionaryEntry& entry : entries) inOrder.push_back(&entry);
        for (std::size_t i = inOrder.size(); i-- > 0;) {
            writeLater(inOrder[i]->value);
            writeLater(u" = ");
            writeLater(inOrder[i]->key);
            if (i > 0) writeLater(u"; ");
        }
    }

    void writeLater(const Value& value) { pending_.push_back({&value, {}, nullptr}); }
    void writeLater(const char16_t* text) { pending_.push_back({nullptr, text, nullptr}); }

    std::vector<Piece> pending_;
    std::unordered_set<const void*> open_;
    std::deque<Array> sets_;  // stays in place while its values wait
    String result_;
};

}  // namespace

String Value::description() const { return Description().of(*this); }

}  // namespace QZCore
