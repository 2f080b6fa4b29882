#pragma once

#include "project/presetPlaces.h"
#include "window/presets/PageParameters.h"

#include <VKD_H_Dialog.h>

class QPushButton;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

namespace workbench {

class OpenProject;
class PresetPartBoxes;

/// Lists the supplied presets, those of the user and those of the project, applies them to the
/// selected rows of a design page, and manages them. Each change is stored at once.
class PresetsDialog : public VKD_H_Dialog
{
    Q_OBJECT

public:
    /// The arguments are not owned and must outlive the dialog.
    PresetsDialog(const VKD_P_DesignParameter* page, const OpenProject* project, QWidget* parent);

private:
    QWidget* newList();
    QWidget* newDetails();
    QWidget* newButtons();
    QPushButton* newButton(const char* name, const QString& text, void (PresetsDialog::*run)());
    void fill();
    void addPlace(PresetPlace place, const QString& title);
    void select(PresetPlace place, const QString& name);
    void currentChanged();
    void enableButtons();

    void apply();
    void addFromRow();
    void rename();
    void remove();
    void importFile();
    void exportFile();

    const Preset* current() const;
    PresetPlace currentPlace() const;
    PresetPlace writablePlace() const;
    QStringList namesIn(PresetPlace place) const;
    bool change(PresetPlace place, const PresetChange& change);
    QStringList faultsOf(const PresetList& presets) const;
    void warn(const QString& sentence, const QStringList& reasons);

    const OpenProject* m_project;
    PageParameters m_parameters;
    PresetReading m_places[3]; ///< indexed by PresetPlace
    QTreeWidget* m_list;
    QTextBrowser* m_details;
    PresetPartBoxes* m_parts;
    QPushButton* m_apply;
    QPushButton* m_fromRow;
    QPushButton* m_rename;
    QPushButton* m_remove;
    QPushButton* m_export;
};

} // namespace workbench
