// A key and its value, for ordered lists of associations.
//
// Pairs are objects: they are shared, compare by identity, and stand in values
// as `Value(pair)`; `objectIn<QZPair>` gets them back. A pair is used from one
// thread at a time.
#pragma once

#include <memory>

#include "QZCore/export.h"
#include "QZCore/foundation/object.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// A key and a value, both of which can be replaced.
class QZ_EXPORT QZPair : public Object {
public:
    /// A pair without key and value.
    QZPair() = default;
    /// Lets go of both, however deeply pairs hold each other.
    ~QZPair() override;

    /// A new pair of `key` and `value`; both may be absent.
    [[nodiscard]] static std::shared_ptr<QZPair> pairWithKey(Value key, Value value);

    /// The key.
    [[nodiscard]] const Value& key() const { return key_; }
    /// Replaces the key.
    void setKey(Value key);
    /// The value.
    [[nodiscard]] const Value& value() const { return value_; }
    /// Replaces the value.
    void setValue(Value value);

    QZPair(const QZPair&) = delete;
    QZPair& operator=(const QZPair&) = delete;

private:
    Value key_;
    Value value_;
};

}  // namespace QZCore
