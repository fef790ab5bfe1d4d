#include "QZCore/codecs/bzip2.h"

#include "QZCore/foundation/log.h"
#include "platform/bzip2.h"

namespace QZCore {

Data compressBZip2(DataView data) {
    Data compressed;
    if (data.empty()) return compressed;
    if (const int error = compressBzip2(compressed, data); error != 0)
        logLine(u"-[NSData compressBZip2]: error " + integerString(error) + u" returned");
    return compressed;
}

std::optional<Data> dataWithBZip2Data(const std::optional<DataView>& data, std::size_t limit) {
    if (!data || data->empty()) return std::nullopt;
    return decompressBzip2(*data, limit);
}

}  // namespace QZCore
