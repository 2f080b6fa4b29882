#include "ProjectTest.h"

#include "cli/PlatformLog.h"
#include "window/script/ScriptView.h"

#include <vkd_zob.h>

#include <QComboBox>
#include <QDir>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVariantAnimation>

#include <csignal>
#include <sys/resource.h>

using workbench::MainWindow;

namespace windowtest {

QByteArray commandLine(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(WORKBENCH), arguments);
    process.waitForFinished(Patience);
    return process.readAllStandardOutput();
}

QString makeProject(const QString& path, const QString& model)
{
    commandLine({QStringLiteral("new"), path, QStringLiteral("--model"), model,
                 QStringLiteral("--language"), QStringLiteral("english")});
    return QFile::exists(path) ? QString() : QStringLiteral("not made");
}

QString script(const QWidget& window)
{
    return find<workbench::ScriptView>(window, "ScriptText")->plainText();
}

void press(QWidget* box, QMessageBox::StandardButton button)
{
    qobject_cast<QMessageBox*>(box)->button(button)->click();
}

void readMessage(QStringList& texts)
{
    whenModal([&texts](QWidget* box) {
        const auto message = qobject_cast<QMessageBox*>(box);
        const bool isPlain = message->textFormat() == Qt::PlainText;
        texts << message->text();
        press(box, QMessageBox::Ok);
        QVERIFY(isPlain); // because file names may look like tags
    });
}

void answerFileDialog(const QString& path)
{
    whenModal([path](QWidget* dialog) { enterFile(dialog, path); });
}

QString savedScript(const QWidget& window, const QString& keywords)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("saved.dat"));
    find<QComboBox>(window, "KeywordLanguage")
        ->setCurrentIndex(keywords == QLatin1String("english"));
    answerFileDialog(path);
    trigger(window, "SaveScriptAction");
    return QString::fromUtf8(readFile(path));
}

QDialog* openOutput(const QWidget& window)
{
    trigger(window, "Output");
    return find<QDialog>(window, "OutputDialog");
}

QString treeText(QTreeWidget* tree)
{
    QString text;
    for (QTreeWidgetItemIterator item(tree); *item; ++item) {
        for (const QTreeWidgetItem* above = (*item)->parent(); above; above = above->parent())
            text += QLatin1String("  ");
        text += QStringLiteral("[%1] %2\n")
                    .arg(QLatin1Char(" -x"[(*item)->checkState(0)]))
                    .arg((*item)->text(0));
    }
    return text;
}

void changeChoice(const QWidget& window)
{
    openOutput(window)->findChild<QTreeWidget*>()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
    QTRY_VERIFY(window.isWindowModified());
}

QWidget* openDesign(const QWidget& window)
{
    trigger(window, "Design");
    return find<QWidget>(window, "DesignDock");
}

QStringList designCells(const QWidget& window)
{
    auto table = find<QTableWidget>(*find<QWidget>(window, "DesignDock"), "table");
    table->setCurrentCell(0, 1); // an editor hides the text of its cell
    QStringList texts;
    for (int row = 0; row < table->rowCount(); ++row)
        for (int column = 0; column < table->columnCount(); ++column)
            texts << (table->item(row, column) ? table->item(row, column)->text() : QString());
    return texts;
}

void deleteDesignRow(const QWidget& dock)
{
    find<QTableWidget>(dock, "table")->selectRow(2);
    find<QPushButton>(dock, "btnDelete")->click();
}

void applyDesign(const QWidget& window)
{
    find<QPushButton>(window, "DesignApply")->click();
}

void pickGroup(const QWidget& window, int row)
{
    auto groups = find<QTreeWidget>(window, "GroupList");
    groups->setCurrentItem(groups->topLevelItem(row));
    QTest::keyClick(groups, Qt::Key_Return);
}

OtherProgram::OtherProgram(const QString& path, Work work)
{
    vkd_zob_open(path.toUtf8().constData(), &m_index);
    vkd_zob_lock_ex(m_index, 9000, 1);
    const QByteArray bytes(work == Storing ? 4000000 : 5000, 'x'); // exceeds the cache
    const int length = bytes.size();
    for (int i = 0; i < int(work); ++i)
        vkd_zob_put(m_index, 9000, 1, bytes.constData(), &length, 1);
}

OtherProgram::~OtherProgram()
{
    vkd_zob_close(m_index);
}

static void setRoom(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN); // makes a write fail, as on a full disk
    rlimit room{};
    getrlimit(RLIMIT_FSIZE, &room);
    room.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &room);
}

Obstacle::Obstacle(const QByteArray& kind, const QString& project)
    : m_journal(project + QLatin1String("-journal"))
{
    if (kind == "locked")
        m_other = std::make_unique<OtherProgram>(project, OtherProgram::Taking);
    else if (kind == "no journal")
        QDir().mkdir(m_journal);
    else if (kind == "disk full")
        setRoom(1000);
}

Obstacle::~Obstacle()
{
    QDir().rmdir(m_journal);
    setRoom(RLIM_INFINITY);
}

void ProjectTest::initTestCase()
{
    workbench::PlatformLog::install();
    const QTemporaryDir folder;
    const QString project = folder.filePath(QStringLiteral("building.zob"));
    QCOMPARE(makeProject(project, QStringLiteral("building")), QString());
    m_building = readFile(project);
}

void ProjectTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, path("ini"));
    qputenv("XDG_DATA_HOME", path("data").toLocal8Bit());
    vkd_lib_setvalue(VKD_SETTING_LOCK_DEADLINE, 300);
    testsupport::setLanguage(testsupport::English);
}

void ProjectTest::cleanupTestCase()
{
    QVariantAnimation later; // runs on the same timer, for a longer time
    later.setEndValue(1);
    later.start();
    QTRY_COMPARE(later.state(), QAbstractAnimation::Stopped);
}

QString ProjectTest::copy(const char* name) const
{
    writeFile(path(name), m_building);
    return path(name);
}

std::unique_ptr<MainWindow> ProjectTest::open(const char* name) const
{
    copy(name);
    return reopen(name);
}

std::unique_ptr<MainWindow> ProjectTest::reopen(const char* name) const
{
    auto window = std::make_unique<MainWindow>();
    window->show();
    if (!window->openProject(path(name)) ||
        !QTest::qWaitFor([&window] { return !script(*window).isEmpty(); }, Patience))
        qFatal("not open");
    return window;
}

} // namespace windowtest
