#pragma once

#include "LanguageSupport.h"
#include "WidgetTestSupport.h"
#include "window/main/MainWindow.h"

#include <QMessageBox>
#include <QTemporaryDir>

#include <memory>

/// What tests of the workbench's window have in common.
namespace windowtest {

using testsupport::enterFile;
using testsupport::find;
using testsupport::readFile;
using testsupport::trigger;
using testsupport::whenModal;
using testsupport::writeFile;

/// What the program prints with these arguments.
QByteArray commandLine(const QStringList& arguments);
QString makeProject(const QString& path, const QString& model);
QString script(const QWidget& window);

void press(QWidget* box, QMessageBox::StandardButton button);
/// Presses OK in the message that comes next; its text is added to the list.
void readMessage(QStringList& texts);
/// Names a file in the file dialog that opens next.
void answerFileDialog(const QString& path);
/// The script as the window saves it in a file.
QString savedScript(const QWidget& window, const QString& keywords);
QDialog* openOutput(const QWidget& window);
/// Opens the output dialog and takes a plot back.
void changeChoice(const QWidget& window);
/// Has the groups of the current row of the design dialog picked in the view.
void pickInView(const QWidget& designDialog);
/// By Return in the list of groups.
void pickGroup(const QWidget& window, int row);

/// Another program at work on a project, which ends with the object and stores nothing.
class OtherProgram
{
public:
    enum Work {
        Taking,   ///< has the lock
        Changing, ///< has written into its journal
        Storing   ///< keeps readers away, too
    };

    OtherProgram(const QString& path, Work work);
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

private:
    int m_index = -1;
};

/// What keeps a project from being written while it lives: "locked", "no journal", "disk full".
class Obstacle
{
public:
    Obstacle(const QByteArray& kind, const QString& project);
    ~Obstacle();

private:
    QString m_journal;
    std::unique_ptr<OtherProgram> m_other;
};

/// Tests of the window's projects: English texts; a folder for each test, with its settings.
class ProjectTest : public QObject
{
    Q_OBJECT

protected:
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    /// The path of a new copy of the building.
    QString copy(const char* name) const;
    /// A window on such a copy, with its script.
    std::unique_ptr<workbench::MainWindow> open(const char* name) const;
    /// A window on a project that is there, with its script.
    std::unique_ptr<workbench::MainWindow> reopen(const char* name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_building;

private Q_SLOTS:
    void initTestCase();
    void init();
};

} // namespace windowtest
