#include "WidgetTestSupport.h"

#include <QtTableView.h>
#include <vkd_lib_value.h>
#include <VKD_P_RadioGroup>
#include <VKD_QT_InitTranslator.h>

#include <QHBoxLayout>
#include <QRadioButton>

using Group = VKD_P_RadioGroup;
using vkd::properties::nextGen::QtTableView;

namespace {
enum class Form { All, LoadCases, Echo };
const std::list<Group::ButtonID> EachId{Group::All_NONF, Group::All_PERM, Group::All_FREQ,
                                        Group::All_RARE, Group::All_E,    Group::All_F,
                                        Group::All_A};
const char* const FormNames[] = {"init", "initForLF", "initEchoOutput"};

void build(Group& group, Form form, QWidget* parent)
{
    switch (form) {
    case Form::All: return group.init(parent);
    case Form::LoadCases: return group.initForLF(parent, EachId);
    case Form::Echo: return group.initEchoOutput(parent);
    }
}

/// A dialog of a host with a group in it, a widget to couple, and a log of the group's signals.
class Desk
{
public:
    explicit Desk(Form form)
    {
        build(*group, form, &dialog);
        place();
    }
    explicit Desk(const std::list<Group::ButtonID>& ids)
    {
        group->initForLF(&dialog, ids);
        place();
    }

    /// The labels and tooltips of the row, from left to right; "-" is a spacer.
    QString row() const
    {
        QStringList texts;
        for (int i = 0; i < group->layout()->count(); ++i) {
            const QWidget* button = group->layout()->itemAt(i)->widget();
            texts << (button ? button->property("text").toString() : QStringLiteral("-"));
            if (button && !button->toolTip().isEmpty())
                texts.last() += QLatin1Char('(') + button->toolTip() + QLatin1Char(')');
        }
        return texts.join(QLatin1Char('|'));
    }
    /// The button at this place of the row.
    QRadioButton* button(int at) const
    {
        return qobject_cast<QRadioButton*>(group->layout()->itemAt(at)->widget());
    }
    /// The signals since the last call.
    QString signalsSent()
    {
        const QString sent = log.join(QLatin1Char(' '));
        log.clear();
        return sent;
    }

    QWidget dialog;
    QWidget* plain = new QWidget(&dialog);
    std::unique_ptr<Group> group = std::make_unique<Group>();
    QStringList log;

private:
    void place()
    {
        auto column = new QVBoxLayout(&dialog);
        column->addLayout(qobject_cast<QHBoxLayout*>(group->layout()));
        column->addWidget(plain);
        listen(&Group::buttonNoOutputChecked, "none");
        listen(&Group::buttonManuallyChecked, "manual");
        listen(&Group::buttonAllChecked, "all");
        listen(&Group::buttonAllAcciChecked, "accidental");
        listen(&Group::buttonAllFireChecked, "fire");
        listen(&Group::buttonAllEartChecked, "earthquake");
        const auto logNumber = [this](const char* name) {
            return [=](int id) { log << QLatin1String(name) + QString::number(id); };
        };
        QObject::connect(group.get(), &Group::buttonClicked, &dialog, logNumber("~"));
        QObject::connect(group.get(), &Group::buttonChecked, &dialog, logNumber("="));
        dialog.show();
    }
    void listen(void (Group::*sent)(), const char* name)
    {
        QObject::connect(group.get(), sent, &dialog, [=] { log << QLatin1String(name); });
    }
};

void setLanguage(int language)
{
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language);
    VKD_QT_InitTranslator::languageChanged();
}
} // namespace

Q_DECLARE_METATYPE(Form)

class tst_radioGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setLanguage(1); }
    void rows_data();
    void rows();
    void loadCaseButtonsOnDemand();
    void clicks_data();
    void clicks();
    void silentUntilCoupled();
    void coupledWidgets();
    void byId();
    void keptText();
    void textsOfOthers_data();
    void textsOfOthers();
    void coupledTwice();
    void whoGoesFirst();
    void endedByItsOwnSignal();
};

void tst_radioGroup::rows_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("german");
    QTest::addColumn<int>("chosen");
    QTest::newRow("init") << Form::All << QStringLiteral("Manually|All|-")
                          << QStringLiteral("Manuell|Alle|-") << -1;
    QTest::newRow("initForLF")
        << Form::LoadCases
        << QStringLiteral("Manually|All Accidential|All Fire|All Earthquake|All Characteristic|All "
                          "Frequent|All Quasi-Permanent|All Non-Frequent|-")
        << QStringLiteral("Manuell|Alle außergewöhnlichen|Alle Brandfälle|Alle Erdbebenfälle|Alle "
                          "charakteristischen|Alle häufigen|Alle quasi-ständigen|Alle "
                          "nicht-häufigen|-")
        << -1;
    QTest::newRow("initEchoOutput")
        << Form::Echo
        << QStringLiteral(
               "Manually controlled(Manually controlled text output)|No text output(Smaller output "
               "without any text lists)|Full text output(Extensive text output\nuseful to find "
               "errors or to compare variants)|-")
        << QStringLiteral(
               "Manuell gesteuert(Manuell gesteuerte Textausgabe)|Keine Textausgabe(Kleinere "
               "Ausgabe ohne Textlisten)|Vollständige Textausgabe(Ausführliche "
               "Textausgabe,\nnützlich zur Fehlersuche oder zum Vergleich von Varianten)|-")
        << 1;
}

void tst_radioGroup::rows()
{
    QFETCH(Form, form);
    QVERIFY(!Group().layout());
    const Desk desk(form);
    QTEST(desk.row(), "english");
    QTEST(int(desk.group->getSelectedId()), "chosen");
    QCOMPARE(desk.button(0)->parentWidget(), &desk.dialog);
    build(*desk.group, Form::Echo, desk.plain); // one row only
    QTEST(desk.row(), "english");
    QVERIFY(desk.plain->children().isEmpty());
    setLanguage(0);
    QTEST(Desk(form).row(), "german");
}

void tst_radioGroup::loadCaseButtonsOnDemand()
{
    const auto row = [](const std::list<Group::ButtonID>& ids) { return Desk(ids).row(); };
    QCOMPARE(row({}), QStringLiteral("Manually|-"));
    QCOMPARE(row({Group::All_NONF, Group::All_A, Group::All_NONF}),
             QStringLiteral("Manually|All Accidential|All Non-Frequent|-"));
    QCOMPARE(row({Group::All, Group::NoTextOutput, Group::Manually, Group::ButtonID(-1),
                  Group::ButtonID(10)}),
             QStringLiteral("Manually|-"));
}

void tst_radioGroup::clicks_data()
{
    QTest::addColumn<Form>("form");
    QTest::addColumn<int>("from"); // places in the row
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("sentWithoutWidget");
    const auto row = [](Form form, int from, int to, const char* sent, const char* without) {
        QTest::addRow("%s, %d to %d", FormNames[int(form)], from, to)
            << form << from << to << QString::fromLatin1(sent) << QString::fromLatin1(without);
    };
    row(Form::All, -1, 0, "~1 manual ~1", "manual");
    row(Form::All, 0, 1, "~2 ~2 all ~2", "all");
    row(Form::All, 1, 1, "~2", "");
    row(Form::LoadCases, 7, 0, "~1 ~1 manual =1 ~1", "manual =1");
    row(Form::LoadCases, 0, 1, "~3 ~3 accidental =3 ~3", "accidental =3");
    row(Form::LoadCases, 0, 2, "~4 ~4 fire =4 ~4", "fire =4");
    row(Form::LoadCases, 0, 3, "~5 ~5 earthquake =5 ~5", "earthquake =5");
    row(Form::LoadCases, 0, 4, "~6 ~6 =6 ~6", "=6");
    row(Form::LoadCases, 0, 5, "~7 ~7 =7 ~7", "=7");
    row(Form::LoadCases, 0, 6, "~8 ~8 =8 ~8", "=8");
    row(Form::LoadCases, -1, 7, "~9 =9 ~9", "=9");
    row(Form::Echo, 0, 1, "", "");
    row(Form::Echo, 1, 2, "", "");
}

void tst_radioGroup::clicks()
{
    QFETCH(Form, form);
    QFETCH(int, from);
    QFETCH(int, to);
    for (bool coupled : {true, false}) {
        Desk desk(form);
        if (from >= 0)
            desk.button(from)->click();
        desk.group->useWidget(coupled ? desk.plain : nullptr);
        desk.signalsSent();
        QTest::mouseClick(desk.button(to), Qt::LeftButton, {}, QPoint(8, 8));
        QTEST(desk.signalsSent(), coupled ? "sent" : "sentWithoutWidget");
        for (int at = 0; at < desk.group->layout()->count() - 1; ++at)
            QCOMPARE(desk.button(at)->isChecked(), at == to);
        QCOMPARE(desk.plain->isEnabled(), !coupled || to == 0);
    }
}

void tst_radioGroup::silentUntilCoupled()
{
    Desk desk(Form::LoadCases);
    desk.button(0)->click();
    desk.group->setSelectedId(Group::All_A);
    desk.group->updateUsedWidget();
    desk.group->readXML(desk.group->writeXML());
    QCOMPARE(desk.signalsSent(), QString());
    desk.group->useWidget(desk.plain);
    QCOMPARE(desk.signalsSent(), QStringLiteral("~3"));
}

void tst_radioGroup::coupledWidgets()
{
    for (Form form : {Form::All, Form::LoadCases, Form::Echo}) {
        Desk plain(form), coupled(form);
        QtTableView table;
        plain.group->useWidget(plain.plain);
        coupled.group->useWidget(&table);
        const auto check = [&](bool isLive) {
            QCOMPARE(plain.plain->isEnabled(), isLive);
            QCOMPARE(!table.is_read_only(), isLive);
            QVERIFY(table.isEnabled());
        };
        check(form == Form::Echo);
        for (int at = coupled.group->layout()->count() - 2; at >= 0; --at) {
            plain.button(at)->click();
            coupled.button(at)->click();
            check(at == 0);
        }
    }
}

void tst_radioGroup::byId()
{
    Desk desk({Group::All_E});
    desk.group->useWidget(desk.plain);
    desk.group->setSelectedId(Group::Manually);
    desk.signalsSent();
    for (int id : {-1, 0, 2, 3, 9, 10}) {
        desk.group->setSelectedId(Group::ButtonID(id));
        desk.group->setEnabledById(Group::ButtonID(id), false);
    }
    QCOMPARE(int(desk.group->getSelectedId()), 1);
    QCOMPARE(desk.signalsSent(), QString());
    desk.group->setEnabledById(Group::All_E, false);
    QVERIFY(desk.button(0)->isEnabled() && !desk.button(1)->isEnabled());
    desk.group->setSelectedId(Group::All_E); // the host may choose what the user may not
    QCOMPARE(desk.signalsSent(), QStringLiteral("~5 ~5 earthquake =5"));
    desk.group->setEnabledById(Group::All_E, true);
    QVERIFY(desk.button(1)->isEnabled());
}

void tst_radioGroup::keptText()
{
    const struct
    {
        Form form;
        int id;
        const char* text;
    } texts[] = {{Form::All, -1, "checked:"},
                 {Form::All, 2, "checked:m_All"},
                 {Form::LoadCases, 1, "checked:m_Manually"},
                 {Form::LoadCases, 3, "checked:m_All_A"},
                 {Form::LoadCases, 4, "checked:m_All_F"},
                 {Form::LoadCases, 5, "checked:m_All_E"},
                 {Form::LoadCases, 6, "checked:m_All_RARE"},
                 {Form::LoadCases, 7, "checked:m_All_FREQ"},
                 {Form::LoadCases, 8, "checked:m_All_PERM"},
                 {Form::LoadCases, 9, "checked:m_All_NONF"},
                 {Form::Echo, 0, "checked:m_NoTextOutput"},
                 {Form::Echo, 1, "checked:m_Manually"}};
    for (const auto& entry : texts) {
        const Desk desk(entry.form), again(entry.form);
        desk.group->setSelectedId(Group::ButtonID(entry.id));
        QCOMPARE(desk.group->writeXML(), QLatin1String(entry.text));
        again.group->useWidget(again.plain);
        again.group->readXML(desk.group->writeXML());
        QCOMPARE(int(again.group->getSelectedId()), entry.id);
        QCOMPARE(again.plain->isEnabled(), entry.id == 1);
    }
}

void tst_radioGroup::textsOfOthers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<QString>("sent");
    const auto row = [](const char* text, int chosen, const char* sent) {
        QTest::newRow(*text ? text : "nothing")
            << QString::fromLatin1(text) << chosen << QString::fromLatin1(sent);
    };
    row("", 1, "");
    row("checked", 1, "");
    row("m_All", 1, "");
    row("selected:m_All", 1, "");
    row("Checked:m_All", 1, "");
    row(" checked:m_All", 1, "");
    row("checked:", 1, "~1");
    row("checked:m_All_RARE", 1, "~1");
    row("checked:m_all", 1, "~1");
    row("checked:m_All ", 1, "~1");
    row("checked::m_All", 1, "~1");
    row("checked:m_Manuallym_All", 1, "~1");
    row("checked:m_Manually", 1, "~1");
    row("checked:m_All", 2, "~2 ~2 all ~2");
    row("checked:m_All:m_Manually", 2, "~2 ~2 all ~2");
}

void tst_radioGroup::textsOfOthers()
{
    QFETCH(QString, text);
    Desk desk(Form::All);
    desk.group->setSelectedId(Group::Manually);
    desk.group->useWidget(desk.plain);
    desk.signalsSent();
    desk.group->readXML(text);
    QTEST(int(desk.group->getSelectedId()), "chosen");
    QTEST(desk.signalsSent(), "sent");
}

void tst_radioGroup::coupledTwice()
{
    Desk desk(Form::All);
    QWidget second;
    desk.group->useWidget(desk.plain);
    desk.group->useWidget(&second);
    delete desk.plain; // must not uncouple the second
    desk.signalsSent();
    desk.button(0)->click();
    QCOMPARE(desk.signalsSent(), QStringLiteral("~1 manual ~1 manual ~1 ~1"));
    QVERIFY(second.isEnabled());
}

void tst_radioGroup::whoGoesFirst()
{
    Group unused, withoutParent;
    unused.init(nullptr);
    unused.readXML(QStringLiteral("checked:m_All"));
    QCOMPARE(int(unused.getSelectedId()), 2);
    {
        QWidget parent;
        withoutParent.initForLF(&parent, EachId); // the row is not placed anywhere
        withoutParent.useWidget(&parent);
    }
    withoutParent.setSelectedId(Group::Manually);
    withoutParent.setEnabledById(Group::Manually, true);
    withoutParent.updateUsedWidget();
    QCOMPARE(withoutParent.writeXML(), QStringLiteral("checked:"));
    QCOMPARE(int(withoutParent.getSelectedId()), -1);

    Desk desk(Form::All);
    desk.group->useWidget(desk.plain);
    QRadioButton* manual = desk.button(0);
    desk.group.reset();
    manual->click();
    QVERIFY(manual->isChecked() && !desk.plain->isEnabled());
    QCOMPARE(desk.dialog.findChildren<QRadioButton*>().size(), 2);
    QCOMPARE(desk.dialog.layout()->count(), 2); // the row stays where the host has put it

    Group orphan;
    {
        QWidget parent;
        orphan.init(&parent);
        parent.setLayout(orphan.layout());
    }
    QVERIFY(!orphan.layout());
}

void tst_radioGroup::endedByItsOwnSignal()
{
    for (int run = 0; run < 10; ++run) {
        Desk desk(Form::LoadCases);
        desk.group->useWidget(desk.plain);
        desk.button(0)->click();
        QRadioButton* fire = desk.button(2);
        int left = run / 2; // of the signals to come before the one that ends the group
        const auto end = [&] {
            if (left-- == 0)
                desk.group.reset();
        };
        connect(desk.group.get(), &Group::buttonClicked, &desk.dialog, end);
        connect(desk.group.get(), &Group::buttonAllFireChecked, &desk.dialog, end);
        connect(desk.group.get(), &Group::buttonChecked, &desk.dialog, end);
        if (run % 2)
            desk.group->readXML(QStringLiteral("checked:m_All_F"));
        else
            fire->click();
        QVERIFY(!desk.group && fire->isChecked());
    }
}

PLIB_WIDGET_TEST_MAIN(tst_radioGroup)
#include "tst_radioGroup.moc"
