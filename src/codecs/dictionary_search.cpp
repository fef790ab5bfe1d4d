#include "QZCore/codecs/dictionaries.h"

namespace QZCore {

Value keyForObject(const Dictionary& dictionary, const Value& object) {
    for (const auto& [key, value] : dictionary) {
        if (value == object) return key;
    }
    return {};
}

Value keyForIdenticalObject(const Dictionary& dictionary, const Value& object) {
    for (const auto& [key, value] : dictionary) {
        if (value.isIdentical(object)) return key;
    }
    return {};
}

bool isUnchangedSubsetOf(const Dictionary& dictionary, const Dictionary& other) {
    for (const auto& [key, value] : dictionary) {
        const Value* held = other.find(key);
        if (held == nullptr || *held != value) return false;
    }
    return true;
}

Dictionary dictionaryReversingKeysAndObjects(const Dictionary& dictionary) {
    Dictionary reversed;
    for (const auto& [key, value] : dictionary) reversed.setObject(key, value.copy());
    return reversed;
}

}  // namespace QZCore
