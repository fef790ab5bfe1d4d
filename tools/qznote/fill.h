// Templates and the values that fill them.
#pragma once

#include <optional>
#include <string>

#include "QZCore/foundation/data.h"
#include "QZCore/foundation/dictionary.h"

namespace qznote {

/// The values in a property list or a JSON object. Of JSON, texts that are dates
/// in the form of ISO 8601 become dates. Nothing for any other bytes.
[[nodiscard]] std::optional<QZCore::Dictionary> readValues(QZCore::DataView bytes);

/// How variables are told from text.
struct VariableForm {
    std::string prefix = "<<";
    std::string suffix = ">>";
    /// Whether values become parts of a URL's query.
    bool percentEncodes = false;
};

/// The template `text` with its variables replaced by `values`.
[[nodiscard]] std::string filledTemplate(QZCore::StringView text, const QZCore::Dictionary& values,
                                         const VariableForm& form);

}  // namespace qznote
