#pragma once

#include "vkd_qt_export.h"

#include <QMessageBox>

/// Modal message boxes. If the user presses Escape or closes the window, no button is considered
/// clicked. Each function documents its result in this case.
class VKD_QT_EXPORT VKD_QT_MessageBox : public QMessageBox
{
    Q_OBJECT

public:
    /// Shows a warning with up to three of QMessageBox's buttons, where 0 means no button, and
    /// returns the clicked button. If the user did not click a button, returns Cancel if the box
    /// has this button, otherwise No if the box has that button, otherwise 0.
    static int warning(QWidget* parent, const QString& title, const QString& text, int button0,
                       int button1, int button2);

    /// Shows a warning whose buttons have these labels, or a single OK button if all labels are
    /// empty. `defaultButton` is the index of the button that Enter triggers. Returns the index of
    /// the clicked button, or `escapeButton` if the user did not click a button.
    static int warning(QWidget* parent, const QString& title, const QString& text,
                       const QString& button0 = QString(), const QString& button1 = QString(),
                       const QString& button2 = QString(), int defaultButton = 0,
                       int escapeButton = -1);
    /// Shows an error message; otherwise works like the function above.
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
