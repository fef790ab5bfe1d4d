#include "QZCore/platform/fonts.h"

#include "support/printing.h"

namespace QZCore {

TEST_CASE("fonts hash alike when they are equal and are described by face and size") {
    const Font font{u"Sans", u"Sans-Bold", 0.0, kFontBold, 9};
    Font other = font;
    other.pointSize = -0.0;
    CHECK(font == other);
    CHECK(hashOf(font) == hashOf(other));
    other.pointSize = 13.5;
    CHECK(hashOf(font) != hashOf(other));
    CHECK(descriptionOf(other) == u"Sans-Bold 13.5");
}

TEST_CASE("the shared catalogue can be replaced and comes back") {
    const auto standard = sharedFontCatalog();
    const auto mine = makeInMemoryFontCatalog();
    CHECK(setSharedFontCatalog(mine) == nullptr);
    CHECK(sharedFontCatalog() == mine);
    CHECK(setSharedFontCatalog(nullptr) == mine);
    CHECK(sharedFontCatalog() == standard);
}

}  // namespace QZCore
