#include "TestSupport.h"

#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>

/// Tests the image files that the program saves in a folder.
class TestSnapshots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// The set of screenshots is the same in both languages, and the project does not change.
    void initTestCase()
    {
        run("new slab.zob --model slab");
        const QByteArray before =
            testsupport::readFile(m_folder.filePath(QStringLiteral("slab.zob")));
        run("snapshots slab.zob 1 --language german --pixel-ratio 1");
        run("snapshots slab.zob 2 --language german --pixel-ratio 2");
        run("snapshots slab.zob english --language english");
        QVERIFY(testsupport::readFile(m_folder.filePath(QStringLiteral("slab.zob"))) == before);
        m_names = names("1");
        QVERIFY(m_names.size() > 50);
        QCOMPARE(names("english").replaceInStrings(QStringLiteral(".en."), QStringLiteral(".de.")),
                 m_names);
    }

    /// All sizes are doubled, but the width of text may differ by a few points.
    void pixelRatio()
    {
        constexpr int Tolerance = 4;
        for (const QString& name : m_names) {
            const QSize once = size("1", name);
            const QSize more = size("2", name) - 2 * once;
            QVERIFY2(once.width() > 100 && once.height() > 50, qPrintable(name));
            QVERIFY2(qAbs(more.width()) <= Tolerance && qAbs(more.height()) <= Tolerance,
                     qPrintable(name));
        }
    }

    void darkPictures()
    {
        const QRegularExpression look(QStringLiteral("-dark\\."));
        QStringList light = m_names, dark = m_names.filter(look);
        for (const QString& name : dark)
            light.removeOne(name);
        QStringList counterparts = dark;
        counterparts.replaceInStrings(look, QStringLiteral("."));
        std::sort(counterparts.begin(), counterparts.end());
        QCOMPARE(counterparts, light);
        for (const QString& name : m_names.filter(QStringLiteral("-page"))) {
            const QImage picture(m_folder.filePath(QLatin1String("1/") + name));
            const bool isLight = picture.pixelColor(0, 0).lightness() > 128;
            QVERIFY2(isLight == light.contains(name), qPrintable(name));
        }
    }

    /// Without groups, the group dialogs cannot be opened.
    void modelWithoutGroups()
    {
        QFile file(m_folder.filePath(QStringLiteral("bare.json")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(R"({"title": "", "kindOfSystem": 0, "nodes": [], "groups": []})");
        file.close();
        run("new bare.zob --model bare.json");
        run("snapshots bare.zob bare --language german",
            "plib_workbench: left out, because the model has no such groups: groups, "
            "secondary-groups, groups-dark, secondary-groups-dark\n");
        QCOMPARE(names("bare").size(), m_names.size() - 4);
    }

private:
    void run(const char* arguments, const char* said = "") const
    {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        process.start(QStringLiteral(WORKBENCH),
                      QString::fromLatin1(arguments).split(QLatin1Char(' ')));
        QVERIFY(process.waitForFinished(2 * Patience));
        QCOMPARE(QString::fromUtf8(process.readAllStandardError()), QString::fromLatin1(said));
        QCOMPARE(process.exitCode(), 0);
    }
    QStringList names(const char* folder) const
    {
        return QDir(m_folder.filePath(QLatin1String(folder))).entryList(QDir::Files);
    }
    QSize size(const char* folder, const QString& name) const
    {
        return QImageReader(QDir(m_folder.filePath(QLatin1String(folder))).filePath(name)).size();
    }

    QTemporaryDir m_folder;
    QStringList m_names;
};

PLIB_TEST_MAIN(TestSnapshots)
#include "tst_snapshots.moc"
