#pragma once

#include "window/presets/PageParameters.h"
#include "window/presets/PresetsDialog.h"

namespace workbench {

class OpenProject;
class PresetPartBoxes;

/// Applies parts of a preset to the selected rows of a design page. The dialog lists the supplied
/// presets, those of the user and those of the project.
class DesignPresetsDialog : public PresetsDialog
{
    Q_OBJECT

public:
    /// The arguments are not owned and must outlive the dialog.
    DesignPresetsDialog(const VKD_P_DesignParameter* page, const OpenProject* project,
                        QWidget* parent);

protected:
    QString contentsText(const QVariantMap& contents) const override;
    void showOptions(const Preset* preset) override;
    void enable(QPushButton* apply, QPushButton* creation, bool isPreset) override;
    QStringList faultsIn(const QVariantMap& contents) const override;
    std::unique_ptr<PresetForm> newForm() override;
    bool confirms(const Preset&) override { return true; }
    QStringList applyToPage(const Preset& preset, const QStringList& stepName) override;

private:
    DesignPresetsDialog(const VKD_P_DesignParameter* page, const OpenProject* project,
                        PresetPartBoxes* parts, QWidget* parent);

    PageParameters m_parameters;
    QVector<PresetPlace> m_newPlaces; ///< places of new presets
    PresetPartBoxes* m_parts;
};

} // namespace workbench
