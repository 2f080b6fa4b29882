#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_Widgets.h>

#include <map>

class QHBoxLayout;
class VKD_H_TableWidget;

/// A group box with a table and buttons that act on it. While the table or a widget in it has the
/// focus, Insert presses the button New, and Delete the button Delete. The table handles these keys
/// itself unless setContextmenueEnabled_new_del(false) was called.
class VKD_H_EXPORT VKD_H_TableWidgetBox : public VKD_QT_GroupBox
{
    Q_OBJECT

public:
    enum Buttons {
        New = 0,
        Delete = 1,
    };

    /// createDefaultLayout() makes `table` a child; before that, the box does not own it.
    VKD_H_TableWidgetBox(VKD_H_TableWidget* table, const QString& title, QWidget* parent,
                         const char* name);

    /// Arranges the table and the row of buttons above or below it; with neither, the row is left
    /// out.
    void createDefaultLayout(bool buttonsAbove, bool buttonsBelow);
    /// Adds a button to the row, at the right end if `toTheRight` is true.
    void addButton(Buttons button, bool toTheRight);
    /// Returns the button, or null if it was not added.
    QPushButton* getButton(Buttons button) const;
    /// Adds a widget to the row, after the other widgets at the left.
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
