// The main window and its project: new, open, save as, drag and drop, closing.

#include "DesignDialog.h"
#include "GroupList.h"
#include "MainWindow.h"
#include "OutputDialog.h"
#include "PlatformLog.h"
#include "projectTrouble.h"
#include "RecordsPane.h"
#include "ScriptPane.h"
#include "TextOutputDialog.h"
#include "WindowActions.h"
#include "WindowSettings.h"

#include <AnimatorView.h>
#include <VKD_H_ZOBDoc.h>
#include <VKD_QT_MessageBox.h>

#include <QCloseEvent>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QTimer>

#include <cstdio>
#include <optional>

namespace workbench {

namespace {
const QString ProjectSuffix = QStringLiteral("zob");

/// The local file that is dragged, if it is one alone.
QString draggedFile(const QMimeData* data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

QString withSuffix(const QString& path)
{
    return QFileInfo(path).suffix().isEmpty() ? path + QLatin1Char('.') + ProjectSuffix : path;
}

bool isSameFile(const QString& a, const QString& b)
{
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath();
}

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
    const QString chosen =
        QFileDialog::getSaveFileName(this, tr("New Project"), proposal, tr("Projects (*.zob)"));
    if (chosen.isEmpty())
        return;
    const QString path = withSuffix(chosen);
    if (m_document && isSameFile(path, m_document->path()))
        return complain(tr("The project %1 is open.\nChoose another name.").arg(path));
    const QString unfinished = path + QLatin1String(".new");
    const QString trouble = m_maker(unfinished, model);
    if (!trouble.isEmpty())
        return complain(tr("The project cannot be made.\n%1").arg(trouble));
    if (!replaceFile(unfinished, path))
        return complain(tr("The file %1 cannot be written.").arg(path));
    openProject(path);
}

void MainWindow::chooseProject()
{
    if (!mayLeaveProject())
        return;
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Project"), folder(),
                                                      tr("Projects (*.zob)") + QLatin1String(";;") +
                                                          tr("All files (*)"));
    if (!path.isEmpty())
        openProject(path);
}

bool MainWindow::openProject(const QString& path)
{
    cd_error_t status = VKD_ZOB_OK;
    auto document = VKD_H_ZOBDoc::open(QFileInfo(path).absoluteFilePath(), &status);
    if (!document) {
        complain(projectTrouble(path, status));
        return false;
    }
    setDocument(std::move(document));
    say(tr("%1 is open.").arg(QFileInfo(path).fileName()));
    return true;
}

void MainWindow::setDocument(std::unique_ptr<VKD_H_ZOBDoc> document)
{
    m_output.reset();
    m_textOutput.reset();
    const auto before = std::move(m_document); // until nothing shows it any more
    m_document = std::move(document);
    m_view->setProject(index());
    m_view->slotViewControl(AnimatorStandardView, 0.0);
    m_groups->setProject(index());
    m_records->setProject(index());
    m_script->setOtherScript(QString());
    WindowSettings settings;
    settings.addRecentFile(m_document->path());
    m_actions->setRecentFiles(settings.recentFiles());
    m_actions->enable(true, false);
    setWindowModified(false);
    setTitle();
    // The window is to be painted before the page is built.
    QTimer::singleShot(0, this, &MainWindow::refreshScript);
}

void MainWindow::saveAs()
{
    const QString chosen = QFileDialog::getSaveFileName(this, tr("Save Project As"),
                                                        m_document->path(), tr("Projects (*.zob)"));
    if (chosen.isEmpty())
        return;
    const QString path = withSuffix(chosen);
    if (isSameFile(path, m_document->path())) {
        storeOutput();
        if (m_textOutput)
            storeTextOutput();
        return;
    }
    const OutputState state = output()->state();
    const auto text = m_textOutput ? std::make_optional(m_textOutput->state()) : std::nullopt;
    const QString unfinished = path + QLatin1String(".new");
    QFile::remove(unfinished);
    if (!QFile::copy(m_document->path(), unfinished) || !replaceFile(unfinished, path))
        return complain(tr("The file %1 cannot be written.").arg(path));
    if (!openProject(path))
        return;
    if (!state.write(index()))
        return complain(tr("The choice of plots cannot be stored in the project."));
    if (text && !text->write(index()))
        return complain(tr("The text output cannot be stored in the project."));
    m_output.reset();
    say(tr("The project is saved as %1.").arg(QFileInfo(path).fileName()));
}

bool MainWindow::mayLeaveProject()
{
    if (!mayLeaveTextOutput())
        return false;
    if (!m_output || !m_output->isChanged())
        return true;
    const int answer = VKD_QT_MessageBox::warning(
        this, tr("Workbench"),
        tr("The choice of plots is changed and not yet in the project.\nIs it to be stored?"),
        QMessageBox::Save, QMessageBox::Discard, QMessageBox::Cancel);
    if (answer == QMessageBox::Save)
        return storeOutput();
    return answer == QMessageBox::Discard;
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_design) {
        say(tr("Finish picking groups first, with Done or Cancel."));
        return event->ignore();
    }
    if (!mayLeaveProject())
        return event->ignore();
    m_output.reset();
    m_textOutput.reset();
    saveWindowState();
    QMainWindow::closeEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!m_design && !draggedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

/// Whoever drops the file is not to wait for the answers to questions.
void MainWindow::dropEvent(QDropEvent* event)
{
    const QString path = draggedFile(event->mimeData());
    event->acceptProposedAction();
    QTimer::singleShot(0, this, [this, path] {
        if (!m_design && mayLeaveProject())
            openProject(path);
    });
}

} // namespace workbench
