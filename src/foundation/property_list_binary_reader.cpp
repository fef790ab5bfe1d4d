#include <vector>

#include "foundation/property_list_binary_objects.h"
#include "foundation/property_list_builder.h"
#include "foundation/property_list_formats.h"

namespace QZCore {
namespace {

/// Unfolds the objects of a list into a value, without recursion: the
/// containers that have begun wait in a list. A container that holds itself
/// ends at the depth limit.
class BinaryReader {
public:
    BinaryReader(const BinaryObjects& objects, DataView bytes, PropertyListContainers containers)
        : objects_(objects),
          builder_(containers),
          scalars_(objects.count()),
          visitsLeft_(kVisitsAlways + kVisitsPerByte * bytes.size()),
          bytesLeft_(bytes.size()) {}

    PropertyListResult read() {
        visit(objects_.top());
        while (!levels_.empty() && !builder_.failed()) visitNext();
        return builder_.finish();
    }

private:
    // An object that several containers share is one value in memory if it is
    // no container, but containers unfold, level by level. The list may unfold
    // to this many values.
    static constexpr std::size_t kVisitsAlways = 65'536;
    static constexpr std::size_t kVisitsPerByte = 4;

    /// A container that has begun, and what of it is still to be read.
    struct Level {
        DataView references;
        std::size_t count = 0;
        std::size_t next = 0;
        bool isDictionary = false;
    };

    void visitNext() {
        Level& level = levels_.back();
        if (level.next == level.count) {
            builder_.end();
            levels_.pop_back();
            return;
        }
        const std::size_t index = level.next++;
        if (level.isDictionary) addKey(objects_.reference(level.references, index));
        visit(objects_.reference(level.references, index + (level.isDictionary ? level.count : 0)));
    }

    void addKey(std::optional<std::size_t> number) {
        if (!number) return builder_.fail(u"a reference to nothing");
        const Value* key = scalar(*number);
        if (key == nullptr || key->string() == nullptr) {
            return builder_.fail(u"a key that is not a string");
        }
        builder_.key(*key);
    }

    void visit(std::optional<std::size_t> number) {
        if (!number) return builder_.fail(u"a reference to nothing");
        if (visitsLeft_-- == 0) return builder_.fail(u"the list unfolds to too many values");
        if (const Value* value = scalar(*number)) return builder_.add(*value);
        const auto object = objects_.object(*number);
        if (!object || !object->isContainer()) return builder_.fail(u"an unreadable object");
        begin(*object);
    }

    void begin(const BinaryObject& container) {
        const auto references = objects_.references(container);
        if (!references) return builder_.fail(u"a container is cut off");
        const bool isDictionary = container.kind == BinaryKind::Dictionary;
        if (isDictionary) {
            builder_.beginDictionary();
        } else {
            builder_.beginArray();
        }
        levels_.push_back({*references, container.count, 0, isDictionary});
    }

    /// The object as a value, read once; null when it is a container or cannot
    /// be read.
    const Value* scalar(std::size_t number) {
        Value& known = scalars_[number];
        if (!known.isAbsent()) return &known;
        const auto object = objects_.object(number);
        if (!object) return nullptr;
        auto value = object->scalar();
        if (!value || !takeBytes(sizeOf(*value))) return nullptr;
        known = *std::move(value);
        return &known;
    }

    /// Counts the contents of texts and data, which cannot be larger than the
    /// whole list unless objects overlap.
    bool takeBytes(std::size_t count) {
        if (count > bytesLeft_) return false;
        bytesLeft_ -= count;
        return true;
    }

    static std::size_t sizeOf(const Value& value) {
        if (value.string() != nullptr) return value.string()->size();
        return value.data() == nullptr ? 0 : value.data()->size();
    }

    const BinaryObjects& objects_;
    PropertyListBuilder builder_;
    std::vector<Value> scalars_;
    std::vector<Level> levels_;
    std::size_t visitsLeft_;
    std::size_t bytesLeft_;
};

}  // namespace

PropertyListResult readBinaryPropertyList(DataView bytes, PropertyListContainers containers) {
    const auto objects = BinaryObjects::in(bytes);
    if (!objects) return {Value(), u"the parts of the binary list do not fit together"};
    return BinaryReader(*objects, bytes, containers).read();
}

}  // namespace QZCore
