#include "codecs/misuse_log.h"

#include "QZCore/foundation/log.h"
#include "platform/call_stack.h"

namespace QZCore {

void logMisuse(StringView line, const void* returnAddress) {
    logLine(line);
    logLine(u"Stack trace: " + callStackFrom(returnAddress));
}

}  // namespace QZCore
