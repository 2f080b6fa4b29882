#pragma once

#include "project/presets/plotPresets.h"
#include "window/presets/PresetsDialog.h"

#include <functional>

class QCheckBox;
class QTreeWidget;

namespace workbench {

/// Applies a preset of plots to an output page. The plots of the preset replace the chosen plots or
/// are added to them.
class PlotPresetsDialog : public PresetsDialog
{
    Q_OBJECT

public:
    /// Applies the contents of a preset as an undo step with this name.
    using ApplyPlots = std::function<void(const QVariantMap& contents, PlotsOfPreset mode,
                                          const QStringList& stepName)>;

    /// `tree` is the tree of the page, and `projectPath` is the initial path in file dialogs.
    PlotPresetsDialog(const QTreeWidget& tree, const ApplyPlots& applyPlots,
                      const QString& projectPath, QWidget* parent);

protected:
    QString contentsText(const QVariantMap& contents) const override;
    void showOptions(const Preset*) override {}
    void enable(QPushButton* apply, QPushButton* creation, bool isPreset) override;
    QStringList faultsIn(const QVariantMap&) const override { return {}; }
    std::unique_ptr<PresetForm> newForm() override;
    bool confirms(const Preset& preset) override;
    QStringList applyToPage(const Preset& preset, const QStringList& stepName) override;

private:
    PlotPresetsDialog(const QTreeWidget& tree, const ApplyPlots& applyPlots,
                      const QString& projectPath, QCheckBox* adds, QWidget* parent);

    const PlotsOnPage m_page;
    const ApplyPlots m_applyPlots;
    QCheckBox* m_adds;
};

} // namespace workbench
