#include "output/SplitPanel.h"

#include "output/pageSplitPictures.h"
#include "output/SavedPage.h"
#include "output/WidgetGraphicalOutputData.h"
#include "tree/GraphicalOutputTreeWidget.h"

#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_LineEdit.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Widgets.h>

namespace plib {

SplitPanel::SplitPanel(WidgetGraphicalOutputData& data)
    : OutputPanel(data)
{
}

void SplitPanel::build(QWidget* box)
{
    buildStrip(box);
    buildPageSplit();
    buildFont();
    buildScaleList();
}

void SplitPanel::buildPageSplit()
{
    m_data.pageSplitBox =
        new VKD_QT_GroupBox(tr("Page Splitting", "Blattteilung"), m_data.attribs, "BLATTTEILUNG");
    auto layout = new VKD_QT_VBoxLayout(m_data.pageSplitBox);
    m_data.pageSplitCombo = new VKD_QT4_ComboBox(m_data.pageSplitBox, "COMBO_PAGESPLITTING");
    m_data.pageSplitCombo->setAccessibleName(m_data.pageSplitBox->title());
    for (int id = 0; id < PageSplitCount; ++id)
        m_data.pageSplitCombo->addItem(pageSplitPicture(id), QString(), id);
    m_data.pageSplitCombo->setMinimumHeight(pageSplitPicture(0).height() + 2);
    layout->addWidget(m_data.pageSplitCombo);
    layout->addStretch(1);
}

/// Makes the tree wider, because there are no view buttons to its right.
void SplitPanel::layOut(QBoxLayout*)
{
    layOutStrip()->addWidget(m_data.pageSplitBox, 0, 2, 2, 1);
    const QSize size = m_data.tree->sizeHint();
    m_data.tree->setMinimumSize(int(size.width() * 1.5), size.height());
}

QList<QWidget*> SplitPanel::tabStops() const
{
    return scaleStops() << m_data.pageSplitCombo << m_data.fontEdit->edit();
}

OutputSettings SplitPanel::settings() const
{
    OutputSettings settings = OutputPanel::settings();
    settings.hasFormat = false;
    settings.pageSplitId = m_data.pageSplitCombo->getCurrentId();
    return settings;
}

QString SplitPanel::savedParts() const
{
    return OutputPanel::savedParts() + savedPart(savedtag::Fill, QStringLiteral("0")) +
           m_data.pageSplitCombo->writeXMLstring();
}

void SplitPanel::apply(const SavedPage& saved)
{
    OutputPanel::apply(saved);
    m_data.pageSplitCombo->readXMLstring(saved.xml());
}

} // namespace plib
