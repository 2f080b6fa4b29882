#include "WidgetTestSupport.h"

#include <radiogroup/VKD_P_RadioGroupImpl.h>

using Impl = VKD_P_RadioGroupImpl;

/// What no host sees: the row about the amount of text relays no signal, but its buttons send them.
class tst_radioGroupImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void amountOfText()
    {
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
        for (const char* kept : {"m_Manually", "m_NoTextOutput", "m_All", "m_Manually"})
            group.readXML(QLatin1String("checked:") + QLatin1String(kept));
        QCOMPARE(log.join(QLatin1Char(' ')),
                 QStringLiteral("~1 ~0 ~0 none ~0 ~2 ~2 all =2 ~2 ~1 ~1 manual =1 ~1"));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_radioGroupImpl)
#include "tst_radioGroupImpl.moc"
