#pragma once

#include "LanguageSupport.h"
#include "WidgetTestSupport.h"
#include "window/main/MainWindow.h"

#include <QMessageBox>
#include <QTemporaryDir>

#include <memory>

class QTreeWidget;

/// Functions shared by the tests of the workbench window.
namespace windowtest {

using testsupport::enterFile;
using testsupport::find;
using testsupport::readFile;
using testsupport::trigger;
using testsupport::whenModal;
using testsupport::whenProgress;
using testsupport::writeFile;

/// Returns the output of the command line with these arguments.
QByteArray commandLine(const QStringList& arguments);
QString makeProject(const QString& path, const QString& model);
QString script(const QWidget& window);

void press(QWidget* box, QMessageBox::StandardButton button);
/// Presses OK in the next message box and adds its text to the list.
void readMessage(QStringList& texts);
/// Enters a file name in the next file dialog that opens.
void answerFileDialog(const QString& path);
/// Returns the script that the window saves to a file.
QString savedScript(const QWidget& window, const QString& keywords);
QDialog* openOutput(const QWidget& window);
/// Returns the tree in the format that the command line prints.
QString treeText(QTreeWidget* tree);
/// Opens the output dialog and unchecks a plot.
void changeChoice(const QWidget& window);
/// Opens the design dock and returns it.
QWidget* openDesign(const QWidget& window);
/// Returns the texts of the cells of the design page.
QStringList designCells(const QWidget& window);
/// Deletes a row on the design page.
void deleteDesignRow(const QWidget& dock);
/// Presses Apply in the design dock.
void applyDesign(const QWidget& window);
/// Picks a group with Return in the list of groups.
void pickGroup(const QWidget& window, int row);

/// Simulates another program that is changing a project until the object is destroyed, without
/// storing any changes.
class OtherProgram
{
public:
    enum Work {
        Taking,   ///< holds the lock
        Changing, ///< has written its journal
        Storing   ///< also excludes readers
    };

    OtherProgram(const QString& path, Work work);
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

private:
    int m_index = -1;
};

/// Prevents writing to a project during the lifetime of the object. The reason is "locked", "no
/// journal" or "disk full".
class Obstacle
{
public:
    Obstacle(const QByteArray& kind, const QString& project);
    ~Obstacle();

private:
    QString m_journal;
    std::unique_ptr<OtherProgram> m_other;
};

/// Base class for tests of the window's projects. The user interface is in English, and each test
/// has its own settings folder.
class ProjectTest : public QObject
{
    Q_OBJECT

protected:
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    /// Returns the path of a new copy of the sample building.
    QString copy(const char* name) const;
    /// Opens a window with a new copy of the sample building and waits for its script.
    std::unique_ptr<workbench::MainWindow> open(const char* name) const;
    /// Opens a window with an existing project and waits for its script.
    std::unique_ptr<workbench::MainWindow> reopen(const char* name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_building;

private Q_SLOTS:
    void initTestCase();
    void init();
    /// Waits for the fade animation of Qt's clear buttons, which would be reported as a leak when
    /// the program exits.
    void cleanupTestCase();
};

} // namespace windowtest
