#include "QZCore/codecs/binary_text.h"
#include "foundation/base64.h"

namespace QZCore {

String urlSafeBase64(DataView data) { return urlSafeBase64Of(data); }

}  // namespace QZCore
