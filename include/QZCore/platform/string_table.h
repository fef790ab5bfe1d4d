// The application's words in the user's language.
//
// Every operation may be called from any thread.
#pragma once

#include <memory>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"

namespace QZCore {

/// A table of translations.
class QZ_EXPORT StringTable {
public:
    virtual ~StringTable();

    /// The text to show for `key`, which is the text in English; `key` itself
    /// where there is no translation.
    [[nodiscard]] virtual String localizedString(StringView key) const = 0;
};

/// The table in use. The default has no translations; an application sets its
/// own.
[[nodiscard]] QZ_EXPORT std::shared_ptr<const StringTable> sharedStringTable();

/// Makes `table` the one in use and returns the one set before. An empty pointer
/// stands for the default, in both directions.
QZ_EXPORT std::shared_ptr<const StringTable> setSharedStringTable(
    std::shared_ptr<const StringTable> table);

}  // namespace QZCore
