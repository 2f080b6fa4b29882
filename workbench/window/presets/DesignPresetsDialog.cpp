#include "window/presets/DesignPresetsDialog.h"

#include "project/OpenProject.h"
#include "window/presets/PresetForm.h"
#include "window/presets/PresetPartBoxes.h"

#include <QPushButton>
#include <QTableWidget>

namespace workbench {

namespace {
constexpr char DesignTopic[] = "MERDAN/PRESETS";

QVector<PresetPlace> placesOf(const OpenProject& project)
{
    QVector<PresetPlace> places{PresetPlace::Supplied, PresetPlace::User};
    if (project.isOpen())
        places << PresetPlace::Project;
    return places;
}
} // namespace

DesignPresetsDialog::DesignPresetsDialog(const VKD_P_DesignParameter* page,
                                         const OpenProject* project, QWidget* parent)
    : DesignPresetsDialog(page, project, new PresetPartBoxes(tr("Parts to apply"), nullptr), parent)
{
}

DesignPresetsDialog::DesignPresetsDialog(const VKD_P_DesignParameter* page,
                                         const OpenProject* project, PresetPartBoxes* parts,
                                         QWidget* parent)
    : PresetsDialog({PresetKind::DesignParameters, placesOf(*project), project->handle(),
                     project->path(), DesignTopic},
                    tr("&From Row..."), parts, parent)
    , m_parameters(page)
    , m_newPlaces(placesOf(*project).mid(1))
    , m_parts(parts)
{
    connect(m_parts, &PresetPartBoxes::changed, this, &DesignPresetsDialog::enableButtons);
    fill();
}

QString DesignPresetsDialog::contentsText(const QVariantMap& contents) const
{
    return m_parameters.description(contents);
}

void DesignPresetsDialog::showOptions(const Preset* preset)
{
    m_parts->setParameters(preset ? preset->contents : QVariantMap());
}

void DesignPresetsDialog::enable(QPushButton* apply, QPushButton* creation, bool isPreset)
{
    const int rows = m_parameters.selectedRowCount();
    apply->setEnabled(isPreset && rows > 0 && !m_parts->checkedParts().isEmpty());
    apply->setToolTip(rows == 1 ? tr("Applies the checked parts to the selected row.")
                                : tr("Applies the checked parts to %1 selected rows.").arg(rows));
    creation->setEnabled(m_parameters.table()->currentRow() >= 0);
}

QStringList DesignPresetsDialog::faultsIn(const QVariantMap& contents) const
{
    return m_parameters.faults(contents);
}

std::unique_ptr<PresetForm> DesignPresetsDialog::newForm()
{
    const PresetForm::Questions questions{tr("Preset from Row"), DesignTopic, m_newPlaces, true};
    return std::make_unique<PresetForm>(questions, Preset{{}, {}, m_parameters.current()}, this);
}

QStringList DesignPresetsDialog::applyToPage(const Preset& preset, const QStringList& stepName)
{
    return m_parameters.setInSelectedRows(ofParts(preset.contents, m_parts->checkedParts()),
                                          stepName);
}

} // namespace workbench
