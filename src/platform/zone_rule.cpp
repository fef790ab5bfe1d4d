#include "platform/zone_rule.h"

#include <algorithm>
#include <array>

#include "foundation/civil_date.h"

namespace QZCore {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

}  // namespace

class ZoneRuleReader {
public:
    explicit ZoneRuleReader(std::string_view text) : text_(text) {}

    std::optional<ZoneRule> read() {
        ZoneRule rule;
        if (!readTime(rule.standard_)) return std::nullopt;
        if (text_.empty()) return rule;
        // Without an offset of its own, daylight saving time is an hour ahead.
        ZoneRule::Time daylight{{}, rule.standard_.offset + 3600};
        if (!readName(daylight.abbreviation)) return std::nullopt;
        if (!text_.empty() && text_[0] != ',' && !readOffset(daylight.offset)) return std::nullopt;
        rule.daylight_ = daylight;
        if (text_.empty()) text_ = ",M3.2.0,M11.1.0";  // what POSIX systems assume
        if (!readDay(rule.start_) || !readDay(rule.end_) || !text_.empty()) return std::nullopt;
        return rule;
    }

private:
    bool skip(char c) {
        if (text_.empty() || text_[0] != c) return false;
        text_.remove_prefix(1);
        return true;
    }

    bool readTime(ZoneRule::Time& time) {
        return readName(time.abbreviation) && readOffset(time.offset);
    }

    /// Letters, or anything in angle brackets.
    bool readName(std::string& name) {
        std::size_t length = 0;
        if (skip('<')) {
            length = text_.find('>');
            if (length == std::string_view::npos) return false;
            name = text_.substr(0, length);
            text_.remove_prefix(length + 1);
        } else {
            while (length < text_.size() && isLetter(text_[length])) ++length;
            name = text_.substr(0, length);
            text_.remove_prefix(length);
        }
        return name.size() >= 3;
    }

    bool readNumber(int& number, int least, int most) {
        if (text_.empty() || !isDigit(text_[0])) return false;
        number = 0;
        while (!text_.empty() && isDigit(text_[0])) {
            number = number * 10 + (text_[0] - '0');
            if (number > most) return false;
            text_.remove_prefix(1);
        }
        return number >= least;
    }

    /// Hours, and maybe minutes and seconds, with a sign.
    bool readClock(std::int32_t& seconds, int mostHours) {
        const bool isNegative = skip('-');
        if (!isNegative) skip('+');
        int parts[3] = {0, 0, 0};
        if (!readNumber(parts[0], 0, mostHours)) return false;
        for (int i = 1; i < 3 && skip(':'); ++i) {
            if (!readNumber(parts[i], 0, 59)) return false;
        }
        seconds = parts[0] * 3600 + parts[1] * 60 + parts[2];
        if (isNegative) seconds = -seconds;
        return true;
    }

    /// POSIX counts offsets towards the west.
    bool readOffset(std::int32_t& offset) {
        if (!readClock(offset, 24)) return false;
        offset = -offset;
        return true;
    }

    bool readDay(ZoneRule::Day& day) {
        if (!skip(',')) return false;
        if (skip('M')) {
            day.kind = ZoneRule::Day::Kind::Weekday;
            const bool isRead = readNumber(day.month, 1, 12) && skip('.') &&
                                readNumber(day.week, 1, 5) && skip('.') &&
                                readNumber(day.weekday, 0, 6);
            if (!isRead) return false;
        } else if (skip('J')) {
            day.kind = ZoneRule::Day::Kind::Julian;
            if (!readNumber(day.number, 1, 365)) return false;
        } else {
            day.kind = ZoneRule::Day::Kind::Counted;
            if (!readNumber(day.number, 0, 365)) return false;
        }
        return !skip('/') || readClock(day.time, 167);
    }

    std::string_view text_;
};

std::optional<ZoneRule> ZoneRule::fromString(std::string_view text) {
    return ZoneRuleReader(text).read();
}

/// The day since 1970 on which the rule falls.
std::int64_t ZoneRule::Day::dayIn(std::int64_t year) const {
    const std::int64_t newYear = daysFromCivil({year, 1, 1});
    switch (kind) {
        case Kind::Julian:
            return newYear + number - (isLeapYear(year) && number >= 60 ? 0 : 1);
        case Kind::Counted:
            return newYear + number;
        case Kind::Weekday:
            break;
    }
    const std::int64_t first = daysFromCivil({year, month, 1});
    int day = (weekday + 8 - weekdayOfDay(first)) % 7 + (week - 1) * 7;
    if (day >= daysInMonth(year, month)) day -= 7;
    return first + day;
}

std::int64_t ZoneRule::startIn(std::int64_t year) const {
    return start_.dayIn(year) * kSecondsPerDay + start_.time - standard_.offset;
}

std::int64_t ZoneRule::endIn(std::int64_t year) const {
    return end_.dayIn(year) * kSecondsPerDay + end_.time - daylight_->offset;
}

ZonePeriod ZoneRule::period(bool isDaylightSaving, std::int64_t begin, std::int64_t end) const {
    const Time& time = isDaylightSaving ? *daylight_ : standard_;
    return {begin, end, time.offset, isDaylightSaving, time.abbreviation};
}

ZonePeriod ZoneRule::periodAt(std::int64_t secondsSince1970) const {
    if (!daylight_) return period(false, INT64_MIN, INT64_MAX);
    const std::int64_t local = secondsSince1970 + standard_.offset;
    const std::int64_t year = civilFromDays(floorDivided(local, kSecondsPerDay)).year;
    // A change may lie in the year before or after its own. Of two at once the
    // second holds: daylight saving time that never ends begins where it ended.
    struct Change {
        std::int64_t at = 0;
        bool toDaylight = false;
    };
    std::array<Change, 10> changes;
    std::size_t count = 0;
    for (std::int64_t each = year - 2; each <= year + 2; ++each) {
        const Change start{startIn(each), true};
        const Change end{endIn(each), false};
        const bool startsFirst = start.at < end.at;
        changes[count++] = startsFirst ? start : end;
        changes[count++] = startsFirst ? end : start;
    }
    std::ranges::stable_sort(changes, {}, &Change::at);
    const auto next = std::ranges::upper_bound(changes, secondsSince1970, {}, &Change::at);
    return period((next - 1)->toDaylight, (next - 1)->at, next->at);
}

}  // namespace QZCore
