// QZAttributedObject: the base of model objects that carry an open-ended bag of
// named attributes.
//
// All of them are archived under one key, so that a new attribute needs no new
// format. Attributed objects are shared, stand in values as `Value(object)`,
// and `objectIn<QZAttributedObject>` gets them back; so they nest, to any depth.
//
// An object is used from one thread at a time.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "QZCore/export.h"
#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"
#include "QZCore/model/archived_class.h"
#include "QZCore/model/objects.h"

namespace QZCore {

/// An object with named attributes.
///
/// A derived class says what its objects are made and archived as:
/// @code
///     class Task final : public QZAttributedObject {
///     public:
///         static ArchivedClass archived() { return archivedClass<Task>(u"Task"); }
///         static std::shared_ptr<Task> initWithCoder(ArchiveDecoder& coder) {
///             auto task = std::make_shared<Task>();
///             task->readFromCoder(coder);
///             return task;
///         }
///
///     protected:
///         std::shared_ptr<QZAttributedObject> newObject() const override {
///             return std::make_shared<Task>();
///         }
///         ArchivedClass ownClass() const override { return archived(); }
///     };
/// @endcode
class QZ_EXPORT QZAttributedObject : public CopyableObject {
public:
    /// An object without attributes.
    QZAttributedObject();
    /// Lets go of the attributes, however deeply objects hold each other.
    ~QZAttributedObject() override;
    QZAttributedObject(const QZAttributedObject&) = delete;
    QZAttributedObject& operator=(const QZAttributedObject&) = delete;

    // ---- Attributes ----

    /// All attributes. Valid until one of them changes.
    [[nodiscard]] const Dictionary& attributes() const { return *attributes_.dictionary(); }

    /// Stores the attribute; an absent one removes the key. Without a key
    /// nothing happens.
    void setAttribute(const Value& attribute, std::optional<StringView> forKey);

    /// The attribute under the key; absent when the key is.
    [[nodiscard]] Value attributeForKey(StringView key) const;
    /// The attribute under the key, or the default when the key is absent.
    [[nodiscard]] Value attributeForKey(StringView key, const Value& withDefault) const;

    /// Removes the key.
    void removeAttributeForKey(StringView key);

    /// Replaces all attributes by those of another object, each of which is
    /// copied once (`copyOf`): an array or a dictionary becomes an immutable
    /// one with the same elements, an attributed object a copy.
    void setAttributesFromObject(const QZAttributedObject& object);

    // ---- Scalars ----
    //
    // They are stored as numbers. What is stored is read by its own accessor of
    // the type (`Value`): "yes" is true, a number out of range the nearest that
    // is not, an array 0. The default stands for an absent key only.

    /// Stores a boolean.
    void setBoolAttribute(bool attribute, std::optional<StringView> forKey);
    /// Stores a number in single precision, widened to double.
    void setFloatAttribute(float attribute, std::optional<StringView> forKey);
    /// Stores a number in double precision.
    void setDoubleAttribute(double attribute, std::optional<StringView> forKey);
    /// Stores a 32-bit integer.
    void setIntAttribute(std::int32_t attribute, std::optional<StringView> forKey);
    /// Stores an unsigned 32-bit integer.
    void setUnsignedAttribute(std::uint32_t attribute, std::optional<StringView> forKey);
    /// Stores a 64-bit integer.
    void setIntegerAttribute(std::int64_t attribute, std::optional<StringView> forKey);
    /// Stores an unsigned 64-bit integer.
    void setUnsignedIntegerAttribute(std::uint64_t attribute, std::optional<StringView> forKey);

    /// The attribute as a boolean.
    [[nodiscard]] bool boolAttributeForKey(StringView key, bool withDefault) const;
    /// The attribute in single precision.
    [[nodiscard]] float floatAttributeForKey(StringView key, float withDefault) const;
    /// The attribute in double precision.
    [[nodiscard]] double doubleAttributeForKey(StringView key, double withDefault) const;
    /// The attribute as a 32-bit integer.
    [[nodiscard]] std::int32_t intAttributeForKey(StringView key, std::int32_t withDefault) const;
    /// The attribute as an unsigned 32-bit integer.
    [[nodiscard]] std::uint32_t unsignedAttributeForKey(StringView key,
                                                        std::uint32_t withDefault) const;
    /// The attribute as a 64-bit integer.
    [[nodiscard]] std::int64_t integerAttributeForKey(StringView key,
                                                      std::int64_t withDefault) const;
    /// The attribute as an unsigned 64-bit integer.
    [[nodiscard]] std::uint64_t unsignedIntegerAttributeForKey(StringView key,
                                                               std::uint64_t withDefault) const;

    // ---- Comparing and describing ----

    /// Whether `other` is an attributed object, of whatever class, with equal
    /// attributes.
    [[nodiscard]] bool isEqual(const Value& other) const;
    /// Whether `other` is an attributed object with equal attributes.
    [[nodiscard]] bool isEqualTo(const Object& other) const final;
    /// The same for objects that are equal.
    [[nodiscard]] std::size_t hash() const final { return attributes_.hash(); }
    /// The description of any object, a line "<QZAttributedObject>", and the
    /// attributes.
    [[nodiscard]] String description() const final;
    /// The attributes.
    [[nodiscard]] const Dictionary* heldEntries() const final { return attributes_.dictionary(); }
    /// The lines before the attributes.
    [[nodiscard]] String heading() const final;

    // ---- Copying ----

    /// A new object of the same class, with new mutable dictionaries and arrays
    /// at any depth (`mutableCopyDeepCollectionsOnly`) and the very same other
    /// attributes.
    [[nodiscard]] std::shared_ptr<QZAttributedObject> copyWithZone() const;
    /// The same copy.
    [[nodiscard]] std::shared_ptr<const Object> copiedObject() const final {
        return copyWithZone();
    }

    // ---- Archiving ----
    //
    // By the functions of archive.h; `archivableClasses` can be handed to both.

    /// Nothing goes on from an object to those among its attributes by itself.
    static constexpr bool kIsWalked = false;

    /// The class in archives, "QZAttributedObject".
    [[nodiscard]] static ArchivedClass archived();

    /// The classes that the attributes may be of when they are read from a
    /// keyed archive, at any depth of arrays, sets and dictionaries: this class
    /// and those derived from it, the object's own, plain values, points,
    /// sizes, rectangles and ranges in boxes, and rich text in a box.
    [[nodiscard]] virtual ArchiveClasses archivableClasses() const;

    /// In a keyed archive, "QZAttributes" is the dictionary of the attributes.
    /// In a sequential one it is all there is. Stored in documents.
    void encodeWithCoder(ArchiveEncoder& coder) const;

    /// An object as it was encoded; without attributes when they are missing or
    /// cannot be read.
    [[nodiscard]] static std::shared_ptr<QZAttributedObject> initWithCoder(ArchiveDecoder& coder);

protected:
    /// A new object of the object's own class without attributes. A derived
    /// class copies its own fields into it.
    [[nodiscard]] virtual std::shared_ptr<QZAttributedObject> newObject() const;

    /// The object's own class in archives.
    [[nodiscard]] virtual ArchivedClass ownClass() const;

    /// Takes the attributes from an archive; for the `initWithCoder` of a
    /// derived class.
    void readFromCoder(ArchiveDecoder& coder);

private:
    [[nodiscard]] Dictionary& changeableAttributes();

    Value attributes_;  // always a dictionary
    // Attributes out of an archive may be those of several objects; they are
    // copied before the first change.
    bool mayBeShared_ = false;
};

}  // namespace QZCore
