#include <HostProject.h>
#include <TestSupport.h>

#include <QProcess>

/// The examples as they are built, in a process each, with a user who works in them (ExampleUser).
class TestExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAProject_data();
    void withoutAProject();
    void designIsWrittenByOk();
    void outputIsPrintedAndKept();
    void loadCasesByHandOrAll_data();
    void loadCasesByHandOrAll();
};

namespace {
struct Result
{
    int exitCode;
    QString out;
};

Result run(const char* example, const QString& project, const char* steps)
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(PLUGINS));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"),
                       QLatin1String("exampleuser:") + QLatin1String(steps));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(EXAMPLES "/") + QLatin1String(example), {project});
    if (!process.waitForFinished()) {
        process.kill();
        process.waitForFinished();
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput())};
}

QString groups(HostProject& project)
{
    QStringList numbers;
    for (const tagZOB_QUAD_RIM& record : project.records())
        numbers << QString::number(record.group);
    return numbers.join(QLatin1Char(' '));
}
} // namespace

void TestExamples::withoutAProject_data()
{
    QTest::addColumn<QString>("example");
    for (const char* example : {"designHost", "outputHost", "radioHost"})
        QTest::newRow(example) << QString::fromLatin1(example);
}

void TestExamples::withoutAProject()
{
    QFETCH(QString, example);
    QCOMPARE(run(example.toLatin1().constData(), QStringLiteral("absent.zob"), "ok").exitCode, 1);
}

void TestExamples::designIsWrittenByOk()
{
    HostProject project(QStringLiteral("building"));
    const QString path = project.doc()->path();
    QCOMPARE(run("designHost", path, "btnNew+cancel").exitCode, 0);
    QCOMPARE(groups(project), QStringLiteral("-1")); // the page puts one in if there is none
    QCOMPARE(run("designHost", path, "btnNew+table:Down+buttonGroups+pick+ok").exitCode, 0);
    QCOMPARE(groups(project), QStringLiteral("-1 1 2"));
}

void TestExamples::outputIsPrintedAndKept()
{
    HostProject project(QStringLiteral("building"));
    const QString path = project.doc()->path();
    const Result first = run("outputHost", path, "ok");
    QCOMPARE(first.exitCode, 0);
    QVERIFY2(first.out.contains(QLatin1String("\nLC 1 DESI 1\n")), qPrintable(first.out));
    QCOMPARE(run("outputHost", path, "Landscape+cancel").out, QString());
    QCOMPARE(run("outputHost", path, "ok").out, first.out);
    const Result changed = run("outputHost", path, "Landscape+ok");
    QVERIFY(changed.out.contains(QLatin1String("\nSIZE URS ")));
    QCOMPARE(run("outputHost", path, "ok").out, changed.out);
}

void TestExamples::loadCasesByHandOrAll_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<QString>("without"); // the first load case, unless the user unchecked it
    QTest::newRow("all") << QStringLiteral("ok") << QString();
    QTest::newRow("all, and read only") << QStringLiteral("table:Home+table:Space+ok") << QString();
    QTest::newRow("by hand") << QStringLiteral("Manually+table:Home+table:Space+ok")
                             << QStringLiteral("1\n");
}

void TestExamples::loadCasesByHandOrAll()
{
    QFETCH(QString, steps);
    QFETCH(QString, without);
    HostProject project(QStringLiteral("building"));
    const Result result = run("radioHost", project.doc()->path(), steps.toLatin1().constData());
    QCOMPARE(result.exitCode, 0);
    const QString all = QStringLiteral("1\n2\n3\n4\n5\n6\n7\n");
    QVERIFY2(result.out.startsWith(all.mid(without.size())), qPrintable(result.out));
}

PLIB_TEST_MAIN(TestExamples)
#include "tst_examples.moc"
