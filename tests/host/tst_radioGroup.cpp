#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_P_RadioGroup>

#include <QHBoxLayout>
#include <QRadioButton>

using Group = VKD_P_RadioGroup;

namespace {
enum class Form { All, LoadCases, Echo };
const std::list<Group::ButtonID> EachId{Group::All_NONF, Group::All_PERM, Group::All_FREQ,
                                        Group::All_RARE, Group::All_E,    Group::All_F,
                                        Group::All_A};

void build(Group& group, Form form, QWidget* parent, const std::list<Group::ButtonID>& ids = EachId)
{
    switch (form) {
    case Form::All: return group.init(parent);
    case Form::LoadCases: return group.initForLF(parent, ids);
    case Form::Echo: return group.initEchoOutput(parent);
    }
}

/// A host's dialog with a radio group, a widget to couple with the group, and a log of the group's
/// signals.
class Desk
{
public:
    explicit Desk(Form form, const std::list<Group::ButtonID>& ids = EachId)
    {
        build(*group, form, &dialog, ids);
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
            return [this, name](int id) { log << QLatin1String(name) + QString::number(id); };
        };
        QObject::connect(group.get(), &Group::buttonClicked, &dialog, logNumber("~"));
        QObject::connect(group.get(), &Group::buttonChecked, &dialog, logNumber("="));
        dialog.show();
    }

    /// Returns the labels and tool tips of the row from left to right; "-" is a spacer.
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
    /// Returns the button at this position in the row.
    QRadioButton* button(int at) const
    {
        return qobject_cast<QRadioButton*>(group->layout()->itemAt(at)->widget());
    }
    /// Returns the signals emitted since the last call.
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
    void listen(void (Group::*sent)(), const char* name)
    {
        QObject::connect(group.get(), sent, &dialog, [this, name] { log << QLatin1String(name); });
    }
};
} // namespace

Q_DECLARE_METATYPE(Form)

class tst_radioGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { testsupport::setLanguage(testsupport::English); }

    void rows_data()
    {
        const Columns<Form, QString, int> row("form", "texts", "chosen");
        row("init", Form::All, "Manually|All|-", -1);
        row("initForLF", Form::LoadCases,
            "Manually|All Accidential|All Fire|All Earthquake|All Characteristic|All Frequent|"
            "All Quasi-Permanent|All Non-Frequent|-",
            -1);
        row("initEchoOutput", Form::Echo,
            "Manually controlled(Manually controlled text output)|"
            "No text output(Smaller output without any text lists)|"
            "Full text output(Extensive text output\n"
            "useful to find errors or to compare variants)|-",
            1);
    }

    void rows()
    {
        QFETCH(const Form, form);
        QVERIFY(!Group().layout());
        const Desk desk(form);
        QTEST(desk.row(), "texts");
        QCOMPARE(desk.button(0)->parentWidget(), &desk.dialog);
        build(*desk.group, Form::Echo, desk.plain); // only one row
        QTEST(desk.row(), "texts");
        QTEST(int(desk.group->getSelectedId()), "chosen");
        QVERIFY(desk.plain->children().isEmpty());
    }

    void clicks_data()
    {
        // "from" and "to" are positions in the row.
        const Columns<Form, int, int, QString, QString> row("form", "from", "to", "sent",
                                                            "sentWithoutWidget");
        row("m_Manually, first", Form::All, -1, 0, "~1 manual ~1", "manual");
        row("m_All", Form::All, 0, 1, "~2 ~2 all ~2", "all");
        row("m_All, again", Form::All, 1, 1, "~2", "");
        row("m_Manually", Form::LoadCases, 7, 0, "~1 ~1 manual =1 ~1", "manual =1");
        row("m_All_A", Form::LoadCases, 0, 1, "~3 ~3 accidental =3 ~3", "accidental =3");
        row("m_All_F", Form::LoadCases, 0, 2, "~4 ~4 fire =4 ~4", "fire =4");
        row("m_All_E", Form::LoadCases, 0, 3, "~5 ~5 earthquake =5 ~5", "earthquake =5");
        row("m_All_RARE", Form::LoadCases, 0, 4, "~6 ~6 =6 ~6", "=6");
        row("m_All_FREQ", Form::LoadCases, 0, 5, "~7 ~7 =7 ~7", "=7");
        row("m_All_PERM", Form::LoadCases, 0, 6, "~8 ~8 =8 ~8", "=8");
        row("m_All_NONF", Form::LoadCases, -1, 7, "~9 =9 ~9", "=9");
        row("m_NoTextOutput", Form::Echo, 0, 1, "", "");
        row("m_All, echo", Form::Echo, 1, 2, "", "");
    }

    /// The name of each data row begins with the name of the button in the saved text.
    void clicks()
    {
        QFETCH(const Form, form);
        QFETCH(const int, from);
        QFETCH(const int, to);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        for (bool coupled : {true, false}) {
            Desk desk(form), again(form);
            if (from >= 0)
                desk.button(from)->click();
            desk.group->useWidget(coupled ? desk.plain : nullptr);
            desk.signalsSent();
            QTest::mouseClick(desk.button(to), Qt::LeftButton, {}, QPoint(8, 8));
            QTEST(desk.signalsSent(), coupled ? "sent" : "sentWithoutWidget");
            QCOMPARE(desk.group->writeXML(),
                     QLatin1String("checked:") + name.section(QLatin1Char(','), 0, 0));
            again.group->useWidget(coupled ? again.plain : nullptr);
            again.group->readXML(desk.group->writeXML());
            for (const Desk* shown : {&desk, &again}) {
                for (int at = 0; at < shown->group->layout()->count() - 1; ++at)
                    QCOMPARE(shown->button(at)->isChecked(), at == to);
                QCOMPARE(shown->plain->isEnabled(), !coupled || to == 0);
            }
        }
    }

    void byId()
    {
        Desk desk(Form::LoadCases, {Group::All_E});
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
        desk.group->setSelectedId(Group::All_E); // a host may select a disabled button
        QCOMPARE(desk.signalsSent(), QStringLiteral("~5 ~5 earthquake =5"));
        desk.group->setEnabledById(Group::All_E, true);
        QVERIFY(desk.button(1)->isEnabled());
    }

    void foreignTexts()
    {
        const auto sentFor = [](const char* text) {
            Desk desk(Form::All);
            desk.group->setSelectedId(Group::Manually);
            desk.group->useWidget(desk.plain);
            desk.signalsSent();
            desk.group->readXML(QString::fromLatin1(text));
            return desk.signalsSent() + QStringLiteral(" %1").arg(int(desk.group->getSelectedId()));
        };
        for (const char* text :
             {"", "checked", "m_All", "selected:m_All", "Checked:m_All", " checked:m_All"})
            QCOMPARE(sentFor(text), QStringLiteral(" 1"));
        for (const char* text :
             {"checked:", "checked:m_All_RARE", "checked:m_all", "checked:m_All ", "checked::m_All",
              "checked:m_Manuallym_All", "checked:m_Manually"})
            QCOMPARE(sentFor(text), QStringLiteral("~1 1"));
        for (const char* text : {"checked:m_All", "checked:m_All:m_Manually"})
            QCOMPARE(sentFor(text), QStringLiteral("~2 ~2 all ~2 2"));
    }

    void coupledTwice()
    {
        Desk desk(Form::All);
        QWidget second;
        desk.group->useWidget(desk.plain);
        desk.group->useWidget(&second);
        delete desk.plain; // must not uncouple the second widget
        desk.signalsSent();
        desk.button(0)->click();
        QCOMPARE(desk.signalsSent(), QStringLiteral("~1 manual ~1 manual ~1 ~1"));
        QVERIFY(second.isEnabled());
    }

    void orderOfDestruction()
    {
        Group lonely;
        lonely.init(nullptr);
        lonely.readXML(QStringLiteral("checked:m_All"));
        QCOMPARE(int(lonely.getSelectedId()), 2);

        Group left, placed;
        {
            QWidget parent, other;
            left.initForLF(&parent, EachId); // the row is not in a layout
            left.useWidget(&parent);
            placed.init(&other);
            other.setLayout(placed.layout());
        }
        placed.init(nullptr); // the row was already created before
        QVERIFY(!placed.layout());
        left.setSelectedId(Group::Manually);
        left.setEnabledById(Group::Manually, true);
        left.updateUsedWidget();
        QCOMPARE(left.writeXML(), QStringLiteral("checked:"));
        QCOMPARE(int(left.getSelectedId()), -1);

        Desk desk(Form::All);
        desk.group->useWidget(desk.plain);
        QRadioButton* manual = desk.button(0);
        desk.group.reset();
        manual->click();
        QVERIFY(manual->isChecked() && !desk.plain->isEnabled());
        QCOMPARE(desk.dialog.findChildren<QRadioButton*>().size(), 2);
        QCOMPARE(desk.dialog.layout()->count(), 2); // the row stays in the host's layout
    }

    void endedByItsOwnSignal()
    {
        for (int run = 0; run < 10; ++run) {
            Desk desk(Form::LoadCases);
            desk.group->useWidget(desk.plain);
            desk.button(0)->click();
            QRadioButton* fire = desk.button(2);
            int left = run / 2; // number of signals until the group is destroyed
            const auto end = [&] {
                if (left-- == 0)
                    desk.group.reset();
            };
            connect(desk.group.get(), &Group::buttonClicked, &desk.dialog, end);
            connect(desk.group.get(), &Group::buttonAllFireChecked, &desk.dialog, end);
            connect(desk.group.get(), &Group::buttonChecked, &desk.dialog, end);
            run % 2 ? desk.group->readXML(QStringLiteral("checked:m_All_F")) : fire->click();
            QVERIFY(!desk.group && fire->isChecked());
        }
    }
};

PLIB_WIDGET_TEST_MAIN(tst_radioGroup)
#include "tst_radioGroup.moc"
