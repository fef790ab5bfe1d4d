#include <doctest/doctest.h>
#include <sys/stat.h>

#include <fstream>
#include <thread>

#include "QZCore/foundation/files.h"
#include "QZCore/platform/url_loading.h"
#include "support/loopback_server.h"
#include "support/printing.h"
#include "support/temporary_folder.h"

using namespace QZCore;
using namespace QZCore::testing;

namespace {

namespace fs = std::filesystem;

bool isBuiltWithout() { return makeNetworkUrlLoader() == nullptr; }

constexpr UrlCachePolicy kProtocol = UrlCachePolicy::UseProtocolCachePolicy;
constexpr UrlCachePolicy kReload = UrlCachePolicy::ReloadIgnoringLocalCache;
constexpr UrlCachePolicy kCacheElseLoad = UrlCachePolicy::ReturnCacheElseLoad;
constexpr UrlCachePolicy kCacheOnly = UrlCachePolicy::ReturnCacheDontLoad;

/// Numbers its answers: the first one's body is "1".
class CountingServer {
public:
    explicit CountingServer(std::string fields)
        : server_([this, fields](const std::string&, const std::string&, const Connection& to) {
              static_cast<void>(to.send(httpAnswer("200 OK", fields, std::to_string(++count_))));
          }) {}
    [[nodiscard]] URL url(std::string_view path = "/") const { return server_.url(path); }

private:
    std::atomic<int> count_ = 0;
    LoopbackServer server_;
};

std::string load(UrlLoader& loader, const URL& url, UrlCachePolicy policy = kProtocol) {
    const std::optional<Data> data = loader.load({.url = url, .cachePolicy = policy});
    return data ? std::string(textOf(*data)) : "(nothing)";
}

}  // namespace

TEST_CASE("the policy and the answer's fields decide whether the cache is used") {
    if (isBuiltWithout()) return;
    struct Row {
        const char* why;
        std::string fields;
        UrlCachePolicy policy;
        std::string second;  // "1" comes from the cache
    };
    const std::string fresh = "Cache-Control: max-age=600\r\n";
    const std::string old = "Expires: Thu, 01 Jan 1970 00:00:00 GMT\r\n";
    const std::string never = "Cache-Control: private\r\nCache-Control: no-store\r\n";
    const Row rows[] = {
        {"fresh", fresh, kProtocol, "1"},
        {"not fresh", old, kProtocol, "2"},
        {"says nothing of itself", "", kProtocol, "2"},
        {"an unknown number counts as 0", fresh, UrlCachePolicy{7}, "1"},
        {"an unknown number counts as 0", old, UrlCachePolicy{-1}, "2"},
        {"fresh, but not wanted", fresh, kReload, "2"},
        {"old, but wanted", old, kCacheElseLoad, "1"},
        {"old, but all that is wanted", old, kCacheOnly, "1"},
        {"not kept", never, kProtocol, "2"},
        {"not kept, so loaded", never, kCacheElseLoad, "2"},
        {"not kept, and not loaded", never, kCacheOnly, "(nothing)"},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const CountingServer server(row.fields);
        const auto loader = makeNetworkUrlLoader();
        CHECK(load(*loader, server.url(), kCacheOnly) == "(nothing)");
        CHECK(load(*loader, server.url("/#part")) == "1");
        CHECK(loader->hasCachedResponse(server.url()) == (row.fields != never));
        CHECK(load(*loader, server.url(), row.policy) == row.second);
    }
}

TEST_CASE("an old answer is asked about, and used again when it is still good") {
    if (isBuiltWithout()) return;
    const std::string tag = "ETag: \"v1\"\r\n";
    const std::string date = "Last-Modified: Sun, 06 Nov 1994 08:49:37 GMT\r\n";
    const LoopbackServer server(
        [&](const std::string&, const std::string& head, const Connection& connection) {
            const bool asks = head.find("If-") != std::string::npos;
            static_cast<void>(connection.send(
                asks ? "HTTP/1.1 304 Not Modified\r\nCache-Control: max-age=600\r\n\r\n"
                     : httpAnswer("200 OK", "Cache-Control: max-age=0\r\n" + tag + date, "body")));
        });
    const auto loader = makeNetworkUrlLoader();
    for (int i = 0; i < 4; ++i) CHECK(load(*loader, server.url("/")) == "body");
    const std::vector<std::string> requests = server.requests();
    REQUIRE(requests.size() == 2);
    CHECK(requests[1].find("If-None-Match: \"v1\"\r\n") != std::string::npos);
    CHECK(requests[1].find("If-Modified-Since: Sun, 06 Nov 1994 08:49:37 GMT\r\n") !=
          std::string::npos);
    CHECK(load(*loader, server.url("/"), kReload) == "body");
    CHECK(server.requests()[2].find("If-") == std::string::npos);
}

TEST_CASE("what stands behind a redirect is kept as long as the redirect allows") {
    if (isBuiltWithout()) return;
    struct Row {
        const char* why;
        std::string redirectFields;
        bool kept;
        std::size_t requests;
    };
    const Row rows[] = {
        {"both are fresh", "Cache-Control: max-age=600\r\n", true, 2},
        {"the redirect is not", "Last-Modified: Sun, 06 Nov 1994 08:49:37 GMT\r\n", true, 4},
        {"the redirect must not be kept", "Cache-Control: no-store\r\n", false, 4},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const LoopbackServer server(
            [&](const std::string& path, const std::string&, const Connection& connection) {
                const std::string fields = "Cache-Control: max-age=600\r\nETag: \"1\"\r\n";
                static_cast<void>(connection.send(
                    path == "/end"
                        ? httpAnswer("200 OK", fields, "body")
                        : httpAnswer("301 Moved", "Location: /end\r\n" + row.redirectFields, "")));
            });
        const auto loader = makeNetworkUrlLoader();
        CHECK(load(*loader, server.url("/")) == "body");
        CHECK(loader->hasCachedResponse(server.url("/")) == row.kept);
        CHECK(load(*loader, server.url("/")) == "body");
        CHECK(server.requests().size() == row.requests);
    }
}

TEST_CASE("a kept answer is not taken for what a new redirect leads to") {
    if (isBuiltWithout()) return;
    std::atomic<bool> moved = false;
    const LoopbackServer server(
        [&](const std::string& path, const std::string& head, const Connection& connection) {
            const std::string fields = "ETag: \"1\"\r\n";
            std::string answer = httpAnswer("200 OK", fields, path == "/" ? "old" : "new");
            if (moved && path == "/") answer = httpAnswer("302 Found", "Location: /b\r\n", "");
            // The other place happens to number its versions alike.
            if (path == "/b" && head.find("If-None-Match") != std::string::npos) {
                answer = "HTTP/1.1 304 Not Modified\r\n\r\n";
            }
            static_cast<void>(connection.send(answer));
        });
    const auto loader = makeNetworkUrlLoader();
    CHECK(load(*loader, server.url("/")) == "old");
    moved = true;
    CHECK(load(*loader, server.url("/")) == "new");
}

TEST_CASE("the part in memory forgets what has not been used for longest") {
    if (isBuiltWithout()) return;
    const CountingServer server("");
    // An answer takes its one digit and its URL.
    const std::uint64_t bytes = server.url("/a").absoluteString.size() + 1;
    const auto loader = makeNetworkUrlLoader({.memoryCapacity = 2 * bytes + 1});
    CHECK(load(*loader, server.url("/a")) == "1");
    CHECK(load(*loader, server.url("/b")) == "2");
    CHECK(load(*loader, server.url("/a"), kCacheOnly) == "1");
    CHECK(load(*loader, server.url("/c")) == "3");
    CHECK(load(*loader, server.url("/a"), kCacheOnly) == "1");
    CHECK(load(*loader, server.url("/b"), kCacheOnly) == "(nothing)");
    const UrlCacheUsage usage = loader->cacheUsage();
    CHECK(usage.memoryBytes == 2 * bytes);
    CHECK(usage.memoryCapacity == 2 * bytes + 1);
    CHECK(usage.diskBytes == 0);
    CHECK(usage.diskCapacity == 0);
    const auto none = makeNetworkUrlLoader({.memoryCapacity = 0});
    CHECK(load(*none, server.url("/a")) == "4");
    CHECK_FALSE(none->hasCachedResponse(server.url("/a")));
}

TEST_CASE("the part on the disk outlives its loader and stays within its bounds") {
    if (isBuiltWithout()) return;
    const TemporaryFolder folder;
    const UrlCacheSettings settings{.diskCapacity = 2000, .folder = folder.path() / "a" / "b"};
    const CountingServer server("Cache-Control: max-age=600\r\n");
    CHECK(load(*makeNetworkUrlLoader(settings), server.url("/first")) == "1");
    const auto loader = makeNetworkUrlLoader(settings);
    const std::uint64_t one = loader->cacheUsage().diskBytes;
    CHECK(one > 100);
    CHECK(load(*loader, server.url("/first")) == "1");
    for (int i = 0; i < 20; ++i) {
        load(*loader, server.url("/" + std::to_string(i)));
        std::uint64_t bytes = 0;
        for (const auto& file : fs::directory_iterator(settings.folder)) bytes += file.file_size();
        CHECK(loader->cacheUsage().diskBytes == bytes);
        CHECK(bytes <= settings.diskCapacity);
    }
    const auto later = makeNetworkUrlLoader(settings);
    CHECK_FALSE(later->hasCachedResponse(server.url("/first")));
    CHECK(later->hasCachedResponse(server.url("/19")));
    CHECK(fs::status(settings.folder).permissions() == fs::perms::owner_all);
}

TEST_CASE("whatever stands in the folder of the cache does no harm") {
    if (isBuiltWithout()) return;
    const CountingServer server("");
    struct Row {
        const char* why;
        void (*replace)(const fs::path& path);
    };
    const Row rows[] = {
        {"nothing", [](const fs::path&) {}},
        {"an empty file", [](const fs::path& path) { std::ofstream(path).flush(); }},
        {"another file", [](const fs::path& path) { std::ofstream(path) << "QZCore-Cache: 1\nx"; }},
        {"a folder", [](const fs::path& path) { fs::create_directories(path / "inner"); }},
        {"a pipe", [](const fs::path& path) { REQUIRE(::mkfifo(path.c_str(), 0600) == 0); }},
        {"a link", [](const fs::path& path) { fs::create_symlink("../precious", path); }},
        {"a link to itself", [](const fs::path& path) { fs::create_symlink(path, path); }},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const TemporaryFolder folder;
        const UrlCacheSettings settings{.folder = folder.path() / "cache"};
        std::ofstream(folder.path() / "precious") << "mine";
        load(*makeNetworkUrlLoader(settings), server.url());
        const fs::path file = fs::directory_iterator(settings.folder)->path();
        fs::remove(file);
        row.replace(file);
        const auto loader = makeNetworkUrlLoader(settings);
        CHECK_FALSE(loader->hasCachedResponse(server.url()));
        CHECK(load(*loader, server.url()) != "(nothing)");
        CHECK(textOf(readFile(folder.path() / "precious").value_or(Data{})) == "mine");
    }
}

TEST_CASE("a loader may be used by several threads at once") {
    if (isBuiltWithout()) return;
    const TemporaryFolder folder;
    const CountingServer server("Cache-Control: max-age=0\r\n");
    const auto loader =
        makeNetworkUrlLoader({.memoryCapacity = 100, .diskCapacity = 500, .folder = folder.path()});
    std::atomic<int> failures = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; ++i) {
        threads.emplace_back([&, i] {
            for (int j = 0; j < 8; ++j) {
                const URL url = server.url("/" + std::to_string((i + j) % 4));
                if (load(*loader, url) == "(nothing)") ++failures;
                static_cast<void>(loader->hasCachedResponse(url));
                static_cast<void>(loader->cacheUsage());
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    CHECK(failures == 0);
}
