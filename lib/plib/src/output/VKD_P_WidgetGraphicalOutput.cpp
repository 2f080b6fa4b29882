#include "VKD_P_WidgetGraphicalOutput.h"

#include "dialogs/rejectDialogs.h"
#include "history/stepText.h"
#include "output/CountsLine.h"
#include "output/PageHistory.h"
#include "output/WidgetGraphicalOutputData.h"
#include "script/PlatformScriptEnvironment.h"
#include "search/PlotKeys.h"
#include "tree/GraphicalOutputTreeWidget.h"
#include "tree/HostScript.h"

#include <AnimatorView.h>
#include <VKD_H_Dialog.h>
#include <VKD_H_TabDialog.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_TabDialog.h>
#include <VKD_QT_Widgets.h>

#include <QAction>
#include <QBoxLayout>
#include <QRadioButton>
#include <QToolButton>

VKD_P_WidgetGraphicalOutput::VKD_P_WidgetGraphicalOutput(
    QWidget* parent, VKD_P_WidgetGraphicalOutput_Progname progname,
    VKD_H_PluginParameter* parameter, AnimatorView* animator)
    : QWidget(parent)
    , data(new WidgetGraphicalOutputData)
{
    setObjectName(QStringLiteral("Widget_GraphOut"));
    data->progname = progname;
    data->pluginParameter = parameter;
    data->animator = animator;
    data->panel = plib::makeOutputPanel(*data);
    auto box = new VKD_QT_GroupBox(tr("Standard graphics"), this, "Standard box");
    buildDefaultButton();
    data->panel->build(box);
    data->tree = new GraphicalOutputTreeWidget(box, progname, parameter, "m_list");
    layOut(box);
    if (animator)
        connectAnimator();
    connect(data->defaultButton, &QPushButton::clicked, this,
            &VKD_P_WidgetGraphicalOutput::slotDefaultSettings);
    for (QRadioButton* format : data->panel->formatButtons()) // even a click on the checked button
        connect(format, &QRadioButton::clicked, this, &VKD_P_WidgetGraphicalOutput::slotQuerFormat);
    findDialogs();
    data->history = std::make_unique<plib::PageHistory>(this, data.get());
    connect(data->history.get(), &plib::PageHistory::stepped, data->counts,
            &plib::CountsLine::change);
}

/// Returns the animator to its former parent. If that parent no longer exists, the animator is
/// deleted with the page, because it has no other owner.
VKD_P_WidgetGraphicalOutput::~VKD_P_WidgetGraphicalOutput()
{
    plib::rejectDialogs(data->tree);
    AnimatorView* animator = data->animator;
    if (!animator || !isAncestorOf(animator) || (data->animatorHadHome && !data->animatorHome))
        return;
    animator->setParent(data->animatorHome);
    animator->setEnabled(true);
}

void VKD_P_WidgetGraphicalOutput::buildDefaultButton()
{
    data->defaultButton =
        new VKD_QT_PushButton(tr("Default Settings"), this, "Button: Default settings");
    data->defaultButton->setAutoDefault(false);
    data->defaultButton->setToolTip(tr("All settings on this page will be set to the default"));
}

void VKD_P_WidgetGraphicalOutput::layOut(QWidget* box)
{
    auto inner = new VKD_QT_GridLayout(box);
    inner->setColumnStretch(0, 2);
    inner->setColumnStretch(1, 3);
    auto left = new VKD_QT_VBoxLayout;
    left->addWidget(data->tree);
    new plib::PlotKeys(this, data->tree, left);
    inner->addLayout(left, 0, 0);
    auto right = new VKD_QT_VBoxLayout;
    data->panel->layOut(right);
    inner->addLayout(right, 0, 1);
    inner->addWidget(data->attribs, 1, 0, 1, 2);
    if (data->animator)
        placeAnimator(right);

    auto outer = new VKD_QT_GridLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setRowStretch(0, 1);
    outer->setRowStretch(1, 0);
    outer->setColumnStretch(0, 1);
    outer->setColumnStretch(1, 0);
    outer->addWidget(box, 0, 0, 1, 2);
    outer->addWidget(data->defaultButton, 1, 1);
    auto below = new QHBoxLayout;
    below->addWidget(newFindButton());
    below->addWidget(data->counts = new plib::CountsLine(data.get(), this));
    outer->addLayout(below, 1, 0);
    chainTabs();
}

/// Creates a button for users who do not know the keyboard shortcuts of the search.
QWidget* VKD_P_WidgetGraphicalOutput::newFindButton()
{
    auto button = new QToolButton(this);
    button->setObjectName(QStringLiteral("findPlotsButton"));
    button->setDefaultAction(findChild<QAction*>(QStringLiteral("findPlots")));
    button->setFocusPolicy(Qt::NoFocus); // keyboard users have shortcuts
    return button;
}

/// Sets the tab order to the reading order. Within a group of radio buttons, Tab stops only at the
/// checked button.
void VKD_P_WidgetGraphicalOutput::chainTabs()
{
    QList<QWidget*> stops{data->tree};
    for (QRadioButton* view : data->panel->viewButtons())
        stops << view;
    if (data->animator)
        stops << data->animator;
    stops << data->panel->tabStops() << data->defaultButton;
    for (int stop = 1; stop < stops.size(); ++stop)
        setTabOrder(stops[stop - 1], stops[stop]);
}

void VKD_P_WidgetGraphicalOutput::placeAnimator(QBoxLayout* layout)
{
    data->animatorHome = data->animator->parentWidget();
    data->animatorHadHome = data->animatorHome;
    data->animator->setMinimumSize(160, 120);
    layout->addWidget(data->animator, 1);
}

/// Finds the nearest ancestor of each type of dialog. The search ends at the first tab dialog.
void VKD_P_WidgetGraphicalOutput::findDialogs()
{
    for (QWidget* ancestor = parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
        if (!data->tabDialog)
            data->tabDialog = qobject_cast<VKD_H_TabDialog*>(ancestor);
        if (!data->dialog)
            data->dialog = qobject_cast<VKD_H_Dialog*>(ancestor);
        if (auto tabs = qobject_cast<VKD_QT_TabDialog*>(ancestor)) {
            connect(tabs, &VKD_QT_TabDialog::currentChanged, this,
                    &VKD_P_WidgetGraphicalOutput::slotCurrentChanged);
            return;
        }
    }
}

bool VKD_P_WidgetGraphicalOutput::checkVals()
{
    return true;
}

void VKD_P_WidgetGraphicalOutput::slotQuerFormat()
{
    data->panel->followFormat();
}

void VKD_P_WidgetGraphicalOutput::slotDefaultSettings()
{
    const plib::PageChange change(
        data->history.get(),
        plib::stepName("VKD_P_WidgetGraphicalOutput",
                       QT_TRANSLATE_NOOP("VKD_P_WidgetGraphicalOutput", "Default Settings")));
    data->tree->rebuild(true);
    data->panel->reset();
}

void VKD_P_WidgetGraphicalOutput::setUsedNumbersAndNames(
    const std::vector<vkd::plib::widgetgraphicaloutput::LoadcaseInformation>& lc_infos)
{
    data->tree->setUsedNumbersAndNames(lc_infos);
}

void VKD_P_WidgetGraphicalOutput::additionalData(const QString& tag, bool add)
{
    data->tree->additionalData(tag, add);
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL(const QString& additional, bool english)
{
    std::vector<QString> lines;
    data->tree->collectScriptLines(lines, english);
    int linesBefore = -1;
    const QString script =
        plib::outputScript(data->panel->settings(), lines, additional, plib::keywordsIf(english),
                           plib::PlatformScriptEnvironment(data->pluginParameter), &linesBefore);
    const auto host = data->tree->findChild<plib::HostScript*>();
    host->setLinesBefore(linesBefore);
    data->counts->count(host->origins(), script);
    return script;
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL(bool english)
{
    return getTORVAL(QString(), english);
}

int VKD_P_WidgetGraphicalOutput::getTORVAL(std::vector<QString>& scripts, bool english)
{
    scripts.push_back(getTORVAL(english));
    return 1;
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL_BEOB(bool english)
{
    return plib::viewClause(data->panel->settings(), plib::keywordsIf(english),
                            plib::PlatformScriptEnvironment(data->pluginParameter));
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL_SIZE(bool english)
{
    return plib::sizeStatement(data->panel->settings(), plib::keywordsIf(english));
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL_SCHR(bool english)
{
    return plib::fontStatement(data->panel->settings(), plib::keywordsIf(english));
}

void VKD_P_WidgetGraphicalOutput::getTORVAL_LFs(std::vector<QString>& lines, bool english)
{
    data->tree->collectScriptLines(lines, english);
}

QString VKD_P_WidgetGraphicalOutput::writeFillSet(bool fill, bool english)
{
    return plib::fillDefinitions(fill, plib::keywordsIf(english));
}
