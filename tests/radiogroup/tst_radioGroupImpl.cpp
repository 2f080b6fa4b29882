#include "WidgetTestSupport.h"

#include <VKD_P_RadioGroupImpl.h>

#include <QRadioButton>

using Group = VKD_P_RadioGroup;
using Impl = VKD_P_RadioGroupImpl;

/// What no host sees: the row about the amount of text relays no signal, but its buttons send them.
class tst_radioGroupImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void amountOfText_data()
    {
        const Columns<QString> row("sent");
        row("checked:m_NoTextOutput", "~0 ~0 none ~0");
        row("checked:m_All", "~2 ~2 all =2 ~2");
        row("checked:m_Manually", "~1");
    }

    /// The kept text is the name of the row.
    void amountOfText()
    {
        const QString text = QString::fromUtf8(QTest::currentDataTag());
        QWidget dialog, coupled;
        Impl group;
        group.initEchoOutput(&dialog);
        dialog.setLayout(group.layout());
        group.useWidget(&coupled);
        QStringList log;
        const auto add = [&log](const char* name) {
            return [&log, name] { log << QLatin1String(name); };
        };
        const auto addNumber = [&log](const char* name) {
            return [&log, name](int id) { log << QLatin1String(name) + QString::number(id); };
        };
        connect(&group, &Impl::buttonClicked, &dialog, addNumber("~"));
        connect(&group, &Impl::buttonNoOutputChecked, &dialog, add("none"));
        connect(&group, &Impl::buttonManuallyChecked, &dialog, add("manual"));
        connect(&group, &Impl::buttonAllChecked, &dialog, add("all"));
        connect(&group, &Impl::buttonChecked, &dialog, addNumber("="));
        group.readXML(text);
        QTEST(log.join(QLatin1Char(' ')), "sent");
    }

    void onlyItsOwnButtons()
    {
        QWidget dialog;
        Impl group;
        group.init(&dialog);
        dialog.setLayout(group.layout());
        group.useWidget(nullptr);
        QSignalSpy sent(&group, &Impl::buttonChecked);
        QRadioButton strange;
        strange.setAutoExclusive(false);
        connect(&strange, &QRadioButton::toggled, &group, &Impl::buttonXXClicked);
        strange.setChecked(true);
        group.buttonXXClicked(true);
        QCOMPARE(sent.size(), 0);
        group.setSelectedId(Group::All);
        QCOMPARE(sent.size(), 1);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_radioGroupImpl)
#include "tst_radioGroupImpl.moc"
