#include "platform/cache_control.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace QZCore {
namespace {

constexpr std::int64_t kMaximalSeconds = std::int64_t{1} << 31;

/// One part of the field: "name" or "name=argument".
struct Directive {
    std::string name;  // in lower case
    std::string_view argument;
};

/// Where the part of a list that starts `text` ends: at the first comma that
/// stands outside quotes.
std::size_t lengthOfPart(std::string_view text) {
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == ',' && !quoted) return i;
        if (text[i] == '"') quoted = !quoted;
        if (text[i] == '\\' && quoted) ++i;
    }
    return text.size();
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kBlank = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(kBlank), text.size()));
    return text.substr(0, text.find_last_not_of(kBlank) + 1);
}

std::string_view withoutQuotes(std::string_view text) {
    const bool quoted = text.size() >= 2 && text.starts_with('"') && text.ends_with('"');
    return quoted ? text.substr(1, text.size() - 2) : text;
}

char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

Directive directiveOf(std::string_view part) {
    const std::size_t equals = std::min(part.find('='), part.size());
    Directive directive{.name = std::string(trimmed(part.substr(0, equals))), .argument = {}};
    std::ranges::transform(directive.name, directive.name.begin(), lowered);
    if (equals < part.size()) directive.argument = withoutQuotes(trimmed(part.substr(equals + 1)));
    return directive;
}

void apply(const Directive& directive, CacheControl& control) {
    if (directive.name == "no-store") control.noStore = true;
    if (directive.name == "no-cache") control.noCache = true;
    if (directive.name != "max-age") return;
    const std::int64_t seconds = readDeltaSeconds(directive.argument).value_or(0);
    control.maxAge = std::min(control.maxAge.value_or(seconds), seconds);
}

}  // namespace

std::optional<std::int64_t> readDeltaSeconds(std::string_view text) {
    if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos) {
        return std::nullopt;
    }
    std::int64_t seconds = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), seconds);
    return read.ec == std::errc() ? std::min(seconds, kMaximalSeconds) : kMaximalSeconds;
}

CacheControl readCacheControl(std::string_view field) {
    CacheControl control;
    while (!field.empty()) {
        const std::size_t length = lengthOfPart(field);
        apply(directiveOf(field.substr(0, length)), control);
        field.remove_prefix(std::min(length + 1, field.size()));
    }
    return control;
}

}  // namespace QZCore
