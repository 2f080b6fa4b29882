#pragma once

#include "project/presets/presetPlaces.h"

#include <VKD_H_Dialog.h>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class VKD_QT_Ok;

namespace workbench {

class PresetPartBoxes;

/// Asks for the name and the description of a preset. For a new preset, it can also ask for the
/// place and for the parts that the preset contains.
class PresetForm : public VKD_H_Dialog
{
    Q_OBJECT

public:
    struct Questions
    {
        QString title;
        const char* helpTopic;
        QVector<PresetPlace> places; ///< to choose from; may be empty
        bool parts = false;          ///< whether the user chooses the parts
    };

    PresetForm(const Questions& questions, const Preset& preset, QWidget* parent);

    /// Returns the preset as entered.
    Preset preset() const;
    PresetPlace place() const;

    /// Sets the names that the preset must not have.
    using NamesOfPlace = std::function<QStringList(PresetPlace)>;
    void setUsedNames(const NamesOfPlace& names);

private:
    void addPlaces(const QVector<PresetPlace>& places);
    void addParts();
    void check();

    Preset m_preset;
    NamesOfPlace m_usedNames;
    QLineEdit* m_name;
    QPlainTextEdit* m_description;
    QComboBox* m_place = nullptr;       // null if the user does not choose the place
    PresetPartBoxes* m_parts = nullptr; // null if the user does not choose the parts
    QLabel* m_note;
    QFormLayout* m_layout;
    VKD_QT_Ok* m_buttons;
};

} // namespace workbench
