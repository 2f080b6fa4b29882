#include "HelpTestSupport.h"

#include <vkd_lib_searchpath.h>

#include <QDir>
#include <QFileInfo>
#include <QTextBlock>

using namespace testsupport;

namespace {
constexpr const char* Books[] = {"merdan", "grav", "text"};

QDir folder(const QByteArray& book, const char* language)
{
    const QByteArray index = "help/" + book + '/' + language + "/index.txt";
    return QFileInfo(QFile::decodeName(vkd_lib_searchpath(index, 3).value_or("").c_str())).dir();
}

QStringList topicNames(const QByteArray& book, const char* language)
{
    QStringList names;
    const QByteArray index = readFile(folder(book, language).filePath(QStringLiteral("index.txt")));
    for (const QByteArray& line : index.split('\n'))
        if (!line.startsWith('#') && line.contains('|'))
            names << QString::fromUtf8(line.left(line.indexOf('|')));
    return names;
}

QVector<QTextCharFormat> formats(const QTextDocument& document)
{
    QVector<QTextCharFormat> found;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it)
            found << it.fragment().charFormat();
    return found;
}

QImage picture(const QString& name)
{
    const QVariant found =
        helpPage()->document()->resource(QTextDocument::ImageResource, QUrl(name));
    return found.userType() == QMetaType::QByteArray ? QImage::fromData(found.toByteArray())
                                                     : found.value<QPixmap>().toImage();
}

/// Returns whether a link refers to an existing anchor on a page of the help book.
bool linkLeadsSomewhere(const QByteArray& book, const QUrl& link)
{
    const QString topic = QFileInfo(link.path()).completeBaseName();
    if (!link.isRelative() ||
        !VKD_T_Help::show(nullptr, book.constData(), topic.toUtf8().constData()))
        return false;
    QStringList anchors{QString()};
    for (const QTextCharFormat& format : formats(*helpPage()->document()))
        anchors << format.anchorNames();
    return anchors.contains(link.fragment());
}
} // namespace

class tst_helpBook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeHelp(); }

    void languagesHaveTheSamePages()
    {
        for (const char* book : Books) {
            QStringList pages;
            for (const QString& name : topicNames(book, "de"))
                pages << name.toLower() + QLatin1String(".html");
            pages.sort();
            QVERIFY(!pages.isEmpty());
            QCOMPARE(topicNames(book, "en"), topicNames(book, "de"));
            for (const char* language : {"de", "en"})
                QCOMPARE(folder(book, language)
                             .entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name),
                         pages);
        }
    }

    void page_data()
    {
        QTest::addColumn<int>("language");
        QTest::addColumn<QByteArray>("book");
        QTest::addColumn<QString>("topic");
        for (int language : {German, English})
            for (const char* book : Books)
                for (const QString& name : topicNames(book, "en"))
                    QTest::addRow("%s %s %s", language == German ? "German" : "English", book,
                                  qPrintable(name))
                        << language << QByteArray(book) << name;
    }

    void page()
    {
        QFETCH(int, language);
        QFETCH(QByteArray, book);
        QFETCH(QString, topic);
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language);
        QVERIFY(VKD_T_Help::show(nullptr, book.constData(), topic.toUtf8().constData()));
        QVERIFY(helpWindows().at(0)->windowTitle().endsWith(
            QLatin1String(" - ") + helpPage()->document()->firstBlock().text()));
        QVERIFY(helpPage()->document()->blockCount() > 5);

        QSet<QUrl> links;
        for (const QTextCharFormat& format : formats(*helpPage()->document())) {
            QVERIFY2(format.isAnchor() || format.foreground().style() == Qt::NoBrush,
                     "fixed colour");
            QVERIFY2(format.background().style() == Qt::NoBrush, "fixed background");
            if (format.isImageFormat()) {
                const QString name = format.toImageFormat().name();
                const QImage image = picture(name);
                QVERIFY2(!image.isNull(), qPrintable(name));
                QVERIFY2(!image.hasAlphaChannel() || qAlpha(image.pixel(1, 1)) == 255, "no ground");
            }
            if (!format.anchorHref().isEmpty())
                links << QUrl(format.anchorHref());
        }
        QVERIFY(!links.isEmpty());
        for (const QUrl& link : qAsConst(links))
            QVERIFY2(linkLeadsSomewhere(book, link), qPrintable(link.toString()));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_helpBook)
#include "tst_helpBook.moc"
