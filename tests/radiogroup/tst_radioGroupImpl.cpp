#include "WidgetTestSupport.h"

#include <VKD_P_RadioGroup.h>
#include <VKD_P_RadioGroupImpl.h>

#include <QMetaMethod>
#include <QRadioButton>

using Group = VKD_P_RadioGroup;
using Impl = VKD_P_RadioGroupImpl;

namespace {
QStringList ownMethods(const QMetaObject& meta, QMetaMethod::MethodType type)
{
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        if (meta.method(i).methodType() == type)
            names << QString::fromLatin1(meta.method(i).methodSignature());
    return names;
}
} // namespace

/// What no host sees: the row about the amount of text relays no signal, but its buttons send them.
class tst_radioGroupImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signalsAndSlots();
    void amountOfText_data();
    void amountOfText();
    void onlyItsOwnButtons();
};

void tst_radioGroupImpl::signalsAndSlots()
{
    const QStringList sent = ownMethods(Impl::staticMetaObject, QMetaMethod::Signal);
    QCOMPARE(sent.size(), 8);
    QCOMPARE(sent, ownMethods(Group::staticMetaObject, QMetaMethod::Signal));
    QCOMPARE(ownMethods(Impl::staticMetaObject, QMetaMethod::Slot).join(QLatin1Char(' ')),
             QStringLiteral("updateUsedWidget() buttonXXClicked(bool)"));
    QCOMPARE(ownMethods(Group::staticMetaObject, QMetaMethod::Slot).join(QLatin1Char(' ')),
             QStringLiteral("updateUsedWidget()"));
}

void tst_radioGroupImpl::amountOfText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("sent");
    QTest::newRow("none") << QStringLiteral("checked:m_NoTextOutput")
                          << QStringLiteral("~0 ~0 none ~0");
    QTest::newRow("full") << QStringLiteral("checked:m_All") << QStringLiteral("~2 ~2 all =2 ~2");
    QTest::newRow("manual") << QStringLiteral("checked:m_Manually") << QStringLiteral("~1");
}

void tst_radioGroupImpl::amountOfText()
{
    QFETCH(QString, text);
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
    QCOMPARE(group.writeXML(), text);
}

void tst_radioGroupImpl::onlyItsOwnButtons()
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

PLIB_WIDGET_TEST_MAIN(tst_radioGroupImpl)
#include "tst_radioGroupImpl.moc"
