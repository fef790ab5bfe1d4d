#include "dates/icu_locale.h"

#include <unicode/calendar.h>
#include <unicode/numsys.h>
#include <unicode/strenum.h>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>

namespace QZCore {
namespace {

// Longer than any identifier that means something.
constexpr std::size_t kLongestIdentifier = 156;

/// Identifiers are of ASCII; whatever else is written becomes what no
/// identifier has.
std::string asciiIdentifier(StringView identifier) {
    if (identifier.size() > kLongestIdentifier) return {};
    std::string ascii;
    for (const char16_t unit : identifier) {
        ascii.push_back(unit != 0 && unit < 0x80 ? static_cast<char>(unit) : '!');
    }
    return ascii;
}

/// Whether everything in front of the keywords is made of parts of at most eight
/// letters and digits; ICU fails to make some formats for others.
bool hasPlainName(std::string_view identifier) {
    constexpr std::size_t kLongestPart = 8;
    std::size_t length = 0;
    for (const char unit : identifier.substr(0, identifier.find_first_of("@."))) {
        const char lower = static_cast<char>(unit | 0x20);
        const bool isPlain = (lower >= 'a' && lower <= 'z') || (unit >= '0' && unit <= '9');
        const bool isSeparator = unit == '_' || unit == '-';
        length = isSeparator ? 0 : length + 1;
        if (length > kLongestPart || !(isPlain || isSeparator)) return false;
    }
    return true;
}

/// ICU makes no format with digits that it does not know.
void dropUnknownDigits(icu::Locale& locale) {
    const std::string_view name = locale.getName();
    if (name.find("numbers=") == std::string_view::npos) return;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberingSystem> digits(
        icu::NumberingSystem::createInstance(locale, status));
    if (U_SUCCESS(status) != 0) return;
    status = U_ZERO_ERROR;
    locale.setKeywordValue("numbers", nullptr, status);
}

/// An unknown language would get the customs of the process's locale.
icu::Locale knownLocale(const std::string& identifier) {
    if (!hasPlainName(identifier)) return icu::Locale::getRoot();
    icu::Locale locale = icu::Locale::createCanonical(identifier.c_str());
    dropUnknownDigits(locale);
    return *locale.getISO3Language() == '\0' ? icu::Locale::getRoot() : locale;
}

std::unordered_set<std::string> readCalendars() {
    std::unordered_set<std::string> calendars;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> names(icu::Calendar::getKeywordValuesForLocale(
        "calendar", icu::Locale::getRoot(), /*commonlyUsed=*/0, status));
    while (U_SUCCESS(status) != 0) {
        const char* name = names->next(nullptr, status);
        if (name == nullptr) break;
        calendars.insert(name);
    }
    return calendars;
}

const std::unordered_set<std::string>& knownCalendars() {
    static const auto& calendars = *new std::unordered_set<std::string>(readCalendars());
    return calendars;
}

}  // namespace

icu::Locale icuLocale(StringView identifier, StringView calendar) {
    icu::Locale locale = knownLocale(asciiIdentifier(identifier));
    if (calendar.empty()) return locale;
    UErrorCode status = U_ZERO_ERROR;
    locale.setKeywordValue("calendar", asciiIdentifier(calendar).c_str(), status);
    return locale;
}

bool namesLocale(StringView identifier) { return *icuLocale(identifier).getISO3Language() != '\0'; }

bool namesCalendar(StringView identifier) {
    return knownCalendars().contains(asciiIdentifier(identifier));
}

String calendarOfLocale(StringView identifier) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), icuLocale(identifier), status));
    return U_FAILURE(status) != 0 ? String(u"gregorian") : fromUTF8(calendar->getType());
}

}  // namespace QZCore
