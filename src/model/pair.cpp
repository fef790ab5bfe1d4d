#include "QZCore/model/pair.h"

#include "model/release_value.h"

namespace QZCore {

QZPair::~QZPair() {
    releaseValue(key_);
    releaseValue(value_);
}

std::shared_ptr<QZPair> QZPair::pairWithKey(Value key, Value value) {
    auto pair = std::make_shared<QZPair>();
    pair->key_ = std::move(key);
    pair->value_ = std::move(value);
    return pair;
}

void QZPair::setKey(Value key) { key_ = std::move(key); }
void QZPair::setValue(Value value) { value_ = std::move(value); }

}  // namespace QZCore
