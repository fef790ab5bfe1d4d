// What there may be in an archive: classes of objects, and plain values.
//
// A class is a row: its name in archives, its type, and two functions that hand
// an object's contents to an encoder and make an object of them again. A house
// that may not be included from below makes its class known by name instead.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <typeinfo>
#include <utility>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/object.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

class ArchiveDecoder;
class ArchiveEncoder;

// ---- Classes ----------------------------------------------------------------

/// A class of objects that can be in an archive.
struct ArchivedClass {
    /// The name in the archive; not one of those in the format of archives.
    /// Stored.
    String name;
    /// The type of the objects, exactly.
    const std::type_info* type = nullptr;
    /// Hands the contents of an object of the type to the encoder.
    void (*encode)(const Object& object, ArchiveEncoder& coder) = nullptr;
    /// Makes an object from its contents; an empty pointer when they are not
    /// what they should be. The object then counts as unreadable.
    std::shared_ptr<const Object> (*decode)(ArchiveDecoder& coder) = nullptr;
    /// Whether an object is of the class or of one derived from it; null when
    /// nothing is derived.
    bool (*isKind)(const Object& object) = nullptr;
    /// Whether what works on objects of the class walks on to the objects that
    /// they hold, as it does in trees. Such walks are kept within limits.
    bool isWalked = true;
    /// Classes that may be in an archive inside of objects of this class, even
    /// where they are not allowed elsewhere.
    std::vector<ArchivedClass> parts = {};
};

/// Whether walks go through objects of the class T: unless its constant
/// `kIsWalked` denies it.
template <class T>
[[nodiscard]] constexpr bool isWalkedByDefault() {
    if constexpr (requires { T::kIsWalked; }) {
        return T::kIsWalked;
    } else {
        return true;
    }
}

/// The class T, which has a member function `encodeWithCoder` and a static one
/// `initWithCoder` that returns a `std::shared_ptr<T>`. A derived class needs
/// an `initWithCoder` of its own.
template <class T>
[[nodiscard]] ArchivedClass archivedClass(StringView name) {
    return {
        .name = String(name),
        .type = &typeid(T),
        .encode =
            [](const Object& object, ArchiveEncoder& coder) {
                static_cast<const T&>(object).encodeWithCoder(coder);
            },
        .decode = [](ArchiveDecoder& coder) -> std::shared_ptr<const Object> {
            std::shared_ptr<T> made = T::initWithCoder(coder);
            return made;
        },
        .isKind = [](const Object& object) { return dynamic_cast<const T*>(&object) != nullptr; },
        .isWalked = isWalkedByDefault<T>()};
}

/// The value type T in its box (`Value::boxed`). No walk goes through a box.
template <class T, void (*encode)(const T&, ArchiveEncoder&),
          std::optional<T> (*decode)(ArchiveDecoder&)>
[[nodiscard]] ArchivedClass archivedBox(StringView name,
                                        const std::vector<ArchivedClass>& parts = {}) {
    return {.name = String(name),
            .type = &typeid(Boxed<T>),
            .encode =
                [](const Object& object, ArchiveEncoder& coder) {
                    encode(static_cast<const Boxed<T>&>(object).value, coder);
                },
            .decode = [](ArchiveDecoder& coder) -> std::shared_ptr<const Object> {
                std::optional<T> made = decode(coder);
                if (!made) return nullptr;
                return std::make_shared<Boxed<T>>(*std::move(made));
            },
            .isWalked = false,
            .parts = parts};
}

/// The kinds of values beside objects of classes. Mutable containers are of the
/// same kind as immutable ones.
enum class PlainClass : std::uint8_t { Text, Bytes, Number, Date, URL, List, Set, Dictionary };

/// What there may be in an archive.
struct ArchiveClasses {
    /// Classes of objects.
    std::vector<ArchivedClass> objects;
    /// Other kinds of values; at first all.
    std::vector<PlainClass> plain = {PlainClass::Text, PlainClass::Bytes,     PlainClass::Number,
                                     PlainClass::Date, PlainClass::URL,       PlainClass::List,
                                     PlainClass::Set,  PlainClass::Dictionary};
};

// ---- Classes known by name --------------------------------------------------

/// Makes a class known in the process and returns true; false, and no change,
/// when another one has its name. May be called from any thread.
QZ_EXPORT bool registerArchivedClass(ArchivedClass archived);

/// The class that was made known by `name`, or nothing. That it is known allows
/// it nowhere. May be called from any thread.
[[nodiscard]] QZ_EXPORT std::optional<ArchivedClass> registeredArchivedClass(StringView name);

}  // namespace QZCore
