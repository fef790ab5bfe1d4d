#include "model/archived_boxes.h"

#include "QZCore/foundation/range.h"
#include "QZCore/geometry/plane.h"
#include "model/content_reader.h"

namespace QZCore {
namespace {

// Braces have their parts read in order.

void encodePoint(const Point& point, ArchiveEncoder& coder) {
    coder.encodeContent(point.x, u"x");
    coder.encodeContent(point.y, u"y");
}

Point readPoint(ContentReader& from) { return {from.real(u"x"), from.real(u"y")}; }

std::optional<Point> decodePoint(ArchiveDecoder& coder) {
    ContentReader from(coder);
    const Point point = readPoint(from);
    return from.ifRight(point);
}

void encodeSize(const Size& size, ArchiveEncoder& coder) {
    coder.encodeContent(size.width, u"width");
    coder.encodeContent(size.height, u"height");
}

Size readSize(ContentReader& from) { return {from.real(u"width"), from.real(u"height")}; }

std::optional<Size> decodeSize(ArchiveDecoder& coder) {
    ContentReader from(coder);
    const Size size = readSize(from);
    return from.ifRight(size);
}

void encodeRect(const Rect& rect, ArchiveEncoder& coder) {
    encodePoint(rect.origin, coder);
    encodeSize(rect.size, coder);
}

std::optional<Rect> decodeRect(ArchiveDecoder& coder) {
    ContentReader from(coder);
    return from.ifRight(Rect{readPoint(from), readSize(from)});
}

void encodeRange(const Range& range, ArchiveEncoder& coder) {
    coder.encodeContent(range.location, u"location");
    coder.encodeContent(range.length, u"length");
}

std::optional<Range> decodeRange(ArchiveDecoder& coder) {
    ContentReader from(coder);
    return from.ifRight(Range{from.position(u"location"), from.position(u"length")});
}

}  // namespace

std::vector<ArchivedClass> archivedBoxes() {
    return {archivedBox<Point, encodePoint, decodePoint>(u"Point"),
            archivedBox<Size, encodeSize, decodeSize>(u"Size"),
            archivedBox<Rect, encodeRect, decodeRect>(u"Rect"),
            archivedBox<Range, encodeRange, decodeRange>(u"Range")};
}

}  // namespace QZCore
