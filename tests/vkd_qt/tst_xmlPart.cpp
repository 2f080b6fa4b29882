#include "TestSupport.h"

#include <vkd_qt_xmlpart.h>

namespace {
const QStringList Tags{QStringLiteral("A"), QStringLiteral("List_4"), QStringLiteral("List_40")};

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

    /// Includes tags, escapes, control characters and halves of surrogate pairs.
    void everyTextIsReadBack()
    {
        QString all = QStringLiteral("<A></A><List_4>x</List_4>&lt;&#x&amp;#xa;<>&%1\r\n");
        for (int code = 0; code < 0x10000; ++code)
            all += QChar(code);
        const QStringList texts{all, QStringLiteral(""), QStringLiteral("x")};
        QString whole;
        for (const QString& text : texts)
            for (const QString& tag : Tags)
                whole += vkd_qt_writeXMLpart(text, tag);
        QCOMPARE(QString::fromUtf8(whole.toUtf8()), whole);
        for (const QString& tag : Tags)
            QCOMPARE(allTexts(whole, tag), texts);
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
