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

/// The page on which the user selects plots and load cases and sets up the sheet for a graphics
/// run. It generates a script with German or English keywords. All operations may be called right
/// after construction, on the GUI thread only.
class VKD_P_FEA_EXPORT VKD_P_WidgetGraphicalOutput : public QWidget
{
    Q_OBJECT

public:
    /// `parameter` provides the project; it is not owned and outlives the page. `animator` may be
    /// null. It is placed on the page, and returned to its former parent when the page is
    /// destroyed. It must be null for the split page, which has no choice of views.
    VKD_P_WidgetGraphicalOutput(QWidget* parent, VKD_P_WidgetGraphicalOutput_Progname progname,
                                VKD_H_PluginParameter* parameter, AnimatorView* animator);
    ~VKD_P_WidgetGraphicalOutput() override;

    /// Returns whether the host may leave the page; always true.
    bool checkVals();

    /// Returns the script. It is empty if no plot is checked, whatever `additional` contains. This
    /// text is appended after the plots, with a line end; on the prefix page it is inserted before
    /// the plots, unchanged. The split page returns its page setup as two alternatives instead of a
    /// script.
    QString getTORVAL(const QString& additional, bool english);
    QString getTORVAL(bool english);
    /// Appends the script to `scripts`, even if it is empty. Always returns 1.
    int getTORVAL(std::vector<QString>& scripts, bool english);
    /// Returns the clause of the selected view; meaningless for the split page, which has no views.
    QString getTORVAL_BEOB(bool english);
    /// Returns the page setup statement, without a line end after it.
    QString getTORVAL_SIZE(bool english);
    /// Returns the font statement; on the split page only the size, in centimetres.
    QString getTORVAL_SCHR(bool english);
    /// Replaces `lines` with the lines of the checked plots, which keep the views of the catalogue.
    void getTORVAL_LFs(std::vector<QString>& lines, bool english);
    /// Returns five definitions that set whether areas are filled.
    QString writeFillSet(bool fill, bool english);

    /// Returns the state of the page as a string of tagged parts, which the host saves. The
    /// animator stores its camera first.
    QString writeXMLstring();
    /// Applies such a string, which may come from another kind of page. Missing parts leave their
    /// widgets unchanged, and unknown parts are ignored. After any call, even with an empty string,
    /// the choice of plots survives a change of the content tags.
    void readXMLstring(QString xml);

Q_SIGNALS:
    /// Commands for the animator. The page emits only the first of these signals, for all views.
    void signalBeobXY(AnimatorViewControl control, double value);
    void signalBeobXZ(AnimatorViewControl control, double value);
    void signalBeobYZ(AnimatorViewControl control, double value);
    void signalBeob3D(AnimatorViewControl control, double value);

public Q_SLOTS:
    /// Restores the catalogue's default choice and the settings of a new page. The lists of scales
    /// and sheets keep their current rows.
    void slotDefaultSettings();
    /// Sets the load cases that become rows. A different list restores the catalogue's default
    /// choice; an equal one changes nothing.
    void setUsedNumbersAndNames(
        const std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>& lc_infos);

protected:
    /// Adds or removes a content tag that counts as present whatever the model contains.
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
    friend class VKD_P_WidgetGraphicalOutput_AdditionalData; // switches content tags for hosts

    void buildDefaultButton();
    void layOut(QWidget* box);
    void placeAnimator(QBoxLayout* layout);
    void chainTabs();
    void connectAnimator();
    void findDialogs();
    void showFixedView(AnimatorViewControl control, bool on);

    std::unique_ptr<WidgetGraphicalOutputData> data;
};
