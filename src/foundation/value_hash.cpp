#include <algorithm>
#include <array>
#include <functional>
#include <type_traits>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/value.h"
#include "foundation/hash.h"

namespace QZCore {
namespace {

// How many elements count in a container, in a container inside it, and in one
// inside that. Of deeper ones only the size does.
constexpr std::array<std::size_t, 3> kCounted{64, 16, 4};

std::size_t hashAtLevel(const Value& value, std::size_t level);

/// Of a long list, the two ends count.
std::size_t hashOf(const Array& elements, std::size_t level) {
    std::size_t hash = hashCombine(5, elements.size());
    if (level == kCounted.size()) return hash;
    const std::size_t counted = std::min(elements.size(), kCounted[level]);
    const std::size_t atStart = counted - counted / 2;
    for (std::size_t i = 0; i < counted; ++i) {
        const std::size_t at = i < atStart ? i : elements.size() - counted + i;
        hash = hashCombine(hash, hashAtLevel(elements[at], level + 1));
    }
    return hash;
}

/// Equal sets may differ in order, so the hashes of their members are added;
/// and so that equal ones count the same members, a large one counts none.
std::size_t hashOf(const Set& members, std::size_t level) {
    std::size_t sum = 0;
    if (level < kCounted.size() && members.count() <= kCounted[level]) {
        for (const Value& member : members.allObjects()) sum += hashAtLevel(member, level + 1);
    }
    return hashCombine(hashCombine(6, members.count()), sum);
}

std::size_t hashOf(const Dictionary& entries, std::size_t level) {
    std::size_t sum = 0;
    if (level < kCounted.size() && entries.count() <= kCounted[level]) {
        for (const auto& [key, value] : entries) {
            sum += hashCombine(hashAtLevel(key, level + 1), hashAtLevel(value, level + 1));
        }
    }
    return hashCombine(hashCombine(7, entries.count()), sum);
}

std::size_t hashOf(const Object& object, std::size_t level) {
    const Dictionary* held = object.heldEntries();
    return hashCombine(8, held == nullptr ? object.hash() : hashOf(*held, level));
}

std::size_t hashAtLevel(const Value& value, std::size_t level) {
    switch (value.kind()) {
        case ValueKind::Absent:
            return 0;
        case ValueKind::Boolean:
        case ValueKind::Integer:
        case ValueKind::Unsigned:
        case ValueKind::Real:
            return hashCombine(1, std::hash<double>{}(value.doubleValue()));
        case ValueKind::Date:
            return hashCombine(2, std::hash<double>{}(value.date()->secondsSince1970));
        case ValueKind::Text:
            return hashText(*value.string());
        case ValueKind::Bytes:
            return hashCombine(3, std::hash<std::string_view>{}(textOf(*value.data())));
        case ValueKind::URL:
            return hashCombine(4, hashText(value.url()->absoluteString));
        case ValueKind::List:
            return hashOf(*value.array(), level);
        case ValueKind::Set:
            return hashOf(*value.set(), level);
        case ValueKind::Dictionary:
            return hashOf(*value.dictionary(), level);
        case ValueKind::Object:
            return hashOf(*value.object(), level);
    }
    return 0;
}

}  // namespace

std::size_t Value::hash() const { return hashAtLevel(*this, 0); }

std::size_t Value::identityHash() const {
    const auto hashOfHeld = []<class T>(const T& held) {
        if constexpr (std::is_same_v<T, Date>) {
            return std::hash<double>{}(held.secondsSince1970);
        } else {
            return std::hash<T>{}(held);
        }
    };
    return hashCombine(storage_.index(), std::visit(hashOfHeld, storage_));
}

}  // namespace QZCore
