#include "search/SearchBar.h"

#include "dialogs/ElidedLabel.h"
#include "search/PlotSearch.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace plib {

SearchBar::SearchBar(PlotSearch* search, QTreeWidget* tree)
    : QWidget(tree->parentWidget())
    , m_search(search)
    , m_tree(tree)
    , m_words(new QLineEdit(this))
    , m_checkedOnly(new QCheckBox(tr("Checked only"), this))
    , m_count(new QLabel(this))
    , m_previous(newButton("searchPrevious", tr("Previous hit (Shift+F3)")))
    , m_next(newButton("searchNext", tr("Next hit (F3)")))
    , m_close(newButton("searchClose", tr("End the search (Esc)")))
{
    setObjectName(QStringLiteral("plotSearch"));
    setFocusProxy(m_words);
    m_words->setObjectName(QStringLiteral("searchWords"));
    m_words->setAccessibleName(tr("Words to find in the captions"));
    m_words->setPlaceholderText(tr("Words from the captions"));
    m_checkedOnly->setObjectName(QStringLiteral("searchCheckedOnly"));
    m_checkedOnly->setToolTip(tr("Only plots and load cases that are checked are found"));
    m_count->setObjectName(QStringLiteral("searchCount"));
    m_previous->setArrowType(Qt::UpArrow);
    m_next->setArrowType(Qt::DownArrow);
    m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    layOut();
    connectSearch();
    showCount();
}

QToolButton* SearchBar::newButton(const char* name, const QString& text)
{
    auto button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(text);
    button->setToolTip(text);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus); // keyboard users have shortcuts
    return button;
}

/// The bar may be narrow, because the tree needs less than half of the page's width.
void SearchBar::layOut()
{
    auto lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    auto line = new QHBoxLayout;
    line->setSpacing(2);
    line->addWidget(m_words, 1);
    for (QWidget* button : {m_previous, m_next, m_close})
        line->addWidget(button);
    lines->addLayout(line);
    line = new QHBoxLayout;
    line->addWidget(m_checkedOnly);
    line->addStretch(1);
    line->addWidget(m_count);
    lines->addLayout(line);
    // A label that wraps its text would give the page a height for its width, and a scroll area
    // would then show the page with its preferred height instead of shrinking the page to fit.
    auto reminder = new ElidedLabel(this);
    reminder->setObjectName(QStringLiteral("searchReminder"));
    reminder->setFullText(tr("Boxes change only what is shown."));
    lines->addWidget(reminder);
    setTabOrder(m_tree->previousInFocusChain(), m_words); // the tree follows
    setTabOrder(m_words, m_checkedOnly);
}

void SearchBar::connectSearch()
{
    connect(m_words, &QLineEdit::textChanged, this, &SearchBar::find);
    connect(m_checkedOnly, &QCheckBox::toggled, this, &SearchBar::find);
    connect(m_search, &PlotSearch::changed, this, &SearchBar::showCount);
    connect(m_previous, &QToolButton::clicked, m_search, [this] { m_search->step(false); });
    connect(m_next, &QToolButton::clicked, m_search, [this] { m_search->step(true); });
    connect(m_close, &QToolButton::clicked, this, &SearchBar::leave);
}

void SearchBar::find()
{
    m_search->find(m_words->text(), m_checkedOnly->isChecked());
}

void SearchBar::showCount()
{
    const int count = m_search->count();
    const int position = m_search->position();
    m_previous->setEnabled(count > 0);
    m_next->setEnabled(count > 0);
    if (!m_search->isActive())
        m_count->clear();
    else if (count == 0)
        m_count->setText(tr("No hits"));
    else if (position < 0)
        m_count->setText(tr("Hits: %1").arg(count));
    else
        m_count->setText(tr("Hit %1 of %2").arg(position + 1).arg(count));
}

void SearchBar::open(Qt::FocusReason reason)
{
    show();
    if (m_tree->isVisible())
        m_words->setFocus(reason);
}

void SearchBar::leave()
{
    m_words->clear();
    m_checkedOnly->setChecked(false);
    m_tree->setFocus();
    hide();
}

void SearchBar::type(const QString& text)
{
    open(Qt::OtherFocusReason);
    m_words->insert(text);
}

void SearchBar::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape: return leave();
    case Qt::Key_Return:
    case Qt::Key_Enter: return m_search->step(!(event->modifiers() & Qt::ShiftModifier));
    case Qt::Key_Down:
    case Qt::Key_Up: return m_tree->setFocus();
    default: QWidget::keyPressEvent(event);
    }
}

} // namespace plib
