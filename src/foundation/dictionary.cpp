#include "QZCore/foundation/dictionary.h"

#include <cstring>
#include <utility>

#include "foundation/hash.h"

namespace QZCore {
namespace {

constexpr std::size_t kSearchedOneByOne = 8;

bool sameKey(const Value& stored, StringView key) {
    const String* text = stored.string();
    return text != nullptr && text->size() == key.size() &&
           std::memcmp(text->data(), key.data(), key.size() * sizeof(char16_t)) == 0;
}

bool sameKey(const Value& stored, const Value& key) {
    const String* text = key.string();
    return text == nullptr ? stored == key : sameKey(stored, StringView(*text));
}

std::uint32_t hashOfKey(const Value& key) { return static_cast<std::uint32_t>(key.hash()); }
std::uint32_t hashOfKey(StringView key) { return static_cast<std::uint32_t>(hashText(key)); }

}  // namespace

Dictionary::Dictionary(std::initializer_list<DictionaryEntry> entries) {
    entries_.reserve(entries.size());
    for (const DictionaryEntry& entry : entries) setObject(entry.value, entry.key);
}

template <class Key>
std::size_t Dictionary::positionOf(const Key& key) const {
    if (index_.empty()) {
        for (std::size_t i = 0; i < entries_.size(); ++i) {
            if (sameKey(entries_[i].key, key)) return i;
        }
        return entries_.size();
    }
    const std::uint32_t hash = hashOfKey(key);
    const std::size_t mask = index_.size() - 1;
    for (std::size_t at = hash & mask; index_[at].entry != 0; at = (at + 1) & mask) {
        const std::size_t position = index_[at].entry - 1;
        if (index_[at].hash == hash && sameKey(entries_[position].key, key)) return position;
    }
    return entries_.size();
}

const Value* Dictionary::valueAt(std::size_t position) const {
    return position == entries_.size() ? nullptr : &entries_[position].value;
}

const Value* Dictionary::find(StringView key) const { return valueAt(positionOf(key)); }

const Value* Dictionary::find(const Value& key) const {
    return key.isAbsent() ? nullptr : valueAt(positionOf(key));
}

Value Dictionary::objectForKey(StringView key) const {
    const Value* value = find(key);
    return value == nullptr ? Value() : *value;
}

Value Dictionary::objectForKey(const Value& key) const {
    const Value* value = find(key);
    return value == nullptr ? Value() : *value;
}

void Dictionary::setObject(Value object, Value forKey) {
    if (object.isAbsent() || forKey.isAbsent()) return;
    const std::size_t position = positionOf(forKey);
    if (position == entries_.size()) {
        append({std::move(forKey), std::move(object)});
    } else {
        entries_[position].value = std::move(object);
    }
}

void Dictionary::append(DictionaryEntry entry) {
    entries_.push_back(std::move(entry));
    if (entries_.size() <= kSearchedOneByOne) return;
    // At most half of the slots are taken, so that every search ends early.
    if (index_.empty()) {
        rebuildIndex();
        return;
    }
    if (entries_.size() * 2 > index_.size()) growIndex();
    addToIndex({hashOfKey(entries_.back().key), static_cast<std::uint32_t>(entries_.size())});
}

void Dictionary::removeObjectForKey(const Value& key) {
    if (key.isAbsent()) return;
    const std::size_t position = positionOf(key);
    if (position == entries_.size()) return;
    entries_[position] = {};
    ++removed_;
    if (removed_ * 2 > entries_.size()) dropRemoved();
}

void Dictionary::removeAllObjects() { *this = Dictionary(); }

void Dictionary::addToIndex(Slot added) {
    const std::size_t mask = index_.size() - 1;
    std::size_t at = added.hash & mask;
    while (index_[at].entry != 0) at = (at + 1) & mask;
    index_[at] = added;
}

void Dictionary::growIndex() {
    const std::vector<Slot> slots = std::exchange(index_, std::vector<Slot>(index_.size() * 2));
    for (const Slot& slot : slots) {
        if (slot.entry != 0) addToIndex(slot);
    }
}

void Dictionary::rebuildIndex() {
    std::size_t slots = kSearchedOneByOne * 4;
    while (slots < entries_.size() * 2) slots *= 2;
    index_.assign(slots, {});
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        addToIndex({hashOfKey(entries_[i].key), static_cast<std::uint32_t>(i + 1)});
    }
}

void Dictionary::dropRemoved() {
    std::erase_if(entries_, [](const DictionaryEntry& entry) { return entry.key.isAbsent(); });
    removed_ = 0;
    index_.clear();
    if (entries_.size() > kSearchedOneByOne) rebuildIndex();
}

Set::Set(std::initializer_list<Value> values) {
    for (const Value& value : values) add(value);
}

void Set::add(const Value& value) {
    if (!contains(value)) members_.setObject(true, value);
}

Array Set::allObjects() const {
    Array values;
    values.reserve(count());
    for (const DictionaryEntry& member : members_) values.push_back(member.key);
    return values;
}

}  // namespace QZCore
