#pragma once

#include "vkd_qt_export.h"

#include <QMessageBox>

/// Modal message boxes. If the user presses Escape or closes the window, no button counts as
/// pressed; each function documents its result in this case.
class VKD_QT_EXPORT VKD_QT_MessageBox : public QMessageBox
{
    Q_OBJECT

public:
    /// Shows a warning with up to three of QMessageBox's buttons, 0 for none, and returns the
    /// pressed one. If the user closed the box otherwise, returns Cancel, else No, and 0 if it has
    /// neither.
    static int warning(QWidget* parent, const QString& title, const QString& text, int button0,
                       int button1, int button2);

    /// Shows a warning with buttons of these texts, or with an OK button if all texts are empty.
    /// `defaultButton` is the number of the button that Enter presses. Returns the number of the
    /// pressed button, or `escapeButton` if the user closed the box otherwise.
    static int warning(QWidget* parent, const QString& title, const QString& text,
                       const QString& button0 = QString(), const QString& button1 = QString(),
                       const QString& button2 = QString(), int defaultButton = 0,
                       int escapeButton = -1);
    /// Shows an error message in the same way.
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
