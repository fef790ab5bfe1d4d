#include "QZCore/codecs/typed_access.h"

namespace QZCore {
namespace {

/// The value under `key` by its own accessor `convert`.
template <class T>
T read(const Dictionary& dictionary, StringView key, T withDefault, T (Value::*convert)() const) {
    const Value* stored = dictionary.find(key);
    return stored == nullptr ? withDefault : (stored->*convert)();
}

bool hasText(const Value& value) {
    return value.string() != nullptr || value.url() != nullptr || value.isNumber();
}

}  // namespace

Value objectForKey(const Dictionary& dictionary, StringView key, const Value& withDefault) {
    const Value* stored = dictionary.find(key);
    return stored == nullptr ? withDefault : *stored;
}

std::optional<String> stringForKey(const Dictionary& dictionary, StringView key,
                                   std::optional<StringView> withDefault) {
    if (const Value* stored = dictionary.find(key)) {
        return hasText(*stored) ? std::optional(stored->stringValue()) : std::nullopt;
    }
    return withDefault ? std::optional<String>(*withDefault) : std::nullopt;
}

bool boolForKey(const Dictionary& dictionary, StringView key, bool withDefault) {
    return read(dictionary, key, withDefault, &Value::boolValue);
}

std::int32_t intForKey(const Dictionary& dictionary, StringView key, std::int32_t withDefault) {
    return read(dictionary, key, withDefault, &Value::intValue);
}

std::uint32_t unsignedIntForKey(const Dictionary& dictionary, StringView key,
                                std::uint32_t withDefault) {
    return read(dictionary, key, withDefault, &Value::unsignedIntValue);
}

std::int64_t integerForKey(const Dictionary& dictionary, StringView key, std::int64_t withDefault) {
    return read(dictionary, key, withDefault, &Value::integerValue);
}

std::uint64_t unsignedIntegerForKey(const Dictionary& dictionary, StringView key,
                                    std::uint64_t withDefault) {
    return read(dictionary, key, withDefault, &Value::unsignedIntegerValue);
}

float floatForKey(const Dictionary& dictionary, StringView key, float withDefault) {
    return read(dictionary, key, withDefault, &Value::floatValue);
}

double doubleForKey(const Dictionary& dictionary, StringView key, double withDefault) {
    return read(dictionary, key, withDefault, &Value::doubleValue);
}

void setBoolean(Dictionary& dictionary, bool boolean, StringView forKey) {
    dictionary.setObject(boolean, forKey);
}

void setInt(Dictionary& dictionary, std::int32_t number, StringView forKey) {
    dictionary.setObject(number, forKey);
}

void setUnsignedInt(Dictionary& dictionary, std::uint32_t number, StringView forKey) {
    dictionary.setObject(number, forKey);
}

void setInteger(Dictionary& dictionary, std::int64_t number, StringView forKey) {
    dictionary.setObject(number, forKey);
}

void setUnsignedInteger(Dictionary& dictionary, std::uint64_t number, StringView forKey) {
    dictionary.setObject(number, forKey);
}

void setFloat(Dictionary& dictionary, float number, StringView forKey) {
    dictionary.setObject(number, forKey);
}

void setDouble(Dictionary& dictionary, double number, StringView forKey) {
    dictionary.setObject(number, forKey);
}

}  // namespace QZCore
