// Rich texts: any sequence of edits gives what the plainest possible text gives,
// and copies keep what they had.
#include "edit_script.h"
#include "require.h"
#include "support/rich_text_twin.h"

using namespace QZCore;
using testing::RichTextTwin;

namespace {

// Several pieces, which are divided and joined. More steps would only be slower.
constexpr std::size_t kLongest = 15000;
constexpr std::size_t kMostAdded = 7500;
constexpr int kMostSteps = 200;

/// One text and its twin, and a copy of both from some time before.
struct Session {
    RichText text;
    RichTextTwin twin;
    RichText copy;
    RichTextTwin copyOfTwin;

    void changeText(EditScript& script) {
        const Range range = script.range(text.length());
        if (script.below(2) == 0) {
            const RichText part = copy.attributedSubstringFromRange(script.range(copy.length()));
            text.replaceCharactersInRange(range, part);
            twin.replace(range, part);
        } else {
            const String string = script.text(kMostAdded);
            text.replaceCharactersInRange(range, string);
            twin.replace(range, string);
        }
    }

    void changeAttributes(EditScript& script) {
        const Range range = script.range(text.length());
        const TextAttributes attributes = script.attributes();
        switch (script.below(4)) {
            case 0:
                text.setAttributes(attributes, range);
                return twin.change(range, [&](const auto&) { return attributes; });
            case 1:
                text.addAttributes(attributes, range);
                return twin.change(range,
                                   [&](const auto& old) { return old.mergedWith(attributes); });
            case 2:
                text.addAttribute(u"mark", 1, range);
                return twin.change(range,
                                   [](const auto& old) { return old.withAttribute(u"mark", 1); });
            default:
                text.removeAttribute(u"mark", range);
                return twin.change(range,
                                   [](const auto& old) { return old.withoutAttribute(u"mark"); });
        }
    }

    void removeAttachments() {
        text.removeAttachments();
        for (std::size_t at = twin.text.size(); at-- > 0;) {
            if (twin.text[at] == kAttachmentCharacter) twin.replace({at, 1}, u"");
        }
        require(text.numberOfAttachments() == 0);
    }

    void check() const {
        require(twin.matches(text));
        require(copyOfTwin.matches(copy));
        require((text == copy) ==
                (twin.text == copyOfTwin.text && twin.attributes == copyOfTwin.attributes));
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    EditScript script(data, size);
    Session session;
    for (int step = 0; step < kMostSteps && !script.isAtEnd(); ++step) {
        if (session.twin.text.size() > kLongest) break;
        switch (script.below(8)) {
            case 0:
                session.check();
                session.copy = session.text;
                session.copyOfTwin = session.twin;
                break;
            case 1:
                session.removeAttachments();
                break;
            case 2:
            case 3:
            case 4:
                session.changeAttributes(script);
                break;
            default:
                session.changeText(script);
        }
    }
    session.check();
    return 0;
}
