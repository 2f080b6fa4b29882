#pragma once

#include "vkd_qt_export.h"

#include "StructRadioButtonGrup.h"
#include "VKD_QT_Widgets.h"

#include <QPointer>

#include <vector>

class QButtonGroup;
class QGridLayout;
class QRadioButton;

/// A group box with radio buttons, whose indexes start at 0. Initially no button is checked. An
/// entry can have a widget next to its button. A click in the widget, or a key that edits its text
/// or moves its cursor, clicks the button. The arrow keys move between the buttons, and the Tab key
/// stops at only one of them.
class VKD_QT_EXPORT VKD_QT_RadioButtonGroup : public VKD_QT_GroupBox
{
    Q_OBJECT

public:
    /// `name` is the object name of the group; the object names of its buttons are
    /// "<name>_<index>". `count` is the number of entries per row in a horizontal group or per
    /// column in a vertical group. If it is not positive, all entries are in one row or column.
    VKD_QT_RadioButtonGroup(const QString& title, const std::vector<StructRadioButtonGrup>& items,
                            QWidget* parent, const char* name,
                            Qt::Orientation orientation = Qt::Vertical, int count = -1);

    /// Replaces the entries. Buttons whose indexes still exist keep their states and widgets. The
    /// widgets of removed entries are deleted.
    void init(const std::vector<StructRadioButtonGrup>& items);

    /// Places a widget next to the button of an entry and takes ownership. A previous widget is
    /// deleted. Has no effect for an entry without the flag WithWidget.
    void setWidget(int entry, QWidget* widget);

    /// Returns the index of the checked entry, or -1 if there is none.
    int selectedButton() const;
    /// Checks an entry without emitting a signal. Invalid indexes are ignored.
    void setButton(int entry);

    /// Returns the button of an entry, or null if the index is invalid.
    QRadioButton* getRadioButton(int entry) const;
    VKD_QT_GroupBox* box();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Emitted when the user has clicked an entry, even if it was already checked.
    void buttWasClicked(int entry);

private:
    bool isEntry(int entry) const;
    void addButton();
    void removeLastButton();
    void describe(int entry);
    void arrange();
    /// Returns the column and the row of the entry's button in the grid. The entry's widget is in
    /// the next column.
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
