#pragma once

#include <QString>

/// An entry of a combo box: its text, its id and an additional number, which is -99999 if unused.
struct ComboList
{
    QString text;
    int id = 0;
    int number = -99999;
};
