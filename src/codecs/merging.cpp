#include <map>
#include <utility>
#include <vector>

#include "QZCore/codecs/dictionaries.h"

namespace QZCore {
namespace {

/// Merges trees of dictionaries without recursion: the pairs that have begun
/// and not ended wait in a list.
class Merging {
public:
    void merge(Dictionary& dictionary, const Dictionary& other) {
        begin({Value(), &dictionary, entriesOf(other)});
        while (!levels_.empty()) mergeNext();
    }

private:
    // How many entries are merged once more into the same dictionary.
    static constexpr std::size_t kMostRepeated = std::size_t{1} << 20;

    using Entries = std::vector<DictionaryEntry>;
    using Pair = std::pair<const void*, const void*>;

    /// A dictionary, and the entries that it takes. Merging may let go of the
    /// one and change the other's origin, so they are held here.
    struct Level {
        Value holder;
        Dictionary* dictionary;
        Entries entries;
        std::size_t next = 0;
        bool* isOpen = nullptr;
        bool isRepeated = false;
    };

    static Entries entriesOf(const Dictionary& dictionary) {
        Entries entries;
        entries.reserve(dictionary.count());
        for (const DictionaryEntry& entry : dictionary) entries.push_back(entry);
        return entries;
    }

    void begin(Level level) { levels_.push_back(std::move(level)); }

    void mergeNext() {
        Level& level = levels_.back();
        if (level.next == level.entries.size()) {
            if (level.isOpen != nullptr) *level.isOpen = false;
            levels_.pop_back();
            return;
        }
        const auto& [key, value] = level.entries[level.next++];
        const Value* held = level.dictionary->find(key);
        const bool mergesDeeper = held != nullptr && held->mutableDictionary() != nullptr &&
                                  value.dictionary() != nullptr;
        if (mergesDeeper) {
            mergeDeeper(*held, value);
        } else {
            level.dictionary->setObject(value, key.copy());
        }
    }

    void mergeDeeper(const Value& held, const Value& value) {
        bool isRepeated = levels_.back().isRepeated;
        bool* isOpen = nullptr;
        if (held.isShared()) {
            const auto [pair, isFirst] =
                pairs_.try_emplace({held.dictionary(), value.dictionary()}, false);
            if (pair->second || (!isFirst && repeated_ >= kMostRepeated)) return;
            isRepeated = isRepeated || !isFirst;
            isOpen = &pair->second;
            *isOpen = true;
        }
        if (isRepeated) repeated_ += value.dictionary()->count() + 1;
        begin({held, held.mutableDictionary(), entriesOf(*value.dictionary()), 0, isOpen,
               isRepeated});
    }

    std::vector<Level> levels_;
    // The pairs of dictionaries that were met, and whether they are being
    // merged.
    std::map<Pair, bool> pairs_;
    std::size_t repeated_ = 0;
};

}  // namespace

Dictionary dictionaryByMergingWithDictionary(const Dictionary& dictionary,
                                             const Dictionary& other) {
    Dictionary merged = dictionary;
    for (const auto& [key, value] : other) merged.setObject(value, key);
    return merged;
}

void mergeWithDictionary(Dictionary& dictionary, const Dictionary& other) {
    Merging().merge(dictionary, other);
}

}  // namespace QZCore
