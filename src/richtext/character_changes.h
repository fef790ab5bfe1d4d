// One change of characters in many ranges of a text.
#pragma once

#include "QZCore/richtext/editing_commands.h"

namespace QZCore {

/// Changes ranges one after the other. The first change makes the attributes of
/// the whole text consistent; a later one then leaves only its own paragraphs
/// to look at, so that many ranges cost little more than one. Text and change
/// must outlive this.
class CharacterChanges {
public:
    CharacterChanges(RichText& text, const CharacterChange& change)
        : text_(text), change_(change) {}

    /// Changes the characters in `range` as one batch of edits. Nothing happens
    /// in an empty range.
    void changeCharacters(Range range);

private:
    RichText& text_;
    const CharacterChange& change_;
    bool isConsistent_ = false;
};

}  // namespace QZCore
