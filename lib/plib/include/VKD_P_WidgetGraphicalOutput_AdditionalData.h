#pragma once

#include "vkd_p_fea_export.h"

#include <QObject>
#include <QPointer>

class VKD_P_WidgetGraphicalOutput;
class VKD_QT_RadioButtonGroup;

/// Lets a host's group of radio buttons switch a content tag of an output page: the plots that ask
/// for the tag are offered while one button is chosen. Owned by the host.
class VKD_P_FEA_EXPORT VKD_P_WidgetGraphicalOutput_AdditionalData : public QObject
{
    Q_OBJECT

public:
    VKD_P_WidgetGraphicalOutput_AdditionalData();
    ~VKD_P_WidgetGraphicalOutput_AdditionalData() override;

    /// `id` is the number of the button that stands for the tag. The group is not asked for its
    /// present choice. Neither `page` nor `group` is owned.
    void setWidget(VKD_P_WidgetGraphicalOutput* page, VKD_QT_RadioButtonGroup* group,
                   const QString& tag, int id);

public Q_SLOTS:
    /// What a click on the button with this number does: it adds the tag, once more each time, or
    /// with another number takes all of them away.
    void clicked(int no);

private:
    QString tag;
    QPointer<VKD_P_WidgetGraphicalOutput> page; ///< null when it has gone
    int id = 0;
};
