#include "QZCore/codecs/comparing.h"
#include "support/printing.h"

namespace QZCore {

TEST_CASE("versions compare part by part") {
    struct Row {
        const char* why;
        StringView text, version;
        int order;
    };
    const Row rows[] = {
        {"numbers, not texts", u"1.10", u"1.9", 1},
        {"the first difference decides", u"10.0", u"9.9.9", 1},
        {"missing parts are 0", u"1.2", u"1.2.0", 0},
        {"the empty version is 0", u"", u"0", 0},
        {"a dot alone", u".", u"", 0},
        {"letters after a number are ignored", u"1.2b", u"1.2", 0},
        {"a part without a number is 0", u"1.beta", u"1.0", 0},
        {"white space before a number", u"1. 3", u"1.3", 0},
        {"signs", u"1.-1", u"1", -1},
        {"a later part", u"1", u"1.0.0.1", -1},
        {"clamped numbers are equal", u"99999999999999999999", u"9223372036854775807", 0},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        CHECK(compareToVersion(row.text, row.version) == row.order);
        CHECK(compareToVersion(row.version, row.text) == -row.order);
    }
}

}  // namespace QZCore
