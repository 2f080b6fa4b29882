#include "TestSupport.h"

#include <QProcess>

class tst_exports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyExportedNames()
    {
        QProcess nm;
        nm.start(QStringLiteral(NM), {QStringLiteral("-DC"), QStringLiteral("--defined-only"),
                                      QStringLiteral(LIBRARY)});
        QVERIFY(nm.waitForFinished(Patience));
        QCOMPARE(nm.exitCode(), 0);
        QStringList names;
        const QStringList lines = QString::fromUtf8(nm.readAllStandardOutput())
                                      .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString& line : lines) // address, kind, name
            names << line.section(QLatin1Char(' '), 2);
        names.removeDuplicates(); // a constructor has two symbols
        names.sort();
        QCOMPARE(names.join(QLatin1Char('\n')),
                 QString::fromUtf8(testsupport::readFile(QStringLiteral(EXPORTS))).trimmed());
    }
};

PLIB_TEST_MAIN(tst_exports)
#include "tst_exports.moc"
