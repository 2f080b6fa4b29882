#include "window/script/FindBar.h"

#include "window/script/findText.h"
#include "window/script/ScriptView.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>

namespace workbench {

FindBar::FindBar(ScriptView* view, QWidget* parent)
    : QWidget(parent)
    , m_view(view)
    , m_words(new QLineEdit(this))
    , m_count(new QLabel(this))
    , m_previous(newButton("FindPreviousButton", Qt::UpArrow))
    , m_next(newButton("FindNextButton", Qt::DownArrow))
    , m_close(newButton("FindCloseButton", Qt::NoArrow))
{
    m_words->setObjectName(QStringLiteral("FindWords"));
    m_count->setObjectName(QStringLiteral("FindCount"));
    m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    setFocusProxy(m_words);
    auto line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_words, 1);
    line->addWidget(m_count);
    for (QWidget* button : {m_previous, m_next, m_close})
        line->addWidget(button);
    m_finding.setSingleShot(true);
    connect(&m_finding, &QTimer::timeout, this, &FindBar::find);
    connect(m_words, &QLineEdit::textChanged, this, &FindBar::findFromCursor);
    connect(m_previous, &QToolButton::clicked, this, [this] { step(false); });
    connect(m_next, &QToolButton::clicked, this, [this] { step(true); });
    connect(m_close, &QToolButton::clicked, this, &FindBar::close);
    setTexts();
    showCount();
    hide();
}

QToolButton* FindBar::newButton(const char* name, Qt::ArrowType arrow)
{
    auto button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus); // its shortcut is used instead
    return button;
}

void FindBar::setTexts()
{
    m_words->setAccessibleName(tr("Words to find in the script"));
    m_words->setPlaceholderText(tr("Find in the script"));
    const std::pair<QToolButton*, QString> buttons[] = {{m_previous, tr("Previous hit (Shift+F3)")},
                                                        {m_next, tr("Next hit (F3)")},
                                                        {m_close, tr("End the search (Esc)")}};
    for (const auto& [button, text] : buttons) {
        button->setAccessibleName(text);
        button->setToolTip(text);
    }
}

void FindBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        showCount();
    }
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        step(!(event->modifiers() & Qt::ShiftModifier));
    else
        QWidget::keyPressEvent(event);
}

void FindBar::open()
{
    show();
    const QString selected = m_view->selectedText();
    if (!selected.isEmpty() && !selected.contains(QLatin1Char('\n')))
        m_words->setText(selected);
    m_words->setFocus();
    m_words->selectAll();
    find();
}

void FindBar::close()
{
    hide();
    m_finding.stop();
    m_view->setHits({}, 0);
    m_view->setFocus();
}

void FindBar::scriptChanged()
{
    if (!isHidden())
        m_finding.start(0);
}

void FindBar::find()
{
    m_view->setHits(findText(m_view->plainText(), m_words->text()), m_words->text().size());
    showCount();
}

/// Selects the first hit at or after the beginning of the selection.
void FindBar::findFromCursor()
{
    find();
    const int start = m_view->selection().start;
    m_view->select(start, start);
    step(true);
}

void FindBar::step(bool isForward)
{
    if (isHidden())
        return open();
    const QVector<int>& hits = m_view->marks().hits;
    if (hits.isEmpty())
        return;
    const TextRange selected = m_view->selection();
    int hit = m_view->marks().hitAt(isForward ? selected.end : selected.start);
    hit = (isForward ? hit : hit - 1 + hits.size()) % hits.size();
    m_view->select(hits[hit], hits[hit] + m_view->marks().hitLength);
    showCount();
}

void FindBar::showCount()
{
    const QVector<int>& hits = m_view->marks().hits;
    const TextRange selected = m_view->selection();
    const int hit = m_view->marks().hitAt(selected.start);
    const bool isHit = hit < hits.size() && hits[hit] == selected.start &&
                       selected.end - selected.start == m_view->marks().hitLength;
    m_previous->setEnabled(!hits.isEmpty());
    m_next->setEnabled(!hits.isEmpty());
    if (m_words->text().isEmpty())
        m_count->clear();
    else if (hits.isEmpty())
        m_count->setText(tr("No hits"));
    else if (isHit)
        m_count->setText(tr("Hit %1 of %2").arg(hit + 1).arg(hits.size()));
    else
        m_count->setText(tr("Hits: %1").arg(hits.size()));
}

} // namespace workbench
