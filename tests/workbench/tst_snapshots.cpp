#include "TestSupport.h"

#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>

/// The pictures that the program takes of itself, as they lie in their folder.
class TestSnapshots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pixelRatio();
    void darkOnes();

private:
    void run(const QStringList& arguments) const;
    QSize size(const char* folder, const QString& name) const;

    QTemporaryDir m_folder;
    QStringList m_names;
};

void TestSnapshots::run(const QStringList& arguments) const
{
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.start(QStringLiteral(WORKBENCH), arguments);
    constexpr int Patience = 120000; // ms, for sanitizers on a busy machine
    QVERIFY(process.waitForFinished(Patience));
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()), QString());
    QCOMPARE(process.exitCode(), 0);
}

QSize TestSnapshots::size(const char* folder, const QString& name) const
{
    return QImageReader(QDir(m_folder.filePath(QLatin1String(folder))).filePath(name)).size();
}

void TestSnapshots::initTestCase()
{
    const QString project = QStringLiteral("slab.zob");
    run({QStringLiteral("new"), project, QStringLiteral("--model"), QStringLiteral("slab")});
    for (const char* ratio : {"1", "2"})
        run({QStringLiteral("snapshots"), project, QLatin1String(ratio),
             QStringLiteral("--pixel-ratio"), QLatin1String(ratio)});
    m_names = QDir(m_folder.filePath(QStringLiteral("1"))).entryList(QDir::Files);
    QVERIFY(m_names.size() > 50);
}

/// Everything as large as before, in twice the pixels; letters may be wider by a point or two.
void TestSnapshots::pixelRatio()
{
    constexpr int Tolerance = 4;
    for (const QString& name : m_names) {
        const QSize once = size("1", name);
        const QSize more = size("2", name) - 2 * once;
        QVERIFY2(qAbs(more.width()) <= Tolerance && qAbs(more.height()) <= Tolerance,
                 qPrintable(name));
    }
}

void TestSnapshots::darkOnes()
{
    const QRegularExpression look(QStringLiteral("-dark\\."));
    QStringList light = m_names, dark = m_names.filter(look);
    for (const QString& name : dark)
        light.removeOne(name);
    QStringList counterparts = dark;
    counterparts.replaceInStrings(look, QStringLiteral("."));
    std::sort(counterparts.begin(), counterparts.end());
    QCOMPARE(counterparts, light);
    const auto corner = [this](const QString& name) {
        return QImage(m_folder.filePath(QLatin1String("1/") + name)).pixelColor(0, 0).lightness();
    };
    for (const QString& name : light.filter(QStringLiteral("-page")))
        QVERIFY2(corner(name) > 128, qPrintable(name));
    for (const QString& name : dark.filter(QStringLiteral("-page")))
        QVERIFY2(corner(name) < 128, qPrintable(name));
}

PLIB_TEST_MAIN(TestSnapshots)
#include "tst_snapshots.moc"
