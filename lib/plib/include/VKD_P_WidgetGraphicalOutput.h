#pragma once

#include "LoadcaseInformation.h"
#include "vkd_p_fea_export.h"
#include "VKD_P_WidgetGraphicalOutput_Progname.h"

#include <AnimatorViewControl.h>

#include <QWidget>

#include <memory>
#include <vector>

class AnimatorView;
class QBoxLayout;
class VKD_H_PluginParameter;
struct WidgetGraphicalOutputData;

namespace plib {
struct OutputSettings;
}

/// The page on which the user picks plots and load cases and sets up the sheet for a graphics run.
/// Its product is a script with German or English keywords. It is ready for every operation as soon
/// as it is made, and belongs to the GUI thread.
class VKD_P_FEA_EXPORT VKD_P_WidgetGraphicalOutput : public QWidget
{
    Q_OBJECT

public:
    /// `parameter` carries the project, is not owned and outlives the page. `animator`, which may
    /// be null, is placed on the page and goes back to the parent it had when the page goes. It is
    /// not for the split page, which has no choice of views.
    VKD_P_WidgetGraphicalOutput(QWidget* parent, VKD_P_WidgetGraphicalOutput_Progname progname,
                                VKD_H_PluginParameter* parameter, AnimatorView* animator);
    ~VKD_P_WidgetGraphicalOutput() override;

    /// Whether the host may leave the page: always.
    bool checkVals();

    /// The script. Empty if no plot is checked, whatever `additional` holds. That text goes behind
    /// the plots and gets a line end; on the prefix page it goes ahead of them as it is. The split
    /// page gives no script but its page setup as two alternatives.
    QString getTORVAL(const QString& additional, bool english);
    QString getTORVAL(bool english);
    /// Appends the script to `scripts`, an empty one too. Always 1.
    int getTORVAL(std::vector<QString>& scripts, bool english);
    /// The clause of the chosen view; not for the split page.
    QString getTORVAL_BEOB(bool english);
    /// The page setup statement, without a line end behind it.
    QString getTORVAL_SIZE(bool english);
    /// The font statement; on the split page the size alone, in centimetres.
    QString getTORVAL_SCHR(bool english);
    /// Replaces `lines` by those of the checked plots, with the views that the catalogue gives
    /// them.
    void getTORVAL_LFs(std::vector<QString>& lines, bool english);
    /// Five definitions that say whether areas are filled.
    QString writeFillSet(bool fill, bool english);

    /// The state of the page as a string of tagged parts, for the host to keep. The animator stores
    /// its camera first.
    QString writeXMLstring();
    /// Applies such a string, also one of another kind of page: parts that are missing leave their
    /// widgets alone, and parts that this page does not know are passed over. After any string, an
    /// empty one too, a change of content tags keeps the choice of plots.
    void readXMLstring(QString xml);

Q_SIGNALS:
    /// Commands for the animator. The page sends all of them by the first of these signals.
    void signalBeobXY(AnimatorViewControl control, double value);
    void signalBeobXZ(AnimatorViewControl control, double value);
    void signalBeobYZ(AnimatorViewControl control, double value);
    void signalBeob3D(AnimatorViewControl control, double value);

public Q_SLOTS:
    /// Brings back the catalogue's choice and the settings of a new page; the lists of scales and
    /// sheets stay where they are.
    void slotDefaultSettings();
    /// The load cases that rows are made from. A list that differs from the present one brings back
    /// the catalogue's choice; an equal one changes nothing.
    void setUsedNumbersAndNames(
        const std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>& lc_infos);

protected:
    /// Counts a content tag as present, whatever the model holds, or no longer.
    void additionalData(const QString& tag, bool add);
    void customEvent(QEvent* event) override;

protected Q_SLOTS:
    void slotBeobXY(bool on);
    void slotBeobXZ(bool on);
    void slotBeobYZ(bool on);
    void slotBeob3D(bool on);
    void slotBeobAni(bool on);
    void slotCurrentChanged(QWidget* page);
    void slotQuerFormat();

private:
    friend class VKD_P_WidgetGraphicalOutput_AdditionalData; // a host's switch of a content tag

    void buildSettings(QWidget* box);
    void buildPageSplit();
    void buildSheetAndViews(QWidget* box);
    void layOut(QWidget* box);
    void placeAnimator(QBoxLayout* layout);
    void chainTabs();
    void connectAnimator();
    void findDialogs();
    void showFixedView(AnimatorViewControl control, bool on);
    plib::OutputSettings settings() const;

    std::unique_ptr<WidgetGraphicalOutputData> data;
};
