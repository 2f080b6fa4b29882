#include "cli/CommandLine.h"
#include "cli/DesignRows.h"
#include "cli/newProject.h"
#include "project/OpenProject.h"
#include "ProjectTest.h"
#include "walkOverFaults.h"
#include "window/design/DesignDialog.h"
#include "window/support/copyProject.h"

#include <VKD_H_ZOBDoc.h>
#include <vkd_zob.h>

#include <QPushButton>
#include <QTableWidget>

using namespace windowtest;

namespace {
/// Opens the project, deletes a row in the design dialog, and stores the remaining rows.
QString storeDesign(const QString& path)
{
    VkdStatus status;
    workbench::OpenProject project;
    project.setDocument(VKD_H_ZOBDoc::open(path, &status));
    if (!project.isOpen())
        return status.reason;
    workbench::DesignDialog dialog(&project, nullptr);
    cd_error_t code = dialog.load();
    if (code == VKD_ZOB_OK) {
        dialog.showPage();
        find<QTableWidget>(dialog, "table")->selectRow(1);
        find<QPushButton>(dialog, "btnDelete")->click();
        dialog.accept();
        code = dialog.store(workbench::SeenPart::Newer::Keep);
    }
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

QString make(const QString& path)
{
    try {
        if (!QFile::exists(path))
            workbench::newProject(path, QStringLiteral(MODELS "/slab.json"), VkdGoOn());
        return QString();
    } catch (const workbench::CommandError& error) {
        return error.text;
    }
}

/// Reads the rows like the command line. A failure must not reduce their number.
QString readRows(const QString& path, const QString& expected)
{
    VkdStatus status;
    const auto document = VKD_H_ZOBDoc::open(path, &status);
    try {
        if (document && workbench::DesignRows(document.get()).text() != expected)
            QTest::qFail("the rows are incomplete", __FILE__, __LINE__);
        return status.reason;
    } catch (const workbench::CommandError& error) {
        return error.text;
    }
}

/// Returns all records of a project, or a string that is not a record if they cannot be read.
QByteArray state(const QString& path)
{
    int index = -1;
    if (!QFile::exists(path))
        return "no file";
    if (!vkd_zob_open(path.toUtf8(), &index).isOk())
        return "unreadable";
    QByteArray records, record(100000, '\0');
    int key1 = 11, key2 = 0; // the title, keyed by 10, 0, contains a random number
    for (vkd_zob_kenq_ex(index, &key1, &key2, 1); key1 >= 0;
         vkd_zob_kenq_ex(index, &key1, &key2, 1)) {
        int length = record.size();
        for (int i = 0; vkd_zob_get(index, key1, key2, record.data(), &length, i) == VKD_ZOB_OK;
             ++i, length = record.size())
            records += record.left(length) + '|';
        ++key2;
    }
    vkd_zob_close(index);
    return records;
}
} // namespace

/// Tests operations of the programs while the disk fails or the power is cut.
class tst_projectFaults : public ProjectTest
{
    Q_OBJECT

private Q_SLOTS:
    void walk_data()
    {
        const Columns<QByteArray, int> row("operation", "stride");
        row("design", "design", 4); // slow, because it creates a page
        row("read rows", "rows", 1);
        row("save as", "save as", 2);
        row("new", "new", 2);
    }

    void walk()
    {
        QFETCH(const QByteArray, operation);
        QFETCH(const int, stride);
        const QTemporaryDir folder; // m_folder has a subfolder
        const QString old = folder.filePath(QStringLiteral("old.zob"));
        const QString made = folder.filePath(QStringLiteral("new.zob"));
        if (operation != "new")
            writeFile(old, m_building);
        const QString rows = operation == "rows"
                                 ? workbench::DesignRows(VKD_H_ZOBDoc::open(old).get()).text()
                                 : QString();
        const std::function<QString()> run = [&] {
            return operation == "design"    ? storeDesign(old)
                   : operation == "rows"    ? readRows(old, rows)
                   : operation == "save as" ? saveAs(old, made)
                                            : make(made);
        };
        testsupport::walkOverFaults(folder.path(), {run,
                                                    [&] {
                                                        return state(QFile::exists(made) ||
                                                                             operation == "new" ||
                                                                             operation == "save as"
                                                                         ? made
                                                                         : old);
                                                    },
                                                    stride});
    }
};

PLIB_WIDGET_TEST_MAIN(tst_projectFaults)
#include "tst_projectFaults.moc"
