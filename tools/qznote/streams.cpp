#include "streams.h"

#include <array>
#include <cstdio>
#include <memory>

#include "QZCore/foundation/files.h"

namespace qznote {
namespace {

using namespace QZCore;

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::optional<Data> readStream(std::FILE* stream) {
    Data bytes;
    std::array<std::uint8_t, 65536> block{};
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), stream)) {
        bytes.insert(bytes.end(), block.begin(), block.begin() + count);
    }
    if (std::ferror(stream) != 0) return std::nullopt;
    return bytes;
}

bool writeStandardOutput(std::string_view text) {
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    return std::fflush(stdout) == 0 && written;
}

}  // namespace

std::optional<Data> readAll(const std::string& name) {
    if (name == kStandardStream) return readStream(stdin);
    // A shell may hand over a pipe by name, which `readFile` refuses.
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(name.c_str(), "rb"));
    return file == nullptr ? std::nullopt : readStream(file.get());
}

bool writeAll(const std::string& name, std::string_view text) {
    return name == kStandardStream ? writeStandardOutput(text)
                                   : writeFileAtomically(name, bytesOf(text));
}

}  // namespace qznote
