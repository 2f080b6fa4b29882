#include "TestSupport.h"

#include <designRecord.h>
#include <designStore.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_zob.h>

#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <numeric>

constexpr int Groups = 300;
constexpr int Key1 = 200;
constexpr int Key2 = 6;

/// All groups in one row, told from other rounds by a direction.
static void writeRound(VKD_H_ZOBDoc* doc, int round)
{
    plib::DesignParameterData data;
    data.designDoc = doc;
    plib::DesignParameterRow& row = plib::addDefaultRow(data);
    row.record.rio = float(round);
    row.groups.resize(Groups);
    std::iota(row.groups.begin(), row.groups.end(), 1);
    bool converted = false;
    plib::writeRowsToZob(data, converted);
}

/// The same records by the same calls, but without taking the key pair.
static void writeRoundBare(VKD_H_ZOBDoc* doc, int round)
{
    const int none = 0;
    vkd_zob_put(doc->index(), Key1, Key2, nullptr, &none, 0);
    tagZOB_QUAD_RIM record = plib::getDefaultMerPara(false);
    record.rio = float(round);
    for (record.group = 1; record.group <= Groups; ++record.group) {
        const auto bytes = plib::toBytes(record);
        const int length = int(bytes.size());
        vkd_zob_put(doc->index(), Key1, Key2, bytes.data(), &length, 1);
    }
}

/// The child: opens the project, says so, and writes round after round.
static int childMain(const QStringList& arguments)
{
    const auto doc = VKD_H_ZOBDoc::open(arguments[1]);
    std::puts("open");
    std::fflush(stdout);
    const int rounds = arguments[3].toInt();
    for (int round = 1; round <= rounds; ++round)
        (arguments[2] == QLatin1String("bare") ? writeRoundBare : writeRound)(doc.get(), round);
    return doc->close();
}

/// Whether the project holds one whole round.
static bool isWhole(const QString& path)
{
    const auto doc = VKD_H_ZOBDoc::open(path);
    plib::DesignParameterData data;
    data.designDoc = doc.get();
    plib::readRowsFromZob(data);
    return data.rows.size() == 1 && data.rows[0].groups.size() == Groups;
}

/// Programs that write the design parameters of one project at once, or die while they do.
class TestDesignProcesses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("p.zob"));
        writeRound(VKD_H_ZOBDoc::create(m_path).get(), 0);
    }

    void killedWriters_data()
    {
        const Columns<QByteArray, bool> row("mode", "alwaysWhole");
        row("as the page writes", QByteArray("taken"), true);
        // Shows that the kills meet the writing, and what the lock is for.
        row("control without the lock", QByteArray("bare"), false);
    }

    void killedWriters()
    {
        QFETCH(QByteArray, mode);
        QFETCH(bool, alwaysWhole);
        int broken = 0;
        for (int kill = 0; kill < 50; ++kill) {
            QProcess child;
            QVERIFY(start(child, mode.constData(), 1000000));
            child.waitForFinished(1 + kill % 25);
            child.kill();
            QVERIFY(child.waitForFinished());
            broken += isWhole(m_path) ? 0 : 1;
        }
        QCOMPARE(broken == 0, alwaysWhole);
    }

private:
    bool start(QProcess& child, const char* mode, int rounds) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

bool TestDesignProcesses::start(QProcess& child, const char* mode, int rounds) const
{
    child.start(QCoreApplication::applicationFilePath(),
                {m_path, QString::fromLatin1(mode), QString::number(rounds)});
    return child.waitForReadyRead();
}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 3)
        return childMain(arguments);
    TestDesignProcesses test;
    return testsupport::run(&test, argc, argv);
}

#include "tst_designProcesses.moc"
