// Puts a property list together from its pieces, in the order in which they
// stand in a file.
#pragma once

#include <vector>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/property_list.h"

namespace QZCore {

/// Takes values and the begins and ends of containers. The first fault is
/// remembered; everything after it is ignored.
class PropertyListBuilder {
public:
    /// A list of containers that can be changed later, or cannot.
    explicit PropertyListBuilder(PropertyListContainers containers) : containers_(containers) {}

    /// Begins an array; what follows up to `end` is in it.
    void beginArray() { begin(false); }
    /// Begins a dictionary; what follows up to `end` is in it.
    void beginDictionary() { begin(true); }
    /// Ends the innermost container.
    void end();
    /// How many containers have begun and not ended.
    [[nodiscard]] std::size_t depth() const { return levels_.size(); }
    /// The key of the next value, a string.
    void key(Value key);
    /// A value that is not a container.
    void add(Value value);

    /// Remembers a fault, unless there was one before.
    void fail(StringView reason);
    /// Whether there was a fault.
    [[nodiscard]] bool failed() const { return !error_.empty(); }

    /// The list, or the first fault. Leaves the builder empty.
    [[nodiscard]] PropertyListResult finish();

private:
    struct Level {
        bool isDictionary = false;
        Array elements;
        Dictionary entries;
        Value key;
    };

    void begin(bool isDictionary);
    [[nodiscard]] Value closed(Level& level) const;

    PropertyListContainers containers_;
    std::vector<Level> levels_;
    Value root_;
    String error_;
};

}  // namespace QZCore
