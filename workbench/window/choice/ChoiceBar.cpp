#include "window/choice/ChoiceBar.h"

#include "window/choice/ChoiceTable.h"
#include "window/choice/RowFilter.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>
#include <QToolButton>

namespace workbench {

ChoiceBar::ChoiceBar(QWidget* parent, const char* name)
    : QWidget(parent)
    , m_filter(new QLineEdit(this))
    , m_count(new QLabel(this))
    , m_only(newButton("ChooseOnly", tr("Only These"),
                       tr("Checks the rows that are shown, and unchecks all others (Return)")))
    , m_all(newButton("ChooseAll", tr("All"), tr("Checks all rows that are shown")))
    , m_none(newButton("ChooseNone", tr("None"), tr("Unchecks all rows that are shown")))
    , m_invert(newButton("ChooseOthers", tr("Invert"),
                         tr("Checks the unchecked rows that are shown, and unchecks the others")))
    , m_kind(newButton("ChooseKind", tr("Kind"), tr("Checks only the rows of one kind")))
    , m_kinds(new QMenu(this))
{
    setObjectName(QLatin1String(name));
    m_filter->setObjectName(QStringLiteral("ChoiceFilter"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setPlaceholderText(tr("1-20, 101 or words"));
    m_filter->setAccessibleName(tr("Filter for numbers and titles"));
    m_filter->setToolTip(tr("Shows the rows with these numbers, in these ranges or with these "
                            "words in the title. Return checks exactly these rows."));
    m_count->setObjectName(QStringLiteral("ChoiceCount"));
    m_kind->setMenu(m_kinds);
    m_kind->setPopupMode(QToolButton::InstantPopup);
    layOut();
    const auto chooseShown = [this](QToolButton* button, bool (*isChosen)(bool)) {
        connect(button, &QToolButton::clicked, this, [this, isChosen] {
            choose(
                [this, isChosen](int row, bool was) { return isShown(row) ? isChosen(was) : was; });
        });
    };
    chooseShown(m_all, [](bool) { return true; });
    chooseShown(m_none, [](bool) { return false; });
    chooseShown(m_invert, [](bool was) { return !was; });
    connect(m_only, &QToolButton::clicked, this,
            [this] { choose([this](int row, bool) { return isShown(row); }); });
    connect(m_filter, &QLineEdit::textChanged, this, &ChoiceBar::filter);
    connect(m_kinds, &QMenu::aboutToShow, this, &ChoiceBar::listKinds);
}

void ChoiceBar::setTable(ChoiceTable* table)
{
    m_table = table;
    filter();
}

QString ChoiceBar::filterText() const
{
    return m_filter->text();
}

void ChoiceBar::setFilterText(const QString& text)
{
    m_filter->setText(text);
}

QToolButton* ChoiceBar::newButton(const char* name, const QString& text, const QString& toolTip)
{
    auto button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setToolTip(toolTip);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void ChoiceBar::layOut()
{
    auto line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(4);
    line->addWidget(m_filter, 1);
    line->addWidget(m_count);
    for (QToolButton* button : {m_only, m_all, m_none, m_invert, m_kind})
        line->addWidget(button);
}

void ChoiceBar::filter()
{
    const RowFilter shown(m_filter->text());
    QTableView* view = m_table->view();
    const int rows = view->model()->rowCount();
    int count = 0;
    // While updates are enabled, Qt recomputes the positions of all rows after each change.
    view->setUpdatesEnabled(false);
    for (int row = 0; row < rows; ++row) {
        const bool matches = shown.matches(m_table->numberInRow(row), m_table->titleInRow(row));
        if (view->isRowHidden(row) == matches)
            view->setRowHidden(row, !matches);
        count += matches;
    }
    view->setUpdatesEnabled(true);
    m_only->setEnabled(!shown.isEmpty() && count > 0);
    m_count->setText(shown.isEmpty() ? QString() : tr("Shown: %1 of %2").arg(count).arg(rows));
}

bool ChoiceBar::isShown(int row) const
{
    return !m_table->view()->isRowHidden(row);
}

void ChoiceBar::choose(const std::function<bool(int row, bool wasChosen)>& isChosen)
{
    const QSet<int> before = m_table->leftOutNumbers();
    QSet<int> leftOut;
    const int rows = m_table->view()->model()->rowCount();
    for (int row = 0; row < rows; ++row) {
        const int number = m_table->numberInRow(row);
        if (!isChosen(row, !before.contains(number)))
            leftOut << number;
    }
    if (leftOut != before)
        m_table->chooseAllBut(leftOut);
}

/// Lists the kinds that occur, in the order of the rows.
void ChoiceBar::listKinds()
{
    m_kinds->clear();
    QStringList kinds;
    const int rows = m_table->view()->model()->rowCount();
    for (int row = 0; row < rows; ++row) {
        const QString kind = m_table->kindInRow(row);
        if (!kinds.contains(kind))
            kinds << kind;
    }
    for (const QString& kind : qAsConst(kinds))
        connect(m_kinds->addAction(kind), &QAction::triggered, this, [this, kind] {
            choose([&](int row, bool) { return m_table->kindInRow(row) == kind; });
        });
}

/// Return must not reach the default button of a dialog. Escape first clears the filter.
void ChoiceBar::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_filter->hasFocus())
        m_only->click();
    else if (event->key() == Qt::Key_Escape && !m_filter->text().isEmpty())
        m_filter->clear();
    else
        QWidget::keyPressEvent(event);
}

} // namespace workbench
