#pragma once

#include "vkd_qt_export.h"

#include <QWidget>

class QDialogButtonBox;
class QPushButton;

/// The row of buttons at the foot of a dialog, in the language and the order of the desktop. It
/// connects nothing.
class VKD_QT_EXPORT VKD_QT_Ok : public QWidget
{
    Q_OBJECT

public:
    /// `buttons` is a sum of 1 for OK and 2 for Cancel.
    VKD_QT_Ok(QWidget* parent, int buttons, const char* name);

    /// Null for a button that was not asked for.
    QPushButton* cmdOk() const;
    QPushButton* cmdCancel() const;

private:
    QDialogButtonBox* m_buttons;
};
