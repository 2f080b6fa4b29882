#include "output/SheetPanel.h"

#include "output/SavedPage.h"
#include "output/WidgetGraphicalOutputData.h"

#include <vkd_dbo_queries.h>
#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_qt_icon_named.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_RadioButtonGroup.h>

#include <QRadioButton>

#include <iterator>

namespace plib {

namespace {
/// Returns whether filling iso areas has any effect. Only area elements and bricks have iso areas.
bool hasAreaResults(VKD_H_PluginParameter* parameter)
{
    const int index = parameter->modelDoc()->index();
    return vkd::dbo::hasQuads(index, nullptr) || vkd::dbo::hasBrics(index, nullptr);
}

template <typename Choice>
QString choicePart(const char* tag, Choice choice)
{
    return savedPart(tag, QString::number(int(choice)));
}
} // namespace

SheetPanel::SheetPanel(WidgetGraphicalOutputData& data)
    : OutputPanel(data)
{
}

void SheetPanel::build(QWidget* box)
{
    buildStrip(box);
    buildFont();
    buildSheet();
    buildIsoAreas();
    buildViews(box);
    buildScaleList();
    m_data.formatGroup->setButton(int(PageFormat::Portrait));
    m_data.picturesGroup->setButton(int(PagePictures::Two));
}

void SheetPanel::buildSheet()
{
    m_data.formatGroup =
        new VKD_QT_RadioButtonGroup(tr("Page Format"), entries({tr("Portrait"), tr("Landscape")}),
                                    m_data.attribs, "FormatGroup", Qt::Vertical, -1);
    m_data.picturesGroup = new VKD_QT_RadioButtonGroup(
        tr("Pictures"), entries({tr("One per Page"), tr("Two per Page")}), m_data.attribs,
        "PicturesGroup", Qt::Vertical, -1);
}

void SheetPanel::buildIsoAreas()
{
    m_data.fillCheck =
        new VKD_QT_CheckBox(tr("Iso Areas"), m_data.attribs, "Check: Filled Isolines");
    m_data.fillCheck->setToolTip(
        tr("All area iso lines will represented as coloured filled iso areas"));
    m_data.fillCheck->setEnabled(hasAreaResults(m_data.pluginParameter));
}

/// Creates the view buttons. Without an animator, no view is initially checked.
void SheetPanel::buildViews(QWidget* box)
{
    m_data.viewGroup =
        new VKD_QT_RadioButtonGroup(tr("View"),
                                    entries({tr("X/Y -Plane"), tr("X/Z -Plane"), tr("Y/Z -Plane"),
                                             tr("3D Standard"), tr("User defined")}),
                                    box, "PerspectiveGroup", Qt::Horizontal, 3);
    constexpr const char* Icons[] = {"xy", "xz", "yz", "3d", "user"};
    for (int view = 0; view < int(std::size(Icons)); ++view)
        m_data.viewGroup->getRadioButton(view)->setIcon(vkd::qt::icon(
            QStringLiteral(":/icon/program/view_%1").arg(QLatin1String(Icons[view]))));
    if (m_data.animator)
        m_data.viewGroup->setButton(int(OutputView::Standard3D));
}

void SheetPanel::layOut(QBoxLayout* right)
{
    QGridLayout* strip = layOutStrip();
    strip->addWidget(m_data.formatGroup->box(), 0, 1, 2, 1);
    strip->addWidget(m_data.picturesGroup->box(), 0, 3, 2, 1);
    strip->addWidget(m_data.fillCheck, 1, 4);
    right->addWidget(m_data.viewGroup->box());
    if (!m_data.animator)
        right->addStretch(1);
}

QList<QRadioButton*> SheetPanel::viewButtons() const
{
    return buttons(m_data.viewGroup);
}

QList<QRadioButton*> SheetPanel::formatButtons() const
{
    return buttons(m_data.formatGroup);
}

QList<QWidget*> SheetPanel::tabStops() const
{
    QList<QWidget*> stops = scaleStops();
    for (QRadioButton* button : buttons(m_data.formatGroup) + buttons(m_data.picturesGroup))
        stops << button;
    return stops << m_data.fontEdit->edit() << m_data.fillCheck;
}

void SheetPanel::reset()
{
    OutputPanel::reset();
    m_data.formatGroup->setButton(int(PageFormat::Portrait));
    m_data.picturesGroup->setButton(int(PagePictures::Two));
    m_data.fillCheck->setChecked(false);
    m_data.viewGroup->setButton(int(OutputView::Standard3D));
    followFormat();
}

/// Landscape sheets always have one picture, so the radio group for the number is disabled.
void SheetPanel::followFormat()
{
    const auto format = PageFormat(m_data.formatGroup->selectedButton());
    m_data.picturesGroup->setEnabled(format != PageFormat::Landscape);
    m_data.picturesGroup->setButton(int(picturesForFormat(format)));
}

OutputSettings SheetPanel::settings() const
{
    OutputSettings settings = OutputPanel::settings();
    settings.formatId = PageFormat(m_data.formatGroup->selectedButton());
    settings.picturesId = PagePictures(m_data.picturesGroup->selectedButton());
    if (checkedView() >= 0)
        settings.viewId = OutputView(checkedView());
    settings.fillAreas = m_data.fillCheck->isChecked();
    return settings;
}

QString SheetPanel::savedParts() const
{
    const OutputSettings now = settings();
    return OutputPanel::savedParts() + choicePart(savedtag::Fill, now.fillAreas) +
           choicePart(savedtag::Format, now.formatId) +
           choicePart(savedtag::Pictures, now.picturesId) + choicePart(savedtag::View, now.viewId);
}

void SheetPanel::apply(const SavedPage& saved)
{
    OutputPanel::apply(saved);
    const OutputSettings& settings = saved.settings();
    if (saved.has(savedtag::Fill))
        m_data.fillCheck->setChecked(settings.fillAreas);
    if (saved.has(savedtag::Format)) {
        m_data.formatGroup->setButton(int(settings.formatId));
        followFormat();
    }
    if (saved.has(savedtag::Pictures))
        m_data.picturesGroup->setButton(int(settings.picturesId));
    if (saved.has(savedtag::View)) // showing the view moves the camera
        m_data.viewGroup->setButton(int(settings.viewId));
}

int SheetPanel::checkedView() const
{
    return m_data.viewGroup->selectedButton();
}

bool SheetPanel::showsFixedView() const
{
    return checkedView() < int(OutputView::UserDefined);
}

} // namespace plib
