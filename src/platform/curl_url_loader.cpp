#include "QZCore/platform/url_loading.h"

#include <chrono>
#include <ctime>

#include "platform/answer_keeping.h"
#include "platform/file_url.h"
#include "platform/url_cache.h"

namespace QZCore {
namespace {

constexpr int kOk = 200;
constexpr int kPartialContent = 206;
constexpr int kMultipleChoices = 300;
constexpr int kNotModified = 304;

/// The seconds that are left of a fetch's time.
class TimeLimit {
public:
    explicit TimeLimit(double seconds) {
        constexpr double kHour = 3600;
        limit_ = Seconds(seconds > 0 && seconds < kHour ? seconds : kHour);
    }
    [[nodiscard]] double left() const {
        const Seconds spent = Clock::now() - start_;
        return (limit_ - spent).count();
    }

private:
    using Clock = std::chrono::steady_clock;
    using Seconds = std::chrono::duration<double>;

    const Clock::time_point start_ = Clock::now();
    Seconds limit_{};
};

/// One fetch over HTTP under way.
struct Fetch {
    std::string url;  // without its fragment, which servers never see
    TimeLimit time;
    std::size_t byteLimit = 0;
};

/// What came back, and when.
struct Exchange {
    std::optional<HttpAnswer> answer;
    ExchangeTimes times;
};

Exchange ask(const Fetch& fetch, std::vector<std::string> headers = {}) {
    Exchange exchange;
    exchange.times.requested = std::time(nullptr);
    exchange.answer = httpGet({.url = fetch.url,
                               .headers = std::move(headers),
                               .timeout = fetch.time.left(),
                               .byteLimit = fetch.byteLimit});
    exchange.times.received = std::time(nullptr);
    return exchange;
}

bool isNotModified(const Exchange& exchange) {
    return exchange.answer && exchange.answer->status == kNotModified;
}

/// Asks, on the condition that the kept answer is no longer good. Conditions
/// travel along redirects; "not modified" said by another place than the one
/// that the kept answer came from means nothing.
Exchange askWhetherChanged(const Fetch& fetch, const CachedResponse& kept) {
    Exchange exchange = ask(fetch, conditionsFor(kept));
    const bool misled = isNotModified(exchange) && !exchange.answer->redirects.empty();
    return misled ? ask(fetch) : exchange;
}

bool isWholeAnswer(int status) {
    return status >= kOk && status < kMultipleChoices && status != kPartialContent;
}

std::optional<Data> within(const Fetch& fetch, const Data& body) {
    return body.size() <= fetch.byteLimit ? std::optional(body) : std::nullopt;
}

bool hasPrefix(const URL& url, StringView prefix) {
    return equalsIgnoringAsciiCase(StringView(url.absoluteString).substr(0, prefix.size()), prefix);
}

std::string withoutFragment(const URL& url) {
    const StringView text = url.absoluteString;
    return toUTF8(text.substr(0, text.find(u'#')));
}

class CurlUrlLoader final : public UrlLoader {
public:
    explicit CurlUrlLoader(const UrlCacheSettings& settings) : cache_(settings) {}

    std::optional<Data> load(const UrlRequest& request) override {
        if (!URL::fromString(request.url.absoluteString)) return std::nullopt;
        const std::string url = withoutFragment(request.url);
        if (hasPrefix(request.url, u"file:")) return readFileUrl(url, request.byteLimit);
        if (!hasPrefix(request.url, u"http://") && !hasPrefix(request.url, u"https://")) {
            return std::nullopt;
        }
        const Fetch fetch{url, TimeLimit(request.timeout), request.byteLimit};
        return loadWithPolicy(fetch, request.cachePolicy);
    }

    bool hasCachedResponse(const URL& url) override {
        return cache_.find(withoutFragment(url)) != nullptr;
    }

    UrlCacheUsage cacheUsage() override { return cache_.usage(); }

private:
    std::optional<Data> loadWithPolicy(const Fetch& fetch, UrlCachePolicy policy) {
        switch (policy) {
            case UrlCachePolicy::ReloadIgnoringLocalCache:
                return take(fetch, ask(fetch));
            case UrlCachePolicy::ReturnCacheElseLoad:
            case UrlCachePolicy::ReturnCacheDontLoad:
                if (const auto kept = cache_.find(fetch.url)) return within(fetch, kept->body);
                if (policy == UrlCachePolicy::ReturnCacheDontLoad) return std::nullopt;
                return take(fetch, ask(fetch));
            case UrlCachePolicy::UseProtocolCachePolicy:
                break;
        }
        return loadAsProtocolAllows(fetch);
    }

    std::optional<Data> loadAsProtocolAllows(const Fetch& fetch) {
        const CachedResponsePointer kept = cache_.find(fetch.url);
        if (kept == nullptr) return take(fetch, ask(fetch));
        if (isFresh(*kept, std::time(nullptr))) return within(fetch, kept->body);
        Exchange exchange = askWhetherChanged(fetch, *kept);
        if (!isNotModified(exchange)) return take(fetch, std::move(exchange));
        cache_.store(fetch.url, refreshed(*kept, exchange.answer->fields, exchange.times));
        return within(fetch, kept->body);
    }

    /// The body of an answer, of which the cache keeps what it may.
    std::optional<Data> take(const Fetch& fetch, Exchange exchange) {
        std::optional<HttpAnswer>& answer = exchange.answer;
        if (!answer || !isWholeAnswer(answer->status)) return std::nullopt;
        if (mayBeKept(*answer)) {
            cache_.store(fetch.url, responseToKeep(*answer, exchange.times));
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
