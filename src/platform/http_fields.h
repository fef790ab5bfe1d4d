// The fields of an HTTP answer that decide how long it may be reused.
#pragma once

#include <array>
#include <string>

namespace QZCore {

/// The values as they came; a field that came several times is joined by
/// ", ", one that did not come is empty.
struct HttpFields {
    std::string cacheControl{};
    std::string expires{};
    std::string date{};
    std::string age{};
    std::string lastModified{};
    std::string entityTag{};
    std::string vary{};

    friend bool operator==(const HttpFields&, const HttpFields&) = default;
};

/// A field's name and where its value is kept.
struct HttpFieldRow {
    const char* name;
    std::string HttpFields::*value;
};

/// The names are part of the stored cache files.
inline constexpr std::array kHttpFields{
    HttpFieldRow{"Cache-Control", &HttpFields::cacheControl},
    HttpFieldRow{"Expires", &HttpFields::expires},
    HttpFieldRow{"Date", &HttpFields::date},
    HttpFieldRow{"Age", &HttpFields::age},
    HttpFieldRow{"Last-Modified", &HttpFields::lastModified},
    HttpFieldRow{"ETag", &HttpFields::entityTag},
    HttpFieldRow{"Vary", &HttpFields::vary},
};

}  // namespace QZCore
