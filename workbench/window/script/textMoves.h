#pragma once

#include "window/script/TextLines.h"

namespace workbench {

/// The cursor movements that keys can trigger.
enum class TextMove {
    PreviousCharacter,
    NextCharacter,
    PreviousWord,
    NextWord,
    LineStart,
    LineEnd,
    PreviousLine,
    NextLine,
    PreviousPage,
    NextPage,
    Start,
    End
};

/// A cursor position in a text. Moving between lines of different lengths preserves the column.
struct TextPlace
{
    int position = 0;
    int column = 0;
};

/// A range of a text.
struct TextRange
{
    int start = 0;
    int end = 0; ///< position after the last character
};

TextPlace placeAt(const TextLines& lines, int position);
/// Returns the cursor position after a movement. `page` is the number of lines on a page.
TextPlace moved(const TextLines& lines, const TextPlace& from, TextMove move, int page);
/// Returns the word, or the sequence of other characters, at this position.
TextRange wordAt(const TextLines& lines, int position);
/// Returns the line at this position, including its newline.
TextRange lineAt(const TextLines& lines, int position);

} // namespace workbench
