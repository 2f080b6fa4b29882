#include "TestSupport.h"

#include <vkd_lib_value.h>
#include <vkd_qt_getFileNameWithLang.h>
#include <vkd_unittests.h>

#include <QApplication>
#include <QDir>
#include <QPixmapCache>
#include <QProcess>
#include <QTemporaryDir>

namespace {
constexpr int LanguageKey = 102;

/// Returns the output of this program when it runs as a separate host (see main()).
QString host(const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), arguments);
    process.waitForFinished(Patience);
    return QString::fromLocal8Bit(process.readAll().trimmed());
}
} // namespace

class tst_plugin : public QObject
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
            names << line.section(QLatin1Char(' '), 2)
                         .replace(QLatin1String("QList<QString>"), QLatin1String("QStringList"));
        names.removeDuplicates(); // a constructor has two symbols
        names.sort();
        QCOMPARE(names.join(QLatin1Char('\n')),
                 QString::fromUtf8(testsupport::readFile(QStringLiteral(EXPORTS))).trimmed());
    }

    void selfCheck()
    {
        for (const QString& language : {QStringLiteral("0"), QStringLiteral("1")}) {
            const QTemporaryDir folder;
            QCOMPARE(
                host({QStringLiteral("selfcheck"), language, QStringLiteral("LOGPATH:/nowhere"),
                      QStringLiteral("LogPath:") + folder.path()}),
                QStringLiteral("result 0, language ") + language);
            const QString log = folder.filePath(QStringLiteral("VKD_P_Mix_UnitTest.log"));
            QVERIFY(testsupport::readFile(log).contains(
                "PASS   : VKD_P_Mix_UnitTest::check_qrc_system()"));
        }
    }

    /// QtTest cannot write either of these logs.
    void selfCheckWithUnusualLogs()
    {
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir(QStringLiteral("a,b"));
        const QString name = QStringLiteral("/VKD_P_Mix_UnitTest.log");
        const QString inComma = folder.filePath(QStringLiteral("a,b"));
        const auto check = [](const QString& role, const QString& place) {
            return host({role, QStringLiteral("1"), QStringLiteral("logpath:") + place});
        };
        QCOMPARE(check(QStringLiteral("selfcheck"), inComma),
                 QStringLiteral("result 0, language 1"));
        QVERIFY(testsupport::readFile(inComma + name).contains("PASS   : VKD_P_Mix_UnitTest"));

        const QString nowhere = QStringLiteral("/nowhere");
        const QString refused = QStringLiteral("cannot write the log ") + nowhere + name;
        for (const auto& [role, result, mark] :
             {std::tuple("selfcheck", "result 0, language 1", "PASS   : VKD_P_Mix_UnitTest"),
              std::tuple("selfcheck-without-cache", "result 1, language 0",
                         "FAIL!  : VKD_P_Mix_UnitTest")}) {
            const QString said = check(QLatin1String(role), nowhere);
            QVERIFY2(said.startsWith(refused) && said.contains(QLatin1String(mark)) &&
                         said.endsWith(QLatin1String(result)),
                     qPrintable(said));
        }
    }

    void applicationsInTurn()
    {
        QCOMPARE(host({QStringLiteral("applications")}),
                 QStringLiteral("Grafische Ausgabe\nGraphical Output\nGrafische Ausgabe"));
    }

    /// Only resources count, not files that happen to exist on disk.
    void languageForm()
    {
        const QTemporaryDir folder;
        const QString onDisk = folder.filePath(QStringLiteral("a.png"));
        testsupport::writeFile(folder.filePath(QStringLiteral("a_1.png")), "x");
        for (const QString& name : {onDisk, QStringLiteral(":/no.such.png"), QString()})
            QCOMPARE(vkd_qt_getFileNameWithLang(name, 1), name);
    }

    void pictures()
    {
        const std::pair<const char*, QSize> pictures[] = {
            {":/neq_merpara_rich.png", {193, 111}},
            {":/neq_merpara_rich_0.png", {193, 112}},
            {":/neq_merpara_rich_1.png", {193, 112}},
            {":/betondeckung.png", {240, 111}},
            {":/betondeckung_0.png", {240, 112}},
            {":/betondeckung_1.png", {240, 112}},
            {":/neq_designline_zrt_bew_mod_allg.png", {299, 104}}};
        for (const auto& [name, size] : pictures)
            QCOMPARE(std::make_pair(name, QPixmap(QLatin1String(name), "PNG").size()),
                     std::make_pair(name, size));
    }
};

namespace {
int selfCheckHost(QApplication& application)
{
    const QStringList arguments = application.arguments();
    if (arguments[1].endsWith(QLatin1String("without-cache")))
        QPixmapCache::setCacheLimit(0); // makes pixmaps of a file differ: the check must fail
    vkd_lib_setvalue(LanguageKey, arguments[2].toInt());
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext& context, const QString& text) {
        if (qstrcmp(context.category, "vkd.selfcheck") == 0)
            std::puts(qUtf8Printable(text));
    });
    const int result = vkd_unittests(arguments);
    std::printf("result %d, language %d\n", result, vkd_lib_getvalue(LanguageKey));
    return 0;
}

int applicationsHost(int argc, char* argv[])
{
    for (int language : {0, 1, 0}) {
        vkd_lib_setvalue(LanguageKey, language);
        const QApplication application(argc, argv);
        std::puts(qPrintable(
            QCoreApplication::translate("VKD_P_WidgetGraphicalOutput", "Graphical Output")));
    }
    return 0;
}
} // namespace

int main(int argc, char* argv[])
{
    const QByteArray role = argc > 1 ? argv[1] : "";
    if (role == "applications")
        return applicationsHost(argc, argv);
    QApplication application(argc, argv);
    if (role.startsWith("selfcheck"))
        return selfCheckHost(application);
    tst_plugin test;
    return testsupport::run(&test, argc, argv);
}

#include "tst_plugin.moc"
