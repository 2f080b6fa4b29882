#pragma once

#include "vkd_p_fea_export.h"

#include <QObject>
#include <QPointer>

class VKD_P_WidgetGraphicalOutput;
class VKD_QT_RadioButtonGroup;

/// Lets a host's group of radio buttons switch a content tag of an output page. Plots that require
/// the tag are offered while a certain button is checked. Owned by the host.
class VKD_P_FEA_EXPORT VKD_P_WidgetGraphicalOutput_AdditionalData : public QObject
{
    Q_OBJECT

public:
    VKD_P_WidgetGraphicalOutput_AdditionalData();
    ~VKD_P_WidgetGraphicalOutput_AdditionalData() override;

    /// `id` is the number of the button that adds the tag. The current choice of the group has no
    /// effect until the next click. Neither `page` nor `group` is owned.
    void setWidget(VKD_P_WidgetGraphicalOutput* page, VKD_QT_RadioButtonGroup* group,
                   const QString& tag, int id);

public Q_SLOTS:
    /// Handles a click on the button with this number. If it is the button of the tag, the tag is
    /// added, once more each time; any other number removes all additions at once.
    void clicked(int no);

private:
    QString tag;
    QPointer<VKD_P_WidgetGraphicalOutput> page; ///< null after the page is destroyed
    int id = 0;
};
