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

/// The page on which the user selects plots and load cases and configures the sheet for a graphics
/// run. It generates a script with German or English keywords. All functions may be called
/// immediately after construction, but only in the GUI thread.
class VKD_P_FEA_EXPORT VKD_P_WidgetGraphicalOutput : public QWidget
{
    Q_OBJECT

public:
    /// `parameter` provides the project; it is not owned and must outlive the page. `animator` is
    /// placed on the page and is returned to its former parent when the page is destroyed. It may
    /// be null, and it must be null for the split page, on which the user cannot choose a view.
    VKD_P_WidgetGraphicalOutput(QWidget* parent, VKD_P_WidgetGraphicalOutput_Progname progname,
                                VKD_H_PluginParameter* parameter, AnimatorView* animator);
    ~VKD_P_WidgetGraphicalOutput() override;

    /// Returns whether the host may leave the page. Always returns true.
    bool checkVals();

    /// Returns the script. It is empty if no plot is checked, regardless of `additional`. The text
    /// in `additional` is appended after the plots, followed by a newline. On the prefix page, the
    /// text is inserted before the plots without any change. The split page returns two alternative
    /// page setups instead of a script.
    QString getTORVAL(const QString& additional, bool english);
    /// Returns the script without additional text.
    QString getTORVAL(bool english);
    /// Appends the script, even an empty one, to `scripts`. Always returns 1.
    int getTORVAL(std::vector<QString>& scripts, bool english);
    /// Returns the clause for the selected view. The result is meaningless for the split page,
    /// which has no views.
    QString getTORVAL_BEOB(bool english);
    /// Returns the page setup statement, without a trailing newline.
    QString getTORVAL_SIZE(bool english);
    /// Returns the font statement. On the split page, returns only the font size in centimetres.
    QString getTORVAL_SCHR(bool english);
    /// Replaces `lines` with the lines of the checked plots. The lines contain the views that the
    /// catalogue specifies.
    void getTORVAL_LFs(std::vector<QString>& lines, bool english);
    /// Returns five variable definitions that specify whether areas are filled.
    QString writeFillSet(bool fill, bool english);

    /// Lets the animator store its camera, and returns the state of the page as concatenated tagged
    /// strings, which the host saves.
    QString writeXMLstring();
    /// Applies a string returned by writeXMLstring(), which may come from another kind of page.
    /// Widgets whose tags are missing do not change, and unknown tags are ignored. After any call,
    /// even with an empty string, the selected plots are preserved when the content tags change.
    void readXMLstring(QString xml);

Q_SIGNALS:
    /// Commands for the animator. The page emits only the first of these signals, for all views.
    void signalBeobXY(AnimatorViewControl control, double value);
    void signalBeobXZ(AnimatorViewControl control, double value);
    void signalBeobYZ(AnimatorViewControl control, double value);
    void signalBeob3D(AnimatorViewControl control, double value);

public Q_SLOTS:
    /// Restores the default selection of the catalogue and the settings of a new page. The lists of
    /// scales and sheets keep their current rows.
    void slotDefaultSettings();
    /// Sets the load cases that are shown as rows. A different list restores the default selection
    /// of the catalogue; an identical list has no effect.
    void setUsedNumbersAndNames(
        const std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>& lc_infos);

protected:
    /// Adds or removes a content tag that is treated as present regardless of the model.
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
    friend class VKD_P_WidgetGraphicalOutput_AdditionalData; // calls additionalData() for hosts

    void buildDefaultButton();
    void layOut(QWidget* box);
    void placeAnimator(QBoxLayout* layout);
    QWidget* newFindButton();
    void chainTabs();
    void connectAnimator();
    void findDialogs();
    void showFixedView(AnimatorViewControl control, bool on);

    std::unique_ptr<WidgetGraphicalOutputData> data;
};
