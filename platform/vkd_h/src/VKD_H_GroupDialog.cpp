#include "VKD_H_GroupDialog.h"

#include "GroupFilterModel.h"
#include "groupInput.h"
#include "GroupTableModel.h"
#include "GroupView.h"
#include "VKD_H_ZOBDoc.h"

#include <VKD_QT_InfoText.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_Widgets.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>

#include <algorithm>

using vkd::h::GroupFilterModel;
using vkd::h::GroupInput;
using vkd::h::GroupRow;
using vkd::h::GroupTableModel;
using vkd::h::GroupView;

namespace {
/// A few of the parts of an input: what was pasted may be long.
QString listed(const QStringList& parts)
{
    constexpr int Most = 5;
    constexpr int Longest = 20;
    QStringList shown;
    for (const QString& part : parts.mid(0, Most))
        shown << (part.size() > Longest ? part.left(Longest) + QChar(0x2026) : part);
    if (parts.size() > Most)
        shown << QString(QChar(0x2026));
    return shown.join(QLatin1String(", "));
}

/// In the empty field, which is wide enough for it and for the button that clears.
void showHint(QLineEdit* field, const QString& hint)
{
    field->setPlaceholderText(hint);
    field->setMinimumWidth(field->fontMetrics().horizontalAdvance(hint) +
                           2 * field->sizeHint().height());
}

QSize mostSize()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableSize() * 9 / 10 : QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}
} // namespace

VKD_H_GroupDialog::VKD_H_GroupDialog(VKD_H_GroupKind kind, const VKD_H_ZOBDoc* doc,
                                     const std::vector<int>& checked,
                                     const std::vector<int>& usedElsewhere, QWidget* parent,
                                     const char* name)
    : VKD_QT_Dialog(parent, name)
    , m_kind(kind)
    , m_groups(new GroupTableModel(
          kind, vkd::h::groupRows(kind, doc ? doc->index() : -1, checked, usedElsewhere), this))
    , m_shown(new GroupFilterModel(m_groups, this))
    , m_confirmed(m_groups->checkedGroups())
{
    setModal(true);
    auto layout = new VKD_QT_VBoxLayout(this);
    if (hasGroups()) {
        addFilterLine(layout);
        addList(layout);
        addInputLine(layout);
        setTexts();
    } else {
        layout->addWidget(new VKD_QT_InfoText(true,
                                              kind == VKD_H_GroupKind::Secondary
                                                  ? tr("The model has no secondary groups.")
                                                  : tr("The model has no groups."),
                                              this, "empty"));
        layout->addStretch();
    }
    addFoot(layout);
    resize(sizeHint().boundedTo(mostSize())); // Qt's own limit would cut columns off
}

int VKD_H_GroupDialog::getChecked(std::vector<int>& groups) const
{
    groups = m_confirmed;
    return 0;
}

void VKD_H_GroupDialog::accept()
{
    if (m_input && !applyInput()) { // what was typed is meant, even without Enter
        m_input->setFocus();
        return;
    }
    m_confirmed = m_groups->checkedGroups();
    VKD_QT_Dialog::accept();
}

bool VKD_H_GroupDialog::hasGroups() const
{
    return !m_groups->rows().isEmpty();
}

void VKD_H_GroupDialog::addFootButton(QPushButton* button)
{
    button->setAutoDefault(false);
    m_foot->insertWidget(0, button);
    if (m_check)
        setTabOrder(m_check, button);
    setTabOrder(button, m_ok->cmdOk());
}

void VKD_H_GroupDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_input && m_input->hasFocus())
        applyInput();
    else if (!isEnter || !m_filter || !m_filter->hasFocus()) // the filter has been applied already
        VKD_QT_Dialog::keyPressEvent(event);
}

void VKD_H_GroupDialog::showEvent(QShowEvent* event)
{
    VKD_QT_Dialog::showEvent(event);
    if (m_view && !event->spontaneous())
        m_view->scrollTo(m_view->currentIndex());
}

void VKD_H_GroupDialog::changeEvent(QEvent* event)
{
    VKD_QT_Dialog::changeEvent(event);
    if (event->type() != QEvent::LanguageChange || !m_view)
        return;
    m_groups->languageChanged();
    setTexts();
    showMessage(QString()); // Check and OK say it again if need be
}

void VKD_H_GroupDialog::addFilterLine(QVBoxLayout* layout)
{
    m_filter = new QLineEdit(this);
    m_filter->setObjectName(QStringLiteral("filter"));
    m_filter->setClearButtonEnabled(true);
    m_filterLabel = new VKD_QT_Label(this, "filterLabel");
    m_filterLabel->setBuddy(m_filter);
    auto line = new VKD_QT_HBoxLayout;
    line->addWidget(m_filterLabel);
    line->addWidget(m_filter, 1);
    m_all = addButton(line, "all");
    m_none = addButton(line, "none");
    connect(m_all, &QPushButton::clicked, this, [this] { checkShown(true); });
    connect(m_none, &QPushButton::clicked, this, [this] { checkShown(false); });
    layout->addLayout(line);
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_shown->setText(text.trimmed());
        updateCount();
    });
}

void VKD_H_GroupDialog::addList(QVBoxLayout* layout)
{
    m_view = new GroupView(this);
    m_view->setObjectName(QStringLiteral("groups"));
    m_view->setModel(m_shown);
    m_view->setSortingEnabled(true); // first, because the marks of the header need room
    m_view->sortByColumn(GroupTableModel::Group, Qt::AscendingOrder);
    const int first = m_confirmed.empty() ? 0 : m_groups->rowOf(m_confirmed.front());
    m_view->setCurrentIndex(m_confirmed.empty()
                                ? m_shown->index(0, 0)
                                : m_shown->mapFromSource(m_groups->index(first, 0)));
    m_view->setFocus();
    layout->addWidget(m_view, 1);
    connect(m_view, &GroupView::toggleRequested, this, &VKD_H_GroupDialog::toggle);
    connect(m_groups, &GroupTableModel::dataChanged, this, &VKD_H_GroupDialog::updateCount);
}

void VKD_H_GroupDialog::addInputLine(QVBoxLayout* layout)
{
    m_input = new QLineEdit(this);
    m_input->setObjectName(QStringLiteral("input"));
    m_inputLabel = new VKD_QT_Label(this, "inputLabel");
    m_inputLabel->setBuddy(m_input);
    auto line = new VKD_QT_HBoxLayout;
    line->addWidget(m_inputLabel);
    line->addWidget(m_input, 1);
    m_check = addButton(line, "check");
    layout->addLayout(line);
    m_message = new VKD_QT_Label(this, "message");
    m_message->setTextFormat(Qt::PlainText); // it repeats what the user typed
    m_message->setWordWrap(true);
    m_message->hide();
    layout->addWidget(m_message);
    m_count = new VKD_QT_Label(this, "count");
    m_count->setWordWrap(true);
    layout->addWidget(m_count);
    connect(m_input, &QLineEdit::textEdited, this, [this] { showMessage(QString()); });
    connect(m_check, &QPushButton::clicked, this, &VKD_H_GroupDialog::applyInput);
}

void VKD_H_GroupDialog::addFoot(QVBoxLayout* layout)
{
    m_ok = new VKD_QT_Ok(this, 3, "okayandcancelbutton");
    m_foot = new VKD_QT_HBoxLayout;
    m_foot->addStretch();
    m_foot->addWidget(m_ok);
    layout->addLayout(m_foot);
    connect(m_ok->cmdOk(), &QPushButton::clicked, this, &VKD_H_GroupDialog::accept);
    connect(m_ok->cmdCancel(), &QPushButton::clicked, this, &VKD_H_GroupDialog::reject);
}

QPushButton* VKD_H_GroupDialog::addButton(QHBoxLayout* line, const char* name)
{
    auto button = new VKD_QT_PushButton(QString(), this, name);
    button->setAutoDefault(false); // Enter is OK
    line->addWidget(button);
    return button;
}

void VKD_H_GroupDialog::setTexts()
{
    const bool hasNames = m_kind == VKD_H_GroupKind::Secondary;
    m_filterLabel->setText(tr("&Filter:"));
    showHint(m_filter, hasNames ? tr("Name or title") : tr("Number or title"));
    m_all->setText(tr("&All"));
    m_none->setText(tr("&None"));
    m_view->setAccessibleName(tr("Groups"));
    m_view->fitColumns(*m_groups);
    m_inputLabel->setText(hasNames ? tr("Na&mes:") : tr("N&umbers:"));
    showHint(m_input, hasNames ? tr("Names to check") : tr("Numbers, e.g. 1-5 9"));
    m_check->setText(tr("Chec&k"));
    updateCount();
}

void VKD_H_GroupDialog::checkShown(bool checked)
{
    m_groups->setChecked(m_shown->shownRows(), checked);
}

void VKD_H_GroupDialog::toggle(const QModelIndexList& rows)
{
    QVector<int> tableRows;
    for (const QModelIndex& row : rows)
        tableRows << m_shown->mapToSource(row).row();
    const bool allChecked = std::all_of(tableRows.begin(), tableRows.end(), [this](int row) {
        return m_groups->rows()[row].isChecked;
    });
    m_groups->setChecked(tableRows, !allChecked);
}

bool VKD_H_GroupDialog::applyInput()
{
    const auto read =
        m_kind == VKD_H_GroupKind::Secondary ? vkd::h::readNames : vkd::h::readNumbers;
    const GroupInput input = read(m_input->text(), m_groups->groups());
    QVector<int> rows;
    for (int group : input.groups)
        rows << m_groups->rowOf(group);
    m_groups->setChecked(rows, true);
    QStringList messages;
    if (!input.unreadable.isEmpty())
        messages << tr("Cannot read: %1. Type numbers and ranges such as 1-5 9.")
                        .arg(listed(input.unreadable));
    if (!input.missing.isEmpty())
        messages << tr("There is no group %1.").arg(listed(input.missing));
    showMessage(messages.join(QLatin1Char('\n')));
    if (messages.isEmpty())
        m_input->clear();
    else
        m_input->selectAll();
    return messages.isEmpty();
}

void VKD_H_GroupDialog::showMessage(const QString& text)
{
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
    m_input->setAccessibleDescription(text);
}

void VKD_H_GroupDialog::updateCount()
{
    const QVector<GroupRow>& rows = m_groups->rows();
    const auto isChecked = [](const GroupRow& row) { return row.isChecked; };
    const auto isTakenOver = [](const GroupRow& row) { return row.isChecked && row.isTaken; };
    const auto checked = int(std::count_if(rows.begin(), rows.end(), isChecked));
    const auto takenOver = int(std::count_if(rows.begin(), rows.end(), isTakenOver));
    const QVector<int> shown = m_shown->shownRows();
    const auto hidden = checked - int(std::count_if(shown.begin(), shown.end(),
                                                    [&](int row) { return rows[row].isChecked; }));
    QStringList texts{tr("%1 of %2 groups checked").arg(checked).arg(rows.size())};
    if (takenOver > 0)
        texts << tr("%1 also in another row").arg(takenOver);
    if (hidden > 0)
        texts << tr("%1 hidden by the filter").arg(hidden);
    m_count->setText(texts.join(QLatin1String(", ")));
}
