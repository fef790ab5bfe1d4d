#include "platform/cache_control.h"

#include "platform/cached_response.h"
#include "platform/http_date.h"
#include "platform/http_freshness.h"
#include "support/printing.h"

using namespace QZCore;
using namespace std::string_view_literals;

TEST_CASE("an HTTP date is read in each of its three forms and no other") {
    constexpr std::int64_t kExample = 784111777;
    struct Row {
        const char* text;
        std::optional<std::int64_t> seconds;
    };
    const Row rows[] = {
        {"Sun, 06 Nov 1994 08:49:37 GMT", kExample},
        {"Sunday, 06-Nov-94 08:49:37 GMT", kExample},
        {"Sun Nov  6 08:49:37 1994", kExample},
        {"Thu, 01 Jan 1970 00:00:00 GMT", 0},
        {"Thursday, 01-Jan-70 00:00:00 GMT", 0},
        {"Wednesday, 31-Dec-69 00:00:00 GMT", 3155673600},
        {"Fri, 31 Dec 9999 23:59:59 GMT", 253402300799},
        {"Thu, 29 Feb 2024 00:00:60 GMT", 1709164860},
        {"Wed, 29 Feb 2023 00:00:00 GMT", {}},
        {"Sun, 06 Nov 1994 24:00:00 GMT", {}},
        {"Sun, 06 Nov 1994 08:49:37 CET", {}},
        {"Sun, 06 nov 1994 08:49:37 GMT", {}},
        {"Sun, 6x Nov 1994 08:49:37 GMT", {}},
        {"Sun, 06 Nov 1994 8:49 GMT", {}},
        {"Sun Nov 6 08:49:37 99999999999999999999", {}},
        {"0", {}},
        {"-1", {}},
        {"", {}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.text);
        CHECK(httpDate(row.text) == row.seconds);
    }
}

TEST_CASE("Cache-Control is read as a list whose texts may hold commas") {
    struct Row {
        const char* field;
        bool noStore;
        bool noCache;
        std::optional<std::int64_t> maxAge;
    };
    const Row rows[] = {
        {"", false, false, {}},
        {"no-store", true, false, {}},
        {" Public ,\tMAX-AGE = \"60\" ,, ", false, false, 60},
        {"max-age=60, max-age=30", false, false, 30},
        {"s-maxage=5, private", false, false, {}},
        {"no-cache=\"Set-Cookie, no-store\", max-age=7", false, true, 7},
        {"note=\"a\\\", no-store\", max-age=8", false, false, 8},
        {"note=\"never closed, no-store", false, false, {}},
        {"max-age=soon", false, false, 0},
        {"max-age=-1", false, false, 0},
        {"max-age", false, false, 0},
        {"max-age=99999999999999999999999", false, false, std::int64_t{1} << 31},
    };
    for (const Row& row : rows) {
        CAPTURE(row.field);
        const CacheControl control = readCacheControl(row.field);
        CHECK(control.noStore == row.noStore);
        CHECK(control.noCache == row.noCache);
        CHECK(control.maxAge == row.maxAge);
    }
}

TEST_CASE("an answer is fresh for as long as its fields say, less the age it came with") {
    // It was asked for at 08:49:37 on 6 November 1994 and came ten seconds later.
    constexpr ExchangeTimes kTimes{784111777, 784111787};
    struct Row {
        const char* why;
        HttpFields fields;
        std::int64_t seconds;  // counted from the request
    };
    const std::string date = "Sun, 06 Nov 1994 08:49:37 GMT";
    const std::string hourLater = "Sun, 06 Nov 1994 09:49:37 GMT";
    const std::string tenHoursBefore = "Sat, 05 Nov 1994 22:49:37 GMT";
    const std::string tenYearsBefore = "Tue, 06 Nov 1984 08:49:37 GMT";
    const Row rows[] = {
        {"nothing is said", {.date = date}, 0},
        {"the whole way counts as age", {.cacheControl = "max-age=60"}, 60},
        {"age on the way", {.cacheControl = "max-age=60", .age = "20"}, 40},
        {"the date tells a greater age",
         {.cacheControl = "max-age=60", .date = tenHoursBefore},
         60 - 36000},
        {"an expiry date", {.expires = hourLater, .date = date}, 3600},
        {"seconds come before dates",
         {.cacheControl = "max-age=60", .expires = hourLater, .date = date},
         60},
        {"an unreadable expiry is past", {.expires = "0", .date = date}, 0},
        {"an expiry before the date", {.expires = tenHoursBefore, .date = date}, -36000},
        {"a tenth of the time since a change",
         {.date = date, .lastModified = tenHoursBefore},
         3600},
        {"but a week at most", {.date = date, .lastModified = tenYearsBefore}, 7 * 86400},
        {"a change in the future", {.date = date, .lastModified = hourLater}, 0},
        {"never without asking", {.cacheControl = "no-cache, max-age=60"}, 0},
        {"depends on everything", {.cacheControl = "max-age=60", .vary = "*"}, 0},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(freshUntil(row.fields, kTimes) - kTimes.requested == row.seconds);
    }
    CHECK_FALSE(isFresh({.received = 100, .freshUntil = 200}, 99));
    CHECK(isFresh({.received = 100, .freshUntil = 200}, 199));
    CHECK_FALSE(isFresh({.received = 100, .freshUntil = 200}, 200));
}

TEST_CASE("a cache file is read back whole or not at all") {
    const CachedResponse response{.received = -5,
                                  .freshUntil = 1700000000,
                                  .fields = {.cacheControl = "max-age=5", .entityTag = "\"a\\b\""},
                                  .body = {0, '\n', '\n', 255}};
    const Data file = cacheFileOf("http://a/b?c", response);
    CHECK(textOf(file) ==
          "QZCore-Cache: 1\nURL: http://a/b?c\nReceived: -5\nFresh-Until: 1700000000\n"
          "Cache-Control: max-age=5\nExpires: \nDate: \nAge: \nLast-Modified: \n"
          "ETag: \"a\\b\"\nVary: \nLength: 4\n\n\0\n\n\xFF"sv);
    CHECK(readCacheFile("http://a/b?c", file) == response);
    CHECK_FALSE(readCacheFile("http://a/b", file));
    for (std::size_t length = 0; length < file.size(); ++length) {
        CAPTURE(length);
        CHECK_FALSE(readCacheFile("http://a/b?c", DataView(file).first(length)));
    }
    Data smuggling = file;
    const std::size_t tag = textOf(file).find("a\\b");
    smuggling[tag] = '\r';
    CHECK_FALSE(readCacheFile("http://a/b?c", smuggling));
}
