#include "platform/answer_keeping.h"

#include <algorithm>

namespace QZCore {

bool mayBeKept(const HttpAnswer& answer) {
    constexpr int kOk = 200;
    return answer.status == kOk && mayBeStored(answer.fields) &&
           std::ranges::all_of(answer.redirects, mayBeStored);
}

CachedResponse responseToKeep(const HttpAnswer& answer, ExchangeTimes times) {
    CachedResponse kept{.received = times.received,
                        .freshUntil = freshUntil(answer.fields, times),
                        .fields = answer.fields,
                        .body = answer.body};
    for (HttpFields redirect : answer.redirects) {
        redirect.lastModified.clear();
        kept.freshUntil = std::min(kept.freshUntil, freshUntil(redirect, times));
        kept.fields.lastModified.clear();
        kept.fields.entityTag.clear();
    }
    return kept;
}

std::vector<std::string> conditionsFor(const CachedResponse& kept) {
    const HttpFields& fields = kept.fields;
    std::vector<std::string> lines;
    if (!fields.entityTag.empty()) lines.push_back("If-None-Match: " + fields.entityTag);
    if (!fields.lastModified.empty()) lines.push_back("If-Modified-Since: " + fields.lastModified);
    return lines;
}

CachedResponse refreshed(CachedResponse kept, const HttpFields& news, ExchangeTimes times) {
    for (const HttpFieldRow& row : kHttpFields) {
        if (!(news.*row.value).empty()) kept.fields.*row.value = news.*row.value;
    }
    kept.received = times.received;
    kept.freshUntil = freshUntil(kept.fields, times);
    return kept;
}

}  // namespace QZCore
