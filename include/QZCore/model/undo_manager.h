// Undo and redo.
//
// A change registers the action that takes it back. Actions that are registered
// while a group is open make one step together; an action outside of groups is
// a step of its own. Undoing a step performs its actions, last first; what
// these register in turn becomes the step that redoes it.
//
// A manager is used on the thread that owns the document.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <vector>

#include "QZCore/export.h"
#include "QZCore/foundation/text.h"
#include "QZCore/model/undo_action.h"

namespace QZCore {

/// Keeps the steps that can be undone and redone.
class QZ_EXPORT UndoManager {
public:
    /// A manager without steps.
    UndoManager();
    /// Forgets all actions.
    virtual ~UndoManager();

    // ---- Groups ----

    /// Opens a group, inside the one that is open, if there is one.
    virtual void beginUndoGrouping();

    /// Closes the innermost group. Its actions go to the group around it; those
    /// of the outermost become a step. A group without actions makes none. With
    /// no open group nothing happens.
    virtual void endUndoGrouping();

    /// The number of open groups. While a step is undone or redone, one is open
    /// for what its actions register.
    [[nodiscard]] std::size_t groupingLevel() const { return groupingLevel_; }

    // ---- Registering ----

    /// Registers what takes a change of `target` back. The target serves only
    /// to remove its actions; the manager does not own it. Unless something is
    /// being undone or redone, nothing can be redone afterwards.
    void registerUndoWithTarget(const void* target, UndoAction handler);

    /// For registering a call on `target`, as in
    /// `manager.prepareWithInvocationTarget(note).invoke(&Note::setTitle, old)`.
    /// The target's actions have to be removed before the target goes.
    template <class Target>
    [[nodiscard]] UndoInvocation<UndoManager, Target*> prepareWithInvocationTarget(Target& target) {
        return {*this, &target, &target};
    }

    /// The same for a shared target. It is not kept alive; calls on a target
    /// that has gone are not made.
    template <class Target>
    [[nodiscard]] UndoInvocation<UndoManager, std::weak_ptr<Target>> prepareWithInvocationTarget(
        std::shared_ptr<Target> target) {
        return {*this, target.get(), std::weak_ptr<Target>(target)};
    }

    /// Switches registering off, until `enableUndoRegistration` has been called
    /// as often.
    void disableUndoRegistration() { ++timesDisabled_; }

    /// Takes one `disableUndoRegistration` back. Without one, nothing happens.
    void enableUndoRegistration();

    /// Whether actions are registered; else they are dropped.
    [[nodiscard]] bool isUndoRegistrationEnabled() const { return timesDisabled_ == 0; }

    // ---- Undoing and redoing ----

    /// Undoes the newest step. With nothing to undo, while a group is open, and
    /// from within an action that is being undone or redone, nothing happens.
    virtual void undo();

    /// Redoes the step undone last, under the same conditions.
    virtual void redo();

    /// Whether there is a step to undo.
    [[nodiscard]] bool canUndo() const { return !undoSteps_.empty(); }
    /// Whether there is a step to redo.
    [[nodiscard]] bool canRedo() const { return !redoSteps_.empty(); }
    /// Whether a step is being undone.
    [[nodiscard]] bool isUndoing() const { return activity_ == Activity::Undoing; }
    /// Whether a step is being redone.
    [[nodiscard]] bool isRedoing() const { return activity_ == Activity::Redoing; }

    // ---- Names ----

    /// Names the step that the open groups will make, or, with no open group,
    /// the newest step. Undoing hands the name on to the step that redoes.
    void setActionName(StringView actionName);

    /// The name of the step that is next to be undone, the one that the open
    /// groups will make before the finished ones. Empty when it has no name or
    /// there is no step.
    [[nodiscard]] String undoActionName() const;

    /// The name of the step that is next to be redone; empty as above.
    [[nodiscard]] String redoActionName() const;

    // ---- Limits ----

    /// The largest number of steps that are kept; 0, as at first, is no limit.
    [[nodiscard]] std::size_t levelsOfUndo() const { return levelsOfUndo_; }

    /// Keeps at most `levelsOfUndo` steps to undo, and as many to redo. The
    /// oldest go first, those beyond the limit at once.
    void setLevelsOfUndo(std::size_t levelsOfUndo);

    /// Forgets all steps, and the actions in open groups. The groups stay open.
    /// Of a step that is being undone or redone, the rest is not performed.
    void removeAllActions();

    /// Forgets all actions registered with `target`. Steps that are left without
    /// actions go, too.
    void removeAllActionsWithTarget(const void* target);

    UndoManager(const UndoManager&) = delete;
    UndoManager& operator=(const UndoManager&) = delete;

private:
    enum class Activity : std::uint8_t { Recording, Undoing, Redoing };

    struct TargetedAction {
        const void* target;
        UndoAction action;
    };

    using Actions = std::vector<TargetedAction>;

    /// Inner groups need not be told apart: they are undone together.
    struct Step {
        String name;
        Actions actions;

        void moveActionsWithTarget(const void* target, Actions& removed);
    };

    using Steps = std::deque<Step>;

    class Performance;

    void perform(Steps& steps, Activity activity);
    void keepOpenStep();
    void keep(Step step);
    void dropOldest(Steps& steps) const;

    Steps undoSteps_;
    Steps redoSteps_;
    Step openStep_;    // what the open groups hold
    Step performing_;  // what is left to do of the step being undone or redone
    std::size_t groupingLevel_ = 0;
    std::size_t levelsOfUndo_ = 0;
    std::size_t timesDisabled_ = 0;
    Activity activity_ = Activity::Recording;
};

/// The application's undo manager. Groups that were left open cannot turn one
/// undo into an undo of the whole session.
class QZ_EXPORT QZSmartUndoManager : public UndoManager {
public:
    /// Closes the innermost group. With no open group, logs "Ending an undo
    /// group when there are no open undo groups!" and does nothing.
    void endUndoGrouping() override;

    /// Ends groups until none is open.
    void closeAllOpenGroups();

    /// Undoes the newest step. When groups are open, the steps cannot be
    /// trusted: that is logged, the groups are closed, and all steps are
    /// forgotten, deliberately, rather than undone at once.
    void undo() override;
};

}  // namespace QZCore
