#include "QZCore/model/undo_manager.h"

#include <random>

#include "support/log_capture.h"
#include "support/printing.h"

namespace QZCore {
namespace {

using testing::LogCapture;

/// A text that can be undone.
class Note {
public:
    explicit Note(UndoManager& manager) : manager_(manager) {}

    void setTitle(const String& title) {
        manager_.prepareWithInvocationTarget(*this).invoke(&Note::setTitle, title_);
        title_ = title;
    }
    [[nodiscard]] const String& title() const { return title_; }

private:
    UndoManager& manager_;
    String title_;
};

}  // namespace

TEST_CASE("undoing and redoing walks through the states of a document") {
    // A history of random edits in random groups, walked at random.
    std::mt19937 random(3);
    UndoManager manager;
    Note notes[] = {Note(manager), Note(manager)};
    const auto state = [&notes] { return notes[0].title() + u"/" + notes[1].title(); };
    std::vector<String> states{state()};
    std::vector<String> names{u"", u""};  // of the steps to each state; none after the last
    std::size_t at = 0;
    for (int step = 0; step < 2000; ++step) {
        CAPTURE(step);
        const unsigned choice = random() % 4;
        if (choice == 0) {
            states.resize(++at);
            names.resize(at);
            const std::size_t inner = random() % 3;
            for (std::size_t i = 0; i <= inner; ++i) manager.beginUndoGrouping();
            for (unsigned edit = 0; edit <= random() % 4; ++edit) {
                notes[random() % 2].setTitle(unsignedString(random() % 1000));
            }
            CHECK(manager.groupingLevel() == inner + 1);
            names.push_back(unsignedString(random() % 2));
            manager.setActionName(names.back());
            for (std::size_t i = 0; i <= inner; ++i) manager.endUndoGrouping();
            names.emplace_back();
            states.push_back(state());
        } else if (choice == 1) {
            manager.redo();
            if (at + 1 < states.size()) ++at;
        } else {
            manager.undo();
            if (at > 0) --at;
        }
        REQUIRE(state() == states[at]);
        REQUIRE(manager.canUndo() == (at > 0));
        REQUIRE(manager.canRedo() == (at + 1 < states.size()));
        REQUIRE(manager.undoActionName() == names[at]);
        REQUIRE(manager.redoActionName() == names[at + 1]);
        REQUIRE(manager.groupingLevel() == 0);
    }
}

TEST_CASE("a group without actions is no step, and nothing is undone while one is open") {
    UndoManager manager;
    Note note(manager);
    manager.beginUndoGrouping();
    manager.endUndoGrouping();
    CHECK_FALSE(manager.canUndo());
    note.setTitle(u"a");  // outside of groups, so a step of its own
    manager.beginUndoGrouping();
    note.setTitle(u"b");
    manager.undo();
    manager.redo();
    CHECK(note.title() == u"b");
    manager.endUndoGrouping();
    manager.undo();
    CHECK(note.title() == u"a");
}

TEST_CASE("a name is that of the open groups, or of the newest step") {
    UndoManager manager;
    Note note(manager);
    manager.setActionName(u"Nothing");
    CHECK(manager.undoActionName().empty());
    note.setTitle(u"a");
    manager.setActionName(u"Typing");
    manager.beginUndoGrouping();
    CHECK(manager.undoActionName() == u"Typing");  // the open group is empty
    note.setTitle(u"b");
    CHECK(manager.undoActionName().empty());
    manager.setActionName(u"Paste");
    CHECK(manager.undoActionName() == u"Paste");
}

TEST_CASE("nothing is registered while registration is off") {
    UndoManager manager;
    Note note(manager);
    manager.enableUndoRegistration();  // is on
    manager.disableUndoRegistration();
    manager.disableUndoRegistration();
    manager.enableUndoRegistration();
    CHECK_FALSE(manager.isUndoRegistrationEnabled());
    note.setTitle(u"a");
    CHECK_FALSE(manager.canUndo());
    manager.enableUndoRegistration();
    note.setTitle(u"b");
    manager.undo();
    CHECK(note.title() == u"a");
}

TEST_CASE("the oldest steps beyond the limit are forgotten") {
    UndoManager manager;
    Note note(manager);
    for (const char16_t* title : {u"1", u"2", u"3", u"4", u"5"}) note.setTitle(title);
    manager.setLevelsOfUndo(3);
    for (int i = 0; i < 5; ++i) manager.undo();
    CHECK(note.title() == u"2");
    manager.setLevelsOfUndo(1);
    for (int i = 0; i < 5; ++i) manager.redo();
    CHECK(note.title() == u"3");  // of the steps to redo, too, those far away go
    note.setTitle(u"6");
    note.setTitle(u"7");
    manager.undo();
    manager.undo();
    CHECK(note.title() == u"6");
}

TEST_CASE("removing actions leaves level and steps consistent") {
    UndoManager manager;
    Note kept(manager);
    Note removed(manager);
    manager.beginUndoGrouping();
    kept.setTitle(u"a");
    removed.setTitle(u"a");
    manager.endUndoGrouping();
    removed.setTitle(u"b");
    manager.beginUndoGrouping();
    removed.setTitle(u"c");
    manager.removeAllActionsWithTarget(&removed);
    CHECK(manager.groupingLevel() == 1);
    manager.endUndoGrouping();
    manager.undo();
    CHECK(kept.title().empty());
    CHECK(removed.title() == u"c");
    CHECK_FALSE(manager.canUndo());

    manager.beginUndoGrouping();
    kept.setTitle(u"d");
    manager.removeAllActions();
    CHECK(manager.groupingLevel() == 1);
    CHECK_FALSE(manager.canRedo());
    kept.setTitle(u"e");
    manager.endUndoGrouping();
    manager.undo();
    CHECK(kept.title() == u"d");
    CHECK_FALSE(manager.canUndo());
}

TEST_CASE("targets may go") {
    UndoManager manager;
    auto target = std::make_shared<int>(0);
    const auto add = [](int& sum, int number) { sum += number; };
    manager.prepareWithInvocationTarget(target).invoke(add, 1);
    manager.prepareWithInvocationTarget(target).invoke(add, 10);
    manager.undo();
    CHECK(*target == 10);
    target = nullptr;
    manager.undo();
    CHECK_FALSE(manager.canUndo());

    // The action is the last to hold its target, which then removes its actions.
    struct Leaving {
        explicit Leaving(UndoManager& known) : manager(known) {}
        ~Leaving() { manager.removeAllActionsWithTarget(this); }
        Leaving(const Leaving&) = delete;
        Leaving& operator=(const Leaving&) = delete;
        UndoManager& manager;
    };
    const auto registerLeaving = [&manager] {
        const auto leaving = std::make_shared<Leaving>(manager);
        manager.registerUndoWithTarget(leaving.get(), [leaving] {});
    };
    for (int i = 0; i < 3; ++i) registerLeaving();
    manager.setLevelsOfUndo(2);
    manager.undo();
    manager.removeAllActions();
    registerLeaving();  // forgotten when the manager goes
}

TEST_CASE("actions of a step may undo, remove one another and leave groups open") {
    UndoManager manager;
    std::vector<int> performed;
    const int target = 0;
    const auto add = [&](int number) {
        manager.registerUndoWithTarget(&target, [&, number] {
            CHECK(manager.isUndoing());
            performed.push_back(number);
        });
    };
    manager.beginUndoGrouping();
    add(1);
    manager.registerUndoWithTarget(nullptr, [&] {
        manager.undo();
        manager.removeAllActionsWithTarget(&target);
        manager.beginUndoGrouping();
    });
    add(2);
    manager.endUndoGrouping();
    manager.undo();
    CHECK(performed == std::vector{2});
    CHECK(manager.groupingLevel() == 0);
    CHECK_FALSE(manager.isUndoing());
}

TEST_CASE("ending a group that was not begun is logged and does nothing") {
    const LogCapture log;
    QZSmartUndoManager manager;
    manager.beginUndoGrouping();
    manager.endUndoGrouping();
    CHECK(log.lines().empty());
    manager.endUndoGrouping();
    CHECK(manager.groupingLevel() == 0);
    CHECK(log.lines() ==
          std::vector<String>{u"Ending an undo group when there are no open undo groups!"});
}

TEST_CASE("undo with open groups forgets everything and undoes nothing") {
    const LogCapture log;
    QZSmartUndoManager manager;
    Note note(manager);
    note.setTitle(u"a");
    manager.beginUndoGrouping();
    manager.beginUndoGrouping();
    note.setTitle(u"b");
    manager.setActionName(u"Typing");
    manager.undo();
    CHECK(log.lines() ==
          std::vector<String>{
              u"Undo 'Typing' called with 2 open groups; undo stack is probably corrupted so "
              u"automatically closing all open groups and removing all stored actions so an undo "
              u"to beginning of session won't occur"});
    CHECK(note.title() == u"b");
    CHECK(manager.groupingLevel() == 0);
    CHECK_FALSE(manager.canUndo());
    CHECK_FALSE(manager.canRedo());
    note.setTitle(u"c");
    manager.undo();
    CHECK(note.title() == u"b");
    CHECK(log.lines().size() == 1);
}

}  // namespace QZCore
