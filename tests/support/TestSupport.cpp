#include "TestSupport.h"

#include <QFile>
#include <QTemporaryDir>

namespace testsupport {

namespace {
/// Returns the warnings in a log of QtTest, except warnings of the offscreen plug-in about missing
/// features. The log does not contain warnings that were declared with QTest::ignoreMessage().
QList<QByteArray> unexpectedWarnings(const QByteArray& log)
{
    QList<QByteArray> found;
    const QList<QByteArray> lines = log.split('\n');
    for (const QByteArray& line : lines)
        if ((line.startsWith("QWARN") || line.startsWith("QCRITICAL")) &&
            !line.contains("This plugin does not support"))
            found << line;
    return found;
}
} // namespace

int run(QObject* test, int argc, char* argv[])
{
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("log"));
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    arguments << QStringLiteral("-maxwarnings") << QStringLiteral("0"); // no limit
    arguments << QStringLiteral("-o") << QStringLiteral("-,txt") << QStringLiteral("-o")
              << log + QLatin1String(",txt");
    const int failed = QTest::qExec(test, arguments);
    const QList<QByteArray> warnings = unexpectedWarnings(readFile(log));
    for (const QByteArray& warning : warnings)
        std::fprintf(stderr, "FAIL!  : unexpected warning: %s\n", warning.constData());
    return failed + warnings.size();
}

void compareCases(const std::function<QString(const QString&)>& function, const char* cases)
{
    const QString arrow = QStringLiteral(" =>");
    const QStringList lines = QString::fromUtf8(cases).split(QLatin1Char('\n'));
    QString others;
    for (const QString& line : lines) {
        const QString text = line.section(arrow, 0, 0);
        const QString result = line.isEmpty() ? QString() : function(text);
        const QString whole =
            text + arrow + (result.isEmpty() ? result : QLatin1Char(' ') + result);
        if (!line.isEmpty() && whole != line)
            others += QLatin1Char('\n') + whole;
    }
    QVERIFY2(others.isEmpty(), qPrintable(QLatin1String("otherwise:") + others));
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

} // namespace testsupport
