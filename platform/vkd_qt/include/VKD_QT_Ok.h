#pragma once

#include "vkd_qt_export.h"

#include <QWidget>

class QDialogButtonBox;
class QPushButton;

/// The row of buttons at the bottom of a dialog, with the language and button order of the desktop.
/// The caller connects the buttons.
class VKD_QT_EXPORT VKD_QT_Ok : public QWidget
{
    Q_OBJECT

public:
    /// `buttons` is the sum of 1 for OK and 2 for Cancel.
    VKD_QT_Ok(QWidget* parent, int buttons, const char* name);

    /// These functions return the OK button and the Cancel button, or null if the button was not
    /// requested.
    QPushButton* cmdOk() const;
    QPushButton* cmdCancel() const;

private:
    QDialogButtonBox* m_buttons;
};
