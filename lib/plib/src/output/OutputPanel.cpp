#include "output/OutputPanel.h"

#include "output/fontSize.h"
#include "output/SavedPage.h"
#include "output/SheetPanel.h"
#include "output/SplitPanel.h"
#include "output/WidgetGraphicalOutputData.h"

#include <VKD_H_BoxedLineEdit.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_RadioButtonGroup.h>

#include <QRadioButton>

namespace plib {

namespace {
/// Returns "0" for scale to fit, "-" for the row "Auto", otherwise the text of the row. The row of
/// the list is therefore saved only for an engineering scale; reading "0" does not change the row.
QString scaleValue(const OutputSettings& settings)
{
    if (settings.scaleMode != ScaleMode::Engineering)
        return QStringLiteral("0");
    return settings.scaleIndex == AutoScaleRow ? QStringLiteral("-") : settings.scaleText;
}
} // namespace

std::unique_ptr<OutputPanel> makeOutputPanel(WidgetGraphicalOutputData& data)
{
    if (data.progname == VKD_P_GraphicalOutput_Split)
        return std::make_unique<SplitPanel>(data);
    return std::make_unique<SheetPanel>(data);
}

OutputPanel::OutputPanel(WidgetGraphicalOutputData& data)
    : m_data(data)
{
}

OutputPanel::~OutputPanel() = default;

void OutputPanel::buildStrip(QWidget* box)
{
    m_data.attribs = new QWidget(box);
    m_data.attribs->setObjectName(QStringLiteral("GroupBox attribs"));
    m_data.scaleGroup = new VKD_QT_RadioButtonGroup(tr("Scale"), scaleEntries(), m_data.attribs,
                                                    "ScaleGroup", Qt::Vertical, -1);
}

void OutputPanel::buildFont()
{
    StructBoxedEdit description;
    description.label = tr("Font Size (mm) : ");
    description.toolTip = tr("The size of the font");
    description.edit = fontSizeField();
    m_data.fontEdit = new VKD_H_BoxedLineEdit(m_data.attribs, &description, "m_boxedEdit");
}

void OutputPanel::buildScaleList()
{
    m_data.scaleCombo = new VKD_QT4_ComboBox(m_data.scaleGroup->box(), "box_scale");
    m_data.scaleCombo->setAccessibleName(tr("Engineering scale"));
    m_data.scaleGroup->setWidget(int(ScaleMode::Engineering), m_data.scaleCombo);
    m_data.scaleGroup->init(scaleEntries());
    for (const QString& scale : scaleRows())
        m_data.scaleCombo->insertItem(m_data.scaleCombo->count(), QIcon(), scale);
    m_data.scaleGroup->setButton(int(ScaleMode::ToFit));
}

QGridLayout* OutputPanel::layOutStrip()
{
    auto strip = new VKD_QT_GridLayout(m_data.attribs);
    strip->setContentsMargins(0, 0, 0, 0);
    strip->setColumnStretch(4, 1);
    strip->addWidget(m_data.scaleGroup->box(), 0, 0, 2, 1);
    strip->addWidget(m_data.fontEdit, 0, 4);
    return strip;
}

/// Returns the tab stops of the scale. The list of scales follows the button to which it belongs.
QList<QWidget*> OutputPanel::scaleStops() const
{
    const VKD_QT_RadioButtonGroup* group = m_data.scaleGroup;
    return {group->getRadioButton(int(ScaleMode::Engineering)), m_data.scaleCombo,
            group->getRadioButton(int(ScaleMode::ToFit))};
}

void OutputPanel::reset()
{
    m_data.fontEdit->setVal(fontSizeField().value);
    m_data.scaleGroup->setButton(int(ScaleMode::ToFit));
}

OutputSettings OutputPanel::settings() const
{
    OutputSettings settings;
    settings.variant = m_data.progname;
    settings.scaleMode = ScaleMode(m_data.scaleGroup->selectedButton());
    settings.scaleIndex = m_data.scaleCombo->currentIndex();
    settings.scaleText = m_data.scaleCombo->currentText();
    settings.fontSizeText = m_data.fontEdit->getText();
    return settings;
}

QString OutputPanel::savedParts() const
{
    return savedPart(savedtag::Scale, scaleValue(OutputPanel::settings())) +
           savedPart(savedtag::Font, m_data.fontEdit->getText());
}

void OutputPanel::apply(const SavedPage& saved)
{
    if (saved.has(savedtag::Scale)) {
        m_data.scaleCombo->setCurrentIndex(saved.settings().scaleIndex);
        m_data.scaleGroup->setButton(int(saved.settings().scaleMode));
    }
    if (saved.has(savedtag::Font))
        m_data.fontEdit->setText(saved.part(savedtag::Font));
}

std::vector<StructRadioButtonGrup> OutputPanel::entries(const QStringList& texts)
{
    std::vector<StructRadioButtonGrup> items(texts.size());
    for (int entry = 0; entry < texts.size(); ++entry)
        items[entry].text = texts[entry];
    return items;
}

std::vector<StructRadioButtonGrup> OutputPanel::scaleEntries()
{
    auto items = entries({tr("Engineering scale"), tr("Scale to fit")});
    items[int(ScaleMode::Engineering)].flag = StructRadioButtonGrup::WithWidget;
    return items;
}

QList<QRadioButton*> OutputPanel::buttons(const VKD_QT_RadioButtonGroup* group)
{
    QList<QRadioButton*> all;
    while (QRadioButton* button = group->getRadioButton(all.size()))
        all << button;
    return all;
}

} // namespace plib
