#pragma once

#include <QWidget>

class QCheckBox;
class VKD_QT4_ComboBox;

namespace workbench {

/// The lists that a text output can hold, to be checked one by one, and which values of the results
/// stand in them. Like a PickTable, it can show what a rule decides instead of what was chosen by
/// hand.
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

    /// What is chosen by hand.
    struct Choice
    {
        int lists = 0; ///< a sum of bits
        bool allValues = false;
    };
    Choice choice() const { return m_showsRule ? m_choice : displayed(); }
    void setChoice(const Choice& choice);

    /// Neither tells of a change.
    void showChosen();
    void showRule(const Choice& rule);

    /// The names of lists with commas between them, as the boxes have them.
    static QString listNames(int lists);
    static QString valuesName(bool all);

Q_SIGNALS:
    void changed();

private:
    Choice displayed() const;
    void display(const Choice& choice);

    QVector<QCheckBox*> m_boxes; ///< in the order of the bits
    VKD_QT4_ComboBox* m_values;
    bool m_showsRule = false;
    Choice m_choice; ///< by hand, while a rule is shown
};

} // namespace workbench
