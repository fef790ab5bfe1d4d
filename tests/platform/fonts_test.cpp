#include "QZCore/platform/fonts.h"

#include "support/printing.h"

namespace QZCore {

TEST_CASE("the made-up selection lists its families in order of their names") {
    CHECK(makeInMemoryFontCatalog()->availableFamilies() ==
          std::vector<String>{u"Grotesk", u"Heavy", u"Mono", u"Plain", u"Sans", u"Serif",
                              u"Symbols"});
}

}  // namespace QZCore
