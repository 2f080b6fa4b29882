#include "VKD_P_RadioGroup.h"

#include "radiogroup/VKD_P_RadioGroupImpl.h"

using Group = VKD_P_RadioGroup;
using Impl = VKD_P_RadioGroupImpl;

namespace {
/// Forwards the signals that both kinds of rows for load cases emit.
void relayCommon(const Impl* impl, const Group* group)
{
    QObject::connect(impl, &Impl::buttonClicked, group, &Group::buttonClicked);
    QObject::connect(impl, &Impl::buttonManuallyChecked, group, &Group::buttonManuallyChecked);
    QObject::connect(impl, &Impl::buttonAllChecked, group, &Group::buttonAllChecked);
}
} // namespace

VKD_P_RadioGroup::VKD_P_RadioGroup()
    : m_impl(std::make_shared<VKD_P_RadioGroupImpl>())
{
}

VKD_P_RadioGroup::~VKD_P_RadioGroup() = default;

void VKD_P_RadioGroup::init(QWidget* parent)
{
    if (!m_impl->init(parent))
        return;
    relayCommon(m_impl.get(), this);
    connect(m_impl.get(), &Impl::buttonNoOutputChecked, this, &Group::buttonNoOutputChecked);
}

void VKD_P_RadioGroup::initForLF(QWidget* parent, const std::list<ButtonID>& ids)
{
    if (!m_impl->initForLF(parent, ids))
        return;
    relayCommon(m_impl.get(), this);
    connect(m_impl.get(), &Impl::buttonAllAcciChecked, this, &Group::buttonAllAcciChecked);
    connect(m_impl.get(), &Impl::buttonAllFireChecked, this, &Group::buttonAllFireChecked);
    connect(m_impl.get(), &Impl::buttonAllEartChecked, this, &Group::buttonAllEartChecked);
    connect(m_impl.get(), &Impl::buttonChecked, this, &Group::buttonChecked);
}

void VKD_P_RadioGroup::initEchoOutput(QWidget* parent)
{
    m_impl->initEchoOutput(parent);
}

QLayout* VKD_P_RadioGroup::layout() const
{
    return m_impl->layout();
}

void VKD_P_RadioGroup::useWidget(QWidget* widget)
{
    m_impl->useWidget(widget);
}

void VKD_P_RadioGroup::setEnabledById(ButtonID id, bool enabled)
{
    m_impl->setEnabledById(id, enabled);
}

void VKD_P_RadioGroup::setSelectedId(ButtonID id)
{
    m_impl->setSelectedId(id);
}

VKD_P_RadioGroup::ButtonID VKD_P_RadioGroup::getSelectedId() const
{
    return m_impl->getSelectedId();
}

void VKD_P_RadioGroup::readXML(const QString& text)
{
    m_impl->readXML(text);
}

QString VKD_P_RadioGroup::writeXML() const
{
    return m_impl->writeXML();
}

void VKD_P_RadioGroup::updateUsedWidget()
{
    m_impl->updateUsedWidget();
}
