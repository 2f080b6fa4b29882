#include "TestSupport.h"

#include <vkd_lib_value.h>
#include <VKD_QT_InitTranslator.h>

#include <QLibrary>
#include <QPluginLoader>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>

namespace {
constexpr int LanguageKey = 102;
const QString TextFile = QStringLiteral(PLIB "/resources/translations/vkd_p_dll_de.ts");

struct Message
{
    QByteArray context, source, comment;
    QString german;
    bool finished;
};

QVector<Message> messages(const QString& file)
{
    QVector<Message> found;
    QByteArray context;
    const QByteArray bytes = testsupport::readFile(file);
    QXmlStreamReader xml(bytes);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText().toUtf8();
        else if (xml.name() == QLatin1String("source"))
            found << Message{context, xml.readElementText().toUtf8(), {}, {}, false};
        else if (xml.name() == QLatin1String("comment"))
            found.last().comment = xml.readElementText().toUtf8();
        else if (xml.name() == QLatin1String("translation")) {
            found.last().finished =
                xml.attributes().value(QLatin1String("type")) != QLatin1String("unfinished");
            found.last().german = xml.readElementText();
        }
    }
    return found;
}

QString translated(const Message& message)
{
    const char* comment = message.comment.isEmpty() ? nullptr : message.comment.data();
    return QCoreApplication::translate(message.context, message.source, comment);
}
} // namespace

class tst_germanTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySourceTextIsTranslated_data()
    {
        const Columns<QString, QString> row("folder", "file");
        row("vkd_p_fea", PLIB "/src", TextFile);
        const QString window = QStringLiteral(WORKBENCH "/translations/workbench_de.ts");
        row("workbench, window", WORKBENCH "/window", window);
        row("workbench, sheet", WORKBENCH "/sheet", window);
        const QString lowest = QStringLiteral(PLATFORM "/vkd_qt/translations/vkd_qt_de.ts");
        row("vkd_q", PLATFORM "/vkd_q/src", lowest);
        row("vkd_dbo", PLATFORM "/vkd_dbo/src", lowest);
        for (const char* name :
             {"vkd_qt", "vkd_t", "vkd_h", "vkd_a", "vkd_grouptable", "vkd_aniview"}) {
            const QString library = QStringLiteral(PLATFORM "/") + QLatin1String(name);
            row(name, library + QLatin1String("/src"),
                library + QStringLiteral("/translations/%1_de.ts").arg(QLatin1String(name)));
        }
    }

    void everySourceTextIsTranslated()
    {
        QFETCH(const QString, folder);
        QFETCH(const QString, file);
        const QTemporaryDir copies;
        const QString copy = copies.filePath(QStringLiteral("texts_de.ts"));
        QVERIFY(QFile::copy(file, copy));
        const QString include = QStringLiteral("-I");
        QCOMPARE(QProcess::execute(
                     QStringLiteral(LUPDATE),
                     {QStringLiteral("-silent"), folder, include, folder + QLatin1String("/.."),
                      include, folder + QLatin1String("/../include"), QStringLiteral("-ts"), copy}),
                 0);
        QByteArrayList missing;
        for (const Message& message : messages(copy))
            if (!message.finished || message.german.isEmpty())
                missing << message.context + ": " + message.source;
        QCOMPARE(missing.join('\n'), QByteArray());
    }

    /// The page identifies an entry of the group editor (dlgSelection) by its text, translated in
    /// the context of the page. The text in the table is translated in the same context.
    void wordsAreComparedInOneWay()
    {
        for (const char* source : {"None", "Remaining Groups"}) {
            QStringList words;
            for (const Message& message : messages(TextFile))
                if (message.source == source)
                    words << QString::fromUtf8(message.context) + QLatin1Char(':') + message.german;
            const QString german = words.value(0).section(QLatin1Char(':'), 1);
            QCOMPARE(words.join(QLatin1Char(' ')),
                     QStringLiteral("DesignParameter:%1 dlgSelection:%1").arg(german));
        }
    }

    void libraryLoadedLate()
    {
        const QVector<Message> all = messages(TextFile);
        QVERIFY(!all.isEmpty());
        QLibrary library;
        library.setFileNameAndVersion(QStringLiteral(LIBRARY), LIBRARY_VERSION);
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        using Factory = void* (*)(const QString&);
        const auto factory =
            reinterpret_cast<Factory>(library.resolve("_Z19VKD_H_PluginFactoryRK7QString"));
        QVERIFY(factory && !factory(QStringLiteral("any")));
        for (const Message& message : all)
            QCOMPARE(translated(message), message.german);
        for (int language : {1, 0}) {
            vkd_lib_setvalue(LanguageKey, language);
            VKD_QT_InitTranslator::languageChanged();
            const Message& last = all.last();
            QCOMPARE(translated(last), language ? QString::fromUtf8(last.source) : last.german);
        }
        QVERIFY(library.unload());
        VKD_QT_InitTranslator::languageChanged(); // must not access unloaded code
        QCOMPARE(translated(all.last()), QString::fromUtf8(all.last().source));
        QVERIFY(!QPluginLoader(library.fileName()).load()); // not a Qt plug-in
    }
};

PLIB_TEST_MAIN(tst_germanTexts)
#include "tst_germanTexts.moc"
