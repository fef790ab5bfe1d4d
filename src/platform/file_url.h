// File URLs: the file behind one.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "QZCore/foundation/data.h"

namespace QZCore {

/// The path that `url` names ("file:///path", "file://localhost/path" or
/// "file:/path", a query and a fragment ignored); nothing when it names none of
/// this machine.
[[nodiscard]] std::optional<std::string> filePathOfUrl(std::string_view url);

/// The bytes of the file that `url` names; nothing when it is no plain file of
/// this machine, cannot be read or is longer than `limit`.
[[nodiscard]] std::optional<Data> readFileUrl(std::string_view url, std::size_t limit);

}  // namespace QZCore
