#pragma once

#include "project/presets/presetPlaces.h"

#include <VKD_H_Dialog.h>

class QPushButton;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

namespace workbench {

class PresetForm;

/// Lists the presets of one kind, grouped by place, and manages them. Each change is stored at
/// once. Derived classes show the contents of a preset and apply it to a page.
class PresetsDialog : public VKD_H_Dialog
{
    Q_OBJECT

public:
    /// Returns the title of a place in the current language.
    static QString titleOf(PresetPlace place);

protected:
    struct Source
    {
        PresetKind kind;
        QVector<PresetPlace> places;
        ZobHandle project; ///< null if no project is open
        QString path;      ///< path of the project, for file dialogs
        const char* helpTopic;
    };

    /// `newText` is the text of the button that creates a preset, and `options` is a widget below
    /// the description. The constructor of a derived class must call fill().
    PresetsDialog(const Source& source, const QString& newText, QWidget* options, QWidget* parent);
    void fill();
    void enableButtons();

    /// Returns the contents of a preset as HTML.
    virtual QString contentsText(const QVariantMap& contents) const = 0;
    /// Called when another preset becomes the current preset. `preset` is null if there is none.
    virtual void showOptions(const Preset* preset) = 0;
    /// Enables the button Apply and the button that creates a preset.
    virtual void enable(QPushButton* apply, QPushButton* creation, bool isPreset) = 0;
    /// Returns the reasons why a preset cannot have these contents.
    virtual QStringList faultsIn(const QVariantMap& contents) const = 0;
    /// Creates a form for a new preset.
    virtual std::unique_ptr<PresetForm> newForm() = 0;
    /// Asks the user, if necessary, whether to apply a preset.
    virtual bool confirms(const Preset& preset) = 0;
    /// Applies a preset as an undo step with this name. Returns the reasons if this is not
    /// possible.
    virtual QStringList applyToPage(const Preset& preset, const QStringList& stepName) = 0;

private:
    QWidget* newList();
    QWidget* newDetails(QWidget* options);
    QWidget* newButtons(const QString& newText);
    QPushButton* newButton(const char* name, const QString& text, void (PresetsDialog::*run)());
    void addPlace(PresetPlace place);
    void select(PresetPlace place, const QString& name);
    void currentChanged();

    void apply();
    void create();
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

    const Source m_source;
    PresetReading m_places[3]; ///< indexed by PresetPlace
    QTreeWidget* m_list;
    QTextBrowser* m_details;
    QPushButton* m_apply;
    QPushButton* m_create;
    QPushButton* m_rename;
    QPushButton* m_remove;
    QPushButton* m_export;
};

} // namespace workbench
