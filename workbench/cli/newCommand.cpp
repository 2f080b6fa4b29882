#include "commands.h"

#include "CommandLine.h"
#include "PlatformLog.h"

#include <vkd_dbo_model.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_searchpath.h>
#include <vkd_lib_value.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace workbench {

namespace {
QString modelPath(const QString& nameOrFile)
{
    if (nameOrFile.endsWith(QLatin1String(".json")) || QFileInfo(nameOrFile).isFile())
        return nameOrFile;
    const QByteArray name = QFile::encodeName(QStringLiteral("models/%1.json").arg(nameOrFile));
    const auto found = vkd_lib_searchpath(name.constData(), 3);
    if (!found)
        throw CommandError{QStringLiteral("there is no model \"%1\"").arg(nameOrFile)};
    return QFile::decodeName(found->c_str());
}

/// Stores the model in a file of another name, which gets its own name once it is whole.
void writeProject(const QString& path, const vkd::dbo::Model& model)
{
    const QString unfinished =
        path + QLatin1Char('.') + QString::number(QCoreApplication::applicationPid());
    bool done = false;
    if (auto document = VKD_H_ZOBDoc::create(unfinished)) {
        done = vkd::dbo::storeModel(document->index(), model) && document->close() == VKD_ZOB_OK;
        done = done && QFile::rename(unfinished, path);
        document->close();
        QFile::remove(unfinished);
    }
    if (!done)
        throw CommandError{QLatin1String("cannot create ") + path + QLatin1String(": ") +
                           PlatformLog::take().join(QLatin1String("; ")).replace(unfinished, path)};
}

QString summary(const QString& path, const vkd::dbo::Model& model)
{
    const int elements = model.quads.size() + model.beams.size() + model.trusses.size() +
                         model.cables.size() + model.springs.size() + model.bricks.size();
    const auto number = [](int value) { return QString::number(value); };
    return QStringLiteral("%1: %2, %3 nodes, %4 elements in %5 groups, %6 load cases\n")
        .arg(path, model.system.title, number(model.nodes.size()), number(elements),
             number(model.groups.size()), number(model.loadCases.size()));
}
} // namespace

int newCommand(const QStringList& arguments)
{
    CommandLine line(QStringLiteral("Makes a project file from a model. FILE must not exist yet."),
                     {QStringLiteral("FILE")},
                     {{QStringLiteral("model"), QStringLiteral("NAME|JSON"),
                       QStringLiteral("A sample (building, slab, hall) or a model file.")},
                      languageOption()});
    line.parse(arguments);
    applyLanguage(line);
    const QString path = line.argument(0);
    if (!line.has("model"))
        throw CommandError{QStringLiteral("--model is missing")};
    if (QFileInfo::exists(path))
        throw CommandError{QStringLiteral("%1 exists already").arg(path)};
    vkd::dbo::Model model;
    QString error;
    constexpr int LanguageKey = 102;
    if (!vkd::dbo::readModelFile(modelPath(line.value("model")), vkd_lib_getvalue(LanguageKey),
                                 &model, &error))
        throw CommandError{error};
    writeProject(path, model);
    print(summary(path, model));
    return 0;
}

} // namespace workbench
