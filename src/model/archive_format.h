// The words of the archive format. They are stored in documents.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "QZCore/model/archive.h"

namespace QZCore::archive_format {

inline constexpr StringView kVersionKey = u"QZArchive";
inline constexpr StringView kCodingKey = u"coding";
inline constexpr StringView kFormsKey = u"forms";
inline constexpr StringView kObjectsKey = u"objects";
inline constexpr StringView kRootKey = u"root";

inline constexpr std::int64_t kVersion = 1;
inline constexpr StringView kKeyed = u"keyed";
inline constexpr StringView kSequential = u"sequential";

/// The forms of values that are not objects of classes.
enum class PlainForm : std::uint8_t {
    List,
    MutableList,
    Set,
    Dictionary,
    MutableDictionary,
    Date,
    URL,
    Text
};

/// The name of a plain form, and the kind that has to be allowed.
struct PlainFormRow {
    StringView name;
    PlainForm form;
    PlainClass kind;
};

inline constexpr std::array kPlainForms{
    PlainFormRow{u"array", PlainForm::List, PlainClass::List},
    PlainFormRow{u"mutable array", PlainForm::MutableList, PlainClass::List},
    PlainFormRow{u"set", PlainForm::Set, PlainClass::Set},
    PlainFormRow{u"dictionary", PlainForm::Dictionary, PlainClass::Dictionary},
    PlainFormRow{u"mutable dictionary", PlainForm::MutableDictionary, PlainClass::Dictionary},
    PlainFormRow{u"date", PlainForm::Date, PlainClass::Date},
    PlainFormRow{u"URL", PlainForm::URL, PlainClass::URL},
    PlainFormRow{u"string", PlainForm::Text, PlainClass::Text},
};

/// The row of a form.
[[nodiscard]] constexpr const PlainFormRow& rowOf(PlainForm form) {
    return kPlainForms[static_cast<std::size_t>(form)];
}

/// The row with a name, or null.
[[nodiscard]] constexpr const PlainFormRow* rowNamed(StringView name) {
    for (const PlainFormRow& row : kPlainForms) {
        if (row.name == name) return &row;
    }
    return nullptr;
}

/// The class of values of a kind; nothing for absent ones and for objects.
[[nodiscard]] std::optional<PlainClass> plainClassOf(ValueKind kind);

static_assert([] {
    for (std::size_t i = 0; i < kPlainForms.size(); ++i) {
        if (kPlainForms[i].form != static_cast<PlainForm>(i)) return false;
    }
    return true;
}());

}  // namespace QZCore::archive_format
