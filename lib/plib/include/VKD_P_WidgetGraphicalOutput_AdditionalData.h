#pragma once

#include "vkd_p_fea_export.h"

#include <QObject>
#include <QPointer>

class VKD_P_WidgetGraphicalOutput;
class VKD_QT_RadioButtonGroup;

/// Connects a host's group of radio buttons to a content tag of an output page. Plots that require
/// the tag are offered while a certain button is checked. The host owns the object.
class VKD_P_FEA_EXPORT VKD_P_WidgetGraphicalOutput_AdditionalData : public QObject
{
    Q_OBJECT

public:
    VKD_P_WidgetGraphicalOutput_AdditionalData();
    ~VKD_P_WidgetGraphicalOutput_AdditionalData() override;

    /// `id` is the id of the button that adds the tag. The current choice in the group has no
    /// effect until the next click. Neither `page` nor `group` is owned.
    void setWidget(VKD_P_WidgetGraphicalOutput* page, VKD_QT_RadioButtonGroup* group,
                   const QString& tag, int id);

public Q_SLOTS:
    /// Handles a click on the button with this id. Each click on the button of the tag adds the tag
    /// once more. A click on any other button removes all additions at once.
    void clicked(int no);

private:
    QString tag;
    QPointer<VKD_P_WidgetGraphicalOutput> page; ///< null after the page has been destroyed
    int id = 0;
};
