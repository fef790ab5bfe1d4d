// Colours in keyed archives. The binary form gives references as integers, the
// XML form as dictionaries with the one key "CF$UID".

#include <vector>

#include "QZCore/foundation/dictionary.h"
#include "QZCore/foundation/property_list.h"
#include "color/legacy_color.h"
#include "color/legacy_color_space.h"

namespace QZCore {
namespace {

/// The object that `reference` refers to, when it is a dictionary; else null.
const Dictionary* referredTo(const Array& objects, Value reference) {
    if (const Dictionary* wrapped = reference.dictionary()) {
        reference = wrapped->objectForKey(u"CF$UID");
    }
    if (!reference.isNumber()) return nullptr;
    const std::uint64_t number = reference.unsignedIntegerValue();
    return number < objects.size() ? objects[number].dictionary() : nullptr;
}

/// The numbers in a text such as "0.25 0.5 1", which a zero byte may end.
std::vector<double> componentsIn(const Data* text) {
    std::vector<double> components;
    if (text == nullptr) return components;
    const String units = fromUTF8(textOf(*text));
    StringView rest = StringView(units).substr(0, units.find(u'\0'));
    for (ReadNumber next = readDouble(rest); next.length > 0; next = readDouble(rest)) {
        components.push_back(next.value);
        rest.remove_prefix(next.length);
    }
    return components;
}

std::optional<Color> colorOf(const Dictionary& object) {
    const std::int64_t space = object.objectForKey(u"NSColorSpace").integerValue();
    const Value text = object.objectForKey(isWhite(space) ? u"NSWhite" : u"NSRGB");
    return legacyColorOf(space, componentsIn(text.data()));
}

}  // namespace

std::optional<Color> keyedLegacyColor(DataView bytes) {
    const Value archive = readPropertyList(bytes).value;
    if (archive.dictionary() == nullptr) return std::nullopt;
    const Value objects = archive.dictionary()->objectForKey(u"$objects");
    const Value top = archive.dictionary()->objectForKey(u"$top");
    if (objects.array() == nullptr || top.dictionary() == nullptr) return std::nullopt;
    const Dictionary* root = referredTo(*objects.array(), top.dictionary()->objectForKey(u"root"));
    return root == nullptr ? std::nullopt : colorOf(*root);
}

}  // namespace QZCore
