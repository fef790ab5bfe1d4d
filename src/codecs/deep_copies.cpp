#include "QZCore/codecs/deep_copies.h"

#include <unordered_map>
#include <utility>
#include <vector>

namespace QZCore {
namespace {

/// What happens to values that are neither dictionaries nor arrays.
enum class Leaves { Copied, Kept };

/// Copies a tree of containers without recursion: the containers that have
/// begun and not ended wait in a list.
class DeepCopy {
public:
    explicit DeepCopy(Leaves leaves) : leaves_(leaves) {}

    Dictionary of(const Dictionary& dictionary) {
        const Value copy = Value::mutableDictionary({});
        begin(levelFor(dictionary, copy));
        finish();
        return std::move(*copy.mutableDictionary());
    }

    Array of(const Array& array) {
        const Value copy = Value::mutableArray({});
        begin(levelFor(array, copy));
        finish();
        return std::move(*copy.mutableArray());
    }

private:
    // How many elements are copied once more for another place.
    static constexpr std::size_t kMostRepeated = std::size_t{1} << 20;

    /// The latest copy of a container that is referred to from several places.
    struct SharedCopy {
        Value copy;
        bool isOpen = false;
    };

    /// A container that has begun: what is left of it, and its copy.
    struct Level {
        const Value* element;
        const Value* lastElement;
        Dictionary::Iterator entry;
        Dictionary::Iterator lastEntry;
        Value copy;
        SharedCopy* shared = nullptr;
        bool isRepeated = false;
    };

    static Level levelFor(const Array& array, const Value& copy) {
        const Dictionary::Iterator none(nullptr, nullptr);
        return {array.data(), array.data() + array.size(), none, none, copy};
    }

    static Level levelFor(const Dictionary& dictionary, const Value& copy) {
        return {nullptr, nullptr, dictionary.begin(), dictionary.end(), copy};
    }

    void begin(const Level& level) { levels_.push_back(level); }

    void finish() {
        while (!levels_.empty()) {
            Level& level = levels_.back();
            if (level.element != level.lastElement) {
                add(*level.element++, Value());
            } else if (!(level.entry == level.lastEntry)) {
                const DictionaryEntry& entry = *level.entry;
                ++level.entry;
                add(entry.value, entry.key);
            } else {
                if (level.shared != nullptr) level.shared->isOpen = false;
                levels_.pop_back();
            }
        }
    }

    /// Adds the copy of `value` to that of the innermost container.
    void add(const Value& value, const Value& key) {
        const Array* array = value.array();
        const Dictionary* dictionary = value.dictionary();
        if (array == nullptr && dictionary == nullptr) {
            return place(leaves_ == Leaves::Copied ? value.mutableCopy() : value, key);
        }
        if (const Value* earlier = copyToShare(value)) return place(*earlier, key);
        Value copy = array != nullptr ? Value::mutableArray({}) : Value::mutableDictionary({});
        place(copy, key);
        Level level = array != nullptr ? levelFor(*array, copy) : levelFor(*dictionary, copy);
        remember(value, level, array != nullptr ? array->size() : dictionary->count());
        begin(level);
    }

    void place(const Value& copy, const Value& key) {
        if (copy.isAbsent()) return;
        const Value& container = levels_.back().copy;
        if (Array* array = container.mutableArray()) {
            array->push_back(copy);
        } else {
            container.mutableDictionary()->setObject(copy, key);
        }
    }

    static const void* identityOf(const Value& container) {
        return container.array() != nullptr ? static_cast<const void*>(container.array())
                                            : container.dictionary();
    }

    /// The copy of a container that is inside itself, or that was repeated too
    /// often; null when a new copy is due.
    const Value* copyToShare(const Value& container) const {
        if (!container.isShared()) return nullptr;
        const auto found = copies_.find(identityOf(container));
        if (found == copies_.end()) return nullptr;
        const SharedCopy& shared = found->second;
        return shared.isOpen || repeated_ >= kMostRepeated ? &shared.copy : nullptr;
    }

    void remember(const Value& container, Level& level, std::size_t size) {
        level.isRepeated = levels_.back().isRepeated;
        if (container.isShared()) {
            const auto [place, isFirst] = copies_.try_emplace(identityOf(container));
            place->second = {level.copy, true};
            level.shared = &place->second;
            if (!isFirst) level.isRepeated = true;
        }
        if (level.isRepeated) repeated_ += size + 1;
    }

    Leaves leaves_;
    std::vector<Level> levels_;
    std::unordered_map<const void*, SharedCopy> copies_;
    std::size_t repeated_ = 0;
};

}  // namespace

Dictionary mutableCopyDeep(const Dictionary& dictionary) {
    return DeepCopy(Leaves::Copied).of(dictionary);
}

Array mutableCopyDeep(const Array& array) { return DeepCopy(Leaves::Copied).of(array); }

Dictionary mutableCopyDeepCollectionsOnly(const Dictionary& dictionary) {
    return DeepCopy(Leaves::Kept).of(dictionary);
}

Array mutableCopyDeepCollectionsOnly(const Array& array) {
    return DeepCopy(Leaves::Kept).of(array);
}

}  // namespace QZCore
