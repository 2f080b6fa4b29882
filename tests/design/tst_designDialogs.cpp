#include "WidgetTestSupport.h"

#include <designFields.h>
#include <designRecord.h>
#include <dlgCrackControl.h>
#include <dlgDistanceDirection.h>
#include <dlgReinforcement.h>
#include <VKD_A_BarDiameterCombo.h>
#include <VKD_H_LineEdit.h>
#include <vkd_lib_value.h>

#include <QAbstractItemView>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

#include <cstring>
#include <random>

using plib::NamedField;
using testsupport::whenModal;

namespace {
/// A record in which every real field has a value of its own that no field shows with all digits.
tagZOB_QUAD_RIM unevenRecord(int type)
{
    tagZOB_QUAD_RIM record{};
    std::mt19937 random(7);
    std::uniform_real_distribution<float> value(0.001F, 3.0F);
    for (const NamedField& field : plib::namedFields())
        if (field.real)
            record.*field.real = value(random);
    record.group = 3;
    record.type = type;
    record.reservedM = 5;
    for (std::size_t i = 0; i < 6; ++i) // in order, so that OK is not refused
        record.*plib::fields::Maximum[i] += 3;
    return record;
}

/// The fields in which two records differ, by name.
QString changes(const tagZOB_QUAD_RIM& before, const tagZOB_QUAD_RIM& after)
{
    tagZOB_QUAD_RIM copy = before;
    QStringList names;
    for (const NamedField& field : plib::namedFields()) {
        if (!field.real || std::memcmp(&(copy.*field.real), &(after.*field.real), 4) == 0)
            continue;
        names << QString::fromLatin1(field.name) +
                     (after.*field.real == plib::NotSet ? QString() : QStringLiteral("!"));
        copy.*field.real = after.*field.real;
    }
    if (std::memcmp(&copy, &after, sizeof copy) != 0)
        names << QStringLiteral("other words");
    return names.join(QLatin1Char(' '));
}

template <class Dialog>
std::unique_ptr<Dialog> open(tagZOB_QUAD_RIM* record)
{
    std::unique_ptr<Dialog> dialog;
    if constexpr (std::is_same_v<Dialog, dlgReinforcement>)
        dialog = std::make_unique<Dialog>(0, record, nullptr);
    else
        dialog = std::make_unique<Dialog>(record, nullptr);
    dialog->show();
    return dialog;
}

void pressOk(QDialog* dialog)
{
    auto row = dialog->findChild<QWidget*>(QStringLiteral("okayandcancelbutton"));
    for (QPushButton* button : row->findChildren<QPushButton*>())
        if (button->isDefault())
            button->click();
}

/// What an OK on this record changes.
template <class Dialog>
QString changesByOk(const tagZOB_QUAD_RIM& record)
{
    tagZOB_QUAD_RIM edited = record;
    const auto dialog = open<Dialog>(&edited);
    pressOk(dialog.get());
    if (dialog->result() != QDialog::Accepted || !changes(record, edited).isEmpty())
        return QStringLiteral("not accepted, or written before");
    dialog->writeToRecord(&edited);
    return changes(record, edited);
}

VKD_H_LineEdit* edit(QWidget* dialog, const char* name)
{
    return dialog->findChild<VKD_H_LineEdit*>(QLatin1String(name));
}

QString textsOf(QWidget* parent)
{
    QStringList texts;
    for (const QLabel* label : parent->findChildren<QLabel*>())
        if (!label->text().isEmpty())
            texts << label->text();
    return texts.join(QLatin1Char('|'));
}
} // namespace

class tst_designDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1); }

    void okChangesNoMoreThanItMust_data()
    {
        const Columns<int, QString, QString, QString> row("type", "distances", "reinforcement",
                                                          "cracks");
        const QString third = QStringLiteral("dioi diui asoi asui amoi amui");
        const QString thirdCracks = QStringLiteral("wkoi wkui sigoi sigui");
        row("two layers, orthogonal: cross directions are cleared, too", 1,
            "rioq rioi riuq riui xref yref zref hioi hiui", third, thirdCracks);
        row("two layers", 2, "rioi riui xref yref zref hioi hiui", third, thirdCracks);
        row("three layers: the upper third maximum opens with the lower one", 3, "xref yref zref",
            "amoi!", {});
        row("circular", 4, "rioq rioi riuq riui hioi hiui", third, thirdCracks);
        row("no design: no fields at all", 0,
            "rio rioq rioi riu riuq riui xref yref zref hio hioq hioi hiu hiuq hiui", third,
            thirdCracks);
    }

    void okChangesNoMoreThanItMust()
    {
        QFETCH(int, type);
        const tagZOB_QUAD_RIM record = unevenRecord(type);
        QTEST(changesByOk<dlgDistanceDirection>(record), "distances");
        QTEST(changesByOk<dlgReinforcement>(record), "reinforcement");
        QTEST(changesByOk<dlgCrackControl>(record), "cracks");
        tagZOB_QUAD_RIM empty = record;
        for (const NamedField& field : plib::namedFields())
            if (field.real)
                empty.*field.real = plib::NotSet;
        QCOMPARE(changesByOk<dlgDistanceDirection>(empty), QString());
        QCOMPARE(changesByOk<dlgReinforcement>(empty), QString());
        QCOMPARE(changesByOk<dlgCrackControl>(empty), QString());
    }

    void everyFieldReachesItsWord_data()
    {
        // combo: where it is empty, the edit has the field's name
        // factor: from the typed number to the record
        const Columns<QString, QString, int, double> row("field", "combo", "type", "factor");
        const auto rows = [&row](const char* fields, int type, double factor,
                                 const char* combo = "") {
            for (const QString& field : QString::fromLatin1(fields).split(QLatin1Char(' ')))
                row(qPrintable(field), field, QString::fromLatin1(combo), type, factor);
        };
        constexpr double Radian = 0.017453292519943295;
        rows("rio rioq rioi riu riuq riui", 3, Radian);
        rows("hio hioq hioi hiu hiuq hiui", 3, 0.001);
        rows("xref yref zref", 4, 1);
        rows("aso asoq asoi asu asuq asui amo amoq amoi amu amuq amui", 3, 1);
        rows("wko wkoq wkoi wku wkuq wkui sigo sigoq sigoi sigu siguq sigui", 3, 1, "m_p");
    }

    void everyFieldReachesItsWord()
    {
        QFETCH(QString, field);
        QFETCH(QString, combo);
        QFETCH(int, type);
        QFETCH(double, factor);
        const tagZOB_QUAD_RIM before = unevenRecord(type);
        tagZOB_QUAD_RIM after = before;
        std::unique_ptr<QDialog> dialog;
        std::function<void()> write;
        const auto use = [&](auto opened) {
            write = [&after, raw = opened.get()] { raw->writeToRecord(&after); };
            dialog = std::move(opened);
        };
        if (!combo.isEmpty())
            use(open<dlgCrackControl>(&after));
        else if (field.startsWith(QLatin1Char('a')))
            use(open<dlgReinforcement>(&after));
        else
            use(open<dlgDistanceDirection>(&after));
        QLineEdit* typed = dialog->findChild<QLineEdit*>(field);
        if (!combo.isEmpty())
            typed = dialog->findChild<QComboBox*>(combo + field.toUpper())->lineEdit();
        QVERIFY(typed);
        typed->selectAll();
        QTest::keyClicks(typed, QStringLiteral("12,5"));
        write();
        QCOMPARE(after.*plib::fieldByName(field)->real, float(12.5 * factor));
        const QString changed = QLatin1Char(' ') + changes(before, after) + QLatin1Char(' ');
        QVERIFY(changed.contains(QLatin1Char(' ') + field + QLatin1String("! ")));
    }

    /// The two headers of the greatest reinforcement differ in their first letter.
    void labelsOfTheLayers()
    {
        tagZOB_QUAD_RIM record = unevenRecord(3);
        const auto reinforcement = open<dlgReinforcement>(&record);
        const QString rows =
            QStringLiteral("|Principal Reinforcement|Cross Reinforcement|Third Layer");
        QCOMPARE(textsOf(reinforcement->findChild<QGroupBox*>(QStringLiteral("upper"))),
                 QStringLiteral("Diameter|Min. Reinforcement|Max. Reinforcement") + rows);
        QCOMPARE(textsOf(reinforcement->findChild<QGroupBox*>(QStringLiteral("Lower"))),
                 QStringLiteral("Diameter|Min. Reinforcement|max. Reinforcement") + rows);
        const auto cracks = open<dlgCrackControl>(&record);
        QCOMPARE(cracks->findChildren<VKD_H_LineEdit*>(QStringLiteral("crack")).size(), 3);
    }

    void limitsAreCheckedOneByOne()
    {
        tagZOB_QUAD_RIM record = unevenRecord(3);
        const auto dialog = open<dlgReinforcement>(&record);
        for (const char* name : {"amo", "amui"})
            edit(dialog.get(), name)->setVal(0.0001);
        int warnings = 0;
        const auto pressOkAndCount = [&] {
            whenModal([&warnings](QWidget* box) {
                ++warnings;
                QCOMPARE(box->property("text").toString(),
                         QStringLiteral("Min greater than Max is not allowed!"));
                box->close();
            });
            pressOk(dialog.get());
            return dialog->isVisible();
        };
        QVERIFY(pressOkAndCount());
        QCOMPARE(warnings, 1);
        edit(dialog.get(), "amo")->setVal(double(record.aso)); // equal is in order
        QVERIFY(pressOkAndCount());
        QCOMPARE(warnings, 2);
        edit(dialog.get(), "amui")->setVal(double(plib::NotSet));
        edit(dialog.get(), "amoi")->setVal(NAN); // cannot be compared
        QVERIFY(pressOkAndCount());
        QCOMPARE(warnings, 3);
        edit(dialog.get(), "asoi")->clear();
        pressOk(dialog.get());
        QVERIFY(!dialog->isVisible());
    }

    void calculatorsWorkOnTheirOwnField()
    {
        const tagZOB_QUAD_RIM before = unevenRecord(3);
        tagZOB_QUAD_RIM after = before;
        const auto dialog = open<dlgReinforcement>(&after);
        const QList<QPushButton*> buttons =
            dialog->findChildren<QPushButton*>(QStringLiteral("Calc"));
        QCOMPARE(buttons.size(), 12);
        for (QPushButton* button : buttons) {
            whenModal([](QWidget* calculator) { calculator->close(); });
            button->click();
        }
        dialog->writeToRecord(&after);
        QCOMPARE(changes(before, after), QStringLiteral("amoi!"));
        whenModal([](QWidget* calculator) {
            auto bar = calculator->findChild<VKD_A_BarDiameterCombo*>();
            QCOMPARE(bar->getCurrent(), 20.0F);
            bar->setCurrentIndex(bar->currentIndex() + 1);
            Q_EMIT bar->activated(bar->currentIndex());
            qobject_cast<QDialog*>(calculator)->accept();
        });
        dialog->findChild<VKD_A_BarDiameterCombo*>(QStringLiteral("m_pDIUQ"))->setCurrent(20);
        QMetaObject::invokeMethod(dialog.get(), "calcMaxUQ");
        after = before;
        dialog->writeToRecord(&after);
        QCOMPARE(changes(before, after), QStringLiteral("diuq! amoi! amuq!"));
    }

    void crackWidthsFromTheListAndTyped()
    {
        tagZOB_QUAD_RIM record = unevenRecord(1);
        record.wko = 0.25F;
        record.sigu = plib::NotSet;
        const auto dialog = open<dlgCrackControl>(&record);
        auto width = dialog->findChild<QComboBox*>(QStringLiteral("m_pWKO"));
        QCOMPARE(width->lineEdit()->text(), QStringLiteral("0.25"));
        QCOMPARE(width->count(), 3);
        auto stress = dialog->findChild<QComboBox*>(QStringLiteral("m_pSIGU"));
        QCOMPARE(stress->lineEdit()->text(), QString()); // and not the first of the list
        stress->showPopup();
        QTest::keyClick(stress->view(), Qt::Key_End);
        QTest::keyClick(stress->view(), Qt::Key_Enter);
        dialog->writeToRecord(&record);
        QCOMPARE(record.sigu, 450.0F);
        QCOMPARE(record.wko, 0.25F);
        QCOMPARE(width->count(), 3);
    }

    /// What is typed first replaces the value of the first field, and Enter is OK.
    void typedRightAfterOpening()
    {
        tagZOB_QUAD_RIM record = unevenRecord(2);
        dlgDistanceDirection dialog(&record, nullptr);
        whenModal([](QWidget* opened) {
            QVERIFY(QTest::qWaitForWindowActive(opened));
            QTest::keyClicks(opened->focusWidget(), QStringLiteral("45"));
            QTest::keyClick(opened->focusWidget(), Qt::Key_Enter);
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));
        dialog.writeToRecord(&record);
        QCOMPARE(record.rio, 0.785398185F);
    }

    void noteIsWhole_data()
    {
        QTest::addColumn<int>("type");
        for (int type = 1; type <= 4; ++type)
            QTest::addRow("type %d", type) << type;
    }

    void noteIsWhole()
    {
        QFETCH(int, type);
        tagZOB_QUAD_RIM record = unevenRecord(type);
        const auto dialog = open<dlgDistanceDirection>(&record);
        QApplication::processEvents();
        for (QLabel* label : dialog->findChildren<QLabel*>())
            if (label->wordWrap())
                QVERIFY(label->height() >= label->heightForWidth(label->width()));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_designDialogs)
#include "tst_designDialogs.moc"
