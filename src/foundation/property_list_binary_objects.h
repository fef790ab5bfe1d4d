// The binary form of a property list: the eight bytes "bplist00", the objects,
// a table of where each object begins, and a trailer of 32 bytes that says
// where the table is. All numbers are big-endian. An object begins with a byte
// of two halves, its kind and its count; containers refer to what they hold by
// number.
//
// Nothing that is read here is trusted: every access is checked.
#pragma once

#include <optional>

#include "QZCore/foundation/data.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// The upper half of an object's first byte.
enum class BinaryKind : std::uint8_t {
    Constant = 0x0,
    Integer = 0x1,
    Real = 0x2,
    Date = 0x3,
    Bytes = 0x4,
    Ascii = 0x5,
    Utf16 = 0x6,
    Reference = 0x8,  // what archives refer to their objects by: a number
    List = 0xA,
    OrderedSet = 0xB,
    Set = 0xC,
    Dictionary = 0xD,
};

/// The head of an object, and all bytes of the list's objects behind it.
struct BinaryObject {
    BinaryKind kind = BinaryKind::Constant;
    std::uint64_t count = 0;
    DataView rest;

    /// Whether the object refers to others.
    [[nodiscard]] bool isContainer() const {
        return kind >= BinaryKind::List && kind <= BinaryKind::Dictionary;
    }

    /// What an object that is no container stands for; nothing when it is cut
    /// off, of no known kind, or a value that no property list holds.
    [[nodiscard]] std::optional<Value> scalar() const;

    /// The `number` elements of `width` bytes behind the head.
    [[nodiscard]] std::optional<DataView> elements(std::uint64_t number, std::size_t width) const;
};

/// The objects of a list by their numbers.
class BinaryObjects {
public:
    /// Finds the parts of a list; nothing when they do not fit together.
    [[nodiscard]] static std::optional<BinaryObjects> in(DataView bytes);

    /// How many objects there are.
    [[nodiscard]] std::size_t count() const { return offsets_.size() / offsetSize_; }

    /// The number of the object that is the list.
    [[nodiscard]] std::size_t top() const { return top_; }

    /// The object of a number below `count`.
    [[nodiscard]] std::optional<BinaryObject> object(std::size_t number) const;

    /// The references of a container: a dictionary's keys first, then its
    /// values.
    [[nodiscard]] std::optional<DataView> references(const BinaryObject& container) const;

    /// The reference at `index`: the number of an object, or nothing when there
    /// is no such object.
    [[nodiscard]] std::optional<std::size_t> reference(DataView references,
                                                       std::size_t index) const;

private:
    DataView objects_;
    DataView offsets_;
    std::size_t offsetSize_ = 1;
    std::size_t referenceSize_ = 1;
    std::size_t top_ = 0;
};

}  // namespace QZCore
