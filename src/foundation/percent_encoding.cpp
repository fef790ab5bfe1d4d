#include "foundation/percent_encoding.h"

#include "foundation/hexadecimal.h"

namespace QZCore {

String percentEncoded(std::string_view bytes, const PlainBytes& plain) {
    String encoded;
    encoded.reserve(bytes.size());
    for (const char character : bytes) {
        const auto byte = static_cast<std::uint8_t>(character);
        if (plain[byte]) {
            encoded.push_back(byte);
        } else {
            encoded.push_back(u'%');
            appendHexByte(encoded, byte);
        }
    }
    return encoded;
}

}  // namespace QZCore
