#pragma once

#include "VKD_QT_Dialog.h"

#include <QPointer>

class QTabWidget;
class VKD_QT_Ok;

/// A dialog with pages in tabs and the buttons OK and Cancel. Initially the first visible page has
/// focus. The user cannot leave a page while one of its fields rejects its text.
class VKD_QT_EXPORT VKD_QT_TabDialog : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    explicit VKD_QT_TabDialog(QWidget* parent = nullptr, const char* name = nullptr,
                              Qt::WindowFlags flags = {});

    /// Appends a page and takes ownership. Returns its index.
    int addTab(QWidget* page, const QString& label);

    QTabWidget* tabWidget() const;

protected:
    VKD_QT_Ok* buttons() const { return m_ok; }

Q_SIGNALS:
    /// Emitted when another page is shown. For the first page, the signal is emitted when the
    /// dialog is shown for the first time.
    void currentChanged(QWidget* page);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void chainButtons();
    void enterPage();
    void tellPage();

    QTabWidget* m_tabs;
    VKD_QT_Ok* m_ok;
    QPointer<QWidget> m_told;
    bool m_wasShown = false;
};
