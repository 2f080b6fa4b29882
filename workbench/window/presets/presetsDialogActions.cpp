// The part of PresetsDialog that handles its buttons.

#include "window/files/chooseFileToSave.h"
#include "window/presets/PresetForm.h"
#include "window/presets/PresetsDialog.h"

#include <VKD_QT_MessageBox.h>

#include <QFileDialog>
#include <QPushButton>

#include <algorithm>

namespace workbench {

namespace {
constexpr int MostReasons = 8; // in a message
} // namespace

void PresetsDialog::warn(const QString& sentence, const QStringList& reasons)
{
    VKD_QT_MessageBox::warning(this, windowTitle(),
                               sentence + QLatin1String("\n\n") +
                                   reasons.mid(0, MostReasons).join(QLatin1Char('\n')));
}

/// Returns whether the change was stored. Shows the changed list.
bool PresetsDialog::change(PresetPlace place, const PresetChange& change)
{
    const QString fault = changePresets(m_source.kind, place, m_source.project, change);
    if (!fault.isEmpty())
        warn(tr("The presets cannot be stored."), {fault});
    fill();
    return fault.isEmpty();
}

void PresetsDialog::apply()
{
    const Preset* preset = current();
    if (!preset || !m_apply->isEnabled() || !confirms(*preset))
        return;
    const QStringList stepName{
        QLatin1String("workbench::PresetsDialog"),
        QLatin1String(QT_TRANSLATE_NOOP("workbench::PresetsDialog", "Preset \"%1\"")),
        preset->name};
    const QStringList faults = applyToPage(*preset, stepName);
    if (faults.isEmpty())
        accept();
    else
        warn(tr("The preset was not applied."), faults);
}

void PresetsDialog::create()
{
    const std::unique_ptr<PresetForm> form = newForm();
    form->setUsedNames([this](PresetPlace place) { return namesIn(place); });
    if (form->exec() != QDialog::Accepted)
        return;
    const Preset added = form->preset();
    if (change(form->place(), [&added](PresetList& presets) {
            presets << Preset{unusedName(presets, added.name), added.description, added.contents};
        }))
        select(form->place(), added.name);
}

void PresetsDialog::rename()
{
    if (!current())
        return;
    const Preset before = *current();
    const PresetPlace place = currentPlace();
    PresetForm form({tr("Rename Preset"), m_source.helpTopic, {}}, before, this);
    form.setUsedNames([this, place](PresetPlace) { return namesIn(place); });
    if (form.exec() != QDialog::Accepted)
        return;
    const Preset after = form.preset();
    if (change(place, [&](PresetList& presets) {
            if (Preset* preset = findPreset(presets, before.name))
                *preset = after;
        }))
        select(place, after.name);
}

void PresetsDialog::remove()
{
    if (!current())
        return;
    const QString name = current()->name;
    enum Button { Delete, Keep };
    if (VKD_QT_MessageBox::warning(this, windowTitle(), tr("Delete the preset \"%1\"?").arg(name),
                                   tr("&Delete"), tr("&Keep"), QString(), Keep, Keep) == Delete)
        change(currentPlace(), [&name](PresetList& presets) {
            presets.erase(
                std::remove_if(presets.begin(), presets.end(),
                               [&name](const Preset& preset) { return preset.name == name; }),
                presets.end());
        });
}

/// Returns the faults of all presets.
QStringList PresetsDialog::faultsOf(const PresetList& presets) const
{
    QStringList faults;
    for (const Preset& preset : presets) {
        const QStringList found = faultsIn(preset.contents);
        for (const QString& fault : found)
            faults << tr("\"%1\": %2").arg(preset.name, fault);
    }
    return faults;
}

/// Adds all presets of a file or, if there is any fault, none. A name that is already used gets a
/// number.
void PresetsDialog::importFile()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Import Presets"), QString(), tr("Presets (*.json)"));
    if (path.isEmpty())
        return;
    const PresetReading reading = importPresets(m_source.kind, path);
    const QStringList faults =
        reading.fault.isEmpty() ? faultsOf(reading.presets) : QStringList(reading.fault);
    if (!faults.isEmpty())
        return warn(tr("Nothing was imported."), faults);
    QString last;
    const PresetPlace place = writablePlace();
    if (change(place, [&](PresetList& presets) {
            for (const Preset& preset : reading.presets) {
                last = unusedName(presets, preset.name);
                presets << Preset{last, preset.description, preset.contents};
            }
        }))
        select(place, last);
}

/// Exports all presets of the place of the current preset.
void PresetsDialog::exportFile()
{
    const QString path =
        chooseFileToSave(this, tr("Export Presets"), QStringLiteral("presets.json"),
                         tr("Presets (*.json)"), QStringLiteral("json"), m_source.path);
    if (path.isEmpty())
        return;
    const QString fault = exportPresets(m_source.kind, path, m_places[int(currentPlace())].presets);
    if (!fault.isEmpty())
        warn(tr("The presets cannot be stored."), {fault});
}

} // namespace workbench
