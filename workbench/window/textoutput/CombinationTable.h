#pragma once

#include "window/textoutput/PickTable.h"

#include <QMap>

class VKD_QT4_ComboBox;

namespace workbench {

/// The combinations of a project, each with its kind, so that a rule can select all combinations of
/// a kind. Kinds are values of VKD_P_RadioGroup::ButtonID, or 0 for other combinations. Until the
/// user chooses a kind, it is guessed from the title of the combination.
class CombinationTable : public PickTable
{
    Q_OBJECT

public:
    static constexpr int OtherKind = 0;

    CombinationTable(const QVector<vkd::dbo::LoadCase>& rows, QWidget* parent, const char* name);

    QString kindInRow(int row) const override;
    /// Returns the combinations of one kind.
    QVector<int> numbersOf(int kind) const;
    /// Returns the kinds, keyed by combination number.
    QMap<int, int> kinds() const;
    /// Sets the kinds. For rows without a valid kind in `kinds`, the kind is guessed from the
    /// title.
    void setKinds(const QMap<int, int>& kinds);

private:
    VKD_QT4_ComboBox* newKindBox(int row);

    QVector<VKD_QT4_ComboBox*> m_kinds;
};

} // namespace workbench
