#include "TestSupport.h"

#include <vkd_qt_xmlpart.h>

#include <QRandomGenerator>

namespace {
const QStringList Tags{QStringLiteral("A"), QStringLiteral("List_4"), QStringLiteral("List_40")};

/// Returns a random string of characters that could confuse the parser.
QString anyText(QRandomGenerator& random)
{
    static const QStringList pieces{
        QStringLiteral("<A>"),  QStringLiteral("</A>"), QStringLiteral("<List_4>x</List_4>"),
        QStringLiteral("&lt;"), QStringLiteral("&#x"),  QStringLiteral("&amp;#xa;"),
        QStringLiteral("<"),    QStringLiteral(">"),    QStringLiteral("&"),
        QStringLiteral("%1"),   QStringLiteral("\r\n"), QStringLiteral(" \t\"':;"),
        QString(QChar(0)),      QString(QChar(0xD83D)), QString(QChar(0xDE00)),
        QString(QChar(0xFFFE)), QString(QChar(0x85))};
    QString text = QStringLiteral("");
    for (int length = random.bounded(12); length > 0; --length)
        text += random.bounded(3) ? pieces[random.bounded(pieces.size())]
                                  : QString(QChar(ushort(random.bounded(0x10000))));
    return text;
}

QStringList allTexts(const QString& whole, const QString& tag)
{
    QStringList texts;
    int at = 0;
    for (QString text = vkd_qt_readXMLpart(whole, at, tag, &at); !text.isNull();
         text = vkd_qt_readXMLpart(whole, at, tag, &at))
        texts << text;
    return texts;
}
} // namespace

class tst_xmlPart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readableForm()
    {
        QCOMPARE(vkd_qt_writeXMLpart(QStringLiteral("1:100 \"%\" <ä>&\n"), Tags[0]),
                 QStringLiteral("<A>1:100 \"%\" &lt;ä&gt;&amp;&#xa;</A>"));
    }

    void everyTextIsReadBack()
    {
        QRandomGenerator random(4);
        for (int round = 0; round < 3000; ++round) {
            QMap<QString, QStringList> texts;
            QString whole;
            for (int count = random.bounded(8); count > 0; --count) {
                const QString tag = Tags[random.bounded(Tags.size())];
                texts[tag] << anyText(random);
                whole += vkd_qt_writeXMLpart(texts[tag].last(), tag);
            }
            QCOMPARE(QString::fromUtf8(whole.toUtf8()), whole);
            for (const QString& tag : Tags)
                QCOMPARE(allTexts(whole, tag), texts[tag]);
        }
    }

    void malformed()
    {
        const auto read = [](const QString& whole) {
            return allTexts(whole, Tags[0]).join(QLatin1Char('|'));
        };
        QVERIFY(vkd_qt_readXMLpart(QString(), 0, QString()).isNull());
        const QString empty = vkd_qt_readXMLpart(QStringLiteral("<A></A>"), 0, Tags[0]);
        QVERIFY(empty.isEmpty() && !empty.isNull()); // a missing part, however, is null
        compareCases(read, R"(
<A> =>
<A>x</A =>
x</A><A>x</A> => x
<A><A>x</A> => x
<A>y</List_4><A>x</A></A> => x
<A>y<<A>x</A> => x
<A>&lt</A><A>&;</A> => &lt|&;
<A>&#xfffff;&#x;&#x-1;&quux;</A> => &#xfffff;&#x;&#x-1;&quux;
)");
    }

    /// The test would take minutes if the string were searched to its end for each unclosed part.
    void longStrings()
    {
        const QString open = QStringLiteral("<A>").repeated(500000);
        QCOMPARE(allTexts(open + QStringLiteral("</A>"), Tags[0]), QStringList(QString()));
        const QString ampersands = QStringLiteral("&#x1").repeated(500000);
        const QString part = QStringLiteral("<A>") + ampersands + QStringLiteral("</A>");
        QCOMPARE(vkd_qt_readXMLpart(part, 0, Tags[0]), ampersands);
    }
};

PLIB_TEST_MAIN(tst_xmlPart)
#include "tst_xmlPart.moc"
