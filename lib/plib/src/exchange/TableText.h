#pragma once

#include <QCoreApplication>

namespace plib {

/// Translates messages about tables of rows.
struct TableText
{
    Q_DECLARE_TR_FUNCTIONS(RowTable)
};

} // namespace plib
