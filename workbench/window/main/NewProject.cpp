#include "window/main/NewProject.h"

#include "project/OpenProject.h"
#include "window/files/chooseFileToSave.h"
#include "window/files/copyProject.h"
#include "window/files/SlowWork.h"
#include "window/files/waitForStore.h"
#include "window/support/WindowMessages.h"

#include <ZobFilePlace.h>

#include <QDir>
#include <QFileDialog>
#include <QMainWindow>

namespace workbench {

NewProject::NewProject(const OpenProject* project, WindowMessages* messages,
                       const MakeProject& make)
    : m_project(project)
    , m_messages(messages)
    , m_make(make)
{
}

QString NewProject::chooseModel() const
{
    return QFileDialog::getOpenFileName(m_messages->window(), tr("Model for a New Project"),
                                        m_project->folder(), tr("Models (*.json)"));
}

QString NewProject::create(const QString& model) const
{
    const QString proposal =
        QDir(m_project->folder())
            .filePath(QFileInfo(model).completeBaseName() + QLatin1String(".zob"));
    const QString path =
        chooseFileToSave(m_messages->window(), tr("New Project"), proposal, tr("Projects (*.zob)"),
                         QStringLiteral("zob"), m_project->path());
    return !path.isEmpty() && make(path, model) ? path : QString();
}

bool NewProject::make(const QString& path, const QString& model) const
{
    QWidget* window = m_messages->window();
    const QString sentence = tr("The file %1 cannot be written.");
    std::unique_ptr<ZobFilePlace> place;
    if (!m_messages->succeeds(takePlace(window, path, &place), path, sentence))
        return false;
    const QString unfinished = place->temporaryPath();
    QString trouble;
    bool goesOn = true;
    {
        SlowWork work(window, tr("The project is being created."), 100);
        trouble =
            m_make(unfinished, model, [&](int percent) { return goesOn = work.goOn(percent); });
    }
    if (goesOn && !trouble.isEmpty()) {
        m_messages->complain(
            tr("The project cannot be created.\n%1").arg(trouble.replace(unfinished, path)));
        return false;
    }
    const VkdStatus status = goesOn ? place->commit() : VkdStatus{VKD_ZOB_CANCELLED, QString()};
    return m_messages->succeeds(status, path, sentence);
}

} // namespace workbench
