#pragma once

#include "project/Preset.h"

#include <VKD_H_Dialog.h>

class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class VKD_QT_Ok;

namespace workbench {

class PresetPartBoxes;
enum class PresetPlace;

/// Asks for the name and the description of a preset. For a new preset, it also asks for the place
/// and for the parts that the preset contains.
class PresetForm : public VKD_H_Dialog
{
    Q_OBJECT

public:
    /// Asks about a new preset with these parameters, for the user or for the project.
    PresetForm(const QVariantMap& parameters, bool hasProject, QWidget* parent);
    /// Asks about an existing preset.
    PresetForm(const Preset& preset, QWidget* parent);

    /// Returns the preset as entered.
    Preset preset() const;
    PresetPlace place() const;

    /// Sets the names that the preset must not have.
    using NamesOfPlace = std::function<QStringList(PresetPlace)>;
    void setUsedNames(const NamesOfPlace& names);

private:
    PresetForm(const QString& title, const Preset& preset, bool isNew, bool hasProject,
               QWidget* parent);
    void check();

    Preset m_preset;
    NamesOfPlace m_usedNames;
    QLineEdit* m_name;
    QPlainTextEdit* m_description;
    QComboBox* m_place = nullptr;       // null for an existing preset
    PresetPartBoxes* m_parts = nullptr; // null for an existing preset
    QLabel* m_note;
    VKD_QT_Ok* m_buttons;
};

} // namespace workbench
