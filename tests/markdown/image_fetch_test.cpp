#include <chrono>
#include <thread>

#include "QZCore/markdown.h"
#include "QZCore/platform/images.h"
#include "QZCore/platform/url_loading.h"
#include "support/font_scope.h"
#include "support/log_capture.h"
#include "support/markdown_settings.h"
#include "support/printing.h"

namespace QZCore {
namespace {

using namespace std::chrono_literals;

constexpr std::string_view kPicture =
    "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='2'/>";

/// Answers with what stands behind the slash of a URL, after a while, and notes
/// what it is asked.
class NotingLoader final : public UrlLoader {
public:
    std::optional<Data> load(const UrlRequest& request) override {
        requests.push_back(request);
        std::this_thread::sleep_for(delay);
        const bool isDamaged = request.cachePolicy != UrlCachePolicy::ReloadIgnoringLocalCache &&
                               request.url.absoluteString.ends_with(u"/damaged");
        if (request.url.absoluteString.ends_with(u"/nothing")) return std::nullopt;
        const DataView bytes = bytesOf(isDamaged ? "damaged" : kPicture);
        return Data(bytes.begin(), bytes.end());
    }
    bool hasCachedResponse(const URL& url) override {
        return url.absoluteString.ends_with(u"/damaged");
    }
    UrlCacheUsage cacheUsage() override { return {3 << 19, 4 << 20, 1, 0}; }

    std::vector<UrlRequest> requests;
    std::chrono::milliseconds delay = 0ms;
};

/// What became of one note.
struct Fetching {
    explicit Fetching(StringView note, const std::string& preferences,
                      std::chrono::milliseconds delay = 0ms)
        : text(note) {
        loader->delay = delay;
        const auto before = setSharedUrlLoader(loader);
        const testing::MarkdownSettings settings(R"({"preferences": {)" + preferences + "}}");
        renderContainedMarkdownWithStyles(text, {}, settings.syntax(), settings.preferences());
        setSharedUrlLoader(before);
    }
    [[nodiscard]] const Image* imageAt(std::size_t index) const {
        return text.attributesAtIndex(index).attachment()->image.get();
    }

    const testing::MadeUpFonts fonts;
    std::shared_ptr<NotingLoader> loader = std::make_shared<NotingLoader>();
    RichText text;
};

}  // namespace

TEST_CASE("an image is asked for at each of its places, last first, and once more past the cache") {
    if (makePlatformImageDecoder() == nullptr) return;
    struct Row {
        const char* why;
        StringView note;
        std::vector<std::string> requests;
    };
    const Row rows[] = {
        {"found", u"![a](x/1) ![b](x/2) ![c](x/1)", {"x/1 2", "x/2 2", "x/1 2"}},
        {"damaged in the cache", u"![a](x/damaged)", {"x/damaged 2", "x/damaged 1"}},
        {"not found", u"![a](x/nothing) ![a](x/1)", {"x/1 2", "x/nothing 2", "x/nothing 1"}},
        {"a target that a URL must escape", u"![a](x/\u00E9)", {"x/%C3%A9 2"}},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        const Fetching fetching(row.note, R"("Markdown Image Cache Policy": 2)");
        std::vector<std::string> requests;
        for (const UrlRequest& request : fetching.loader->requests) {
            requests.push_back(toUTF8(request.url.absoluteString) + " " +
                               std::to_string(static_cast<int>(request.cachePolicy)));
        }
        CHECK(requests == row.requests);
        CHECK(fetching.imageAt(0)->isCaution == (row.requests.back() == "x/nothing 1"));
    }
    const Fetching twice(u"![a](x/1)![b](x/1)", "");
    CHECK(twice.imageAt(0) == twice.imageAt(1));
    CHECK(twice.imageAt(0)->width == 4);
}

TEST_CASE("both questions for an image share one time-out") {
    const Fetching usual(u"![a](x/nothing)", "", 30ms);
    REQUIRE(usual.loader->requests.size() == 2);
    CHECK(usual.loader->requests[0].timeout == 15);
    CHECK(usual.loader->requests[1].timeout < 14.98);
    CHECK(usual.loader->requests[1].timeout > 5);
    const Fetching stalled(u"![a](x/nothing)", R"("Markdown Image Timeout": 1)", 1000ms);
    CHECK(stalled.loader->requests.size() == 1);
    CHECK(stalled.imageAt(0)->isCaution);
}

TEST_CASE("the use of the cache is logged on demand") {
    const std::u16string usage =
        u"URLCache: memory 1572864 bytes used out of 4MB (37.5%), disk 1 bytes used out of 0MB "
        u"(0.0%)";
    const testing::LogCapture log;
    const Fetching silent(u"![a](x/1)", "");
    CHECK(log.lines().empty());
    const Fetching logging(u"![a](x/damaged) ![b](x/1)", R"("URLCache Log": true)");
    CHECK(log.lines() == std::vector<String>{u"No cached response found.", usage,
                                             u"Cached response found!", usage});
}

}  // namespace QZCore
