#include "VKD_P_WidgetGraphicalOutput.h"

#include "output/fontSize.h"
#include "output/OutputSettings.h"
#include "output/pageSplitPictures.h"
#include "output/WidgetGraphicalOutputData.h"
#include "script/PlatformScriptEnvironment.h"
#include "tree/GraphicalOutputTreeWidget.h"

#include <AnimatorView.h>
#include <vkd_dbo_queries.h>
#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_Dialog.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_TabDialog.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_RadioButtonGroup.h>
#include <VKD_QT_TabDialog.h>

#include <QRadioButton>

namespace {
using plib::OutputView;
using plib::PageFormat;
using plib::PagePictures;
using plib::ScaleMode;

/// Checks the button of a choice.
template <typename Choice>
void choose(VKD_QT_RadioButtonGroup* group, Choice choice)
{
    group->setButton(int(choice));
}

std::vector<StructRadioButtonGrup> entries(const QStringList& texts, int entryWithWidget = -1)
{
    std::vector<StructRadioButtonGrup> items;
    for (const QString& text : texts) {
        StructRadioButtonGrup item;
        item.text = text;
        item.flag = int(items.size()) == entryWithWidget ? StructRadioButtonGrup::WithWidget : 0;
        items.push_back(item);
    }
    return items;
}

StructBoxedEdit fontDescription()
{
    StructBoxedEdit description;
    description.label = VKD_P_WidgetGraphicalOutput::tr("Font Size (mm) : ");
    description.toolTip = VKD_P_WidgetGraphicalOutput::tr("The size of the font");
    description.edit = plib::fontSizeField();
    return description;
}

/// Returns whether filling iso areas has any effect: only area elements and bricks have iso areas.
bool hasAreaResults(VKD_H_PluginParameter* parameter)
{
    const int index = parameter->modelDoc()->index();
    return vkd::dbo::hasQuads(index, nullptr) || vkd::dbo::hasBrics(index, nullptr);
}
} // namespace

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
    auto box = new VKD_QT_GroupBox(tr("Standard graphics"), this, "Standard box");
    buildSettings(box);
    data->tree = new GraphicalOutputTreeWidget(box, progname, parameter, "m_list");
    if (data->fillCheck)
        data->fillCheck->setEnabled(hasAreaResults(parameter));
    layOut(box);
    if (animator)
        connectAnimator();
    connect(data->defaultButton, &QPushButton::clicked, this,
            &VKD_P_WidgetGraphicalOutput::slotDefaultSettings);
    if (data->formatGroup) // on each click, even on the checked format
        for (PageFormat format : {PageFormat::Portrait, PageFormat::Landscape})
            connect(data->formatGroup->getRadioButton(int(format)), &QRadioButton::clicked, this,
                    &VKD_P_WidgetGraphicalOutput::slotQuerFormat);
    findDialogs();
    if (progname == VKD_P_GraphicalOutput_Split) {
        const QSize size = data->tree->sizeHint();
        data->tree->setMinimumSize(int(size.width() * 1.5), size.height());
    }
}

/// Returns the animator to its former parent. If that parent no longer exists, nobody else would
/// delete the animator, so it is deleted with the page.
VKD_P_WidgetGraphicalOutput::~VKD_P_WidgetGraphicalOutput()
{
    AnimatorView* animator = data->animator;
    if (!animator || !isAncestorOf(animator) || (data->animatorHadHome && !data->animatorHome))
        return;
    animator->setParent(data->animatorHome);
    animator->setEnabled(true);
}

void VKD_P_WidgetGraphicalOutput::buildSettings(QWidget* box)
{
    data->defaultButton =
        new VKD_QT_PushButton(tr("Default Settings"), this, "Button: Default settings");
    data->defaultButton->setAutoDefault(false);
    data->defaultButton->setToolTip(tr("All settings on this page will be set to the default"));
    data->attribs = new QWidget(box);
    data->attribs->setObjectName(QStringLiteral("GroupBox attribs"));
    const auto scales =
        entries({tr("Engineering scale"), tr("Scale to fit")}, int(ScaleMode::Engineering));
    data->scaleGroup = new VKD_QT_RadioButtonGroup(tr("Scale"), scales, data->attribs, "ScaleGroup",
                                                   Qt::Vertical, -1);
    if (data->progname == VKD_P_GraphicalOutput_Split)
        buildPageSplit();
    StructBoxedEdit font = fontDescription();
    data->fontEdit = new VKD_H_BoxedLineEdit(data->attribs, &font, "m_boxedEdit");
    if (data->progname != VKD_P_GraphicalOutput_Split)
        buildSheetAndViews(box);
    data->scaleCombo = new VKD_QT4_ComboBox(data->scaleGroup->box(), "box_scale");
    data->scaleCombo->setAccessibleName(tr("Engineering scale"));
    data->scaleGroup->setWidget(int(ScaleMode::Engineering), data->scaleCombo);
    data->scaleGroup->init(scales);
    for (const QString& scale : plib::scaleRows())
        data->scaleCombo->insertItem(data->scaleCombo->count(), QIcon(), scale);
    choose(data->scaleGroup, ScaleMode::ToFit);
    if (data->formatGroup) {
        choose(data->formatGroup, PageFormat::Portrait);
        choose(data->picturesGroup, PagePictures::Two);
    }
}

void VKD_P_WidgetGraphicalOutput::buildPageSplit()
{
    data->pageSplitBox =
        new VKD_QT_GroupBox(tr("Page Splitting", "Blattteilung"), data->attribs, "BLATTTEILUNG");
    auto layout = new VKD_QT_VBoxLayout(data->pageSplitBox);
    data->pageSplitCombo = new VKD_QT4_ComboBox(data->pageSplitBox, "COMBO_PAGESPLITTING");
    data->pageSplitCombo->setAccessibleName(data->pageSplitBox->title());
    for (int id = 0; id < plib::PageSplitCount; ++id)
        data->pageSplitCombo->addItem(plib::pageSplitPicture(id), QString(), id);
    data->pageSplitCombo->setMinimumHeight(plib::pageSplitPicture(0).height() + 2);
    layout->addWidget(data->pageSplitCombo);
    layout->addStretch(1);
}

void VKD_P_WidgetGraphicalOutput::buildSheetAndViews(QWidget* box)
{
    data->formatGroup =
        new VKD_QT_RadioButtonGroup(tr("Page Format"), entries({tr("Portrait"), tr("Landscape")}),
                                    data->attribs, "FormatGroup", Qt::Vertical, -1);
    data->picturesGroup = new VKD_QT_RadioButtonGroup(
        tr("Pictures"), entries({tr("One per Page"), tr("Two per Page")}), data->attribs,
        "PicturesGroup", Qt::Vertical, -1);
    data->fillCheck = new VKD_QT_CheckBox(tr("Iso Areas"), data->attribs, "Check: Filled Isolines");
    data->fillCheck->setToolTip(
        tr("All area iso lines will represented as coloured filled iso areas"));
    data->viewGroup =
        new VKD_QT_RadioButtonGroup(tr("View"),
                                    entries({tr("X/Y -Plane"), tr("X/Z -Plane"), tr("Y/Z -Plane"),
                                             tr("3D Standard"), tr("User defined")}),
                                    box, "PerspectiveGroup", Qt::Horizontal, 3);
}

void VKD_P_WidgetGraphicalOutput::layOut(QWidget* box)
{
    auto settings = new VKD_QT_GridLayout(data->attribs);
    settings->setContentsMargins(0, 0, 0, 0);
    settings->setColumnStretch(4, 1);
    settings->addWidget(data->scaleGroup->box(), 0, 0, 2, 1);
    if (data->formatGroup)
        settings->addWidget(data->formatGroup->box(), 0, 1, 2, 1);
    if (data->pageSplitBox)
        settings->addWidget(data->pageSplitBox, 0, 2, 2, 1);
    if (data->picturesGroup)
        settings->addWidget(data->picturesGroup->box(), 0, 3, 2, 1);
    settings->addWidget(data->fontEdit, 0, 4);
    if (data->fillCheck)
        settings->addWidget(data->fillCheck, 1, 4);

    auto inner = new VKD_QT_GridLayout(box);
    inner->setColumnStretch(0, 2);
    inner->setColumnStretch(1, 3);
    auto left = new VKD_QT_VBoxLayout;
    left->addWidget(data->tree);
    inner->addLayout(left, 0, 0);
    auto right = new VKD_QT_VBoxLayout;
    if (data->viewGroup)
        right->addWidget(data->viewGroup->box());
    inner->addLayout(right, 0, 1);
    inner->addWidget(data->attribs, 1, 0, 1, 2);
    if (data->animator)
        placeAnimator(right);
    else if (data->viewGroup)
        right->addStretch(1);

    auto outer = new VKD_QT_GridLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->setRowStretch(0, 1);
    outer->setRowStretch(1, 0);
    outer->setColumnStretch(0, 1);
    outer->setColumnStretch(1, 0);
    outer->addWidget(box, 0, 0, 1, 2);
    outer->addWidget(data->defaultButton, 1, 1);
    chainTabs();
}

/// Sets the tab order to the reading order. Within a group of radio buttons, Tab stops only at the
/// checked button.
void VKD_P_WidgetGraphicalOutput::chainTabs()
{
    QList<QWidget*> stops{data->tree};
    const auto addGroup = [&stops](const VKD_QT_RadioButtonGroup* group) {
        for (int entry = 0; group && group->getRadioButton(entry); ++entry)
            stops << group->getRadioButton(entry);
    };
    addGroup(data->viewGroup);
    if (data->animator)
        stops << data->animator;
    addGroup(data->scaleGroup);
    stops.insert(stops.size() - 1, data->scaleCombo); // after the first of the two buttons
    addGroup(data->formatGroup);
    if (data->pageSplitCombo)
        stops << data->pageSplitCombo;
    addGroup(data->picturesGroup);
    stops << data->fontEdit->edit();
    if (data->fillCheck)
        stops << data->fillCheck;
    stops << data->defaultButton;
    for (int stop = 1; stop < stops.size(); ++stop)
        setTabOrder(stops[stop - 1], stops[stop]);
}

void VKD_P_WidgetGraphicalOutput::placeAnimator(QBoxLayout* layout)
{
    data->animatorHome = data->animator->parentWidget();
    data->animatorHadHome = data->animatorHome;
    data->animator->setMinimumSize(160, 120);
    layout->addWidget(data->animator, 1);
    if (data->viewGroup)
        choose(data->viewGroup, OutputView::Standard3D);
}

/// Finds the nearest ancestor of each dialog type, up to the first tab dialog.
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

/// Landscape sheets always have one picture, so the choice is disabled.
void VKD_P_WidgetGraphicalOutput::slotQuerFormat()
{
    if (!data->formatGroup)
        return;
    const auto format = PageFormat(data->formatGroup->selectedButton());
    data->picturesGroup->setEnabled(format != PageFormat::Landscape);
    if (format == PageFormat::Portrait || format == PageFormat::Landscape)
        choose(data->picturesGroup, plib::picturesForFormat(format));
}

void VKD_P_WidgetGraphicalOutput::slotDefaultSettings()
{
    data->tree->rebuild(true);
    data->fontEdit->setVal(plib::fontSizeField().value);
    choose(data->scaleGroup, ScaleMode::ToFit);
    if (data->formatGroup)
        choose(data->formatGroup, PageFormat::Portrait);
    if (data->picturesGroup)
        choose(data->picturesGroup, PagePictures::Two);
    if (data->fillCheck)
        data->fillCheck->setChecked(false);
    if (data->viewGroup)
        choose(data->viewGroup, OutputView::Standard3D);
    slotQuerFormat();
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

plib::OutputSettings VKD_P_WidgetGraphicalOutput::settings() const
{
    plib::OutputSettings settings;
    settings.variant = data->progname;
    settings.scaleMode = ScaleMode(data->scaleGroup->selectedButton());
    settings.scaleIndex = data->scaleCombo->currentIndex();
    settings.scaleText = data->scaleCombo->currentText();
    settings.hasFormat = data->formatGroup;
    if (data->pageSplitCombo)
        settings.pageSplitId = data->pageSplitCombo->getCurrentId();
    if (data->formatGroup)
        settings.formatId = PageFormat(data->formatGroup->selectedButton());
    if (data->picturesGroup)
        settings.picturesId = PagePictures(data->picturesGroup->selectedButton());
    // Without an animator, no view is checked initially; then the default view is used.
    if (data->viewGroup && data->viewGroup->selectedButton() >= 0)
        settings.viewId = OutputView(data->viewGroup->selectedButton());
    settings.fontSizeText = data->fontEdit->getText();
    settings.fillAreas = data->fillCheck && data->fillCheck->isChecked();
    return settings;
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL(const QString& additional, bool english)
{
    std::vector<QString> lines;
    data->tree->collectScriptLines(lines, english);
    return plib::outputScript(settings(), lines, additional, plib::keywordsIf(english),
                              plib::PlatformScriptEnvironment(data->pluginParameter));
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
    return plib::viewClause(settings(), plib::keywordsIf(english),
                            plib::PlatformScriptEnvironment(data->pluginParameter));
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL_SIZE(bool english)
{
    return plib::sizeStatement(settings(), plib::keywordsIf(english));
}

QString VKD_P_WidgetGraphicalOutput::getTORVAL_SCHR(bool english)
{
    return plib::fontStatement(settings(), plib::keywordsIf(english));
}

void VKD_P_WidgetGraphicalOutput::getTORVAL_LFs(std::vector<QString>& lines, bool english)
{
    data->tree->collectScriptLines(lines, english);
}

QString VKD_P_WidgetGraphicalOutput::writeFillSet(bool fill, bool english)
{
    return plib::fillDefinitions(fill, plib::keywordsIf(english));
}
