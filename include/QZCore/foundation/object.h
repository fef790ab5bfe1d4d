// Object: the base of the library's types that a Value can refer to.
#pragma once

#include <cstddef>
#include <memory>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

class Dictionary;

/// Something that is shared by reference and that a Value can hold beside the
/// plain kinds: a colour, a font, a rich text, a tree node.
class QZ_EXPORT Object {
public:
    Object() = default;
    virtual ~Object();

    /// Whether `other` counts as equal. By default only the object itself.
    [[nodiscard]] virtual bool isEqualTo(const Object& other) const;

    /// A number that is the same for objects that count as equal.
    [[nodiscard]] virtual std::size_t hash() const;

    /// A text for people and logs.
    [[nodiscard]] virtual String description() const;

    /// A copy of its own; an empty pointer when the type has no copies, as by
    /// default.
    [[nodiscard]] virtual std::shared_ptr<const Object> mutableCopy() const;

    /// What the object holds, when values are to see nothing else of it: it is
    /// equal to others that hold equal entries, its hash follows from them, and
    /// it is described by its heading and them, whatever the functions above
    /// say. Values then go into any depth of such objects, and come out of
    /// circles. Null by default.
    [[nodiscard]] virtual const Dictionary* heldEntries() const;

    /// What stands before the entries in a description.
    [[nodiscard]] virtual String heading() const;

    Object(const Object&) = default;
    Object& operator=(const Object&) = default;
};

/// An object that holds a copy of a value type and compares by it. The type
/// may offer `std::size_t hashOf(const T&)` and `String descriptionOf(const T&)`
/// in its namespace.
template <class T>
class QZ_EXPORT Boxed final : public Object {
public:
    /// Holds `held`.
    explicit Boxed(T held) : value(std::move(held)) {}

    /// The value itself.
    const T value;

    /// Equal to another box of the same type with an equal value.
    [[nodiscard]] bool isEqualTo(const Object& other) const override {
        const auto* box = dynamic_cast<const Boxed*>(&other);
        return box != nullptr && box->value == value;
    }

    /// The type's own hash where it has one; else the same for all values.
    [[nodiscard]] std::size_t hash() const override { return hash_; }

    /// The type's own description where it has one.
    [[nodiscard]] String description() const override {
        if constexpr (requires { descriptionOf(value); }) {
            return descriptionOf(value);
        } else {
            return Object::description();
        }
    }

    /// Another box with an equal value.
    [[nodiscard]] std::shared_ptr<const Object> mutableCopy() const override {
        return std::make_shared<Boxed>(value);
    }

private:
    static std::size_t hashOfValue(const T& value) {
        if constexpr (requires { hashOf(value); }) {
            return hashOf(value);
        } else {
            return 0;
        }
    }

    const std::size_t hash_ = hashOfValue(value);
};

}  // namespace QZCore
