#include "QZCore/foundation/preferences.h"

#include <utility>

#include "foundation/preferences_state.h"

namespace QZCore {
namespace {

/// The value under `key` by its own accessor `convert`; the default stands for
/// an absent key only.
template <class T>
T read(const Preferences& store, StringView key, T withDefault, T (Value::*convert)() const) {
    const Value value = store.objectForKey(key);
    return value.isAbsent() ? withDefault : (value.*convert)();
}

}  // namespace

Preferences::Preferences() : state_(std::make_unique<State>()) {}

Preferences::Preferences(const Dictionary& entries) : Preferences() { state_->entries = entries; }

Preferences::~Preferences() = default;

Preferences& Preferences::shared() {
    static Preferences& instance = *new Preferences;
    return instance;
}

Value Preferences::objectForKey(StringView key) const {
    const std::lock_guard lock(state_->mutex);
    return state_->entries.objectForKey(key);
}

Value Preferences::objectForKey(StringView key, const Value& withDefault) const {
    Value value = objectForKey(key);
    return value.isAbsent() ? withDefault : value;
}

bool Preferences::boolForKey(StringView key, bool withDefault) const {
    return read(*this, key, withDefault, &Value::boolValue);
}

std::int32_t Preferences::intForKey(StringView key, std::int32_t withDefault) const {
    return read(*this, key, withDefault, &Value::intValue);
}

std::int64_t Preferences::integerForKey(StringView key, std::int64_t withDefault) const {
    return read(*this, key, withDefault, &Value::integerValue);
}

std::int64_t Preferences::unsignedForKey(StringView key, std::int64_t withDefault) const {
    return integerForKey(key, withDefault);
}

double Preferences::doubleForKey(StringView key, double withDefault) const {
    return read(*this, key, withDefault, &Value::doubleValue);
}

float Preferences::floatForKey(StringView key, float withDefault) const {
    return read(*this, key, withDefault, &Value::floatValue);
}

String Preferences::stringForKey(StringView key, StringView withDefault) const {
    const Value value = objectForKey(key);
    if (value.isAbsent()) return String(withDefault);
    if (value.string() == nullptr && !value.isNumber()) return {};
    return value.stringValue();
}

Dictionary Preferences::snapshot() const {
    const std::lock_guard lock(state_->mutex);
    return state_->entries;
}

void Preferences::setObject(const Value& object, StringView forKey) {
    if (object.isAbsent()) {
        removeObjectForKey(forKey);
        return;
    }
    const std::lock_guard lock(state_->mutex);
    state_->entries.setObject(object, forKey);
}

void Preferences::removeObjectForKey(StringView key) {
    const std::lock_guard lock(state_->mutex);
    state_->entries.removeObjectForKey(key);
}

void Preferences::setAllObjects(const Dictionary& entries) {
    Dictionary replaced = entries;
    const std::lock_guard lock(state_->mutex);
    std::swap(state_->entries, replaced);
}

}  // namespace QZCore
