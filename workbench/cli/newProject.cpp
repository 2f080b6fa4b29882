#include "cli/newProject.h"

#include "cli/CommandLine.h"
#include "cli/DesignRows.h"
#include "project/installedFile.h"

#include <record/designStore.h>
#include <vkd_dbo_model.h>
#include <vkd_dbo_packedNames.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_language.h>
#include <vkd_status.h>
#include <ZobFilePlace.h>
#include <ZobTransaction.h>

#include <QFileInfo>

#include <algorithm>

namespace workbench {

namespace {
QString modelPath(const QString& nameOrFile)
{
    if (nameOrFile.endsWith(QLatin1String(".json")) || QFileInfo(nameOrFile).isFile())
        return nameOrFile;
    const QString found = installedFile(QStringLiteral("models/%1.json").arg(nameOrFile));
    if (found.isEmpty())
        throw CommandError{QStringLiteral("there is no model \"%1\"").arg(nameOrFile)};
    return found;
}

/// Converts the groups of a model file, each of which is a number or the name of a secondary group.
/// The file reader has already checked that they exist.
std::vector<int> toGroups(const QStringList& texts)
{
    std::vector<int> groups;
    for (const QString& text : texts) {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        groups.push_back(isNumber ? number : vkd::dbo::packedName(text));
    }
    std::sort(groups.begin(), groups.end());
    return groups;
}

VkdStatus storeDesign(VKD_H_ZOBDoc* document, const QVector<vkd::dbo::DesignValues>& designs,
                      const QString& modelFile)
{
    ZobTransaction change(document->handle());
    plib::checkAndCreateZobDefault(document->index());
    DesignRows rows(document);
    for (const vkd::dbo::DesignValues& design : designs) {
        QStringList fields;
        for (auto value = design.values.begin(); value != design.values.end(); ++value)
            fields << value.key() + QLatin1Char('=') + QString::number(value.value(), 'g', 9);
        try {
            rows.setRow(toGroups(design.groups), fields);
        } catch (const CommandError& error) {
            throw CommandError{
                QStringLiteral("%1: designParameters of group %2: %3")
                    .arg(modelFile, design.groups.join(QLatin1Char(';')), error.text)};
        }
    }
    rows.write();
    return change.commit();
}

/// Creates the project under a temporary name and renames the file when it is complete, so that a
/// failure leaves no incomplete project.
void writeProject(const QString& path, const vkd::dbo::Model& model, const QString& modelFile,
                  const VkdGoOn& goOn)
{
    ZobFilePlace place(path);
    VkdStatus status = place.status();
    std::unique_ptr<VKD_H_ZOBDoc> document;
    if (status.isOk())
        document = VKD_H_ZOBDoc::create(place.temporaryPath(), &status);
    if (document)
        status = vkd::dbo::storeModel(document->handle(), model, goOn);
    if (status.isOk())
        status = storeDesign(document.get(), model.designParameters, modelFile);
    if (status.isOk())
        status = document->close();
    if (status.isOk())
        status = place.commit();
    if (!status.isOk())
        throw CommandError{status.reason.replace(place.temporaryPath(), path)};
}

/// Returns a progress callback for the half of the work that starts at the percentage `before`.
VkdGoOn half(const VkdGoOn& goOn, int before)
{
    if (!goOn)
        return goOn;
    return [&goOn, before](int percent) { return goOn(before + percent / 2); };
}

QString summary(const QString& path, const vkd::dbo::Model& model)
{
    const int elements = model.quads.size() + model.beams.size() + model.trusses.size() +
                         model.cables.size() + model.springs.size() + model.bricks.size();
    const auto number = [](int value) { return QString::number(value); };
    const QString line =
        QStringLiteral("%1: %2, %3 nodes, %4 elements in %5 groups, %6 load cases")
            .arg(path, model.system.title, number(model.nodes.size()), number(elements),
                 number(model.groups.size()), number(model.loadCases.size()));
    return vkd_oneLine(line) + QLatin1Char('\n');
}
} // namespace

QString newProject(const QString& path, const QString& model, const VkdGoOn& goOn)
{
    if (QFileInfo::exists(path))
        throw CommandError{QStringLiteral("%1 already exists").arg(path)};
    vkd::dbo::Model content;
    const QString modelFile = modelPath(model);
    const VkdStatus read =
        vkd::dbo::readModelFile(modelFile, vkd::desktopLanguage(), &content, half(goOn, 0));
    if (!read.isOk())
        throw CommandError{read.reason};
    writeProject(path, content, modelFile, half(goOn, 50));
    return summary(path, content);
}

} // namespace workbench
