// Opening any bytes as envelopes. What opens is no longer than what was opened,
// and nothing but what was sealed opens as authentic.
#include "QZCore/codecs/envelopes.h"
#include "require.h"

using namespace QZCore;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const DataView bytes(data, size);
    const auto old = dataDecryptedAES128WithPassword(bytes, u"fuzz");
    require(!old || old->size() + 32 <= size);
    const auto authentic = dataDecryptedAES256WithPassword(bytes, u"fuzz");
    require(!authentic || authentic->size() + 67 <= size);

    const auto written = dataEncryptedAES128WithPassword(bytes, u"fuzz");
    require(written &&
            dataDecryptedAES128WithPassword(*written, u"fuzz") == Data(data, data + size));
    return 0;
}
