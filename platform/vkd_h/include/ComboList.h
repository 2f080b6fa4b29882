#pragma once

#include <QString>

/// An entry of a combo box: its text, its id, and a third number that is -99999 where it has no
/// meaning.
struct ComboList
{
    QString text;
    int id = 0;
    int number = -99999;
};
