#pragma once

#include "VKD_QT_Dialog.h"

#include <QPointer>

class QTabWidget;
class VKD_QT_Ok;

/// A dialog of pages behind tabs, above OK and Cancel, which accept and reject it. The focus begins
/// in the page that is shown first. The user cannot leave a page while a field of it refuses its
/// text.
class VKD_QT_EXPORT VKD_QT_TabDialog : public VKD_QT_Dialog
{
    Q_OBJECT

public:
    explicit VKD_QT_TabDialog(QWidget* parent = nullptr, const char* name = nullptr,
                              Qt::WindowFlags flags = {});

    /// Adds a page behind the others and becomes its owner. Returns its number.
    int addTab(QWidget* page, const QString& label);

    QTabWidget* tabWidget() const;
    VKD_QT_Ok* okRow() const;

Q_SIGNALS:
    /// Another page is shown. Sent for the first one when the dialog is shown first, and not
    /// before.
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
