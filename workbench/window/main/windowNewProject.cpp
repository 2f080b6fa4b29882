// The main window and what comes into it: new projects from models, and files that are dropped.

#include "window/design/DesignDialog.h"
#include "window/main/MainWindow.h"
#include "window/output/OutputDialog.h"
#include "window/support/chooseFileToSave.h"
#include "window/support/copyProject.h"
#include "window/support/projectFiles.h"
#include "window/support/SlowWork.h"

#include <VKD_H_ZOBDoc.h>

#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QTimer>

#include <cstdio>

namespace workbench {

namespace {
/// Puts a finished file in the place of another one, in one step.
bool replaceFile(const QString& file, const QString& path)
{
    const bool done =
        std::rename(QFile::encodeName(file).constData(), QFile::encodeName(path).constData()) == 0;
    if (!done)
        QFile::remove(file);
    return done;
}
} // namespace

void MainWindow::chooseModel()
{
    const QString model = QFileDialog::getOpenFileName(this, tr("Model for a New Project"),
                                                       folder(), tr("Models (*.json)"));
    if (!model.isEmpty())
        newProject(model);
}

void MainWindow::newProject(const QString& model)
{
    if (!mayLeaveProject())
        return;
    const QString proposal =
        QDir(folder()).filePath(QFileInfo(model).completeBaseName() + QLatin1String(".zob"));
    const QString path =
        chooseFileToSave(this, tr("New Project"), proposal, tr("Projects (*.zob)"),
                         QStringLiteral("zob"), m_document ? m_document->path() : QString());
    if (!path.isEmpty() && makeProject(path, model))
        openProject(path);
}

bool MainWindow::makeProject(const QString& path, const QString& model)
{
    const QString sentence = tr("The file %1 cannot be written.");
    const ReplacedFile replaced(this, path);
    if (!succeeds(replaced.status(), path, sentence))
        return false;
    const QString unfinished =
        QStringLiteral("%1.%2.new").arg(path).arg(QCoreApplication::applicationPid());
    QString trouble;
    bool goesOn = true;
    {
        SlowWork work(this, tr("The project is being made."), 100);
        trouble = m_makeProject(unfinished, model,
                                         [&](int percent) { return goesOn = work.goOn(percent); });
    }
    if (!goesOn)
        return succeeds(VKD_ZOB_CANCELLED, path, sentence);
    if (!trouble.isEmpty())
        complain(tr("The project cannot be made.\n%1").arg(trouble.replace(unfinished, path)));
    else if (succeeds(replaceFile(unfinished, path) ? VKD_ZOB_OK : VKD_ZOB_READ_ONLY, path,
                      sentence))
        return true;
    return false;
}

/// The file is only looked at. Whoever drags it and is told that it was moved would delete it.
void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    const bool stays = event->dropAction() != Qt::MoveAction; // the source may offer nothing else
    event->setAccepted(!m_design && stays && !draggedFile(event->mimeData()).isEmpty());
}

/// Whoever drops the file is not to wait for the answers to questions.
void MainWindow::dropEvent(QDropEvent* event)
{
    const QString path = draggedFile(event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    QTimer::singleShot(0, this, [this, path] {
        if (m_design)
            return;
        if (isModelFile(path))
            newProject(path);
        else if (mayLeaveProject())
            openProject(path);
    });
}

} // namespace workbench
