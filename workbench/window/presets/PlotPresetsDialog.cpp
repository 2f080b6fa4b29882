#include "window/presets/PlotPresetsDialog.h"

#include "window/presets/plotsInTree.h"
#include "window/presets/PresetForm.h"

#include <VKD_QT_MessageBox.h>

#include <QCheckBox>
#include <QPushButton>

namespace workbench {

namespace {
constexpr char PlotTopic[] = "GRAV/PRESETS";
constexpr int ManyPictures = 500; // the page also warns before a click that adds more pictures

/// Returns captions as an HTML list below a heading, or an empty string if there are none.
QString listOf(const QStringList& captions, const QString& heading)
{
    if (captions.isEmpty())
        return QString();
    QString html = QStringLiteral("<p>%1</p><ul>").arg(heading.toHtmlEscaped());
    for (const QString& caption : captions)
        html += QStringLiteral("<li>%1</li>").arg(caption.toHtmlEscaped());
    return html + QLatin1String("</ul>");
}
} // namespace

PlotPresetsDialog::PlotPresetsDialog(const QTreeWidget& tree, const ApplyPlots& applyPlots,
                                     const QString& projectPath, QWidget* parent)
    : PlotPresetsDialog(tree, applyPlots, projectPath,
                        new QCheckBox(tr("&Keep the plots that are already checked")), parent)
{
}

PlotPresetsDialog::PlotPresetsDialog(const QTreeWidget& tree, const ApplyPlots& applyPlots,
                                     const QString& projectPath, QCheckBox* adds, QWidget* parent)
    : PresetsDialog({PresetKind::Plots, {PresetPlace::User}, ZobHandle(), projectPath, PlotTopic},
                    tr("&From Choice..."), adds, parent)
    , m_page(plotsInTree(tree))
    , m_applyPlots(applyPlots)
    , m_adds(adds)
{
    m_adds->setObjectName(QStringLiteral("presetAdds"));
    fill();
}

QString PlotPresetsDialog::contentsText(const QVariantMap& contents) const
{
    const PresetCaptions captions = captionsOf(contents, m_page);
    return listOf(captions.absent,
                  tr("Plots that are not offered here: %1").arg(captions.absent.size())) +
           listOf(captions.offered, tr("Plots: %1").arg(captions.offered.size()));
}

void PlotPresetsDialog::enable(QPushButton* apply, QPushButton* creation, bool isPreset)
{
    apply->setEnabled(isPreset);
    creation->setEnabled(!chosenPlots(m_page).isEmpty());
    creation->setToolTip(tr("Saves the checked plots without their load cases."));
}

std::unique_ptr<PresetForm> PlotPresetsDialog::newForm()
{
    const PresetForm::Questions questions{tr("Preset from Choice"), PlotTopic, {}};
    return std::make_unique<PresetForm>(questions, Preset{{}, {}, chosenPlots(m_page)}, this);
}

bool PlotPresetsDialog::confirms(const Preset& preset)
{
    const int pictures = addedPictures(preset.contents, m_page);
    return pictures <= ManyPictures ||
           VKD_QT_MessageBox::warning(
               this, windowTitle(),
               tr("This preset adds %1 pictures to the script. Do you want to continue?")
                   .arg(pictures),
               QMessageBox::Yes, QMessageBox::No, 0) == QMessageBox::Yes;
}

QStringList PlotPresetsDialog::applyToPage(const Preset& preset, const QStringList& stepName)
{
    m_applyPlots(preset.contents, m_adds->isChecked() ? PlotsOfPreset::Add : PlotsOfPreset::Replace,
                 stepName);
    return {};
}

} // namespace workbench
