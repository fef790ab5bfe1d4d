#include <utility>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/value.h"

namespace QZCore {
namespace {

/// The comparison of two values, nested containers included, without
/// recursion: pairs that are still to compare wait in a list.
class Comparison {
public:
    bool equal(const Value& a, const Value& b) {
        pending_.push_back({&a, &b});
        return finish();
    }

    bool equal(const Dictionary& a, const Dictionary& b) { return compareLater(a, b) && finish(); }

private:
    bool finish() {
        while (!pending_.empty()) {
            const auto [left, right] = pending_.back();
            pending_.pop_back();
            if (!equalOrPending(*left, *right)) return false;
        }
        return true;
    }

    bool equalOrPending(const Value& a, const Value& b) {
        if (a.isNumber() && b.isNumber()) return equalNumbers(a, b);
        if (a.kind() != b.kind()) return false;
        switch (a.kind()) {
            case ValueKind::Date:
                return *a.date() == *b.date();
            case ValueKind::Text:
                return *a.string() == *b.string();
            case ValueKind::Bytes:
                return *a.data() == *b.data();
            case ValueKind::URL:
                return *a.url() == *b.url();
            case ValueKind::List:
                return compareLater(*a.array(), *b.array());
            case ValueKind::Set:
                return a.set() == b.set() || *a.set() == *b.set();
            case ValueKind::Dictionary:
                return compareLater(*a.dictionary(), *b.dictionary());
            case ValueKind::Object:
                return a.object() == b.object() || a.object()->isEqualTo(*b.object());
            default:
                return true;
        }
    }

    static bool equalNumbers(const Value& a, const Value& b) {
        if (a.kind() == ValueKind::Real || b.kind() == ValueKind::Real) {
            return a.doubleValue() == b.doubleValue();
        }
        if (a.kind() == ValueKind::Unsigned || b.kind() == ValueKind::Unsigned) {
            const bool sameSign = (a.integerValue() < 0) == (b.integerValue() < 0);
            return sameSign && a.unsignedIntegerValue() == b.unsignedIntegerValue();
        }
        return a.integerValue() == b.integerValue();
    }

    bool compareLater(const Array& a, const Array& b) {
        if (&a == &b) return true;
        if (a.size() != b.size()) return false;
        for (std::size_t i = 0; i < a.size(); ++i) pending_.push_back({&a[i], &b[i]});
        return true;
    }

    bool compareLater(const Dictionary& a, const Dictionary& b) {
        if (&a == &b) return true;
        if (a.count() != b.count()) return false;
        for (const DictionaryEntry& entry : a) {
            const Value* other = b.find(entry.key);
            if (other == nullptr) return false;
            pending_.push_back({&entry.value, other});
        }
        return true;
    }

    std::vector<std::pair<const Value*, const Value*>> pending_;
};

}  // namespace

bool operator==(const Value& a, const Value& b) {
    return a.isIdentical(b) || Comparison().equal(a, b);
}

bool operator==(const Dictionary& a, const Dictionary& b) { return Comparison().equal(a, b); }

}  // namespace QZCore
