#include "VKD_P_DesignParameter.h"

#include "design/DesignParameter.h"
#include "record/designRecord.h"
#include "record/designStore.h"

#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>

namespace {
/// Returns the nearest ancestor that is a VKD_QT_Dialog, or null.
VKD_QT_Dialog* dialogAbove(const QWidget* widget)
{
    QWidget* ancestor = widget->parentWidget();
    while (ancestor && !qobject_cast<VKD_QT_Dialog*>(ancestor))
        ancestor = ancestor->parentWidget();
    return qobject_cast<VKD_QT_Dialog*>(ancestor);
}
} // namespace

VKD_P_DesignParameter::VKD_P_DesignParameter(VKD_H_ZOBDoc* doc, VKD_H_ZOBDoc* designDoc,
                                             QWidget* parent, bool flagA, bool flagB)
    : QWidget(parent)
    , m_page(new DesignParameter(doc, designDoc, this, flagA, flagB))
{
    m_page->setDialog(dialogAbove(this));
    connect(m_page, &DesignParameter::signal_rowCountChanged, this,
            &VKD_P_DesignParameter::signal_rowCountChanged);
    auto layout = new VKD_QT_VBoxLayout(this);
    layout->addWidget(m_page);
    setFocusProxy(m_page);
    checkAndCreateZobDefault(designDoc->index());
}

VKD_P_DesignParameter::~VKD_P_DesignParameter()
{
    delete m_page;
}

bool VKD_P_DesignParameter::init()
{
    m_page->init();
    addActions(m_page->actions()); // for hosts
    return true;
}

void VKD_P_DesignParameter::readZob()
{
    m_page->readZob();
}

void VKD_P_DesignParameter::getEntrys(VKD_H_ProjectDialogPage& page)
{
    m_page->getEntrys(page);
}

void VKD_P_DesignParameter::writeToZob()
{
    m_page->writeToZob();
}

void VKD_P_DesignParameter::setEntrys(VKD_H_ProjectDialogPage& page)
{
    m_page->setEntrys(page);
}

bool VKD_P_DesignParameter::checkVals()
{
    return m_page->checkVals();
}

tagZOB_QUAD_RIM VKD_P_DesignParameter::getDefaultMerPara(bool forRemainingGroups)
{
    return plib::getDefaultMerPara(forRemainingGroups);
}

void VKD_P_DesignParameter::checkAndCreateZobDefault(int index)
{
    plib::checkAndCreateZobDefault(index);
}

void VKD_P_DesignParameter::showHelp()
{
    m_page->help_clicked();
}
