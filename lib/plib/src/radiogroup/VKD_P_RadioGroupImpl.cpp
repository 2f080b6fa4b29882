#include "radiogroup/VKD_P_RadioGroupImpl.h"

#include "radiogroup/radioChoice.h"

#include <QtTableView.h>

#include <QHBoxLayout>
#include <QPointer>
#include <QRadioButton>

#include <algorithm>

using Group = VKD_P_RadioGroup;
using Impl = VKD_P_RadioGroupImpl;

/// A kind of button: its ID, its member variable and its own signal, which may be null.
struct VKD_P_RadioGroupImpl::Kind
{
    ButtonID id;
    QRadioButton* Impl::*button;
    void (Impl::*checked)();
};

const std::vector<Impl::Kind>& VKD_P_RadioGroupImpl::kinds()
{
    static const std::vector<Kind> all{
        {Group::Manually, &Impl::m_Manually, &Impl::buttonManuallyChecked},
        {Group::All, &Impl::m_All, &Impl::buttonAllChecked},
        {Group::All_A, &Impl::m_All_A, &Impl::buttonAllAcciChecked},
        {Group::All_F, &Impl::m_All_F, &Impl::buttonAllFireChecked},
        {Group::All_E, &Impl::m_All_E, &Impl::buttonAllEartChecked},
        {Group::All_RARE, &Impl::m_All_RARE, nullptr},
        {Group::All_FREQ, &Impl::m_All_FREQ, nullptr},
        {Group::All_PERM, &Impl::m_All_PERM, nullptr},
        {Group::All_NONF, &Impl::m_All_NONF, nullptr},
        {Group::NoTextOutput, &Impl::m_NoTextOutput, &Impl::buttonNoOutputChecked},
    };
    return all;
}

VKD_P_RadioGroupImpl::VKD_P_RadioGroupImpl() = default;

/// Deletes the layout and the buttons if they have no other owner: the host may not have added the
/// row to a layout, or may have passed a null parent.
VKD_P_RadioGroupImpl::~VKD_P_RadioGroupImpl()
{
    if (m_layout && !m_layout->parent())
        delete m_layout;
    const QList<QAbstractButton*> buttons = m_group.buttons();
    for (QAbstractButton* button : buttons)
        if (!button->parent())
            delete button;
}

bool VKD_P_RadioGroupImpl::init(QWidget* parent)
{
    return buildRow(parent, {{Group::Manually, tr("Manually"), {}}, {Group::All, tr("All"), {}}});
}

bool VKD_P_RadioGroupImpl::initForLF(QWidget* parent, const std::list<ButtonID>& ids)
{
    const Entry onDemand[] = {{Group::All_A, tr("All Accidential"), {}},
                              {Group::All_F, tr("All Fire"), {}},
                              {Group::All_E, tr("All Earthquake"), {}},
                              {Group::All_RARE, tr("All Characteristic"), {}},
                              {Group::All_FREQ, tr("All Frequent"), {}},
                              {Group::All_PERM, tr("All Quasi-Permanent"), {}},
                              {Group::All_NONF, tr("All Non-Frequent"), {}}};
    std::vector<Entry> entries{{Group::Manually, tr("Manually"), {}}};
    for (const Entry& entry : onDemand)
        if (std::find(ids.begin(), ids.end(), entry.id) != ids.end())
            entries.push_back(entry);
    return buildRow(parent, entries);
}

bool VKD_P_RadioGroupImpl::initEchoOutput(QWidget* parent)
{
    const bool isBuilt = buildRow(
        parent,
        {{Group::Manually, tr("Manually controlled"), tr("Manually controlled text output")},
         {Group::NoTextOutput, tr("No text output"), tr("Smaller output without any text lists")},
         {Group::All, tr("Full text output"),
          tr("Extensive text output\nuseful to find errors or to compare "
             "variants")}});
    if (isBuilt)
        m_Manually->setChecked(true);
    return isBuilt;
}

bool VKD_P_RadioGroupImpl::buildRow(QWidget* parent, const std::vector<Entry>& entries)
{
    if (m_isBuilt)
        return false;
    m_isBuilt = true;
    auto row = new QHBoxLayout;
    for (const Entry& entry : entries)
        row->addWidget(makeButton(parent, entry));
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::MinimumExpanding, QSizePolicy::Minimum));
    m_layout = row;
    connect(row, &QObject::destroyed, this, [this] { m_layout = nullptr; });
    for (const Kind& kind : kinds())
        if (this->*kind.button)
            m_group.addButton(this->*kind.button, kind.id);
    return true;
}

QRadioButton* VKD_P_RadioGroupImpl::makeButton(QWidget* parent, const Entry& entry)
{
    const auto kind = std::find_if(kinds().begin(), kinds().end(),
                                   [&](const Kind& any) { return any.id == entry.id; });
    auto made = new QRadioButton(entry.label, parent);
    made->setToolTip(entry.toolTip);
    this->*kind->button = made;
    connect(made, &QObject::destroyed, this,
            [this, button = kind->button] { this->*button = nullptr; });
    return made;
}

QLayout* VKD_P_RadioGroupImpl::layout() const
{
    return m_layout;
}

void VKD_P_RadioGroupImpl::useWidget(QWidget* widget)
{
    m_usedWidget = widget;
    if (widget)
        connect(widget, &QObject::destroyed, this, [this, widget] {
            if (m_usedWidget == widget)
                m_usedWidget = nullptr;
        });
    for (const Kind& kind : kinds())
        if (const QRadioButton* button = this->*kind.button) {
            connect(button, &QRadioButton::toggled, this, &Impl::updateUsedWidget);
            connect(button, &QRadioButton::toggled, this, &Impl::buttonXXClicked);
        }
    connect(&m_group, &QButtonGroup::idClicked, this, &Impl::updateUsedWidget);
    updateUsedWidget();
}

void VKD_P_RadioGroupImpl::setEnabledById(ButtonID id, bool enabled)
{
    if (QAbstractButton* button = m_group.button(id))
        button->setEnabled(enabled);
}

void VKD_P_RadioGroupImpl::setSelectedId(ButtonID id)
{
    if (QAbstractButton* button = m_group.button(id))
        button->setChecked(true);
}

VKD_P_RadioGroupImpl::ButtonID VKD_P_RadioGroupImpl::getSelectedId() const
{
    return ButtonID(m_group.checkedId());
}

void VKD_P_RadioGroupImpl::readXML(const QString& text)
{
    const std::optional<int> id = plib::chosenId(text);
    if (!id)
        return;
    const QPointer<Impl> alive(this);
    setSelectedId(ButtonID(*id));
    if (alive)
        updateUsedWidget();
}

QString VKD_P_RadioGroupImpl::writeXML() const
{
    std::vector<int> checked;
    for (const Kind& kind : kinds())
        if (this->*kind.button && (this->*kind.button)->isChecked())
            checked.push_back(kind.id);
    return plib::choiceText(checked);
}

void VKD_P_RadioGroupImpl::updateUsedWidget()
{
    if (!m_usedWidget)
        return;
    const QPointer<Impl> alive(this); // a slot of the host may delete this group
    const bool isManual = m_group.checkedId() == Group::Manually;
    if (auto table = dynamic_cast<vkd::properties::nextGen::QtTableView*>(m_usedWidget))
        table->set_read_only(!isManual);
    else
        m_usedWidget->setEnabled(isManual);
    if (alive)
        Q_EMIT buttonClicked(m_group.checkedId());
}

void VKD_P_RadioGroupImpl::buttonXXClicked(bool on)
{
    const QObject* button = sender();
    if (!on || !button)
        return;
    const auto kind = std::find_if(kinds().begin(), kinds().end(),
                                   [&](const Kind& any) { return this->*any.button == button; });
    if (kind == kinds().end())
        return;
    const QPointer<Impl> alive(this); // any slot of the host may delete this group
    if (kind->checked)
        Q_EMIT(this->*kind->checked)();
    if (alive && kind->id != Group::NoTextOutput)
        Q_EMIT buttonChecked(kind->id);
}
