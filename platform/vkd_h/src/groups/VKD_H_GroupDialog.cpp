#include "VKD_H_GroupDialog.h"

#include "groups/groupChoice.h"
#include "groups/GroupFilterModel.h"
#include "groups/GroupTableModel.h"
#include "groups/groupTexts.h"
#include "groups/GroupView.h"
#include "vkd_h_groupInput.h"
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
using vkd::h::GroupTableModel;
using vkd::h::GroupView;

namespace {
/// Sets the placeholder text and makes the field wide enough for it and the clear button.
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
          kind, vkd::h::groupRows(kind, doc ? doc->handle() : ZobHandle(), checked, usedElsewhere),
          this))
    , m_shown(new GroupFilterModel(m_groups, this))
    , m_opened(checked)
    , m_confirmed(vkd::h::confirmedGroups(kind, checked, m_groups->checkedGroups()))
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
    resize(sizeHint().boundedTo(mostSize())); // Qt's own limit would cut off columns
}

int VKD_H_GroupDialog::getChecked(std::vector<int>& groups) const
{
    groups = m_confirmed;
    return 0;
}

/// Applies typed text even if Enter was not pressed. If this produces a message, the dialog stays
/// open until the next attempt so that the user can read it.
void VKD_H_GroupDialog::accept()
{
    if (hasInput()) {
        const bool isRead = applyInput();
        if (!isRead)
            m_input->setFocus();
        if (!isRead || !m_message->text().isEmpty())
            return;
    }
    m_confirmed = vkd::h::confirmedGroups(m_kind, m_opened, m_groups->checkedGroups());
    VKD_QT_Dialog::accept();
}

std::vector<int> VKD_H_GroupDialog::presentChoice()
{
    if (hasInput())
        applyInput();
    return m_groups->checkedGroups();
}

bool VKD_H_GroupDialog::hasInput() const
{
    return m_input && !m_input->text().trimmed().isEmpty();
}

bool VKD_H_GroupDialog::hasGroups() const
{
    return !m_groups->rows().isEmpty();
}

void VKD_H_GroupDialog::addFootButton(QPushButton* button)
{
    button->setAutoDefault(false);
    m_foot->insertWidget(0, button);
    setTabOrder(m_check, button); // does nothing if there are no groups to check
    setTabOrder(button, m_ok->cmdOk());
}

void VKD_H_GroupDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && m_input && m_input->hasFocus())
        applyInput();
    else if (!isEnter || !m_filter || !m_filter->hasFocus()) // the filter is already applied
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
    showMessage(QString()); // Check and OK show the message again if necessary
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
    m_view->setSortingEnabled(true); // must be first: sort indicators need room in the header
    m_view->sortByColumn(GroupTableModel::Group, Qt::AscendingOrder);
    const std::vector<int> checked = m_groups->checkedGroups();
    const int first = checked.empty() ? 0 : m_groups->rowOf(checked.front());
    m_view->setCurrentIndex(checked.empty() ? m_shown->index(0, 0)
                                            : m_shown->mapFromSource(m_groups->index(first, 0)));
    m_view->setFocus();
    layout->addWidget(m_view, 1);
    connect(m_view, &GroupView::toggleRequested, this, &VKD_H_GroupDialog::toggle);
    // Typed groups are checked before the user can edit the list, so that the user can uncheck
    // them.
    connect(m_view, &GroupView::reached, this, &VKD_H_GroupDialog::presentChoice);
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
    m_message->setTextFormat(Qt::PlainText); // the message contains user input
    m_message->setWordWrap(true);
    m_message->hide();
    layout->addWidget(m_message);
    m_count = new VKD_QT_Label(this, "count");
    m_count->setWordWrap(true);
    layout->addWidget(m_count);
    m_notShown = new VKD_QT_Label(this, "notShown");
    m_notShown->setTextFormat(Qt::PlainText);
    m_notShown->setWordWrap(true);
    m_notShown->setVisible(!vkd::h::groupsNotShown(m_kind, m_opened).empty());
    layout->addWidget(m_notShown);
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
    button->setAutoDefault(false); // Enter triggers OK
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
    const QString text = m_input->text();
    const std::vector<int> existing = m_groups->groups();
    const GroupInput input = m_kind == VKD_H_GroupKind::Secondary
                                 ? vkd::h::readNames(text, vkd::h::GroupNames(existing))
                                 : vkd::h::readNumbers(text, existing);
    QVector<int> rows;
    std::vector<int> withoutAreas;
    for (int group : input.groups) {
        rows << m_groups->rowOf(group);
        if (!m_groups->rows()[rows.last()].hasAreas)
            withoutAreas.push_back(group);
    }
    m_groups->setChecked(rows, true);
    const QStringList refused = input.unreadable + input.missing;
    showMessage(vkd::h::inputText(input, withoutAreas));
    m_input->setText(refused.join(QLatin1Char(' '))); // removes the groups that are now checked
    m_input->selectAll();
    return refused.isEmpty();
}

void VKD_H_GroupDialog::showMessage(const QString& text)
{
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
    m_input->setAccessibleDescription(text);
}

void VKD_H_GroupDialog::updateCount()
{
    m_count->setText(vkd::h::countText(m_groups->rows(), m_shown->shownRows()));
    m_notShown->setText(vkd::h::notShownText(m_kind, m_opened, m_groups->checkedGroups()));
}
