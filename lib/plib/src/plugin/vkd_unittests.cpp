#include "vkd_unittests.h"

#include "plugin/selfCheckLog.h"
#include "plugin/VKD_P_Mix_UnitTest.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QtTest>

namespace {
Q_LOGGING_CATEGORY(lcSelfCheck, "vkd.selfcheck")

const QLatin1String ConsoleLog("-,txt");

int runCheck(const QString& log)
{
    VKD_P_Mix_UnitTest test;
    const QStringList testArguments{QStringLiteral("UNITTEST"), QStringLiteral("-o"), log};
    return QTest::qExec(&test, testArguments) == 0 ? 0 : 1;
}

/// Writes a log file. On failure, writes the reason and the text to the log category of the check.
void writeLog(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        qCWarning(lcSelfCheck, "cannot write the log %s: %s\n%s", qUtf8Printable(path),
                  qUtf8Printable(file.errorString()), text.constData());
}

/// Runs the check with a temporary log file and copies the log to the requested file. Used if
/// QtTest cannot write to the requested file itself.
int runCheckAside(const QString& log)
{
    const QTemporaryDir folder;
    const QString aside = folder.filePath(QStringLiteral("log"));
    const int result = runCheck(plib::canQtTestLogTo(aside) ? aside : QString(ConsoleLog));
    QFile written(aside);
    writeLog(log, written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray());
    return result;
}
} // namespace

int vkd_unittests(const QStringList& arguments)
{
    const QString log = plib::selfCheckLog(arguments);
    return plib::canQtTestLogTo(log) ? runCheck(log) : runCheckAside(log);
}
