#pragma once

#include "vkd_qt_export.h"

#include "StructRadioButtonGrup.h"
#include "VKD_QT_Widgets.h"

#include <QPointer>

#include <vector>

class QButtonGroup;
class QGridLayout;
class QRadioButton;

/// A group box with radio buttons, numbered from 0; initially none is checked. An entry can have a
/// widget beside its button. Using the widget, with the mouse or with keys that edit or move the
/// cursor, clicks the button. The arrow keys move between the buttons, and the Tab key stops at one
/// of them only.
class VKD_QT_EXPORT VKD_QT_RadioButtonGroup : public VKD_QT_GroupBox
{
    Q_OBJECT

public:
    /// `name` is the object name of the group; its buttons are named "<name>_<number>". `count` is
    /// the number of entries per row of a horizontal group or per column of a vertical one; all
    /// entries if it is not positive.
    VKD_QT_RadioButtonGroup(const QString& title, const std::vector<StructRadioButtonGrup>& items,
                            QWidget* parent, const char* name,
                            Qt::Orientation orientation = Qt::Vertical, int count = -1);

    /// Replaces the entries. Buttons with remaining numbers keep their state and widgets; a removed
    /// entry deletes its widget.
    void init(const std::vector<StructRadioButtonGrup>& items);

    /// Places a widget beside the button of an entry and takes ownership; a previous widget is
    /// deleted. Does nothing for an entry without the flag WithWidget.
    void setWidget(int entry, QWidget* widget);

    /// Returns the number of the checked entry, -1 if there is none.
    int selectedButton() const;
    /// Checks an entry without emitting a signal. Invalid numbers are ignored.
    void setButton(int entry);

    /// Returns the button of an entry; null for an invalid number.
    QRadioButton* getRadioButton(int entry) const;
    VKD_QT_GroupBox* box();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted when the user clicked an entry, even if it was checked already.
    void buttWasClicked(int entry);

private:
    bool isEntry(int entry) const;
    void addButton();
    void removeLastButton();
    void describe(int entry);
    void arrange();
    /// Returns column and row of the entry's button in the grid; its widget uses the next column.
    QPoint placeOf(int entry) const;
    void put(QWidget* widget, const QPoint& place, int columns);
    void chainTabs();
    void setTabStop();
    void watch(QWidget* widget);

    const Qt::Orientation m_orientation;
    const int m_count;
    std::vector<StructRadioButtonGrup> m_items;
    std::vector<QRadioButton*> m_radios;
    std::vector<QPointer<QWidget>> m_widgets; ///< one for each button, most of them null
    QButtonGroup* m_buttons;
    QGridLayout* m_grid;
};
