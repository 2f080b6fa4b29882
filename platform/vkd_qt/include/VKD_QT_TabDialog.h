#pragma once

#include "VKD_QT_Dialog.h"

#include <QPointer>

class QTabWidget;
class VKD_QT_Ok;

/// A dialog with pages in tabs and the buttons OK and Cancel. The focus starts in the first page
/// shown. The user cannot leave a page while one of its fields refuses its text.
class VKD_QT_EXPORT VKD_QT_TabDialog : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    explicit VKD_QT_TabDialog(QWidget* parent = nullptr, const char* name = nullptr,
                              Qt::WindowFlags flags = {});

    /// Appends a page and takes ownership. Returns its number.
    int addTab(QWidget* page, const QString& label);

    QTabWidget* tabWidget() const;

protected:
    VKD_QT_Ok* buttons() const { return m_ok; }

Q_SIGNALS:
    /// Emitted when another page is shown; for the first page, when the dialog is shown first.
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
