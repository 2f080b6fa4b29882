#include "window/main/ChangeBar.h"

#include "sheet/actionButton.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

#include <utility>

namespace workbench {

ChangeBar::ChangeBar(QAction* reload, QAction* saveAs, QWidget* parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_reload(actionButton(reload, this))
    , m_saveAs(actionButton(saveAs, this))
    , m_close(new QToolButton(this))
{
    setObjectName(QStringLiteral("ChangeBar"));
    m_text->setObjectName(QStringLiteral("ChangeText"));
    m_close->setObjectName(QStringLiteral("CloseChangeBar"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    m_text->setForegroundRole(QPalette::ToolTipText);
    m_text->setWordWrap(true); // otherwise the bar would widen the view
    m_close->setFocusPolicy(Qt::StrongFocus);
    m_close->setAutoRaise(true);
    m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    auto layout = new QHBoxLayout(this);
    layout->addWidget(m_text, 1);
    for (QWidget* button : {m_reload, m_saveAs, m_close})
        layout->addWidget(button);
    connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
    setTexts();
}

void ChangeBar::report(bool isChanged, ProjectWatch::File file, bool areRowsOlder)
{
    m_areRowsOlder = isChanged ? areRowsOlder : m_areRowsOlder;
    const bool isFileNews = std::exchange(m_file, file) != file;
    const bool isPresent = file == ProjectWatch::File::Present;
    m_reload->setVisible(file != ProjectWatch::File::Missing);
    m_saveAs->setVisible(!isPresent);
    setTexts();
    if (isChanged || (isFileNews && !isPresent))
        show();
    else if (isFileNews)
        hide();
}

void ChangeBar::setRowsCurrent()
{
    if (std::exchange(m_areRowsOlder, false))
        setTexts();
}

void ChangeBar::reset()
{
    m_file = ProjectWatch::File::Present;
    hide();
}

void ChangeBar::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void ChangeBar::setTexts()
{
    switch (m_file) {
    case ProjectWatch::File::Present:
        m_text->setText(
            m_areRowsOlder
                ? tr("Another program has changed the design parameters. Your unsaved rows are "
                     "preserved; Apply asks for confirmation before it overwrites the newer rows.")
                : tr("Another program has changed the project."));
        break;
    case ProjectWatch::File::Missing:
        m_text->setText(tr("The project file was deleted or moved. The open project can still be "
                           "saved under another name."));
        break;
    case ProjectWatch::File::Replaced:
        m_text->setText(tr("The project file was replaced by another file. The open project can "
                           "still be saved under another name."));
        break;
    }
    m_close->setAccessibleName(tr("Close"));
    m_close->setToolTip(tr("Close"));
}

} // namespace workbench
