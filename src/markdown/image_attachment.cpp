#include "markdown/image_attachment.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "QZCore/foundation/log.h"
#include "markdown/link_target.h"

namespace QZCore {
namespace {

using Clock = std::chrono::steady_clock;

/// Bounds the wait for one image, however often it is asked for.
double timeoutOf(const Preferences& preferences) {
    constexpr std::int64_t kDefault = 15;
    constexpr double kLongest = 3600;
    const auto seconds =
        static_cast<double>(preferences.integerForKey(u"Markdown Image Timeout", kDefault));
    return seconds > 0 ? std::min(seconds, kLongest) : kLongest;
}

/// A width and a height, each 0 where it was not named.
struct NamedSize {
    double width = 0;
    double height = 0;
};

double lengthOf(StringView text) {
    const double value = doubleValue(text);
    return std::isfinite(value) && value > 0 ? value : 0;
}

/// Reads "200x100", "200" and the like; a third piece does not count.
NamedSize readSize(StringView text) {
    const std::size_t cross = text.find(u'x');
    if (cross == StringView::npos) return {lengthOf(text), 0};
    const StringView height = text.substr(cross + 1);
    return {lengthOf(text.substr(0, cross)), lengthOf(height.substr(0, height.find(u'x')))};
}

void applySize(TextAttachment& attachment, NamedSize named) {
    const double width = attachment.image->width;
    const double height = attachment.image->height;
    const double scale = named.width > 0 && width > 0 ? named.width / width : 1;
    attachment.width = named.width > 0 ? named.width : width;
    attachment.height = named.height > 0 ? named.height : height * scale;
}

String percentOf(std::uint64_t part, std::uint64_t whole) {
    const double percent =
        whole == 0 ? 0 : static_cast<double>(part) * 100 / static_cast<double>(whole);
    return fixedString(percent, 1);
}

String cacheLine(StringView name, std::uint64_t used, std::uint64_t capacity) {
    constexpr int kMegabyte = 20;
    return String(name) + u" " + unsignedString(used) + u" bytes used out of " +
           unsignedString(capacity >> kMegabyte) + u"MB (" + percentOf(used, capacity) + u"%)";
}

}  // namespace

ImageFetch::ImageFetch(const Preferences& preferences)
    : cachePolicy_{preferences.integerForKey(u"Markdown Image Cache Policy")},
      timeout_(timeoutOf(preferences)),
      logsCache_(preferences.boolForKey(u"URLCache Log")),
      loader_(sharedUrlLoader()) {}

TextAttachment ImageFetch::attachmentFor(StringView text, StringView target) {
    const String plain = withoutEscapes(text);
    const std::size_t bar = plain.rfind(u'|');
    TextAttachment attachment;
    attachment.alternativeText = plain.substr(0, bar);
    attachment.source = withoutEscapes(target);
    const auto url = urlForTarget(target);
    attachment.image = url ? fetch(*url) : nullptr;
    if (attachment.image == nullptr) attachment.image = caution_;
    applySize(attachment,
              bar == String::npos ? NamedSize{} : readSize(StringView(plain).substr(bar + 1)));
    return attachment;
}

ImageFetch::ImagePointer ImageFetch::fetch(const URL& url) {
    const auto start = Clock::now();
    if (logsCache_) {
        logLine(loader_->hasCachedResponse(url) ? u"Cached response found!"
                                                : u"No cached response found.");
    }
    ImagePointer image = load({url, cachePolicy_, timeout_});
    if (logsCache_) logCacheUse();
    if (image != nullptr) return image;
    // What the cache or the server gave first may be damaged or out of date.
    const std::chrono::duration<double> spent = Clock::now() - start;
    const double left = timeout_ - spent.count();
    return left > 0 ? load({url, UrlCachePolicy::ReloadIgnoringLocalCache, left}) : nullptr;
}

ImageFetch::ImagePointer ImageFetch::load(const UrlRequest& request) {
    const auto data = loader_->load(request);
    if (!data) return nullptr;
    ImagePointer& last = images_[request.url.absoluteString];
    if (last != nullptr && last->data == *data) return last;
    auto image = sharedImageDecoder()->decode(*data);
    if (!image) return nullptr;
    last = std::make_shared<const Image>(*std::move(image));
    return last;
}

void ImageFetch::logCacheUse() {
    const UrlCacheUsage usage = loader_->cacheUsage();
    logLine(u"URLCache: " + cacheLine(u"memory", usage.memoryBytes, usage.memoryCapacity) + u", " +
            cacheLine(u"disk", usage.diskBytes, usage.diskCapacity));
}

}  // namespace QZCore
