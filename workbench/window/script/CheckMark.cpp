#include "window/script/CheckMark.h"

#include "window/script/ScriptView.h"

#include <QEvent>

namespace workbench {

namespace {
constexpr int Delay = 300;       // ms
constexpr int MostFindings = 10; // in the tool tip
} // namespace

CheckMark::CheckMark(ScriptView* view, QWidget* parent)
    : QToolButton(parent)
    , m_view(view)
{
    setObjectName(QStringLiteral("CheckMark"));
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_waiting.setSingleShot(true);
    connect(&m_waiting, &QTimer::timeout, this, &CheckMark::check);
    connect(this, &QToolButton::clicked, this, &CheckMark::step);
    showResult();
}

QSize CheckMark::minimumSizeHint() const
{
    return {0, QToolButton::minimumSizeHint().height()};
}

void CheckMark::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showResult();
}

void CheckMark::scriptChanged(vkd::Language keywords)
{
    m_keywords = keywords;
    m_waiting.start(Delay);
    m_shown = -1;
    if (!m_grammars.of(keywords).isEmpty())
        m_view->setGrammar(&m_grammars.of(keywords));
    showResult();
}

void CheckMark::check()
{
    if (m_view->plainText().isEmpty() || !m_source.grammars)
        return showResult();
    if (m_grammars.of(m_keywords).isEmpty())
        m_grammars = m_source.grammars();
    m_view->setGrammar(&m_grammars.of(m_keywords));
    m_view->setFindings(
        checkScript(m_view->plainText(), m_grammars, m_keywords, m_source.loadCases()));
    showResult();
}

void CheckMark::step()
{
    const QVector<ScriptFinding>& findings = m_view->marks().findings;
    if (findings.isEmpty())
        return;
    m_shown = (m_shown + 1) % findings.size();
    const ScriptFinding& finding = findings[m_shown];
    const int start = m_view->lines().start(finding.line) + finding.start;
    m_view->select(start, start + finding.length);
    showResult();
}

void CheckMark::showResult()
{
    const QVector<ScriptFinding>& findings = m_view->marks().findings;
    const bool isChecked = !m_waiting.isActive() && !m_view->plainText().isEmpty();
    setEnabled(isChecked);
    QString text = tr("Check: no findings");
    if (!isChecked)
        text.clear();
    else if (m_shown >= 0)
        text = tr("Check: %1 of %2, %3")
                   .arg(m_shown + 1)
                   .arg(findings.size())
                   .arg(findingText(findings[m_shown]));
    else if (!findings.isEmpty())
        text = tr("Check: findings: %1").arg(findings.size());
    setText(text);
    setAccessibleName(text.isEmpty() ? tr("Check of the script") : text);
    QStringList lines;
    for (int i = 0; i < qMin(MostFindings, findings.size()); ++i)
        lines << findingText(findings[i]);
    setToolTip(findings.isEmpty() ? tr("The plots can produce every line.")
                                  : lines.join(QLatin1Char('\n')));
}

} // namespace workbench
