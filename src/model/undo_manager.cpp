#include "QZCore/model/undo_manager.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace QZCore {

// An action that goes away may let go of the last reference to its target, and
// the target may then remove its actions. So what is forgotten is always taken
// out first and destroyed when the manager is in order again.

UndoManager::UndoManager() = default;
UndoManager::~UndoManager() { removeAllActions(); }

// ---- Groups ----

void UndoManager::beginUndoGrouping() { ++groupingLevel_; }

void UndoManager::endUndoGrouping() {
    if (groupingLevel_ == 0) return;
    if (--groupingLevel_ == 0) keepOpenStep();
}

void UndoManager::keepOpenStep() {
    Step step = std::exchange(openStep_, {});
    if (!step.actions.empty()) keep(std::move(step));
}

void UndoManager::keep(Step step) {
    Steps& steps = isUndoing() ? redoSteps_ : undoSteps_;
    steps.push_back(std::move(step));
    dropOldest(steps);
}

// ---- Registering ----

void UndoManager::registerUndoWithTarget(const void* target, UndoAction handler) {
    if (!isUndoRegistrationEnabled()) return;
    if (activity_ == Activity::Recording && canRedo()) {
        const Steps forgotten = std::exchange(redoSteps_, {});
    }
    openStep_.actions.push_back({target, std::move(handler)});
    if (groupingLevel_ == 0) keepOpenStep();
}

void UndoManager::enableUndoRegistration() {
    if (timesDisabled_ > 0) --timesDisabled_;
}

// ---- Undoing and redoing ----

/// While this lives, a step is being undone or redone.
class UndoManager::Performance {
public:
    Performance(UndoManager& manager, Activity activity, Step step) : manager_(manager) {
        manager_.activity_ = activity;
        manager_.openStep_.name = step.name;
        manager_.performing_ = std::move(step);
        manager_.groupingLevel_ = 1;
    }
    // Groups that the actions left open are closed, too.
    ~Performance() {
        manager_.performing_ = {};
        manager_.groupingLevel_ = 0;
        manager_.keepOpenStep();
        manager_.activity_ = Activity::Recording;
    }
    Performance(const Performance&) = delete;
    Performance& operator=(const Performance&) = delete;

private:
    UndoManager& manager_;
};

void UndoManager::undo() { perform(undoSteps_, Activity::Undoing); }
void UndoManager::redo() { perform(redoSteps_, Activity::Redoing); }

void UndoManager::perform(Steps& steps, Activity activity) {
    if (activity_ != Activity::Recording || groupingLevel_ > 0 || steps.empty()) return;
    Step step = std::move(steps.back());
    steps.pop_back();
    const Performance performance(*this, activity, std::move(step));
    // An action may remove others that are still to come.
    while (!performing_.actions.empty()) {
        UndoAction action = std::move(performing_.actions.back().action);
        performing_.actions.pop_back();
        action.perform();
    }
}

// ---- Names ----

void UndoManager::setActionName(StringView actionName) {
    if (groupingLevel_ > 0) {
        openStep_.name = actionName;
    } else if (canUndo()) {
        undoSteps_.back().name = actionName;
    }
}

String UndoManager::undoActionName() const {
    const bool openStepIsNext = !openStep_.name.empty() || !openStep_.actions.empty();
    if (openStepIsNext) return openStep_.name;
    return canUndo() ? undoSteps_.back().name : String();
}

String UndoManager::redoActionName() const { return canRedo() ? redoSteps_.back().name : String(); }

// ---- Limits ----

void UndoManager::setLevelsOfUndo(std::size_t levelsOfUndo) {
    levelsOfUndo_ = levelsOfUndo;
    dropOldest(undoSteps_);
    dropOldest(redoSteps_);
}

void UndoManager::dropOldest(Steps& steps) const {
    if (levelsOfUndo_ == 0) return;
    while (steps.size() > levelsOfUndo_) {
        const Step forgotten = std::move(steps.front());
        steps.pop_front();
    }
}

void UndoManager::removeAllActions() {
    const Steps forgottenUndo = std::exchange(undoSteps_, {});
    const Steps forgottenRedo = std::exchange(redoSteps_, {});
    const Step forgottenOpen = std::exchange(openStep_, {});
    const Step forgottenRest = std::exchange(performing_, {});
}

void UndoManager::Step::moveActionsWithTarget(const void* target, Actions& removed) {
    const auto isKept = [target](const auto& action) { return action.target != target; };
    const auto firstRemoved = std::stable_partition(actions.begin(), actions.end(), isKept);
    std::move(firstRemoved, actions.end(), std::back_inserter(removed));
    actions.erase(firstRemoved, actions.end());
}

void UndoManager::removeAllActionsWithTarget(const void* target) {
    Actions forgotten;
    for (Steps* steps : {&undoSteps_, &redoSteps_}) {
        for (Step& step : *steps) step.moveActionsWithTarget(target, forgotten);
        std::erase_if(*steps, [](const Step& step) { return step.actions.empty(); });
    }
    openStep_.moveActionsWithTarget(target, forgotten);
    performing_.moveActionsWithTarget(target, forgotten);
}

}  // namespace QZCore
