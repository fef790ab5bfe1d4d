// The safe operations on arrays. Each logs where its own caller goes on, so
// each asks for that address itself.

#include <utility>

#include "QZCore/codecs/arrays.h"
#include "codecs/misuse_log.h"
#include "codecs/safe_insertion.h"

namespace QZCore {
namespace {

String mistakenCall(const String& call, std::size_t count) {
    return u"Attempting to call " + call + u" with count:" + unsignedString(count);
}

bool isPresent(const Value& object) { return !object.isAbsent(); }

Array::iterator elementAt(Array& array, std::size_t index) {
    return array.begin() + static_cast<std::ptrdiff_t>(index);
}

}  // namespace

bool canInsertObject(bool isObject, std::size_t index, std::size_t count,
                     const void* returnAddress) {
    if (!isObject) {
        logMisuse(u"Attempting to call insertObject:atIndex with a nil object", returnAddress);
        return false;
    }
    if (index <= count) return true;
    logMisuse(mistakenCall(u"insertObject:atIndex:" + unsignedString(index), count), returnAddress);
    return false;
}

Value safeObjectAtIndex(const Array& array, std::size_t index) {
    if (index < array.size()) return array[index];
    logMisuse(mistakenCall(u"objectAtIndex:" + unsignedString(index), array.size()),
              __builtin_return_address(0));
    return {};
}

void safeInsertObject(Array& array, Value object, std::size_t atIndex) {
    if (!canInsertObject(isPresent(object), atIndex, array.size(), __builtin_return_address(0)))
        return;
    array.insert(elementAt(array, atIndex), std::move(object));
}

void safeReplaceObjectAtIndex(Array& array, std::size_t index, Value withObject) {
    if (withObject.isAbsent()) {
        return logMisuse(u"Attempting to call replaceObjectAtIndex with a nil object",
                         __builtin_return_address(0));
    }
    if (index >= array.size()) {
        return logMisuse(
            mistakenCall(u"replaceObjectAtIndex:" + unsignedString(index), array.size()),
            __builtin_return_address(0));
    }
    array[index] = std::move(withObject);
}

void safeRemoveObjectAtIndex(Array& array, std::size_t index) {
    if (index >= array.size()) {
        return logMisuse(
            mistakenCall(u"removeObjectAtIndex:" + unsignedString(index), array.size()),
            __builtin_return_address(0));
    }
    array.erase(elementAt(array, index));
}

void safeExchangeObjectAtIndex(Array& array, std::size_t index, std::size_t withObjectAtIndex) {
    if (index >= array.size() || withObjectAtIndex >= array.size()) {
        return logMisuse(
            mistakenCall(u"exchangeObjectAtIndex:" + unsignedString(index) +
                             u" withObjectAtIndex:" + unsignedString(withObjectAtIndex),
                         array.size()),
            __builtin_return_address(0));
    }
    std::swap(array[index], array[withObjectAtIndex]);
}

void insertObjectsFromArray(Array& array, Array objects, std::size_t atIndex) {
    insertOneByOne(array, std::move(objects), atIndex, isPresent, __builtin_return_address(0));
}

Array arrayByRemovingObjectsInRange(const Array& array, Range range) {
    Array remaining = array;
    if (range.end() <= array.size()) {
        remaining.erase(elementAt(remaining, range.location), elementAt(remaining, range.end()));
        return remaining;
    }
    logMisuse(mistakenCall(u"removeObjectsInRange:{" + unsignedString(range.location) + u", " +
                               unsignedString(range.length) + u"}",
                           array.size()),
              __builtin_return_address(0));
    return remaining;
}

void push(Array& array, Value object) {
    if (!canInsertObject(isPresent(object), array.size(), array.size(),
                         __builtin_return_address(0)))
        return;
    array.push_back(std::move(object));
}

Value pop(Array& array) {
    if (array.empty()) return {};
    Value last = std::move(array.back());
    array.pop_back();
    return last;
}

Value peek(const Array& array) { return array.empty() ? Value() : array.back(); }

}  // namespace QZCore
