#include "stand_ins.h"

#include <cmath>

namespace qznote {
namespace {

using namespace QZCore;

int byteOf(double component) {
    constexpr double kMost = 255;
    if (!(component > 0)) return 0;
    return component < 1 ? static_cast<int>(std::lround(component * kMost)) : 255;
}

}  // namespace

ColorBytes colorBytes(const Color& color) {
    return {byteOf(color.redComponent()), byteOf(color.greenComponent()),
            byteOf(color.blueComponent())};
}

String withImagesNamed(StringView text, const TextAttributes& attributes) {
    const TextAttachment* attachment = attributes.attachment();
    if (attachment == nullptr) return String(text);
    const StringView alternative = attachment->alternativeText;
    const String name = u"[" + String(alternative.empty() ? u"image" : alternative) + u" " +
                        shortestString(attachment->width) + u"x" +
                        shortestString(attachment->height) + u"]";
    String named;
    for (const char16_t unit : text) {
        named += unit == kAttachmentCharacter ? StringView(name) : StringView(&unit, 1);
    }
    return named;
}

}  // namespace qznote
