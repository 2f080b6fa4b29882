#pragma once

#include <QString>

/// An entry of a group of radio buttons.
struct StructRadioButtonGrup
{
    static constexpr int WithWidget = 1;

    int id = -1;       ///< a number for the caller; the group counts its entries from 0
    QString text;      ///< the text of the button
    QString toolTip;   ///< also the accessible name of an entry without text
    QString whatsThis; ///< a longer explanation, shown by Shift+F1
    int flag = 0;      ///< WithWidget: the entry can have a widget of the caller
};
