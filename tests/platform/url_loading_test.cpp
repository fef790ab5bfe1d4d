#include <doctest/doctest.h>
#include <sys/stat.h>

#include <chrono>
#include <fstream>

#include "QZCore/platform/url_loading.h"
#include "support/loopback_server.h"
#include "support/printing.h"
#include "support/temporary_folder.h"

using namespace QZCore;
using namespace QZCore::testing;

namespace {

namespace fs = std::filesystem;

bool isBuiltWithout() { return makeNetworkUrlLoader() == nullptr; }

/// What a fetch gave, as text; "(nothing)" for a failure.
std::string textOf(const std::optional<Data>& data) {
    return data ? std::string(QZCore::textOf(*data)) : "(nothing)";
}

std::string loaded(const UrlRequest& request) {
    return textOf(makeNetworkUrlLoader()->load(request));
}

/// Sends `bytes` and cares for nothing else.
LoopbackServer::Handler saying(const std::string& bytes) {
    return [bytes](const std::string&, const std::string&, const Connection& connection) {
        static_cast<void>(connection.send(bytes));
    };
}

std::string redirectTo(std::string_view place, std::string_view fields = "") {
    return httpAnswer("302 Found",
                      std::string("Location: ").append(place) + "\r\n" + std::string(fields), "");
}

void writeFile(const fs::path& path, std::string_view text) { std::ofstream(path) << text; }

}  // namespace

TEST_CASE("a fetch gives the body, and the server never sees the fragment") {
    if (isBuiltWithout()) return;
    const LoopbackServer server(saying(httpAnswer("200 OK", "", "picture")));
    CHECK(loaded({.url = server.url("/a?b=c#d")}) == "picture");
    REQUIRE(server.requests().size() == 1);
    CHECK(server.requests()[0].starts_with("GET /a?b=c HTTP/1.1\r\n"));
}

TEST_CASE("a body is accepted up to the byte limit, whether its length is told or not") {
    if (isBuiltWithout()) return;
    for (const std::string& answer :
         {httpAnswer("200 OK", "", "12345678"), std::string("HTTP/1.0 200 OK\r\n\r\n12345678")}) {
        const LoopbackServer server(saying(answer));
        CHECK(loaded({.url = server.url("/"), .byteLimit = 8}) == "12345678");
        CHECK(loaded({.url = server.url("/"), .byteLimit = 7}) == "(nothing)");
    }
}

TEST_CASE("an answer that is no whole success is a failure") {
    if (isBuiltWithout()) return;
    struct Row {
        const char* why;
        std::string answer;
    };
    const Row rows[] = {
        {"not found", httpAnswer("404 Not Found", "", "sorry")},
        {"a server's fault", httpAnswer("500 Oh", "", "sorry")},
        {"a part", httpAnswer("206 Partial Content", "Content-Range: bytes 0-1/9\r\n", "ab")},
        {"not modified, though nobody asked", "HTTP/1.1 304 Not Modified\r\n\r\n"},
        {"a redirect to nowhere", httpAnswer("302 Found", "", "gone")},
        {"a redirect to itself", redirectTo("/")},
        {"a redirect to a file", redirectTo("file:///etc/passwd")},
        {"a redirect to another scheme", redirectTo("ftp://127.0.0.1/")},
        {"a short body", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nabc"},
        {"a short piece of a body",
         "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n64\r\nab"},
        {"no answer", ""},
        {"another language", "220 Welcome\r\n"},
        {"fields without end", "HTTP/1.1 200 OK\r\n" +
                                   [] {
                                       std::string fields;
                                       for (int i = 0; i < 5000; ++i)
                                           fields += "X-" + std::string(80, 'x') + ": y\r\n";
                                       return fields;
                                   }() +
                                   "\r\nabc"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const LoopbackServer server(saying(row.answer));
        CHECK(loaded({.url = server.url("/"), .timeout = 2}) == "(nothing)");
    }
}

TEST_CASE("ten redirects are followed and eleven are not") {
    if (isBuiltWithout()) return;
    const LoopbackServer server(
        [](const std::string& path, const std::string&, const Connection& connection) {
            const int left = std::stoi(path.substr(1));
            const std::string next = "/" + std::to_string(left - 1);
            const bool arrived = left == 0;
            static_cast<void>(
                connection.send(arrived ? httpAnswer("200 OK", "", "end") : redirectTo(next)));
        });
    CHECK(loaded({.url = server.url("/10")}) == "end");
    CHECK(loaded({.url = server.url("/11")}) == "(nothing)");
}

TEST_CASE("a fetch ends when its time is over, however the server spends it") {
    if (isBuiltWithout()) return;
    const LoopbackServer server(
        [](const std::string& path, const std::string&, const Connection& connection) {
            bool listens = true;
            if (path != "/silence") listens = connection.send("HTTP/1.1 200 OK\r\n\r\n");
            while (listens && path != "/silence") {
                std::this_thread::sleep_for(std::chrono::milliseconds(path == "/drops" ? 20 : 0));
                listens = connection.send(std::string(path == "/drops" ? 1 : 65536, 'x'));
            }
            if (path == "/silence") connection.stall();
        });
    for (const char* path : {"/silence", "/drops", "/flood"}) {
        CAPTURE(path);
        const auto start = std::chrono::steady_clock::now();
        CHECK(loaded({.url = server.url(path), .timeout = 0.15, .byteLimit = SIZE_MAX}) ==
              "(nothing)");
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        CHECK(took.count() >= 0.14);
        CHECK(took.count() < 10);
    }
    CHECK(loaded({.url = server.url("/flood"), .byteLimit = 100'000}) == "(nothing)");
}

TEST_CASE("a text that is no fetchable URL fails without asking anybody") {
    if (isBuiltWithout()) return;
    for (const StringView text :
         {u"", u"notaurl", u"http", u"http:", u"https:localhost", u"//127.0.0.1/", u"http://a b/",
          u"http://\u00E9/", u"ftp://127.0.0.1/", u"data:,x", u"gopher://127.0.0.1/"}) {
        CAPTURE(text);
        CHECK(loaded({.url = {String(text)}, .timeout = 1}) == "(nothing)");
        CHECK_FALSE(makeNetworkUrlLoader()->hasCachedResponse({String(text)}));
    }
}

TEST_CASE("a file is read, and nothing that only has a name like one") {
    if (isBuiltWithout()) return;
    const TemporaryFolder folder;
    const std::string path = folder.path() / "a #?%41.png";
    writeFile(path, "picture");
    const std::string start = "file://" + folder.path().string();
    REQUIRE(::mkfifo((folder.path() / "pipe").c_str(), 0600) == 0);
    struct Row {
        const char* why;
        std::string url;
        std::string text;
    };
    const Row rows[] = {
        {"every odd letter escaped", toUTF8(URL::fromFilePath(path).absoluteString), "picture"},
        {"this machine by name",
         "FILE://localhost" + folder.path().string() + "/a%20%23%3f%2541.png?query#part",
         "picture"},
        {"without a host", "file:" + folder.path().string() + "/a%20%23%3F%2541.png", "picture"},
        {"another machine", "file://elsewhere" + path, "(nothing)"},
        {"a missing file", start + "/b.png", "(nothing)"},
        {"a folder", start, "(nothing)"},
        {"a pipe that nobody writes to", start + "/pipe", "(nothing)"},
        {"a device without end", "file:///dev/zero", "(nothing)"},
        {"a zero byte", start + "/a%20%23%3F%2541.png%00", "(nothing)"},
        {"no path", "file:", "(nothing)"},
        {"a path from nowhere", "file:a.png", "(nothing)"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(loaded({.url = {fromUTF8(row.url)}}) == row.text);
    }
    const URL url = URL::fromFilePath(path);
    CHECK(loaded({.url = url, .cachePolicy = UrlCachePolicy::ReturnCacheDontLoad}) == "picture");
    CHECK(loaded({.url = url, .byteLimit = 6}) == "(nothing)");
    CHECK_FALSE(makeNetworkUrlLoader()->hasCachedResponse(url));
}
