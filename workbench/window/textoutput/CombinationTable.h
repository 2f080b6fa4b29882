#pragma once

#include "window/textoutput/PickTable.h"

#include <QMap>

class VKD_QT4_ComboBox;

namespace workbench {

/// Combinations of a project, each with its kind, by which many of them can be chosen at once. The
/// kinds are those of VKD_P_RadioGroup::ButtonID, and 0 for all others. Where nothing was said yet
/// the title of the combination proposes its kind.
class CombinationTable : public PickTable
{
    Q_OBJECT

public:
    static constexpr int OtherKind = 0;

    CombinationTable(const QVector<vkd::dbo::LoadCase>& rows, QWidget* parent, const char* name);

    /// The combinations of one kind.
    QVector<int> numbersOf(int kind) const;
    /// Kinds by numbers.
    QMap<int, int> kinds() const;
    /// Rows that are not in `kinds`, or have no kind that there is, get their proposal.
    void setKinds(const QMap<int, int>& kinds);

private:
    VKD_QT4_ComboBox* newKindBox(int row);

    QVector<VKD_QT4_ComboBox*> m_kinds;
};

} // namespace workbench
