#include "window/start/SampleModel.h"

#include "project/installedFile.h"

namespace workbench {

namespace {
struct Sample
{
    const char* name;
    const char* title;
    const char* description;
};

constexpr Sample Samples[] = {
    {"building", QT_TRANSLATE_NOOP("workbench::SampleModel", "&Building"),
     QT_TRANSLATE_NOOP("workbench::SampleModel",
                       "Two-storey concrete office building with slabs, walls and columns")},
    {"slab", QT_TRANSLATE_NOOP("workbench::SampleModel", "&Slab"),
     QT_TRANSLATE_NOOP("workbench::SampleModel", "Flat slab on columns and a wall")},
    {"hall", QT_TRANSLATE_NOOP("workbench::SampleModel", "&Hall"),
     QT_TRANSLATE_NOOP("workbench::SampleModel", "Steel hall with crane girders on pad footings")},
};
} // namespace

QVector<SampleModel> SampleModel::installed()
{
    QVector<SampleModel> models;
    for (const Sample& sample : Samples) {
        const QString name = QLatin1String(sample.name);
        if (!installedFile(QStringLiteral("models/%1.json").arg(name)).isEmpty())
            models.append({name, tr(sample.title), tr(sample.description)});
    }
    return models;
}

QString SampleModel::picture(const QString& name, bool isDark)
{
    const QLatin1String look(isDark ? "-dark" : "");
    return installedFile(QStringLiteral("models/%1%2.png").arg(name, look));
}

} // namespace workbench
