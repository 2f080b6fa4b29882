#pragma once

#include <QString>

/// An entry of a group of radio buttons.
struct StructRadioButtonGrup
{
    static constexpr int WithWidget = 1;

    int id = -1;       ///< the caller's own number; the group counts its entries from 0
    QString text;      ///< what stands at the button
    QString toolTip;   ///< also read out for an entry without text
    QString whatsThis; ///< the longer explanation, at Shift+F1
    int flag = 0;      ///< WithWidget: the entry has room for a widget of the caller
};
