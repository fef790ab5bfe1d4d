// One HTTP request and its answer, whatever carries it over the network.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "QZCore/foundation/data.h"
#include "platform/http_fields.h"

namespace QZCore {

/// What to ask for, and how long and how much to wait for.
struct HttpRequest {
    /// An http or https URL without a fragment.
    std::string url;
    /// Whole header lines, as "If-None-Match: \"1\"".
    std::vector<std::string> headers{};
    /// Seconds for everything, redirects included.
    double timeout = 60;
    /// The most bytes of a body.
    std::size_t byteLimit = 0;
};

/// The whole answer at the end of all redirects.
struct HttpAnswer {
    int status = 0;
    HttpFields fields{};
    Data body{};
    /// The fields of each redirect on the way, in order.
    std::vector<HttpFields> redirects{};
};

/// Asks and waits for the answer. Nothing when it did not come whole within
/// the limits, or says 400 and above. Redirects are followed ten times, to
/// http and https only.
[[nodiscard]] std::optional<HttpAnswer> httpGet(const HttpRequest& request);

}  // namespace QZCore
