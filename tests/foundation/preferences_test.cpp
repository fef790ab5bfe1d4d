#include "QZCore/foundation/preferences.h"

#include <thread>

#include "support/log_capture.h"
#include "support/printing.h"
#include "support/temporary_folder.h"
#include "support/text_files.h"

namespace QZCore {

using testing::contentOf;
using testing::writeText;

TEST_CASE("the default stands for an absent key only") {
    struct Row {
        const char* why;
        Value stored;
        bool truth;
        std::int32_t integer;
        double real;
        StringView text;
    };
    const Row rows[] = {
        {"absent", Value(), true, 7, 7.5, u"default"},
        {"number", 2, true, 2, 2, u"2"},
        {"zero", 0, false, 0, 0, u"0"},
        {"boolean", false, false, 0, 0, u"0"},
        {"text with a number", u"12.5 pt", true, 12, 12.5, u"12.5 pt"},
        {"text that agrees", u"YES", true, 0, 0, u"YES"},
        {"text without a number", u"no", false, 0, 0, u"no"},
        {"empty text", u"", false, 0, 0, u""},
        {"array", Array{1}, false, 0, 0, u""},
        {"date", Date{5}, false, 0, 0, u""},
        {"URL", *URL::fromString(u"a:b"), false, 0, 0, u""},
    };
    for (const Row& row : rows) {
        CAPTURE(row.why);
        Preferences store;
        store.setObject(row.stored, u"key");
        CHECK(store.boolForKey(u"key", true) == row.truth);
        CHECK(store.intForKey(u"key", 7) == row.integer);
        CHECK(store.integerForKey(u"key", 7) == row.integer);
        CHECK(store.unsignedForKey(u"key", 7) == row.integer);
        CHECK(store.doubleForKey(u"key", 7.5) == row.real);
        CHECK(store.floatForKey(u"key", 7.5F) == static_cast<float>(row.real));
        CHECK(store.stringForKey(u"key", u"default") == row.text);
        CHECK(store.objectForKey(u"key").isIdentical(row.stored));
    }
    CHECK(Preferences().objectForKey(u"key", Value(7)) == Value(7));
}

TEST_CASE("an absent object removes its key") {
    Preferences store(Dictionary{{u"a", 1}, {u"b", 2}});
    store.setObject(Value(), u"a");
    store.removeObjectForKey(u"c");
    CHECK(Value(store.snapshot()) == Value(Dictionary{{u"b", 2}}));
    store.setAllObjects({{u"c", 3}});
    CHECK(Value(store.snapshot()) == Value(Dictionary{{u"c", 3}}));
    CHECK(&Preferences::shared() == &Preferences::shared());
}

TEST_CASE("a store comes back from its file") {
    const testing::TemporaryFolder folder;
    const testing::LogCapture log;
    const std::string path = folder / "settings.plist";
    Preferences first(Dictionary{{u"a", 1}, {u"date", Date{-62198755200}}});
    CHECK_FALSE(first.save());  // no file yet
    CHECK(first.open(path));
    CHECK(folder.count() == 0);
    REQUIRE(first.save());

    Preferences second(Dictionary{{u"a", 2}, {u"own", true}});
    REQUIRE(second.open(path));
    CHECK(Value(second.snapshot()) ==
          Value(Dictionary{{u"a", 1}, {u"date", Date{-62198755200}}, {u"own", true}}));
    second.setObject(u"\u0001", u"control");
    const std::string before = contentOf(path);
    CHECK_FALSE(second.save());
    CHECK(contentOf(path) == before);
    CHECK(log.lines().empty());
    CHECK(folder.count() == 1);
}

TEST_CASE("an unreadable file is logged and kept under a new name") {
    const testing::TemporaryFolder folder;
    const std::string path = folder / "settings.plist";
    REQUIRE(writeText(path, "<plist><dict><key>"));
    REQUIRE(writeText(path + ".unreadable-1", "earlier"));
    const testing::LogCapture log;
    Preferences store(Dictionary{{u"a", 1}});
    CHECK_FALSE(store.open(path));
    CHECK(store.snapshot().count() == 1);
    REQUIRE(log.lines().size() == 1);
    CHECK(log.lines()[0].starts_with(u"cannot read preferences from " + fromUTF8(path)));

    REQUIRE(store.save());
    CHECK(contentOf(path + ".unreadable-1") == "earlier");
    CHECK(contentOf(path + ".unreadable-2") == "<plist><dict><key>");
    CHECK(Preferences().open(path));
}

TEST_CASE("threads share a store") {
    const testing::TemporaryFolder folder;
    Preferences store;
    REQUIRE(store.open(folder / "settings.plist"));
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&store, thread] {
            const String own = integerString(thread);
            for (int i = 0; i < 2000; ++i) {
                store.setObject(i, own);
                store.setObject(u"any", u"common");
                if (store.intForKey(own, -1) != i) return;
                if (i % 5 == 0) store.removeObjectForKey(u"common");
                if (i % 500 == 0 && !store.save()) return;
            }
            store.setObject(true, u"done " + own);
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (int thread = 0; thread < 4; ++thread) {
        CHECK(store.boolForKey(u"done " + integerString(thread)));
    }
    CHECK(Preferences().open(folder / "settings.plist"));
}

}  // namespace QZCore
