#include "VKD_QT_TabDialog.h"

#include "dialogs/PageTabs.h"
#include "VKD_QT_Layouts.h"
#include "VKD_QT_Ok.h"

#include <QPushButton>

VKD_QT_TabDialog::VKD_QT_TabDialog(QWidget* parent, const char* name, Qt::WindowFlags flags)
    : VKD_QT_Dialog(parent, name, flags)
    , m_tabs(new PageTabs(this))
    , m_ok(new VKD_QT_Ok(this, 3, "okayandcancelbutton"))
{
    m_tabs->setObjectName(QStringLiteral("tabs"));
    auto layout = new VKD_QT_VBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(m_ok);
    connect(m_ok->cmdOk(), &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ok->cmdCancel(), &QPushButton::clicked, this, &QDialog::reject);
    connect(m_tabs, &QTabWidget::currentChanged, this, &VKD_QT_TabDialog::tellPage);
}

int VKD_QT_TabDialog::addTab(QWidget* page, const QString& label)
{
    return m_tabs->addTab(page, label);
}

QTabWidget* VKD_QT_TabDialog::tabWidget() const
{
    return m_tabs;
}

void VKD_QT_TabDialog::showEvent(QShowEvent* event)
{
    VKD_QT_Dialog::showEvent(event);
    chainButtons();
    enterPage();
    m_wasShown = true;
    tellPage();
}

/// Moves the buttons to the end of the tab order, because pages are created after the buttons. The
/// focus chain also contains the lists of combo boxes, which have their own windows.
void VKD_QT_TabDialog::chainButtons()
{
    QWidget* last = m_tabs;
    for (QWidget* widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain())
        if ((widget->focusPolicy() & Qt::TabFocus) && widget->window() == window() &&
            isAncestorOf(widget) && !m_ok->isAncestorOf(widget))
            last = widget;
    for (QWidget* button : {m_ok->cmdOk(), m_ok->cmdCancel()}) {
        setTabOrder(last, button);
        last = button;
    }
}

/// Moves the focus to the first field of the page. Otherwise, the default button would have the
/// focus. A dialog that is embedded in a window does not take the focus from other parts of the
/// window.
void VKD_QT_TabDialog::enterPage()
{
    const QWidget* page = m_tabs->currentWidget();
    if (!page || focusWidget() || !isWindow())
        return;
    for (QWidget* widget = m_tabs->nextInFocusChain(); widget != m_tabs;
         widget = widget->nextInFocusChain())
        if (page->isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) &&
            widget->isEnabled() && widget->isVisible())
            return widget->setFocus();
}

void VKD_QT_TabDialog::tellPage()
{
    QWidget* page = m_tabs->currentWidget();
    if (!m_wasShown || !page || page == m_told)
        return;
    m_told = page;
    Q_EMIT currentChanged(page);
}
