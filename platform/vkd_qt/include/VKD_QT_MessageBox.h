#pragma once

#include "vkd_qt_export.h"

#include <QMessageBox>

/// Modal boxes for a word with the user. A box that is left by Escape or by closing its window has
/// no button pressed; what it answers then is said at each.
class VKD_QT_EXPORT VKD_QT_MessageBox : public QMessageBox
{
    Q_OBJECT

public:
    /// A warning with up to three of QMessageBox's buttons, 0 for none. Returns the one pressed. If
    /// the user left the box otherwise, that is Cancel, else No, and 0 if it has neither.
    static int warning(QWidget* parent, const QString& title, const QString& text, int button0,
                       int button1, int button2);

    /// A warning with buttons of these texts; without any it has an OK button. `defaultButton` is
    /// the number of the one that Enter presses. Returns the number of the button pressed, and
    /// `escapeButton` if the user left the box otherwise.
    static int warning(QWidget* parent, const QString& title, const QString& text,
                       const QString& button0 = QString(), const QString& button1 = QString(),
                       const QString& button2 = QString(), int defaultButton = 0,
                       int escapeButton = -1);
    /// The same for what has failed.
    static int critical(QWidget* parent, const QString& title, const QString& text,
                        const QString& button0 = QString(), const QString& button1 = QString(),
                        const QString& button2 = QString(), int defaultButton = 0,
                        int escapeButton = -1);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    VKD_QT_MessageBox(Icon icon, QWidget* parent, const QString& title, const QString& text);
    int ask(const QStringList& labels, int defaultButton, int escapeButton);
};
