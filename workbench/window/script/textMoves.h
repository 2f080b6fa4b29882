#pragma once

#include "window/script/TextLines.h"

namespace workbench {

/// The ways in which keys move the cursor of a text.
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

/// A place in a text. Moves between lines of different lengths preserve the column.
struct TextPlace
{
    int position = 0;
    int column = 0;
};

/// A part of a text.
struct TextRange
{
    int start = 0;
    int end = 0; ///< after the last character
};

TextPlace placeAt(const TextLines& lines, int position);
/// `page` is the number of lines of a page.
TextPlace moved(const TextLines& lines, const TextPlace& from, TextMove move, int page);
/// Returns the word or the run of other characters at this position.
TextRange wordAt(const TextLines& lines, int position);
/// Returns the line at this position with its line end.
TextRange lineAt(const TextLines& lines, int position);

} // namespace workbench
