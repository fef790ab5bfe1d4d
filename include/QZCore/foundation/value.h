// Value: what dictionaries, arrays, attributes and property lists hold.
//
// A value is absent, a scalar (boolean, integer, real, date), or a reference
// to something shared: a string, data, a URL, an array, a set, a dictionary,
// or an object of a higher type (a colour, a font, a rich text). Copying a
// value copies the scalar or the reference. So two questions can be asked:
// whether two values are equal, and whether they are the very same.
//
// Shared things are immutable, except arrays and dictionaries that were made
// mutable: those can be changed through any value that refers to them.
//
// Different threads may read the same value at once. Changing a mutable
// container while another thread reads it is the caller's to prevent.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/data.h"
#include "QZCore/foundation/object.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

class Dictionary;
class Set;
class Value;

/// An ordered list of values.
using Array = std::vector<Value>;

/// What a value holds.
enum class ValueKind {
    Absent,      // nothing
    Boolean,     // true or false
    Integer,     // a signed 64-bit integer
    Unsigned,    // an unsigned 64-bit integer
    Real,        // a double
    Date,        // an instant
    Text,        // a String
    Bytes,       // Data
    URL,         // a URL
    List,        // an Array
    Set,         // a Set
    Dictionary,  // a Dictionary
    Object,      // an object of a higher type
};

/// One value of any kind. A value that was not given anything is absent.
class QZ_EXPORT Value {
public:
    // ---- Making ----

    /// Absent.
    Value() = default;
    /// A boolean.
    Value(bool value) : storage_(value) {}
    /// A signed integer.
    Value(int value) : storage_(static_cast<std::int64_t>(value)) {}
    /// A signed integer.
    Value(long value) : storage_(static_cast<std::int64_t>(value)) {}
    /// A signed integer.
    Value(long long value) : storage_(static_cast<std::int64_t>(value)) {}
    /// An unsigned integer.
    Value(unsigned value) : storage_(static_cast<std::uint64_t>(value)) {}
    /// An unsigned integer.
    Value(unsigned long value) : storage_(static_cast<std::uint64_t>(value)) {}
    /// An unsigned integer.
    Value(unsigned long long value) : storage_(static_cast<std::uint64_t>(value)) {}
    /// A real number, widened from single precision.
    Value(float value) : storage_(static_cast<double>(value)) {}
    /// A real number.
    Value(double value) : storage_(value) {}
    /// An instant.
    Value(Date value) : storage_(value) {}
    /// A string.
    Value(StringView value);
    /// A string.
    Value(const char16_t* value) : Value(StringView(value)) {}
    /// A string.
    Value(String value);
    /// Bytes.
    Value(Data value);
    /// A URL.
    Value(URL value);
    /// An immutable array.
    Value(Array value);
    /// An immutable set.
    Value(Set value);
    /// An immutable dictionary.
    Value(Dictionary value);
    /// A reference to an object; absent when the pointer is empty.
    Value(std::shared_ptr<const Object> value);

    /// An array that can be changed through every value that refers to it.
    [[nodiscard]] static Value mutableArray(Array value);
    /// A dictionary that can be changed through every value that refers to it.
    [[nodiscard]] static Value mutableDictionary(Dictionary value);
    /// An object that holds a copy of `value`, a value type of the library.
    template <class T>
    [[nodiscard]] static Value boxed(T value) {
        return Value(std::shared_ptr<const Object>(std::make_shared<Boxed<T>>(std::move(value))));
    }

    // A pointer would otherwise silently turn into a boolean.
    template <class T>
    Value(const T*) = delete;

    // ---- Asking ----

    /// What the value holds.
    [[nodiscard]] ValueKind kind() const { return static_cast<ValueKind>(storage_.index()); }
    /// Whether the value holds nothing.
    [[nodiscard]] bool isAbsent() const { return kind() == ValueKind::Absent; }
    /// Whether the value is a boolean, an integer or a real number.
    [[nodiscard]] bool isNumber() const;

    /// The string, or null when the value holds something else. All pointers
    /// of this section stay valid as long as a value refers to the same thing.
    [[nodiscard]] const String* string() const;
    /// The bytes, or null.
    [[nodiscard]] const Data* data() const;
    /// The URL, or null.
    [[nodiscard]] const URL* url() const;
    /// The date, or null.
    [[nodiscard]] const Date* date() const { return std::get_if<Date>(&storage_); }
    /// The array, or null.
    [[nodiscard]] const Array* array() const;
    /// The set, or null.
    [[nodiscard]] const Set* set() const;
    /// The dictionary, or null.
    [[nodiscard]] const Dictionary* dictionary() const;
    /// The array, when it may be changed; else null.
    [[nodiscard]] Array* mutableArray() const;
    /// The dictionary, when it may be changed; else null.
    [[nodiscard]] Dictionary* mutableDictionary() const;
    /// The object, or an empty pointer.
    [[nodiscard]] std::shared_ptr<const Object> object() const;
    /// The boxed value of type T, or null.
    template <class T>
    [[nodiscard]] const T* boxedValue() const {
        const auto* held = std::get_if<std::shared_ptr<const Object>>(&storage_);
        if (held == nullptr) return nullptr;
        const auto* box = dynamic_cast<const Boxed<T>*>(held->get());
        return box == nullptr ? nullptr : &box->value;
    }

    // ---- Converting ----
    //
    // Numbers convert to the type asked for; out-of-range values are clamped
    // and not-a-number gives 0. Strings are read by the rules of text.h.
    // Everything else, an absent value too, gives 0, false or no string.

    /// As a 32-bit integer.
    [[nodiscard]] std::int32_t intValue() const;
    /// As an unsigned 32-bit integer.
    [[nodiscard]] std::uint32_t unsignedIntValue() const;
    /// As a 64-bit integer.
    [[nodiscard]] std::int64_t integerValue() const;
    /// As an unsigned 64-bit integer.
    [[nodiscard]] std::uint64_t unsignedIntegerValue() const;
    /// As a single-precision number.
    [[nodiscard]] float floatValue() const;
    /// As a double-precision number.
    [[nodiscard]] double doubleValue() const;
    /// As a boolean: a number that is not 0, or a string by `boolValue`.
    [[nodiscard]] bool boolValue() const;
    /// A string as it is, a number in its shortest decimal form (a boolean as
    /// "1" or "0"), a URL as its text; else empty.
    [[nodiscard]] String stringValue() const;

    // ---- Copying ----

    /// The value in a form that nobody can change: an immutable container with
    /// the elements of a mutable one; everything else as it is.
    [[nodiscard]] Value copy() const;

    /// A new thing that is equal: arrays and dictionaries as mutable ones with
    /// the same elements, objects by `Object::mutableCopy`, scalars as they are.
    /// Absent when the value is, and for an object without copies.
    [[nodiscard]] Value mutableCopy() const;

    // ---- Comparing ----

    /// Whether both are the very same: the same scalar of the same kind, or a
    /// reference to the same shared thing.
    [[nodiscard]] bool isIdentical(const Value& other) const;

    /// Whether another value refers to the same shared thing as well. Never for
    /// scalars.
    [[nodiscard]] bool isShared() const;

    /// A number that is the same for equal values. A container's depends on its
    /// size and on a bounded part of what it holds, so that its cost is bounded,
    /// too.
    [[nodiscard]] std::size_t hash() const;

    /// A number that is the same for values that are the very same.
    [[nodiscard]] std::size_t identityHash() const;

    /// A text for people and logs: strings as they are, containers with their
    /// elements in brackets and braces, "(null)" when absent.
    [[nodiscard]] String description() const;

    // ---- Life ----

    Value(const Value&) = default;
    Value(Value&&) noexcept = default;
    Value& operator=(const Value&) = default;
    Value& operator=(Value&&) noexcept = default;
    ~Value() = default;

private:
    struct ArrayBox;
    struct SetBox;
    struct DictionaryBox;
    using Storage =
        std::variant<std::monostate, bool, std::int64_t, std::uint64_t, double, Date,
                     std::shared_ptr<const String>, std::shared_ptr<const Data>,
                     std::shared_ptr<const URL>, std::shared_ptr<ArrayBox>, std::shared_ptr<SetBox>,
                     std::shared_ptr<DictionaryBox>, std::shared_ptr<const Object>>;
    Storage storage_;
};

/// Whether both hold equal things. Numbers of different kinds are equal
/// when they have the same value; mutable and immutable containers are
/// equal when their contents are. Takes any depth.
[[nodiscard]] QZ_EXPORT bool operator==(const Value& a, const Value& b);

}  // namespace QZCore
