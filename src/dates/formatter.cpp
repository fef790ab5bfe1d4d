#include "QZCore/dates/formatter.h"

namespace QZCore {

Formatter::~Formatter() = default;

}  // namespace QZCore
