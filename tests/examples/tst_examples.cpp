#include <HostProject.h>
#include <TestSupport.h>

#include <QProcess>

/// Runs each unchanged example in a separate process, with a simulated user who presses OK
/// (ExampleUser).
class TestExamples : public QObject
{
    Q_OBJECT

    /// Returns the exit code and the output, separated by a space.
    static QString run(const QString& example, const QString& project)
    {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(PLUGINS));
        environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("exampleuser"));
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(EXAMPLES "/") + example, {project});
        if (!process.waitForFinished(Patience) || process.exitStatus() != QProcess::NormalExit)
            return QStringLiteral("no end, or a crash");
        return QStringLiteral("%1 ").arg(process.exitCode()) +
               QString::fromUtf8(process.readAllStandardOutput());
    }

private Q_SLOTS:
    void run_data()
    {
        const Columns<QString, int> row("printed", "designRecords");
        row("designHost", "0 ", 1); // the page adds a row to an empty table
        row("outputHost", "\nLC 1 DESI 1\n", 0);
        row("radioHost", "0 1\n2\n3\n4\n5\n6\n7\n", 0);
    }

    /// The name of the data row is the name of the example.
    void run()
    {
        const QString example = QLatin1String(QTest::currentDataTag());
        HostProject project(QStringLiteral("building"));
        QFETCH(const QString, printed);
        const QString result = run(example, project.doc()->path());
        QVERIFY2(result.contains(printed), qPrintable(result));
        QTEST(int(project.records().size()), "designRecords");
        QCOMPARE(run(example, QStringLiteral("absent.zob")), QStringLiteral("1 "));
    }
};

PLIB_TEST_MAIN(TestExamples)
#include "tst_examples.moc"
