#pragma once

#include "vkd_qt_export.h"

#include <QWidget>

class QDialogButtonBox;
class QPushButton;

/// The row of buttons at the bottom of a dialog, in the desktop's language and order. The caller
/// connects the buttons.
class VKD_QT_EXPORT VKD_QT_Ok : public QWidget
{
    Q_OBJECT

public:
    /// `buttons` is a sum of 1 for OK and 2 for Cancel.
    VKD_QT_Ok(QWidget* parent, int buttons, const char* name);

    /// Return null if the button was not requested.
    QPushButton* cmdOk() const;
    QPushButton* cmdCancel() const;

private:
    QDialogButtonBox* m_buttons;
};
