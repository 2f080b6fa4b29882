#include "window/design/DesignDock.h"

#include "window/design/DesignPage.h"
#include "window/support/HelpKey.h"

#include <vkd_qt_icon_named.h>

#include <QAction>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>

namespace workbench {

DesignDock::DesignDock(QWidget* parent)
    : PageDock(QStringLiteral("DesignDock"), parent)
    , m_place(new QScrollArea(this))
    , m_tools(new QVBoxLayout)
    , m_presets(new QPushButton(this))
    , m_apply(new QPushButton(this))
{
    setHelpTopic(this, "MERDAN/PARA");
    m_place->setWidgetResizable(true); // the page may be wider than the window
    m_place->setFrameShape(QFrame::NoFrame);
    m_place->setFocusPolicy(Qt::NoFocus);
    m_presets->setObjectName(QStringLiteral("DesignPresets"));
    m_apply->setObjectName(QStringLiteral("DesignApply"));
    m_apply->setIcon(vkd::qt::icon(QStringLiteral(":/icon/program/save")));
    auto content = new QWidget(this);
    auto layout = new QHBoxLayout(content); // the buttons are beside the page
    layout->setContentsMargins(6, 0, 6, 6);
    layout->addWidget(m_place, 1);
    layout->addLayout(m_tools);
    m_tools->addWidget(m_presets);
    m_tools->addStretch();
    m_tools->addWidget(m_apply);
    setWidget(content);
    setModified(false);
    connect(m_presets, &QPushButton::clicked, this,
            [this] { m_page->findChild<QAction*>(QStringLiteral("presets"))->trigger(); });
    connect(m_apply, &QPushButton::clicked, this, &DesignDock::applyRequested);
}

void DesignDock::setPage(std::unique_ptr<DesignPage> page)
{
    const bool hadFocus = m_page && m_page->isAncestorOf(window()->focusWidget());
    m_page = nullptr;
    delete m_place->takeWidget();
    if (page) {
        m_page = page.release();
        m_place->setWidget(m_page);
        m_place->setMinimumHeight(m_page->minimumSizeHint().height());
        m_page->show();
        setFocusProxy(m_page);
        orderTabs();
        if (hadFocus)
            m_page->setFocus();
    }
    m_presets->setEnabled(m_page);
    Q_EMIT pageChanged();
}

/// Moves the buttons after the last widget of the page in the tab order.
void DesignDock::orderTabs()
{
    QWidget* last = m_page;
    for (QWidget* next = m_page->nextInFocusChain(); next != m_page;
         next = next->nextInFocusChain())
        if (m_page->isAncestorOf(next) && next->focusPolicy() & Qt::TabFocus)
            last = next;
    for (int i = 0; i < m_tools->count(); ++i)
        if (QWidget* button = m_tools->itemAt(i)->widget()) {
            setTabOrder(last, button);
            last = button;
        }
}

void DesignDock::setModified(bool isModified)
{
    setWindowModified(isModified);
    m_apply->setEnabled(isModified);
}

void DesignDock::addTool(QWidget* button)
{
    m_tools->insertWidget(m_tools->indexOf(m_presets), button);
}

void DesignDock::setTexts()
{
    setTitle(tr("Design Parameters"));
    m_presets->setText(tr("P&resets..."));
    m_presets->setToolTip(tr("Applies or edits named sets of parameters (Ctrl+R)"));
    m_apply->setText(tr("&Apply"));
    m_apply->setToolTip(tr("Stores the rows in the project file (Ctrl+S)"));
}

QList<QAction*> DesignDock::pageActions() const
{
    return m_page ? m_page->actions() : QList<QAction*>();
}

} // namespace workbench
