#include "fields/presetList.h"

#include "vkd_h_numberText.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

namespace {
constexpr int None = -1;

VkdNumberReading presetOf(const QComboBox& combo, int entry, const StructLineEdit& description)
{
    return vkd_h_readNumber(combo.itemText(entry), description);
}
} // namespace

int presetAt(const QComboBox& combo, double value, const StructLineEdit& description)
{
    for (int entry = 0; entry < combo.count(); ++entry) {
        const VkdNumberReading preset = presetOf(combo, entry, description);
        if (preset.state == VkdNumberState::Accepted && float(preset.value) == float(value))
            return entry;
    }
    return None;
}

int presetBeside(const QComboBox& combo, double value, bool greater,
                 const StructLineEdit& description)
{
    int nearest = None;
    float best = 0.0F;
    for (int entry = 0; entry < combo.count(); ++entry) {
        const VkdNumberReading preset = presetOf(combo, entry, description);
        const auto number = float(preset.value);
        const bool isBeyond = greater ? number > float(value) : number < float(value);
        const bool isNearer = nearest == None || (greater ? number < best : number > best);
        if (preset.state != VkdNumberState::Accepted || !isBeyond || !isNearer ||
            vkd_h_isNotSet(preset.value, description))
            continue;
        nearest = entry;
        best = number;
    }
    return nearest;
}

void markPreset(QComboBox* combo, int entry)
{
    if (combo->currentIndex() == entry)
        return;
    QLineEdit* field = combo->lineEdit();
    const QString text = field->text();
    const int cursor = field->cursorPosition();
    const int start = field->selectionStart();
    const int length = field->selectionLength();
    {
        // setCurrentIndex() copies the entry's text into the field, whose text must not change.
        const QSignalBlocker quietField(field);
        const QSignalBlocker quietCombo(combo);
        combo->setCurrentIndex(entry);
        field->setText(text);
    }
    if (start >= 0)
        field->setSelection(start, length);
    else
        field->setCursorPosition(cursor);
    Q_EMIT combo->currentIndexChanged(entry);
}
