#include "QZCore/model/attributed_object.h"

#include <utility>

#include "QZCore/codecs/deep_copies.h"
#include "QZCore/codecs/typed_access.h"
#include "model/release_value.h"

namespace QZCore {

QZAttributedObject::QZAttributedObject() : attributes_(Value::mutableDictionary({})) {}

QZAttributedObject::~QZAttributedObject() { releaseValue(attributes_); }

Dictionary& QZAttributedObject::changeableAttributes() {
    if (std::exchange(mayBeShared_, false)) attributes_ = attributes_.mutableCopy();
    return *attributes_.mutableDictionary();
}

// ---- Attributes ----

void QZAttributedObject::setAttribute(const Value& attribute, std::optional<StringView> forKey) {
    if (!forKey) return;
    if (attribute.isAbsent()) return removeAttributeForKey(*forKey);
    changeableAttributes().setObject(attribute, *forKey);
}

Value QZAttributedObject::attributeForKey(StringView key) const {
    return attributeForKey(key, Value());
}

Value QZAttributedObject::attributeForKey(StringView key, const Value& withDefault) const {
    return objectForKey(attributes(), key, withDefault);
}

void QZAttributedObject::removeAttributeForKey(StringView key) {
    changeableAttributes().removeObjectForKey(key);
}

void QZAttributedObject::setAttributesFromObject(const QZAttributedObject& object) {
    Dictionary copies;
    for (const auto& [key, value] : object.attributes()) copies.setObject(copyOf(value), key);
    attributes_ = Value::mutableDictionary(std::move(copies));
    mayBeShared_ = false;
}

// ---- Scalars ----

void QZAttributedObject::setBoolAttribute(bool attribute, std::optional<StringView> forKey) {
    setAttribute(attribute, forKey);
}

void QZAttributedObject::setFloatAttribute(float attribute, std::optional<StringView> forKey) {
    setAttribute(attribute, forKey);
}

void QZAttributedObject::setDoubleAttribute(double attribute, std::optional<StringView> forKey) {
    setAttribute(attribute, forKey);
}

void QZAttributedObject::setIntAttribute(std::int32_t attribute, std::optional<StringView> forKey) {
    setAttribute(attribute, forKey);
}

void QZAttributedObject::setUnsignedAttribute(std::uint32_t attribute,
                                              std::optional<StringView> forKey) {
    setAttribute(attribute, forKey);
}

void QZAttributedObject::setIntegerAttribute(std::int64_t attribute,
                                             std::optional<StringView> forKey) {
    setAttribute(attribute, forKey);
}

void QZAttributedObject::setUnsignedIntegerAttribute(std::uint64_t attribute,
                                                     std::optional<StringView> forKey) {
    setAttribute(attribute, forKey);
}

bool QZAttributedObject::boolAttributeForKey(StringView key, bool withDefault) const {
    return boolForKey(attributes(), key, withDefault);
}

float QZAttributedObject::floatAttributeForKey(StringView key, float withDefault) const {
    return floatForKey(attributes(), key, withDefault);
}

double QZAttributedObject::doubleAttributeForKey(StringView key, double withDefault) const {
    return doubleForKey(attributes(), key, withDefault);
}

std::int32_t QZAttributedObject::intAttributeForKey(StringView key,
                                                    std::int32_t withDefault) const {
    return intForKey(attributes(), key, withDefault);
}

std::uint32_t QZAttributedObject::unsignedAttributeForKey(StringView key,
                                                          std::uint32_t withDefault) const {
    return unsignedIntForKey(attributes(), key, withDefault);
}

std::int64_t QZAttributedObject::integerAttributeForKey(StringView key,
                                                        std::int64_t withDefault) const {
    return integerForKey(attributes(), key, withDefault);
}

std::uint64_t QZAttributedObject::unsignedIntegerAttributeForKey(StringView key,
                                                                 std::uint64_t withDefault) const {
    return unsignedIntegerForKey(attributes(), key, withDefault);
}

// ---- Comparing and describing ----

bool QZAttributedObject::isEqual(const Value& other) const {
    const auto object = objectIn<QZAttributedObject>(other);
    return object != nullptr && isEqualTo(*object);
}

bool QZAttributedObject::isEqualTo(const Object& other) const {
    const auto* object = dynamic_cast<const QZAttributedObject*>(&other);
    return object != nullptr && attributes_ == object->attributes_;
}

String QZAttributedObject::heading() const {
    return Object::description() + u"\n<QZAttributedObject>\n";
}

String QZAttributedObject::description() const { return heading() + attributes_.description(); }

// ---- Copying ----

std::shared_ptr<QZAttributedObject> QZAttributedObject::newObject() const {
    return std::make_shared<QZAttributedObject>();
}

std::shared_ptr<QZAttributedObject> QZAttributedObject::copyWithZone() const {
    auto copy = newObject();
    copy->attributes_ = Value::mutableDictionary(mutableCopyDeepCollectionsOnly(attributes()));
    return copy;
}

}  // namespace QZCore
