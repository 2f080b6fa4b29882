#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_Widgets.h>

#include <map>

class QHBoxLayout;
class VKD_H_TableWidget;

/// A group box with a table and buttons that operate on it. While the table or a widget in it has
/// focus, the Insert key clicks the New button, and the Delete key clicks the Delete button. The
/// table handles these keys itself unless setContextmenueEnabled_new_del(false) was called.
class VKD_H_EXPORT VKD_H_TableWidgetBox : public VKD_QT_GroupBox
{
    Q_OBJECT

public:
    /// Buttons that addButton() can add. The caller connects them.
    enum Buttons {
        New = 0,
        Delete = 1,
    };

    /// The box does not own `table` until createDefaultLayout() makes it a child.
    VKD_H_TableWidgetBox(VKD_H_TableWidget* table, const QString& title, QWidget* parent,
                         const char* name);

    /// Lays out the table, with the button row above or below it. If both arguments are false, the
    /// row is omitted.
    void createDefaultLayout(bool buttonsAbove, bool buttonsBelow);
    /// Adds a button to the button row, at the right end if `toTheRight` is true.
    void addButton(Buttons button, bool toTheRight);
    /// Returns the button, or null if it was not added.
    QPushButton* getButton(Buttons button) const;
    /// Adds a widget to the button row, after the other widgets on the left.
    void addWidget(QWidget* widget);

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();

    VKD_H_TableWidget* m_table;
    QHBoxLayout* m_row;
    int m_left = 0;
    std::map<Buttons, QPushButton*> m_buttons;
};
