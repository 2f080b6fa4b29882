#include <HostProject.h>
#include <TestSupport.h>

#include <QProcess>

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
} // namespace

/// The examples as they are built, in a process each, with a user who works in them (ExampleUser).
class TestExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAProject()
    {
        for (const char* example : {"designHost", "outputHost", "radioHost"})
            QCOMPARE(run(example, QStringLiteral("absent.zob"), "ok").exitCode, 1);
    }

    void designIsWrittenByOk()
    {
        const QString path = m_project.doc()->path();
        QCOMPARE(run("designHost", path, "btnNew+cancel").exitCode, 0);
        QCOMPARE(groups(), QStringLiteral("-1")); // the page puts one in if there is none
        QCOMPARE(run("designHost", path, "btnNew+table:Down+buttonGroups+pick+ok").exitCode, 0);
        QCOMPARE(groups(), QStringLiteral("-1 1 2"));
    }

    void outputIsPrintedAndKept()
    {
        const QString path = m_project.doc()->path();
        const Result first = run("outputHost", path, "ok");
        QCOMPARE(first.exitCode, 0);
        QVERIFY2(first.out.contains(QLatin1String("\nLC 1 DESI 1\n")), qPrintable(first.out));
        QCOMPARE(run("outputHost", path, "Landscape+cancel").out, QString());
        QCOMPARE(run("outputHost", path, "ok").out, first.out);
        const Result changed = run("outputHost", path, "Landscape+ok");
        QVERIFY(changed.out.contains(QLatin1String("\nSIZE URS ")));
        QCOMPARE(run("outputHost", path, "ok").out, changed.out);
    }

    void loadCasesByHandOrAll()
    {
        const QString all = QStringLiteral("1\n2\n3\n4\n5\n6\n7\n");
        const auto printed = [this](const char* steps) {
            return run("radioHost", m_project.doc()->path(), steps).out;
        };
        QVERIFY(printed("ok").startsWith(all));
        QVERIFY(printed("table:Home+table:Space+ok").startsWith(all)); // read only
        QVERIFY(printed("Manually+table:Home+table:Space+ok").startsWith(all.mid(2)));
    }

private:
    QString groups()
    {
        QStringList numbers;
        for (const tagZOB_QUAD_RIM& record : m_project.records())
            numbers << QString::number(record.group);
        return numbers.join(QLatin1Char(' '));
    }

    HostProject m_project{QStringLiteral("building")};
};

PLIB_TEST_MAIN(TestExamples)
#include "tst_examples.moc"
