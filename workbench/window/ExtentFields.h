#pragma once

#include <QWidget>

class QCheckBox;
class VKD_QT4_ComboBox;

namespace workbench {

/// The lists that a text output can hold, to be checked one by one, and which values of the results
/// stand in them.
class ExtentFields : public QWidget
{
    Q_OBJECT

public:
    enum List { System = 1, Loads = 2, Displacements = 4, Forces = 8, Reactions = 16 };
    static constexpr int ResultLists = Displacements | Forces | Reactions;
    static constexpr int AllLists = System | Loads | ResultLists;
    /// Forces and displacements of a whole model are long, and few read them.
    static constexpr int DefaultLists = System | Loads | Reactions;

    explicit ExtentFields(QWidget* parent);

    /// The lists that are checked, a sum of bits.
    int lists() const;
    void setLists(int lists);
    bool allValues() const;
    void setAllValues(bool all);

    /// The names of lists with commas between them, as the boxes have them.
    static QString listNames(int lists);
    static QString valuesName(bool all);

Q_SIGNALS:
    void changed();

private:
    QVector<QCheckBox*> m_boxes; ///< in the order of the bits
    VKD_QT4_ComboBox* m_values;
};

} // namespace workbench
