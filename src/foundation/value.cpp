#include "QZCore/foundation/value.h"

#include <cmath>
#include <limits>
#include <utility>

#include "QZCore/foundation/dictionary.h"

namespace QZCore {
namespace {

// Containers that hold containers would release each other by recursion. A
// container that goes away hands its elements to the outermost release of the
// thread, which lets go of them one after the other.
class Release {
public:
    static void later(Array&& elements) {
        if (current_ != nullptr) {
            current_->pending_.push_back(std::move(elements));
            return;
        }
        Release outermost;
        current_ = &outermost;
        outermost.pending_.push_back(std::move(elements));
        while (!outermost.pending_.empty()) {
            Array next = std::move(outermost.pending_.back());
            outermost.pending_.pop_back();
            next.clear();
        }
        current_ = nullptr;
    }

private:
    static thread_local Release* current_;
    std::vector<Array> pending_;
};

thread_local Release* Release::current_ = nullptr;

bool holdsContainer(const Value& value) {
    const ValueKind kind = value.kind();
    return kind == ValueKind::List || kind == ValueKind::Dictionary || kind == ValueKind::Set;
}

template <class Integer>
Integer clampedToInteger(double value) {
    using Limits = std::numeric_limits<Integer>;
    if (std::isnan(value)) return 0;
    if (value <= static_cast<double>(Limits::min())) return Limits::min();
    if (value >= static_cast<double>(Limits::max())) return Limits::max();
    return static_cast<Integer>(value);
}

template <class Integer, class From>
Integer clampedToInteger(From value) {
    using Limits = std::numeric_limits<Integer>;
    if (std::cmp_less(value, Limits::min())) return Limits::min();
    if (std::cmp_greater(value, Limits::max())) return Limits::max();
    return static_cast<Integer>(value);
}

}  // namespace

struct Value::ArrayBox {
    ArrayBox(Array held, bool isMutable) : elements(std::move(held)), changeable(isMutable) {}
    ArrayBox(const ArrayBox&) = delete;
    ArrayBox& operator=(const ArrayBox&) = delete;
    ~ArrayBox() {
        for (const Value& element : elements) {
            if (!holdsContainer(element)) continue;
            Release::later(std::move(elements));
            return;
        }
    }

    Array elements;
    const bool changeable;
};

struct Value::SetBox {
    explicit SetBox(Set held) : members(std::move(held)) {}
    SetBox(const SetBox&) = delete;
    SetBox& operator=(const SetBox&) = delete;
    ~SetBox() {
        Array released = members.allObjects();
        members = Set();
        Release::later(std::move(released));
    }

    Set members;
};

struct Value::DictionaryBox {
    DictionaryBox(Dictionary held, bool isMutable)
        : entries(std::move(held)), changeable(isMutable) {}
    DictionaryBox(const DictionaryBox&) = delete;
    DictionaryBox& operator=(const DictionaryBox&) = delete;
    ~DictionaryBox() {
        Array containers;
        for (const DictionaryEntry& entry : entries) {
            if (holdsContainer(entry.key)) containers.push_back(entry.key);
            if (holdsContainer(entry.value)) containers.push_back(entry.value);
        }
        if (containers.empty()) return;
        entries.removeAllObjects();
        Release::later(std::move(containers));
    }

    Dictionary entries;
    const bool changeable;
};

Object::~Object() = default;
bool Object::isEqualTo(const Object& other) const { return this == &other; }
std::size_t Object::hash() const { return reinterpret_cast<std::uintptr_t>(this); }
String Object::description() const { return u"<object>"; }
std::shared_ptr<const Object> Object::mutableCopy() const { return nullptr; }
const Dictionary* Object::heldEntries() const { return nullptr; }
String Object::heading() const { return {}; }

Value::Value(StringView value) : storage_(std::make_shared<const String>(value)) {}
Value::Value(String value) : storage_(std::make_shared<const String>(std::move(value))) {}
Value::Value(Data value) : storage_(std::make_shared<const Data>(std::move(value))) {}
Value::Value(URL value) : storage_(std::make_shared<const URL>(std::move(value))) {}
Value::Value(Array value) : storage_(std::make_shared<ArrayBox>(std::move(value), false)) {}
Value::Value(Set value) : storage_(std::make_shared<SetBox>(std::move(value))) {}
Value::Value(Dictionary value)
    : storage_(std::make_shared<DictionaryBox>(std::move(value), false)) {}

Value::Value(std::shared_ptr<const Object> value) {
    if (value != nullptr) storage_ = std::move(value);
}

Value Value::mutableArray(Array value) {
    Value made;
    made.storage_ = std::make_shared<ArrayBox>(std::move(value), true);
    return made;
}

Value Value::mutableDictionary(Dictionary value) {
    Value made;
    made.storage_ = std::make_shared<DictionaryBox>(std::move(value), true);
    return made;
}

bool Value::isNumber() const {
    const ValueKind held = kind();
    return held >= ValueKind::Boolean && held <= ValueKind::Real;
}

namespace {

template <class T, class Storage>
const T* shared(const Storage& storage) {
    const auto* held = std::get_if<std::shared_ptr<const T>>(&storage);
    return held == nullptr ? nullptr : held->get();
}

}  // namespace

const String* Value::string() const { return shared<String>(storage_); }
const Data* Value::data() const { return shared<Data>(storage_); }
const URL* Value::url() const { return shared<URL>(storage_); }

const Set* Value::set() const {
    const auto* held = std::get_if<std::shared_ptr<SetBox>>(&storage_);
    return held == nullptr ? nullptr : &(*held)->members;
}

const Array* Value::array() const {
    const auto* held = std::get_if<std::shared_ptr<ArrayBox>>(&storage_);
    return held == nullptr ? nullptr : &(*held)->elements;
}

const Dictionary* Value::dictionary() const {
    const auto* held = std::get_if<std::shared_ptr<DictionaryBox>>(&storage_);
    return held == nullptr ? nullptr : &(*held)->entries;
}

Array* Value::mutableArray() const {
    const auto* held = std::get_if<std::shared_ptr<ArrayBox>>(&storage_);
    return held == nullptr || !(*held)->changeable ? nullptr : &(*held)->elements;
}

Dictionary* Value::mutableDictionary() const {
    const auto* held = std::get_if<std::shared_ptr<DictionaryBox>>(&storage_);
    return held == nullptr || !(*held)->changeable ? nullptr : &(*held)->entries;
}

std::shared_ptr<const Object> Value::object() const {
    const auto* held = std::get_if<std::shared_ptr<const Object>>(&storage_);
    return held == nullptr ? nullptr : *held;
}

namespace {

/// `value` as a number of type `Integer`, by the rules of the header; a string
/// is read by `fromText`.
template <class Integer>
Integer integerFrom(const Value& value, Integer (*fromText)(StringView)) {
    switch (value.kind()) {
        case ValueKind::Boolean:
            return value.boolValue() ? 1 : 0;
        case ValueKind::Text:
            return fromText(*value.string());
        default:
            return 0;
    }
}

std::uint32_t unsignedIntFromText(StringView text) {
    return clampedToInteger<std::uint32_t>(QZCore::integerValue(text));
}

std::uint64_t unsignedIntegerFromText(StringView text) {
    return clampedToInteger<std::uint64_t>(QZCore::integerValue(text));
}

template <class Integer, class Storage>
Integer convertedInteger(const Value& value, const Storage& storage,
                         Integer (*fromText)(StringView)) {
    if (const auto* held = std::get_if<std::int64_t>(&storage)) {
        return clampedToInteger<Integer>(*held);
    }
    if (const auto* held = std::get_if<std::uint64_t>(&storage)) {
        return clampedToInteger<Integer>(*held);
    }
    if (const auto* held = std::get_if<double>(&storage)) return clampedToInteger<Integer>(*held);
    return integerFrom<Integer>(value, fromText);
}

}  // namespace

std::int32_t Value::intValue() const {
    return convertedInteger<std::int32_t>(*this, storage_, QZCore::intValue);
}

std::uint32_t Value::unsignedIntValue() const {
    return convertedInteger<std::uint32_t>(*this, storage_, unsignedIntFromText);
}

std::int64_t Value::integerValue() const {
    return convertedInteger<std::int64_t>(*this, storage_, QZCore::integerValue);
}

std::uint64_t Value::unsignedIntegerValue() const {
    return convertedInteger<std::uint64_t>(*this, storage_, unsignedIntegerFromText);
}

double Value::doubleValue() const {
    switch (kind()) {
        case ValueKind::Boolean:
            return std::get<bool>(storage_) ? 1.0 : 0.0;
        case ValueKind::Integer:
            return static_cast<double>(std::get<std::int64_t>(storage_));
        case ValueKind::Unsigned:
            return static_cast<double>(std::get<std::uint64_t>(storage_));
        case ValueKind::Real:
            return std::get<double>(storage_);
        case ValueKind::Text:
            return QZCore::doubleValue(*string());
        default:
            return 0.0;
    }
}

float Value::floatValue() const {
    return kind() == ValueKind::Text ? QZCore::floatValue(*string())
                                     : static_cast<float>(doubleValue());
}

bool Value::boolValue() const {
    switch (kind()) {
        case ValueKind::Boolean:
            return std::get<bool>(storage_);
        case ValueKind::Integer:
            return std::get<std::int64_t>(storage_) != 0;
        case ValueKind::Unsigned:
            return std::get<std::uint64_t>(storage_) != 0;
        case ValueKind::Real:
            return std::get<double>(storage_) != 0;
        case ValueKind::Text:
            return QZCore::boolValue(*string());
        default:
            return false;
    }
}

String Value::stringValue() const {
    switch (kind()) {
        case ValueKind::Boolean:
            return std::get<bool>(storage_) ? u"1" : u"0";
        case ValueKind::Integer:
            return integerString(std::get<std::int64_t>(storage_));
        case ValueKind::Unsigned:
            return unsignedString(std::get<std::uint64_t>(storage_));
        case ValueKind::Real:
            return shortestString(std::get<double>(storage_));
        case ValueKind::Text:
            return *string();
        case ValueKind::URL:
            return url()->absoluteString;
        default:
            return {};
    }
}

bool Value::isIdentical(const Value& other) const { return storage_ == other.storage_; }

bool Value::isShared() const {
    const auto countOf = [](const auto& held) -> long {
        if constexpr (requires { held.use_count(); }) {
            return held.use_count();
        } else {
            return 0;
        }
    };
    return std::visit(countOf, storage_) > 1;
}

}  // namespace QZCore
