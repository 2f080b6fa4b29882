#include "VKD_P_WidgetGraphicalOutput_AdditionalData.h"

#include "VKD_P_WidgetGraphicalOutput.h"

#include <VKD_QT_RadioButtonGroup.h>

using AdditionalData = VKD_P_WidgetGraphicalOutput_AdditionalData;

VKD_P_WidgetGraphicalOutput_AdditionalData::VKD_P_WidgetGraphicalOutput_AdditionalData() = default;

VKD_P_WidgetGraphicalOutput_AdditionalData::~VKD_P_WidgetGraphicalOutput_AdditionalData() = default;

void VKD_P_WidgetGraphicalOutput_AdditionalData::setWidget(VKD_P_WidgetGraphicalOutput* itsPage,
                                                           VKD_QT_RadioButtonGroup* group,
                                                           const QString& itsTag, int itsId)
{
    page = itsPage;
    tag = itsTag;
    id = itsId;
    connect(group, &VKD_QT_RadioButtonGroup::buttWasClicked, this, &AdditionalData::clicked);
}

void VKD_P_WidgetGraphicalOutput_AdditionalData::clicked(int no)
{
    if (page)
        page->additionalData(tag, no == id);
}
