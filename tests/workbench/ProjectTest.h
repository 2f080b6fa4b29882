#pragma once

#include "WindowTestSupport.h"

#include <MainWindow.h>

#include <QMessageBox>
#include <QTemporaryDir>

#include <memory>

namespace windowtest {

void press(QWidget* box, QMessageBox::StandardButton button);
/// Presses OK in the message that comes next; its text is added to the list.
void readMessage(QStringList& texts);
void setLanguage(int language);
/// Opens the output dialog and takes a plot back.
void changeChoice(const QWidget& window);

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

/// Tests of the window's projects: English texts, settings of their own, a folder for each test.
class ProjectTest : public QObject
{
    Q_OBJECT

protected:
    QString path(const char* name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    /// A window on a copy of the building.
    std::unique_ptr<workbench::MainWindow> open(const char* name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_building;

private Q_SLOTS:
    void initTestCase();
    void init();

private:
    QTemporaryDir m_all;
};

} // namespace windowtest
