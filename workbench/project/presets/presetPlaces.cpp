#include "project/presets/presetPlaces.h"

#include "project/dialogPages.h"
#include "project/installedFile.h"

#include <VKD_H_ProjectDialogPage.h>
#include <vkd_readFile.h>
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

PresetReading readFile(PresetKind kind, const QString& path)
{
    if (QFileInfo(path).size() > MostBytes)
        return {{}, PlaceText::tr("It is too large.")};
    QByteArray json;
    const VkdStatus status = vkd_readFile(path, &json);
    return status.isOk() ? readPresets(kind, json, vkd::desktopLanguage())
                         : PresetReading{{}, status.reason};
}

QString writeFile(PresetKind kind, const QString& path, const PresetList& presets)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    const QByteArray json = presetsJson(kind, presets);
    const bool isStored = file.open(QIODevice::WriteOnly) && file.write(json) == json.size();
    return isStored && file.commit() ? QString() : file.errorString();
}

PresetReading readSupplied()
{
    const QString path = installedFile(QStringLiteral("presets/design.json"));
    return path.isEmpty() ? PresetReading{{}, PlaceText::tr("The supplied presets are missing.")}
                          : readFile(PresetKind::DesignParameters, path);
}

PresetReading readProject(PresetKind kind, ZobHandle project)
{
    const QString json =
        VKD_H_ProjectDialogPage(project, PresetsDialogPage).getEntry(EntryKey, QString());
    return json.isEmpty() ? PresetReading()
                          : readPresets(kind, json.toUtf8(), vkd::desktopLanguage());
}

QString changeProject(PresetKind kind, ZobHandle project, const PresetChange& change)
{
    ZobTransaction transaction(project);
    if (!transaction.status().isOk())
        return transaction.status().reason;
    PresetReading reading = readProject(kind, project);
    if (!reading.fault.isEmpty())
        return reading.fault;
    change(reading.presets);
    VKD_H_ProjectDialogPage entries(project, PresetsDialogPage);
    entries.setEntry(EntryKey, QString::fromUtf8(presetsJson(kind, reading.presets)));
    const VkdStatus saved = entries.save();
    return saved.isOk() ? transaction.commit().reason : saved.reason;
}

QString inFile(const QString& path, const QString& reason)
{
    return reason.isEmpty() ? QString()
                            : PlaceText::tr("%1: %2").arg(QFileInfo(path).fileName(), reason);
}
} // namespace

QString userPresetsPath(PresetKind kind)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QLatin1String(kind == PresetKind::Plots ? "/plib/workbench/plotPresets.json"
                                                   : "/plib/workbench/presets.json");
}

PresetReading presetsOf(PresetKind kind, PresetPlace place, ZobHandle project)
{
    switch (place) {
    case PresetPlace::Supplied: return readSupplied();
    case PresetPlace::User:
        return QFileInfo::exists(userPresetsPath(kind)) ? importPresets(kind, userPresetsPath(kind))
                                                        : PresetReading();
    case PresetPlace::Project: break;
    }
    return project.isNull() ? PresetReading() : readProject(kind, project);
}

QString changePresets(PresetKind kind, PresetPlace place, ZobHandle project,
                      const PresetChange& change)
{
    if (place == PresetPlace::Supplied)
        return PlaceText::tr("Supplied presets cannot be changed.");
    if (place == PresetPlace::Project)
        return changeProject(kind, project, change);
    PresetReading reading = presetsOf(kind, place, project);
    if (!reading.fault.isEmpty())
        return reading.fault;
    change(reading.presets);
    return exportPresets(kind, userPresetsPath(kind), reading.presets);
}

PresetReading importPresets(PresetKind kind, const QString& path)
{
    PresetReading reading = readFile(kind, path);
    reading.fault = inFile(path, reading.fault);
    return reading;
}

QString exportPresets(PresetKind kind, const QString& path, const PresetList& presets)
{
    return inFile(path, writeFile(kind, path, presets));
}

} // namespace workbench
