#include "foundation/property_list_builder.h"

#include <utility>

namespace QZCore {

void PropertyListBuilder::begin(bool isDictionary) {
    if (failed()) return;
    if (levels_.size() == static_cast<std::size_t>(kPropertyListDepthLimit)) {
        return fail(u"containers are nested too deeply");
    }
    levels_.emplace_back().isDictionary = isDictionary;
}

void PropertyListBuilder::end() {
    if (failed()) return;
    Level level = std::move(levels_.back());
    levels_.pop_back();
    if (!level.key.isAbsent()) return fail(u"a key without a value");
    add(closed(level));
}

Value PropertyListBuilder::closed(Level& level) const {
    const bool changeable = containers_ == PropertyListContainers::Mutable;
    if (level.isDictionary) {
        return changeable ? Value::mutableDictionary(std::move(level.entries))
                          : Value(std::move(level.entries));
    }
    return changeable ? Value::mutableArray(std::move(level.elements))
                      : Value(std::move(level.elements));
}

void PropertyListBuilder::key(Value key) {
    if (failed()) return;
    if (levels_.empty() || !levels_.back().isDictionary) return fail(u"a key outside a dictionary");
    if (!levels_.back().key.isAbsent()) return fail(u"a key without a value");
    levels_.back().key = std::move(key);
}

void PropertyListBuilder::add(Value value) {
    if (failed()) return;
    if (levels_.empty()) {
        if (!root_.isAbsent()) return fail(u"more than one value");
        root_ = std::move(value);
        return;
    }
    Level& level = levels_.back();
    if (!level.isDictionary) {
        level.elements.push_back(std::move(value));
        return;
    }
    if (level.key.isAbsent()) return fail(u"a value without a key");
    level.entries.setObject(std::move(value), std::exchange(level.key, Value()));
}

void PropertyListBuilder::fail(StringView reason) {
    if (!failed()) error_ = reason;
}

PropertyListResult PropertyListBuilder::finish() {
    if (!failed() && root_.isAbsent()) fail(u"no value");
    if (!failed()) return {std::exchange(root_, Value()), {}};
    root_ = {};
    levels_.clear();
    return {Value(), std::exchange(error_, {})};
}

}  // namespace QZCore
