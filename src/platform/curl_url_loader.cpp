#include <chrono>
#include <ctime>

#include "QZCore/platform/url_loading.h"
#include "platform/file_url.h"
#include "platform/http_freshness.h"
#include "platform/http_get.h"
#include "platform/url_cache.h"

namespace QZCore {
namespace {

constexpr int kOk = 200;
constexpr int kPartialContent = 206;
constexpr int kMultipleChoices = 300;
constexpr int kNotModified = 304;

std::int64_t now() { return std::time(nullptr); }

/// The seconds that are left of a fetch's time.
class TimeLimit {
public:
    explicit TimeLimit(double seconds) {
        constexpr double kHour = 3600;
        if (seconds > 0 && seconds < kHour) limit_ = Seconds(seconds);
    }
    [[nodiscard]] double left() const { return (limit_ - (Clock::now() - start_)).count(); }

private:
    using Clock = std::chrono::steady_clock;
    using Seconds = std::chrono::duration<double>;

    Clock::time_point start_ = Clock::now();
    Seconds limit_ = std::chrono::hours(1);
};

/// One fetch over HTTP under way.
struct Fetch {
    std::string url;  // without its fragment, which servers never see
    TimeLimit time;
    std::size_t byteLimit = 0;
};

std::optional<HttpAnswer> ask(const Fetch& fetch, std::vector<std::string> headers = {}) {
    return httpGet({.url = fetch.url,
                    .headers = std::move(headers),
                    .timeout = fetch.time.left(),
                    .byteLimit = fetch.byteLimit});
}

/// The lines that ask the server whether the kept answer is still good.
std::vector<std::string> conditionsFor(const HttpFields& kept) {
    std::vector<std::string> lines;
    if (!kept.entityTag.empty()) lines.push_back("If-None-Match: " + kept.entityTag);
    if (!kept.lastModified.empty()) lines.push_back("If-Modified-Since: " + kept.lastModified);
    return lines;
}

/// Asks, on the condition that the kept answer is no longer good. Conditions
/// travel along redirects; "not modified" said by another place than the one
/// that the kept answer came from means nothing.
std::optional<HttpAnswer> askWhetherChanged(const Fetch& fetch, const HttpFields& kept) {
    std::optional<HttpAnswer> answer = ask(fetch, conditionsFor(kept));
    const bool misled = answer && answer->status == kNotModified && !answer->redirects.empty();
    return misled ? ask(fetch) : answer;
}

bool isWholeAnswer(int status) {
    return status >= kOk && status < kMultipleChoices && status != kPartialContent;
}

bool mayBeStored(const HttpAnswer& answer) {
    if (answer.status != kOk) return false;
    for (const HttpFields& hop : answer.redirects) {
        if (!mayBeStored(hop)) return false;
    }
    return mayBeStored(answer.fields);
}

/// What to keep of an answer. Behind redirects it is fresh only as long as
/// every one of them says of itself, and has no condition to ask with, since
/// the redirects may lead elsewhere the next time.
CachedResponse responseToKeep(const HttpAnswer& answer, ExchangeTimes times) {
    CachedResponse kept{.received = times.received,
                        .freshUntil = freshUntil(answer.fields, times),
                        .fields = answer.fields,
                        .body = answer.body};
    for (HttpFields hop : answer.redirects) {
        hop.lastModified.clear();
        kept.freshUntil = std::min(kept.freshUntil, freshUntil(hop, times));
        kept.fields.lastModified.clear();
        kept.fields.entityTag.clear();
    }
    return kept;
}

/// The kept answer, brought up to date by the fields that came with the news
/// that it is still good.
CachedResponse refreshed(CachedResponse kept, const HttpFields& news, ExchangeTimes times) {
    for (const HttpFieldRow& row : kHttpFields) {
        if (!(news.*row.value).empty()) kept.fields.*row.value = news.*row.value;
    }
    kept.received = times.received;
    kept.freshUntil = freshUntil(kept.fields, times);
    return kept;
}

bool mayUse(const CachedResponse& kept, UrlCachePolicy policy) {
    switch (policy) {
        case UrlCachePolicy::ReloadIgnoringLocalCache:
            return false;
        case UrlCachePolicy::ReturnCacheElseLoad:
        case UrlCachePolicy::ReturnCacheDontLoad:
            return true;
        case UrlCachePolicy::UseProtocolCachePolicy:
            break;
    }
    return isFresh(kept, now());
}

class CurlUrlLoader final : public UrlLoader {
public:
    explicit CurlUrlLoader(const UrlCacheSettings& settings) : cache_(settings) {}

    std::optional<Data> load(const UrlRequest& request) override {
        if (!URL::fromString(request.url.absoluteString)) return std::nullopt;
        const StringView scheme = schemeOf(request.url.absoluteString);
        if (equalsIgnoringAsciiCase(scheme, u"file")) {
            return readFileUrl(toUTF8(request.url.absoluteString), request.byteLimit);
        }
        if (!equalsIgnoringAsciiCase(scheme, u"http") &&
            !equalsIgnoringAsciiCase(scheme, u"https")) {
            return std::nullopt;
        }
        const Fetch fetch{keyOf(request.url), TimeLimit(request.timeout), request.byteLimit};
        return loadOverHttp(fetch, request.cachePolicy);
    }

    bool hasCachedResponse(const URL& url) override { return cache_.find(keyOf(url)) != nullptr; }

    UrlCacheUsage cacheUsage() override { return cache_.usage(); }

private:
    static StringView schemeOf(StringView url) { return url.substr(0, url.find(u':')); }

    static std::string keyOf(const URL& url) {
        const StringView text = url.absoluteString;
        return toUTF8(text.substr(0, text.find(u'#')));
    }

    std::optional<Data> loadOverHttp(const Fetch& fetch, UrlCachePolicy policy) {
        const CachedResponsePointer kept = cache_.find(fetch.url);
        if (kept != nullptr && mayUse(*kept, policy)) return within(fetch, kept->body);
        if (policy == UrlCachePolicy::ReturnCacheDontLoad) return std::nullopt;
        if (kept == nullptr || policy == UrlCachePolicy::ReloadIgnoringLocalCache) {
            return loadAnew(fetch);
        }
        return loadIfChanged(fetch, *kept);
    }

    static std::optional<Data> within(const Fetch& fetch, const Data& body) {
        return body.size() <= fetch.byteLimit ? std::optional(body) : std::nullopt;
    }

    std::optional<Data> loadAnew(const Fetch& fetch) {
        ExchangeTimes times{.requested = now()};
        std::optional<HttpAnswer> answer = ask(fetch);
        times.received = now();
        return take(fetch, std::move(answer), times);
    }

    std::optional<Data> loadIfChanged(const Fetch& fetch, const CachedResponse& kept) {
        ExchangeTimes times{.requested = now()};
        std::optional<HttpAnswer> answer = askWhetherChanged(fetch, kept.fields);
        times.received = now();
        if (!answer || answer->status != kNotModified) {
            return take(fetch, std::move(answer), times);
        }
        cache_.store(fetch.url, refreshed(kept, answer->fields, times));
        return within(fetch, kept.body);
    }

    /// The body of an answer, of which the cache takes what it may.
    std::optional<Data> take(const Fetch& fetch, std::optional<HttpAnswer> answer,
                             ExchangeTimes times) {
        if (!answer || !isWholeAnswer(answer->status)) return std::nullopt;
        if (mayBeStored(*answer)) {
            cache_.store(fetch.url, responseToKeep(*answer, times));
        } else {
            cache_.remove(fetch.url);
        }
        return std::move(answer->body);
    }

    UrlCache cache_;
};

}  // namespace

std::shared_ptr<UrlLoader> makeNetworkUrlLoader(const UrlCacheSettings& settings) {
    return std::make_shared<CurlUrlLoader>(settings);
}

}  // namespace QZCore
