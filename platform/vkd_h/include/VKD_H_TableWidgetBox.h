#pragma once

#include "vkd_h_export.h"

#include <VKD_QT_Widgets.h>

#include <map>

class QHBoxLayout;
class VKD_H_TableWidget;

/// A frame with a title around a table and the buttons that act on it. The button New can also be
/// pressed by the key Insert, Delete by the key Delete, while the table or a widget in it has the
/// focus; these keys are the table's own unless setContextmenueEnabled_new_del(false) was called.
class VKD_H_EXPORT VKD_H_TableWidgetBox : public VKD_QT_GroupBox
{
    Q_OBJECT

public:
    enum Buttons {
        New = 0,
        Delete = 1,
    };

    /// `table` is not owned by the frame until createDefaultLayout() makes it a child.
    VKD_H_TableWidgetBox(VKD_H_TableWidget* table, const QString& title, QWidget* parent,
                         const char* name);

    /// The table with its row of buttons above or below it; with neither, there is no row.
    void createDefaultLayout(bool buttonsAbove, bool buttonsBelow);
    /// Adds a button to the row, at its right end if `toTheRight` is set.
    void addButton(Buttons button, bool toTheRight);
    /// Null if it was not added.
    QPushButton* getButton(Buttons button) const;
    /// Adds a widget to the row, behind what stands there at the left.
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
