#include "QZCore/foundation/log.h"
#include "QZCore/model/undo_manager.h"

namespace QZCore {

void QZSmartUndoManager::endUndoGrouping() {
    if (groupingLevel() >= 1) {
        UndoManager::endUndoGrouping();
    } else {
        logLine(u"Ending an undo group when there are no open undo groups!");
    }
}

void QZSmartUndoManager::closeAllOpenGroups() {
    while (groupingLevel() > 0) endUndoGrouping();
}

void QZSmartUndoManager::undo() {
    if (groupingLevel() > 0) {
        logLine(u"Undo '" + undoActionName() + u"' called with " + unsignedString(groupingLevel()) +
                u" open groups; undo stack is probably corrupted so automatically closing all open "
                u"groups and removing all stored actions so an undo to beginning of session won't "
                u"occur");
        closeAllOpenGroups();
        removeAllActions();
    }
    UndoManager::undo();
}

}  // namespace QZCore
