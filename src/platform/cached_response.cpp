#include "platform/cached_response.h"

#include <algorithm>
#include <charconv>

namespace QZCore {
namespace {

// A cache file begins with lines of text, "Name: value", of which the first
// names the form and the last is empty. The body follows. Part of the caches
// that are on disks: a change needs a new first line.
constexpr std::string_view kForm = "QZCore-Cache: 1";

void appendLine(std::string& text, std::string_view name, std::string_view value) {
    text.append(name).append(": ").append(value).append("\n");
}

/// Takes the line that `rest` starts with off it; nothing when no line ends.
std::optional<std::string_view> takeLine(std::string_view& rest) {
    const std::size_t length = rest.find('\n');
    if (length == std::string_view::npos) return std::nullopt;
    const std::string_view line = rest.substr(0, length);
    rest.remove_prefix(length + 1);
    return line;
}

/// Takes the line "NAME: value" off `rest`, which must start with it.
std::optional<std::string_view> takeValue(std::string_view& rest, std::string_view name) {
    std::optional<std::string_view> line = takeLine(rest);
    if (!line || !line->starts_with(name)) return std::nullopt;
    line->remove_prefix(name.size());
    if (!line->starts_with(": ")) return std::nullopt;
    return line->substr(2);
}

template <class Integer>
bool takeNumber(std::string_view& rest, std::string_view name, Integer& number) {
    const std::optional<std::string_view> value = takeValue(rest, name);
    if (!value) return false;
    const char* end = value->data() + value->size();
    const auto read = std::from_chars(value->data(), end, number);
    return read.ec == std::errc() && read.ptr == end;
}

/// A field is sent back to the server; a file must not smuggle others into it.
bool isPlain(std::string_view value) {
    return std::ranges::all_of(value, [](char letter) {
        const auto byte = static_cast<unsigned char>(letter);
        return byte == '\t' || (byte >= 0x20 && byte != 0x7F);
    });
}

bool takeFields(std::string_view& rest, HttpFields& fields) {
    for (const HttpFieldRow& row : kHttpFields) {
        const std::optional<std::string_view> value = takeValue(rest, row.name);
        if (!value || !isPlain(*value)) return false;
        fields.*row.value = *value;
    }
    return true;
}

}  // namespace

Data cacheFileOf(std::string_view url, const CachedResponse& response) {
    std::string head = std::string(kForm) + "\n";
    appendLine(head, "URL", url);
    appendLine(head, "Received", std::to_string(response.received));
    appendLine(head, "Fresh-Until", std::to_string(response.freshUntil));
    for (const HttpFieldRow& row : kHttpFields) {
        appendLine(head, row.name, response.fields.*row.value);
    }
    appendLine(head, "Length", std::to_string(response.body.size()));
    head += "\n";
    const DataView bytes = bytesOf(head);
    Data file;
    file.reserve(bytes.size() + response.body.size());
    file.assign(bytes.begin(), bytes.end());
    file.insert(file.end(), response.body.begin(), response.body.end());
    return file;
}

std::optional<CachedResponse> readCacheFile(std::string_view url, DataView file) {
    CachedResponse response;
    std::size_t length = 0;
    std::string_view rest = textOf(file);
    const bool good = takeLine(rest) == kForm && takeValue(rest, "URL") == url &&
                      takeNumber(rest, "Received", response.received) &&
                      takeNumber(rest, "Fresh-Until", response.freshUntil) &&
                      takeFields(rest, response.fields) && takeNumber(rest, "Length", length) &&
                      takeLine(rest) == "" && rest.size() == length;
    if (!good) return std::nullopt;
    const DataView body = bytesOf(rest);
    response.body.assign(body.begin(), body.end());
    return response;
}

}  // namespace QZCore
