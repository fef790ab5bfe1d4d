#include "model/archive_format.h"

namespace QZCore::archive_format {
std::optional<PlainClass> plainClassOf(ValueKind kind) {
    switch (kind) {
        case ValueKind::Boolean:
        case ValueKind::Integer:
        case ValueKind::Unsigned:
        case ValueKind::Real:
            return PlainClass::Number;
        case ValueKind::Date:
            return PlainClass::Date;
        case ValueKind::Text:
            return PlainClass::Text;
        case ValueKind::Bytes:
            return PlainClass::Bytes;
        case ValueKind::URL:
            return PlainClass::URL;
        case ValueKind::List:
            return PlainClass::List;
        case ValueKind::Set:
            return PlainClass::Set;
        case ValueKind::Dictionary:
            return PlainClass::Dictionary;
        default:
            return std::nullopt;
    }
}

}  // namespace QZCore::archive_format
