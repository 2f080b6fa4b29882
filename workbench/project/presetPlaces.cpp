#include "project/presetPlaces.h"

#include "project/dialogPages.h"

#include <VKD_H_ProjectDialogPage.h>
#include <vkd_lib_searchpath.h>
#include <ZobSnapshot.h>
#include <ZobTransaction.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace workbench {

namespace {
const QString EntryKey = QStringLiteral("Presets");
constexpr qint64 MostBytes = 10'000'000; // thousands of presets

struct PlaceText
{
    Q_DECLARE_TR_FUNCTIONS(presetPlaces)
};

PresetReading readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, file.errorString()};
    if (file.size() > MostBytes)
        return {{}, PlaceText::tr("It is too large.")};
    return readPresets(file.readAll(), vkd::desktopLanguage());
}

QString writeFile(const QString& path, const PresetList& presets)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    const QByteArray json = presetsJson(presets);
    const bool isStored = file.open(QIODevice::WriteOnly) && file.write(json) == json.size();
    return isStored && file.commit() ? QString() : file.errorString();
}

PresetReading readSupplied()
{
    const auto path = vkd_lib_searchpath("presets/design.json", 3);
    return path ? readFile(QFile::decodeName(path->c_str()))
                : PresetReading{{}, PlaceText::tr("The supplied presets are missing.")};
}

PresetReading readProject(ZobHandle project)
{
    const QString json =
        VKD_H_ProjectDialogPage(project, PresetsDialogPage).getEntry(EntryKey, QString());
    return json.isEmpty() ? PresetReading() : readPresets(json.toUtf8(), vkd::desktopLanguage());
}

QString changeProject(ZobHandle project, const PresetChange& change)
{
    ZobTransaction transaction(project);
    if (!transaction.status().isOk())
        return transaction.status().reason;
    PresetReading reading = readProject(project);
    if (!reading.fault.isEmpty())
        return reading.fault;
    change(reading.presets);
    VKD_H_ProjectDialogPage entries(project, PresetsDialogPage);
    entries.setEntry(EntryKey, QString::fromUtf8(presetsJson(reading.presets)));
    const VkdStatus saved = entries.save();
    return saved.isOk() ? transaction.commit().reason : saved.reason;
}

QString inFile(const QString& path, const QString& reason)
{
    return reason.isEmpty() ? QString()
                            : PlaceText::tr("%1: %2").arg(QFileInfo(path).fileName(), reason);
}
} // namespace

QString userPresetsPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/plib/workbench/presets.json");
}

PresetReading presetsOf(PresetPlace place, ZobHandle project)
{
    switch (place) {
    case PresetPlace::Supplied: return readSupplied();
    case PresetPlace::User:
        return QFileInfo::exists(userPresetsPath()) ? importPresets(userPresetsPath())
                                                    : PresetReading();
    case PresetPlace::Project: break;
    }
    return project.isNull() ? PresetReading() : readProject(project);
}

QString changePresets(PresetPlace place, ZobHandle project, const PresetChange& change)
{
    if (place == PresetPlace::Supplied)
        return PlaceText::tr("Supplied presets cannot be changed.");
    if (place == PresetPlace::Project)
        return changeProject(project, change);
    PresetReading reading = presetsOf(place, project);
    if (!reading.fault.isEmpty())
        return reading.fault;
    change(reading.presets);
    return exportPresets(userPresetsPath(), reading.presets);
}

PresetReading importPresets(const QString& path)
{
    PresetReading reading = readFile(path);
    reading.fault = inFile(path, reading.fault);
    return reading;
}

QString exportPresets(const QString& path, const PresetList& presets)
{
    return inFile(path, writeFile(path, presets));
}

} // namespace workbench
