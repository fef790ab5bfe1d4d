#include "platform/http_get.h"

#include <curl/curl.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>

namespace QZCore {
namespace {

constexpr long kMaximalRedirects = 10;

/// More than any server needs; what comes beyond it is an attack on memory.
constexpr std::size_t kMaximalHeaderBytes = std::size_t{256} << 10;

struct HandleDeleter {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
using Handle = std::unique_ptr<CURL, HandleDeleter>;

struct ListDeleter {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using HeaderList = std::unique_ptr<curl_slist, ListDeleter>;

/// What has been received so far.
struct Received {
    std::size_t byteLimit = 0;
    std::size_t headerBytes = 0;
    Data body{};
};

/// Takes a piece of the body. Any answer but `size` ends the transfer.
std::size_t receiveBody(const char* bytes, std::size_t /*one*/, std::size_t size,
                        void* target) noexcept {
    auto& received = *static_cast<Received*>(target);
    if (size > received.byteLimit - received.body.size()) return 0;
    received.body.insert(received.body.end(), bytes, bytes + size);
    return size;
}

/// Counts a header line, which the handle itself keeps.
std::size_t receiveHeader(const char* /*line*/, std::size_t /*one*/, std::size_t size,
                          void* target) noexcept {
    auto& received = *static_cast<Received*>(target);
    if (size > kMaximalHeaderBytes - received.headerBytes) return 0;
    received.headerBytes += size;
    return size;
}

bool isNetworkReady() {
    static const bool kReady = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    return kReady;
}

template <class... Argument>
bool set(const Handle& handle, CURLoption option, Argument... argument) {
    return curl_easy_setopt(handle.get(), option, argument...) == CURLE_OK;
}

bool setLimits(const Handle& handle, const HttpRequest& request) {
    const double milliseconds = std::clamp(std::ceil(request.timeout * 1000), 1.0, 2e9);
    const auto bytes = std::min<std::uintmax_t>(request.byteLimit, INT64_MAX);
    return set(handle, CURLOPT_PROTOCOLS_STR, "http,https") &&
           set(handle, CURLOPT_REDIR_PROTOCOLS_STR, "http,https") &&
           set(handle, CURLOPT_FOLLOWLOCATION, 1L) &&
           set(handle, CURLOPT_MAXREDIRS, kMaximalRedirects) &&
           set(handle, CURLOPT_TIMEOUT_MS, static_cast<long>(milliseconds)) &&
           set(handle, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(bytes)) &&
           set(handle, CURLOPT_FAILONERROR, 1L);
}

/// Keeps the handle from touching what belongs to the whole process: signals,
/// and a name look-up that outlives its time-out, which would otherwise be
/// waited for.
bool setManners(const Handle& handle) {
    return set(handle, CURLOPT_NOSIGNAL, 1L) && set(handle, CURLOPT_QUICK_EXIT, 1L) &&
           set(handle, CURLOPT_USERAGENT, "QZCore/" QZCORE_VERSION);
}

bool setReceivers(const Handle& handle, Received& received) {
    return set(handle, CURLOPT_WRITEFUNCTION, &receiveBody) &&
           set(handle, CURLOPT_WRITEDATA, static_cast<void*>(&received)) &&
           set(handle, CURLOPT_HEADERFUNCTION, &receiveHeader) &&
           set(handle, CURLOPT_HEADERDATA, static_cast<void*>(&received));
}

HeaderList headerListOf(const HttpRequest& request) {
    HeaderList list;
    for (const std::string& line : request.headers) {
        curl_slist* longer = curl_slist_append(list.get(), line.c_str());
        if (longer == nullptr) break;
        static_cast<void>(list.release());
        list.reset(longer);
    }
    return list;
}

/// All values of the field `name` in the answer to request number `hop`.
std::string fieldOf(const Handle& handle, const char* name, int hop) {
    std::string joined;
    curl_header* header = nullptr;
    for (std::size_t i = 0;
         curl_easy_header(handle.get(), name, i, CURLH_HEADER, hop, &header) == CURLHE_OK; ++i) {
        if (i > 0) joined += ", ";
        joined += header->value;
    }
    return joined;
}

HttpFields fieldsOf(const Handle& handle, int hop) {
    HttpFields fields;
    for (const HttpFieldRow& row : kHttpFields) {
        fields.*row.value = fieldOf(handle, row.name, hop);
    }
    return fields;
}

HttpAnswer answerOf(const Handle& handle, Data body) {
    long status = 0;
    long redirects = 0;
    curl_easy_getinfo(handle.get(), CURLINFO_RESPONSE_CODE, &status);
    curl_easy_getinfo(handle.get(), CURLINFO_REDIRECT_COUNT, &redirects);
    HttpAnswer answer{.status = static_cast<int>(status), .body = std::move(body)};
    for (int hop = 0; hop < redirects; ++hop) answer.redirects.push_back(fieldsOf(handle, hop));
    answer.fields = fieldsOf(handle, -1);
    return answer;
}

}  // namespace

std::optional<HttpAnswer> httpGet(const HttpRequest& request) {
    if (!isNetworkReady()) return std::nullopt;
    const Handle handle(curl_easy_init());
    const HeaderList headers = headerListOf(request);
    Received received{.byteLimit = request.byteLimit};
    const bool accepted = handle != nullptr && set(handle, CURLOPT_URL, request.url.c_str()) &&
                          set(handle, CURLOPT_HTTPHEADER, headers.get()) &&
                          setLimits(handle, request) && setManners(handle) &&
                          setReceivers(handle, received);
    if (!accepted || curl_easy_perform(handle.get()) != CURLE_OK) return std::nullopt;
    return answerOf(handle, std::move(received.body));
}

}  // namespace QZCore
