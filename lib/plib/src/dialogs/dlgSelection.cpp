#include "dialogs/dlgSelection.h"

#include "fields/DeleteKey.h"
#include "record/DesignParameterData.h"
#include "record/rowText.h"

#include <vkd_dbo_queries.h>
#include <VKD_QT4_ComboBox.h>
#include <vkd_qt_icon.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_SignalBlocker.h>
#include <VKD_QT_Widgets.h>

#include <QAbstractItemView>
#include <QStyle>

namespace {
constexpr int GroupsIcon = 2125;
constexpr int SecondaryGroupsIcon = 2126;
constexpr int IconSize = 32;

VKD_QT_PushButton* newButton(QWidget* parent, const char* name, int icon, const QString& purpose)
{
    auto button = new VKD_QT_PushButton(parent, name);
    button->setIcon(vkd_qt_icon(icon, IconSize));
    button->setAutoDefault(false);
    button->setToolTip(purpose);
    button->setAccessibleName(purpose);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}
} // namespace

dlgSelection::dlgSelection(int index, QWidget* parent)
    : QWidget(parent)
    , comboGroups(new VKD_QT4_ComboBox(this, "comboGroups"))
    , zobIndex(index)
{
    comboGroups->setEditable(false);
    comboGroups->setAccessibleName(tr("Selection"));
    comboGroups->setMinimumContentsLength(1); // the cell determines the width
    comboGroups->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    comboGroups->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto groups = newButton(this, "buttonGroups", GroupsIcon, tr("Select groups"));
    auto secondary =
        newButton(this, "buttonSekGroups", SecondaryGroupsIcon, tr("Select secondary groups"));
    connect(groups, &QPushButton::clicked, this, &dlgSelection::signal_groupButtonClicked);
    connect(secondary, &QPushButton::clicked, this, &dlgSelection::signal_sekGroupButtonClicked);
    connect(comboGroups, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { Q_EMIT signal_selectionComboChanged(comboGroups->currentText()); });
    if (!vkd::dbo::hasGroups(zobIndex, nullptr))
        groups->setEnabled(false);
    if (!vkd::dbo::hasSgrp(zobIndex, nullptr))
        secondary->setEnabled(false);
    auto layout = new VKD_QT_HBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(1);
    layout->addWidget(comboGroups);
    layout->addWidget(groups);
    layout->addWidget(secondary);
    setAutoFillBackground(true);
    setFocusProxy(comboGroups);
    auto clear = new plib::DeleteKey(this, [this] {
        comboGroups->hidePopup();
        comboGroups->setCurrentIndex(0); // none
    });
    for (QWidget* widget :
         {static_cast<QWidget*>(comboGroups), static_cast<QWidget*>(comboGroups->view()),
          static_cast<QWidget*>(groups), static_cast<QWidget*>(secondary)})
        clear->listenTo(widget);
}

void dlgSelection::fillCombo(const plib::DesignParameterRow& row, bool remainingInUse)
{
    const VKD_QT_SignalBlocker blocker(comboGroups);
    const bool isRemaining = plib::isRemainingGroups(row.groups);
    QString selected = tr("None");
    comboGroups->clear();
    comboGroups->addItem(selected);
    if (!remainingInUse || isRemaining)
        comboGroups->addItem(tr("Remaining Groups"));
    if (isRemaining)
        selected = tr("Remaining Groups");
    else if (!row.groups.empty())
        comboGroups->addItem(selected = plib::rowText(row, 0));
    // Finds the entry by its text, so a secondary group with the name "None" is shown as the entry
    // "None".
    comboGroups->setCurrentIndex(comboGroups->findText(selected, Qt::MatchCaseSensitive));
}

void dlgSelection::setNote(const QString& text)
{
    const QIcon sign =
        text.isEmpty() ? QIcon() : style()->standardIcon(QStyle::SP_MessageBoxWarning);
    for (int entry = 0; entry < comboGroups->count(); ++entry)
        comboGroups->setItemIcon(entry, entry == comboGroups->currentIndex() ? sign : QIcon());
    comboGroups->setToolTip(text);
    comboGroups->setAccessibleDescription(text);
}

int dlgSelection::getCurrentId() const
{
    return comboGroups->getCurrentId();
}
