#include <type_traits>
#include <unordered_set>
#include <utility>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/value.h"
#include "foundation/hash.h"

namespace QZCore {
namespace {

/// Exactly, where the conversion of the integer to a double would round.
template <class Integer>
bool sameNumber(Integer integer, double real) {
    const double beyond = std::is_signed_v<Integer> ? 0x1p63 : 0x1p64;
    return static_cast<double>(integer) == real && real < beyond &&
           static_cast<Integer>(real) == integer;
}

bool sameNumber(const Value& integer, double real) {
    return integer.kind() == ValueKind::Unsigned ? sameNumber(integer.unsignedIntegerValue(), real)
                                                 : sameNumber(integer.integerValue(), real);
}

bool equalNumbers(const Value& a, const Value& b) {
    const bool aIsReal = a.kind() == ValueKind::Real;
    const bool bIsReal = b.kind() == ValueKind::Real;
    if (aIsReal && bIsReal) return a.doubleValue() == b.doubleValue();
    if (aIsReal) return sameNumber(b, a.doubleValue());
    if (bIsReal) return sameNumber(a, b.doubleValue());
    // Each side's range ends where the other's goes on.
    return a.integerValue() == b.integerValue() &&
           a.unsignedIntegerValue() == b.unsignedIntegerValue();
}

/// Pairs of containers.
class Pairs {
public:
    /// Whether the pair was not there before.
    bool add(const void* a, const void* b) { return pairs_.insert({a, b}).second; }

private:
    struct Hash {
        std::size_t operator()(const std::pair<const void*, const void*>& pair) const {
            const auto number = [](const void* p) { return reinterpret_cast<std::uintptr_t>(p); };
            return hashCombine(hashCombine(0, number(pair.first)), number(pair.second));
        }
    };

    std::unordered_set<std::pair<const void*, const void*>, Hash> pairs_;
};

/// Counts the comparisons of a thread that run inside one another. Sets and
/// keys find each other by comparing, and objects compare what they hold: so
/// deep in one another, only identical ones count as equal.
class Nesting {
public:
    Nesting() { ++depth(); }
    ~Nesting() { --depth(); }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

    [[nodiscard]] static bool isTooDeep() {
        constexpr int kDeepest = 100;
        return depth() > kDeepest;
    }

private:
    static int& depth() {
        static thread_local int value = 0;
        return value;
    }
};

/// The comparison of two values, nested containers included, without
/// recursion: pairs that are still to compare wait in a list.
class Comparison {
public:
    bool equal(const Value& a, const Value& b) { return equalOrPending(a, b) && finish(); }

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
                return wasCompared(a, b, a.array(), b.array()) ||
                       compareLater(*a.array(), *b.array());
            case ValueKind::Set:
                return a.set() == b.set() || *a.set() == *b.set();
            case ValueKind::Dictionary:
                return wasCompared(a, b, a.dictionary(), b.dictionary()) ||
                       compareLater(*a.dictionary(), *b.dictionary());
            case ValueKind::Object:
                return a.object() == b.object() || equalObjectsOrPending(a, b);
            default:
                return true;
        }
    }

    bool equalObjectsOrPending(const Value& a, const Value& b) {
        const Dictionary* inA = a.object()->heldEntries();
        const Dictionary* inB = b.object()->heldEntries();
        if (inA == nullptr || inB == nullptr) return a.object()->isEqualTo(*b.object());
        return wasCompared(a, b, inA, inB) || compareLater(*inA, *inB);
    }

    /// Whether the comparison has met this pair of containers before. Containers
    /// that are shared many times, or hold themselves, would never end; those
    /// that are not shared are met only once.
    bool wasCompared(const Value& a, const Value& b, const void* inA, const void* inB) {
        return (a.isShared() || b.isShared()) && !shared_.add(inA, inB);
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
    Pairs shared_;
};

}  // namespace

bool operator==(const Value& a, const Value& b) {
    if (a.isIdentical(b)) return true;
    const Nesting nesting;
    return !Nesting::isTooDeep() && Comparison().equal(a, b);
}

bool operator==(const Dictionary& a, const Dictionary& b) {
    const Nesting nesting;
    return Nesting::isTooDeep() ? &a == &b : Comparison().equal(a, b);
}

}  // namespace QZCore
