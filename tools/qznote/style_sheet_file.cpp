#include "style_sheet_file.h"

#include "QZCore/foundation/property_list.h"
#include "json_reader.h"

namespace qznote {

using namespace QZCore;

std::optional<StyleSheet> readStyleSheet(DataView bytes) {
    Value sheet = readPropertyList(bytes).value;
    if (sheet.isAbsent()) sheet = readJson(textOf(bytes));
    if (sheet.dictionary() == nullptr) return std::nullopt;
    return *sheet.dictionary();
}

}  // namespace qznote
