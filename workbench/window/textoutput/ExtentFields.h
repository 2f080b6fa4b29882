#pragma once

#include <QWidget>

class QCheckBox;
class VKD_QT4_ComboBox;

namespace workbench {

/// Check boxes for the lists of a text output, and a control that selects which values the lists
/// contain. Like PickTable, this widget can show the result of a rule instead of the user's
/// individual choice.
class ExtentFields : public QWidget
{
    Q_OBJECT

public:
    enum List { System = 1, Loads = 2, Displacements = 4, Forces = 8, Reactions = 16 };
    static constexpr int ResultLists = Displacements | Forces | Reactions;
    static constexpr int AllLists = System | Loads | ResultLists;
    /// Forces and displacements are not included, because these lists are long for a whole model
    /// and few users read them.
    static constexpr int DefaultLists = System | Loads | Reactions;

    explicit ExtentFields(QWidget* parent);

    /// The user's individual choice.
    struct Choice
    {
        int lists = 0; ///< a sum of bits
        bool allValues = false;
    };
    Choice choice() const { return m_showsRule ? m_choice : displayed(); }
    void setChoice(const Choice& choice);

    /// These functions show the individual choice or the result of a rule. They do not emit a
    /// signal.
    void showChosen();
    void showRule(const Choice& rule);

    /// Returns the names of lists as shown on the check boxes, separated by commas.
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
    Choice m_choice; ///< the individual choice while a rule is shown
};

} // namespace workbench
