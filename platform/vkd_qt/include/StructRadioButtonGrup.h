#pragma once

#include <QString>

/// An entry of a group of radio buttons.
struct StructRadioButtonGrup
{
    static constexpr int WithWidget = 1;

    int id = -1;       ///< a number for the caller, independent of the entry's index
    QString text;      ///< text of the button
    QString toolTip;   ///< also the accessible name of an entry without text
    QString whatsThis; ///< longer explanation, shown by Shift+F1
    int flag = 0;      ///< WithWidget: the caller can add a widget to the entry
};
