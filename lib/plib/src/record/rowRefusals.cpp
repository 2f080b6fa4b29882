#include "record/rowRefusals.h"

#include "record/designRows.h"

#include <QCoreApplication>

namespace plib {

namespace {
struct RefusalText
{
    Q_DECLARE_TR_FUNCTIONS(RowRefusals)
};

QString firstRowText()
{
    return RefusalText::tr("The first row can be neither moved nor deleted.");
}

QString lastRowText()
{
    return RefusalText::tr("This is the last row.");
}
} // namespace

QString moveRefusal(const DesignParameterData& data, int row, int direction)
{
    if (direction < 0 ? mayMoveUp(data, row) : mayMoveDown(data, row))
        return QString();
    if (row < 0)
        return RefusalText::tr("No row is selected.");
    if (row == 0)
        return firstRowText();
    return direction < 0 ? RefusalText::tr("The first row stays first.") : lastRowText();
}

QString deletionRefusal(const std::set<int>& rows)
{
    return rows.count(0) > 0 ? firstRowText() : QString();
}

QString stepRefusal(const DesignParameterData& data, int row, int direction)
{
    if (designRowBeside(data, row, direction) >= 0)
        return QString();
    const int end = direction < 0 ? 0 : int(data.rows.size()) - 1;
    if (row != end)
        return direction < 0 ? RefusalText::tr("The rows above have no design.")
                             : RefusalText::tr("The rows below have no design.");
    return direction < 0 ? RefusalText::tr("This is the first row.") : lastRowText();
}

} // namespace plib
