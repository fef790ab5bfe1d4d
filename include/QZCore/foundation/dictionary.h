// Dictionary and Set: hashed collections that keep the order of insertion, so
// that every result is the same on every run.
//
// Keys are values of any kind, usually strings. Copying copies the entries;
// nested containers are shared, as everywhere in Value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// A key and its value in a dictionary.
struct DictionaryEntry {
    /// Never absent in a dictionary.
    Value key;
    /// Never absent in a dictionary.
    Value value;
};

/// A map from keys to values, in the order in which the keys were first set.
class QZ_EXPORT Dictionary {
public:
    /// An empty dictionary.
    Dictionary() = default;

    /// The given entries, in order; a later equal key replaces the value.
    Dictionary(std::initializer_list<DictionaryEntry> entries);

    /// The number of entries.
    [[nodiscard]] std::size_t count() const { return entries_.size() - removed_; }
    /// Whether there are no entries.
    [[nodiscard]] bool empty() const { return count() == 0; }

    /// The value under `key`, or null when the key is absent. The pointer is
    /// valid until the dictionary changes.
    [[nodiscard]] const Value* find(StringView key) const;
    /// The value under `key`, or null when the key is absent.
    [[nodiscard]] const Value* find(const Value& key) const;
    /// The value under `key`, or null when the key is absent.
    [[nodiscard]] const Value* find(const char16_t* key) const { return find(StringView(key)); }

    /// The value under `key`; absent when the key is.
    [[nodiscard]] Value objectForKey(StringView key) const;
    /// The value under `key`; absent when the key is.
    [[nodiscard]] Value objectForKey(const Value& key) const;
    /// The value under `key`; absent when the key is.
    [[nodiscard]] Value objectForKey(const char16_t* key) const {
        return objectForKey(StringView(key));
    }

    /// Stores `object` under the key. An absent object or an absent key does
    /// nothing.
    void setObject(Value object, Value forKey);

    /// Removes the entry under `key`, if there is one.
    void removeObjectForKey(const Value& key);

    /// Removes every entry.
    void removeAllObjects();

    /// Walks the entries in order. Valid until the dictionary changes.
    class Iterator {
    public:
        /// The walk over the entries from `at` to `end`.
        Iterator(const DictionaryEntry* at, const DictionaryEntry* end) : at_(at), end_(end) {
            skipRemoved();
        }
        /// The entry that the walk has reached.
        const DictionaryEntry& operator*() const { return *at_; }
        /// The entry that the walk has reached.
        const DictionaryEntry* operator->() const { return at_; }
        /// Goes on to the next entry.
        Iterator& operator++() {
            ++at_;
            skipRemoved();
            return *this;
        }
        /// Whether both have reached the same entry.
        bool operator==(const Iterator& other) const { return at_ == other.at_; }

    private:
        void skipRemoved() {
            while (at_ != end_ && at_->key.isAbsent()) ++at_;
        }

        const DictionaryEntry* at_;
        const DictionaryEntry* end_;
    };

    /// The first entry.
    [[nodiscard]] Iterator begin() const {
        return {entries_.data(), entries_.data() + entries_.size()};
    }
    /// The end of the walk.
    [[nodiscard]] Iterator end() const {
        return {entries_.data() + entries_.size(), entries_.data() + entries_.size()};
    }

private:
    // A place in the table of keys: the key's hash, and the entry's position
    // plus one. A free place holds 0.
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t entry = 0;
    };

    template <class Key>
    [[nodiscard]] std::size_t positionOf(const Key& key) const;
    [[nodiscard]] const Value* valueAt(std::size_t position) const;
    void append(DictionaryEntry entry);
    void addToIndex(Slot added);
    void growIndex();
    void rebuildIndex();
    void dropRemoved();

    // A removed entry keeps its place, with an absent key, until half of the
    // places are of that kind.
    std::vector<DictionaryEntry> entries_;
    std::size_t removed_ = 0;
    // Open addressing. Empty while the entries are few enough to be searched
    // one by one.
    std::vector<Slot> index_;
};

/// Whether both hold equal values under equal keys, in any order.
[[nodiscard]] QZ_EXPORT bool operator==(const Dictionary& a, const Dictionary& b);

/// Different values, in the order in which they were first added.
class QZ_EXPORT Set {
public:
    /// An empty set.
    Set() = default;
    /// The given values, each once.
    Set(std::initializer_list<Value> values);

    /// The number of values.
    [[nodiscard]] std::size_t count() const { return members_.count(); }
    /// Whether there are no values.
    [[nodiscard]] bool empty() const { return members_.empty(); }
    /// Whether an equal value is in the set.
    [[nodiscard]] bool contains(const Value& value) const {
        return members_.find(value) != nullptr;
    }
    /// Adds `value` unless it is absent or an equal one is there.
    void add(const Value& value);
    /// Removes the value equal to `value`, if there is one.
    void remove(const Value& value) { members_.removeObjectForKey(value); }
    /// The values in order.
    [[nodiscard]] Array allObjects() const;

    /// Whether both hold equal values, in any order.
    [[nodiscard]] bool operator==(const Set& other) const { return members_ == other.members_; }

private:
    Dictionary members_;
};

}  // namespace QZCore
