#pragma once

#include "window/textoutput/PickTable.h"

#include <QMap>

class VKD_QT4_ComboBox;

namespace workbench {

/// The combinations of a project, each with its kind, so that a rule can select all combinations of
/// a kind. Kinds are values of VKD_P_RadioGroup::ButtonID, or 0 for other combinations. Until a
/// kind is chosen, it is guessed from the title of the combination.
class CombinationTable : public PickTable
{
    Q_OBJECT

public:
    static constexpr int OtherKind = 0;

    CombinationTable(const QVector<vkd::dbo::LoadCase>& rows, QWidget* parent, const char* name);

    /// Returns the combinations of one kind.
    QVector<int> numbersOf(int kind) const;
    /// Returns the kinds by the numbers of the combinations.
    QMap<int, int> kinds() const;
    /// Sets the kinds. Rows without a valid kind in `kinds` get the kind guessed from the title.
    void setKinds(const QMap<int, int>& kinds);

private:
    VKD_QT4_ComboBox* newKindBox(int row);

    QVector<VKD_QT4_ComboBox*> m_kinds;
};

} // namespace workbench
