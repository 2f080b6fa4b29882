#include "cli/CommandLine.h"
#include "cli/DesignRows.h"
#include "cli/newProject.h"
#include "FaultyDisk.h"
#include "project/OpenProject.h"
#include "project/output/OutputList.h"
#include "project/output/TextOutputState.h"
#include "ProjectTest.h"
#include "walkOverFaults.h"
#include "window/design/DesignPage.h"
#include "window/files/copyProject.h"
#include "window/files/ProjectAccess.h"
#include "window/support/WindowMessages.h"
#include "window/textoutput/TextOutputEditor.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_zob.h>

#include <QMainWindow>
#include <QPushButton>
#include <QTableWidget>

using namespace windowtest;
using testsupport::FaultyDisk;

/// Takes the paths of an existing project and of a new project. Returns the reason for a failure.
using Run = std::function<QString(const QString& old, const QString& made)>;
Q_DECLARE_METATYPE(Run)

namespace {
/// Opens the project, deletes a row on the design page, and stores the remaining rows.
QString storeDesign(const QString& path, const QString&)
{
    VkdStatus status;
    workbench::OpenProject project;
    project.setDocument(VKD_H_ZOBDoc::open(path, &status));
    if (!project.isOpen())
        return status.reason;
    workbench::DesignPage page(&project, nullptr);
    cd_error_t code = page.load();
    if (code == VKD_ZOB_OK) {
        page.table()->selectRow(1);
        find<QPushButton>(page, "btnDelete")->click();
        code = page.store(workbench::SeenPart::Newer::Keep);
    }
    return code == VKD_ZOB_OK ? QString() : vkd_zob_last_failure(project.handle().index()).reason;
}

/// Adds an output and renames the first one.
QString storeOutputs(const QString& path, const QString&)
{
    VkdStatus status;
    workbench::OpenProject project;
    project.setDocument(VKD_H_ZOBDoc::open(path, &status));
    if (!project.isOpen())
        return status.reason;
    workbench::OutputList outputs = workbench::OutputList::read(project.handle(), &status);
    outputs.rename(QStringLiteral("Slab"));
    if (outputs.size() == 1)
        outputs.add(QStringLiteral("Walls"), {QString(3000, QLatin1Char('x')), 1, {2, 3}});
    const auto put = [&] { return (status = outputs.put(project.handle())).code; };
    const bool isSeen = project.look(workbench::ProjectPart::Output) == VKD_ZOB_OK;
    const cd_error_t code =
        isSeen && status.isOk()
            ? project.store(workbench::ProjectPart::Output, put, workbench::SeenPart::Newer::Keep)
            : cd_error_t(VKD_ZOB_FAILED);
    return code == VKD_ZOB_OK ? QString() : vkd_zob_last_failure(project.handle().index()).reason;
}

QString saveAs(const QString& from, const QString& to)
{
    VkdStatus status;
    const auto document = VKD_H_ZOBDoc::open(from, &status);
    if (document)
        status = workbench::copyProject(nullptr, *document, to);
    return status.reason;
}

/// Returns a small model with four design rows, so that an operation takes little time.
QString modelFile()
{
    static const QTemporaryDir folder;
    QByteArray groups, rows;
    for (const char* number : {"1", "2", "3", "4"}) {
        const char* comma = groups.isEmpty() ? "" : ", ";
        groups += comma + QByteArray(R"({"title": "Wall", "number": )") + number + '}';
        rows += comma + QByteArray(R"({"groups": [")") + number + R"("], "values": {"hio": 0.0)" +
                number + "}}";
    }
    const QString path = folder.filePath(QStringLiteral("model.json"));
    writeFile(path, R"({"title": "House", "kindOfSystem": 0, "nodes": [], "groups": [)" + groups +
                        R"(], "designParameters": [)" + rows + "]}");
    return path;
}

QString make(const QString&, const QString& path)
{
    try {
        if (!QFile::exists(path))
            workbench::newProject(path, modelFile(), VkdGoOn());
        return QString();
    } catch (const workbench::CommandError& error) {
        return error.text;
    }
}

/// Reads a file that the command line imports. A failure must not shorten it.
QString importFile(const QString& path, const QString&)
{
    try {
        if (workbench::readBytes(path).size() != QFileInfo(path).size())
            QTest::qFail("the file is incomplete", __FILE__, __LINE__);
        return QString();
    } catch (const workbench::CommandError& error) {
        return error.text;
    }
}

/// Reads the rows like the command line. A failure must not reduce their number.
QString readRows(const QString& path, const QString&)
{
    constexpr int Rows = 5;
    VkdStatus status;
    const auto document = VKD_H_ZOBDoc::open(path, &status);
    try {
        if (document &&
            workbench::DesignRows(document.get()).text().count(QLatin1Char('\n')) != Rows)
            QTest::qFail("the rows are incomplete", __FILE__, __LINE__);
        return status.reason;
    } catch (const workbench::CommandError& error) {
        return error.text;
    }
}
} // namespace

/// Tests operations of the programs while the disk fails or the power is cut.
class tst_projectFaults : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void walk_data()
    {
        const Columns<Run, QString, int> row("run", "project", "stride");
        row("design", storeDesign, "old.zob", 4); // slow, because it creates a page
        row("outputs", storeOutputs, "old.zob", 1);
        row("read rows", readRows, "old.zob", 1);
        row("import a file", importFile, "old.zob", 1);
        row("save as", saveAs, "new.zob", 1);
        row("new", make, "new.zob", 1);
    }

    void walk()
    {
        QFETCH(const Run, run);
        QFETCH(const QString, project);
        QFETCH(const int, stride);
        const QTemporaryDir folder; // m_folder has a subfolder
        const QString old = folder.filePath(QStringLiteral("old.zob"));
        const QString made = folder.filePath(QStringLiteral("new.zob"));
        QCOMPARE(make(QString(), old), QString());
        testsupport::walkOverFaults(
            folder.path(), {[&] { return run(old, made); }, folder.filePath(project), stride});
    }

    /// The dialog shows the saved state, or it is not opened.
    void textOutput()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("p.zob"));
        writeFile(path, m_building);
        QMainWindow window;
        workbench::WindowMessages windowMessages(&window);
        workbench::OpenProject project;
        workbench::ProjectAccess access(&project, &windowMessages);
        project.setDocument(VKD_H_ZOBDoc::open(path));
        workbench::TextOutputState saved;
        saved.leftOutLoadCases = {3};
        QVERIFY(saved.put(project.handle()).isOk());
        QStringList messages;
        bool isFailed = true;
        for (int call = 1; isFailed; ++call) {
            workbench::TextOutputEditor editor(&project, &access, &windowMessages, {});
            const FaultyDisk disk(folder.path(), FaultyDisk::Fault::Once, call);
            readMessage(messages);
            editor.show();
            isFailed = !disk.failedCall().isEmpty();
            QCOMPARE(editor.isOpen(), !isFailed);
            QCOMPARE(messages.size(), isFailed ? call : call - 1);
            if (editor.isOpen())
                QCOMPARE(editor.state()->leftOutLoadCases, saved.leftOutLoadCases);
        }
    }
};

PLIB_WIDGET_TEST_MAIN(tst_projectFaults)
#include "tst_projectFaults.moc"
