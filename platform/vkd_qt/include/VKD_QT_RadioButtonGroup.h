#pragma once

#include "vkd_qt_export.h"

#include "StructRadioButtonGrup.h"
#include "VKD_QT_Widgets.h"

#include <QPointer>

#include <vector>

class QButtonGroup;
class QGridLayout;
class QRadioButton;

/// A frame with a choice of one among several entries, numbered from 0, and none before the first
/// choice. An entry may bear a widget beside its button; to use it, by the mouse or by keys other
/// than those that only pass through, chooses the entry as a click on its button does. The arrow
/// keys choose among the buttons, which are one stop of the Tab key.
class VKD_QT_EXPORT VKD_QT_RadioButtonGroup : public VKD_QT_GroupBox
{
    Q_OBJECT

public:
    /// `name` is the object name of the group; that of its buttons is "<name>_<number>". `count` is
    /// how many entries stand in one row if the group is horizontal, or in one column if it is
    /// vertical; all of them if it is not positive.
    VKD_QT_RadioButtonGroup(const QString& title, const std::vector<StructRadioButtonGrup>& items,
                            QWidget* parent, const char* name,
                            Qt::Orientation orientation = Qt::Vertical, int count = -1);

    /// Sets the entries anew. Buttons of the numbers that stay are kept, with their choice and
    /// their widgets; an entry that goes takes its widget with it.
    void init(const std::vector<StructRadioButtonGrup>& items);

    /// Puts a widget beside the button of an entry, in place of an earlier one, which is deleted.
    /// Becomes its owner. Nothing happens for an entry that is not WithWidget.
    void setWidget(int entry, QWidget* widget);

    /// The number of the chosen entry, -1 if there is none.
    int selectedButton() const;
    /// Chooses an entry without a signal. A number without entry changes nothing.
    void setButton(int entry);

    /// Null for a number without entry.
    QRadioButton* getRadioButton(int entry) const;
    VKD_QT_GroupBox* box();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user clicked an entry, also the chosen one.
    void buttWasClicked(int entry);

private:
    bool isEntry(int entry) const;
    void addButton();
    void removeLastButton();
    void describe(int entry);
    void arrange();
    /// The column and the row of the entry's button in the grid; its widget has the next column.
    QPoint placeOf(int entry) const;
    void put(QWidget* widget, const QPoint& place, int columns);
    void chainTabs();
    void setTabStop();
    void watch(QWidget* widget);

    const Qt::Orientation m_orientation;
    const int m_count;
    std::vector<StructRadioButtonGrup> m_items;
    std::vector<QRadioButton*> m_radios;
    std::vector<QPointer<QWidget>> m_widgets; ///< as many as buttons, most of them null
    QButtonGroup* m_buttons;
    QGridLayout* m_grid;
};
