#include "streams.h"

#include <array>
#include <cstdio>

#include "QZCore/foundation/files.h"

namespace qznote {
namespace {

using namespace QZCore;

std::optional<Data> readStandardInput() {
    Data bytes;
    std::array<std::uint8_t, 65536> block{};
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), stdin)) {
        bytes.insert(bytes.end(), block.begin(), block.begin() + count);
    }
    if (std::ferror(stdin) != 0) return std::nullopt;
    return bytes;
}

bool writeStandardOutput(std::string_view text) {
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    return std::fflush(stdout) == 0 && written;
}

}  // namespace

std::optional<Data> readAll(const std::string& name) {
    return name == kStandardStream ? readStandardInput() : readFile(name);
}

bool writeAll(const std::string& name, std::string_view text) {
    return name == kStandardStream ? writeStandardOutput(text)
                                   : writeFileAtomically(name, bytesOf(text));
}

}  // namespace qznote
