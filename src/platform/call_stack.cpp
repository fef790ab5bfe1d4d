#include "platform/call_stack.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace QZCore {
namespace {

struct Release {
    void operator()(char* block) const { std::free(block); }
};

std::string hexadecimal(std::uintptr_t number) {
    std::array<char, 2 * sizeof number> digits;
    char* const end = digits.data() + digits.size();
    return "0x" + std::string(digits.data(), std::to_chars(digits.data(), end, number, 16).ptr);
}

std::string distance(const char* address, const void* from) {
    return "+" + hexadecimal(static_cast<std::uintptr_t>(address - static_cast<const char*>(from)));
}

std::string demangled(const char* symbol) {
    int status = 0;
    const std::unique_ptr<char, Release> name(
        abi::__cxa_demangle(symbol, nullptr, nullptr, &status));
    return name == nullptr ? symbol : name.get();
}

std::string fileName(std::string_view path) {
    return std::string(path.substr(path.find_last_of('/') + 1));
}

std::string frameText(const void* frame) {
    const char* address = static_cast<const char*>(frame);
    // A call at the end of a function returns to behind it.
    Dl_info place = {};
    if (::dladdr(address - 1, &place) == 0 || place.dli_fname == nullptr) {
        return hexadecimal(reinterpret_cast<std::uintptr_t>(address));
    }
    const std::string module = fileName(place.dli_fname);
    if (place.dli_sname == nullptr) return module + distance(address, place.dli_fbase);
    return module + " " + demangled(place.dli_sname) + distance(address, place.dli_saddr);
}

}  // namespace

String callStackFrom(const void* returnAddress) {
    std::array<void*, 64> frames;
    auto* const end = frames.begin() + ::backtrace(frames.data(), static_cast<int>(frames.size()));
    auto* frame = std::find(frames.begin(), end, returnAddress);
    if (frame == end) frame = frames.begin();
    std::string text;
    for (; frame != end; ++frame) {
        if (!text.empty()) text += " <- ";
        text += frameText(*frame);
    }
    return fromUTF8(text);
}

}  // namespace QZCore
