// Formatting: texts made from a format and values, as printf makes them, the
// same in every locale.
#pragma once

#include <initializer_list>
#include <span>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/foundation/value.h"

namespace QZCore {

/// `format` with each directive replaced by the next of `arguments`.
///
/// A directive is "%", then in this order what is wanted of: the position of
/// its argument ("1$"), flags ("-", "+", " ", "#", "0"), a width, a precision
/// (".2"), a length ("l", "ll", "q" ...), and a conversion. A width or a
/// precision of "*" takes an argument of its own. Lengths say nothing here,
/// since values know what they are.
///
/// | Conversion | Gives |
/// |---|---|
/// | @ | the value's description; "(null)" for an absent value |
/// | d D i | a signed integer |
/// | u U | an unsigned integer |
/// | x X o O | an unsigned integer with base 16 or 8; "#" puts "0x" or "0" before it |
/// | f F e E g G a A | a real number; six digits after the point unless a precision is given |
/// | c C | the character with that number; strings give their first |
/// | s S | the value as a string, cut to the precision |
/// | p | an integer as "0x" and hexadecimal digits |
/// | % | the sign itself; takes no argument |
///
/// Values of another type are converted. A missing argument counts as absent;
/// arguments too many are ignored. What is no directive is kept as it stands.
/// Widths and precisions beyond 1000 count as 1000.
[[nodiscard]] QZ_EXPORT String stringWithFormat(StringView format,
                                                std::span<const Value> arguments);
/// The same.
[[nodiscard]] QZ_EXPORT String stringWithFormat(StringView format,
                                                std::initializer_list<Value> arguments);

}  // namespace QZCore
