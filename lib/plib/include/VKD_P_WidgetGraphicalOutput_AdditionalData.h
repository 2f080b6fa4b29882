#pragma once

#include "vkd_p_fea_export.h"

#include <QObject>
#include <QPointer>

class VKD_P_WidgetGraphicalOutput;
class VKD_QT_RadioButtonGroup;

/// Connects a host's group of radio buttons to a content tag of an output page. Plots that require
/// the tag are offered as long as a certain button is checked. The host owns the object.
class VKD_P_FEA_EXPORT VKD_P_WidgetGraphicalOutput_AdditionalData : public QObject
{
    Q_OBJECT

public:
    VKD_P_WidgetGraphicalOutput_AdditionalData();
    ~VKD_P_WidgetGraphicalOutput_AdditionalData() override;

    /// `id` is the ID of the button that adds the tag. The button that is already checked has no
    /// effect until the next click. Neither `page` nor `group` is owned.
    void setWidget(VKD_P_WidgetGraphicalOutput* page, VKD_QT_RadioButtonGroup* group,
                   const QString& tag, int id);

public Q_SLOTS:
    /// Handles a click on the button with this ID. Each click on the button that adds the tag adds
    /// it once more. A click on any other button removes the tag completely.
    void clicked(int no);

private:
    QString tag;
    QPointer<VKD_P_WidgetGraphicalOutput> page; ///< null after the page has been destroyed
    int id = 0;
};
