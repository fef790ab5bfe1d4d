// Reads the contents of one object of an archive, all of which must be right.
#pragma once

#include <algorithm>
#include <utility>

#include "QZCore/model/archive.h"

namespace QZCore {

/// Hands contents out one by one. The first that is unreadable or of another
/// kind makes the object wrong; 0 and empty things stand for such contents.
class ContentReader {
public:
    explicit ContentReader(ArchiveDecoder& coder) : coder_(coder) {}

    /// `made` when every content was right.
    template <class T>
    [[nodiscard]] std::optional<T> ifRight(T made) const {
        return isRight_ ? std::optional(std::move(made)) : std::nullopt;
    }

    /// The content under the key, of whatever kind; it may be absent.
    Value any(StringView key) {
        auto value = coder_.decodeContent(key);
        require(value.has_value());
        return std::move(value).value_or(Value());
    }

    /// A number as a double.
    double real(StringView key) { return number(key).doubleValue(); }
    /// A number from `least` to `most`, or the nearest of them.
    std::int64_t integer(StringView key, std::int64_t least, std::int64_t most) {
        return std::min(std::max(number(key).integerValue(), least), most);
    }
    /// A position or a length.
    std::uint64_t position(StringView key) { return number(key).unsignedIntegerValue(); }
    bool boolean(StringView key) { return number(key).boolValue(); }
    String text(StringView key) { return held(key, &Value::string); }
    Data data(StringView key) { return held(key, &Value::data); }
    Array array(StringView key) { return held(key, &Value::array); }

    /// The object of an absent value or of one in a box.
    template <class T>
    std::optional<T> boxed(StringView key) {
        const Value value = any(key);
        const T* thing = value.boxedValue<T>();
        require(thing != nullptr || value.isAbsent());
        return thing == nullptr ? std::nullopt : std::optional(*thing);
    }

    /// Makes the object wrong unless `holds`.
    void require(bool holds) { isRight_ = isRight_ && holds; }

private:
    Value number(StringView key) {
        Value value = any(key);
        require(value.isNumber());
        return value;
    }

    template <class T>
    T held(StringView key, const T* (Value::*thingIn)() const) {
        const Value value = any(key);
        const T* thing = (value.*thingIn)();
        require(thing != nullptr);
        return thing == nullptr ? T() : *thing;
    }

    ArchiveDecoder& coder_;
    bool isRight_ = true;
};

}  // namespace QZCore
