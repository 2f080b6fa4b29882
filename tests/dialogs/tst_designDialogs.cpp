#include "WidgetTestSupport.h"

#include <dialogs/dlgCrackControl.h>
#include <dialogs/dlgDistanceDirection.h>
#include <dialogs/dlgReinforcement.h>
#include <record/designFields.h>
#include <record/designRecord.h>
#include <VKD_A_BarDiameterCombo.h>
#include <VKD_H_LineEdit.h>
#include <vkd_lib_value.h>
#include <VKD_QT_InfoText.h>
#include <VKD_QT_Ok.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>

#include <cstring>
#include <random>

using plib::NamedField;
using testsupport::find;
using testsupport::whenModal;

namespace {
/// Returns a record whose floating-point fields all have different values, with more digits than
/// the line edits show.
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
    for (std::size_t i = 0; i < 6; ++i) // in ascending order, so that OK is not refused
        record.*plib::fields::Maximum[i] += 3;
    return record;
}

/// Returns the names of the fields in which two records differ.
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
    find<VKD_QT_Ok>(*dialog, "okayandcancelbutton")->cmdOk()->click();
}

/// Returns the fields of this record that OK changes.
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

    void everyFieldReachesItsWord()
    {
        constexpr double Radian = 0.017453292519943295;
        typeIntoFields<dlgDistanceDirection>(3, "rio rioq rioi riu riuq riui", Radian);
        typeIntoFields<dlgDistanceDirection>(3, "hio hioq hioi hiu hiuq hiui", 0.001);
        typeIntoFields<dlgDistanceDirection>(4, "xref yref zref", 1);
        typeIntoFields<dlgReinforcement>(
            3, "aso asoq asoi asu asuq asui amo amoq amoi amu amuq amui", 1);
        typeIntoFields<dlgCrackControl>(
            3, "wko wkoq wkoi wku wkuq wkui sigo sigoq sigoi sigu siguq sigui", 1,
            QStringLiteral("m_p"));
    }

    /// The two labels of the maximum reinforcement differ in their first letter.
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
        tagZOB_QUAD_RIM usual{}; // without warning icons, which widen their fields
        usual.type = 3;
        const auto distances = open<dlgDistanceDirection>(&usual);
        const auto left = [&distances](const char* field) {
            return find<QWidget>(*distances, field)->mapTo(distances.get(), QPoint()).x();
        };
        QCOMPARE(left("riu"), left("hiu")); // aligned across the boxes
        const auto note = distances->findChild<VKD_QT_InfoText*>();
        QCOMPARE(note->findChildren<QLabel*>().size(), 2); // the icon and the text
    }

    /// A dialog that steps to a row of another type looks as if it had been opened for that row.
    void stepsToEveryType()
    {
        for (int type : {1, 2, 3, 4})
            for (int next : {1, 2, 3, 4}) {
                QCOMPARE(shownAfterStep<dlgDistanceDirection>(type, next),
                         shownAfterStep<dlgDistanceDirection>(next, next));
                QCOMPARE(shownAfterStep<dlgReinforcement>(type, next),
                         shownAfterStep<dlgReinforcement>(next, next));
                QCOMPARE(shownAfterStep<dlgCrackControl>(type, next),
                         shownAfterStep<dlgCrackControl>(next, next));
            }
        const QString shown = shownAfterStep<dlgDistanceDirection>(4, 4);
        for (const char* label :
             {"|Lower (B)|", "|Upper (A)|", "|The local x-axis of the elements"})
            QVERIFY2(shown.contains(QLatin1String(label)), qPrintable(shown));
    }

    /// Tab moves down the columns of both sides, also after the fields have been rebuilt.
    void keysBetweenTheBars()
    {
        tagZOB_QUAD_RIM record = unevenRecord(2);
        const auto dialog = open<dlgReinforcement>(&record);
        QCOMPARE(dialog->focusWidget()->objectName(), QStringLiteral("m_pDIO"));
        for (const char* bars : {"m_pDIO m_pDIOQ m_pDIU m_pDIUQ aso",
                                 "m_pDIO m_pDIOQ m_pDIOI m_pDIU m_pDIUQ m_pDIUI aso"}) {
            QStringList names;
            find<QWidget>(*dialog, "m_pDIO")->setFocus();
            while (names.size() < 20 && names.value(names.size() - 1) != QLatin1String("aso")) {
                names << dialog->focusWidget()->objectName();
                QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(names.join(QLatin1Char(' ')), QLatin1String(bars));
            dialog->showRecord(unevenRecord(3));
        }
    }

    /// The fields of the invalid pair are marked, and the first field of the pair receives the
    /// focus.
    void limitsAreCheckedOneByOne()
    {
        tagZOB_QUAD_RIM record = unevenRecord(3);
        const auto dialog = open<dlgReinforcement>(&record);
        const QString text = QStringLiteral("Min greater than Max is not allowed!");
        const auto edit = [&](const char* name) { return find<VKD_H_LineEdit>(*dialog, name); };
        const auto marked = [&] {
            QStringList names;
            for (const VKD_H_LineEdit* any : dialog->findChildren<VKD_H_LineEdit*>())
                if (any->accessibleDescription().startsWith(text))
                    names << any->objectName();
            const QWidget* focused = dialog->focusWidget();
            return names.join(QLatin1Char(' ')) + QLatin1String(" in ") +
                   (focused ? focused->objectName() : QString());
        };
        const auto refused = [&] {
            bool isTold = false;
            whenModal([&](QWidget* box) {
                isTold = box->property("text").toString() == text;
                box->close();
            });
            pressOk(dialog.get());
            return dialog->isVisible() && isTold ? marked() : QStringLiteral("nothing");
        };
        edit("amo")->setVal(0.0001);
        edit("amui")->setVal(0.0001);
        edit("asoi")->setText(QStringLiteral("abc"));
        pressOk(dialog.get()); // the refused text is reported before the pair
        QVERIFY(dialog->isVisible() && dialog->focusWidget() == edit("asoi"));
        edit("asoi")->setVal(0.0);
        QCOMPARE(refused(), QStringLiteral("aso amo in aso"));
        edit("amo")->setVal(double(record.aso)); // equal limits are valid
        QCOMPARE(marked(), QStringLiteral(" in aso"));
        QCOMPARE(refused(), QStringLiteral("asui amui in asui"));
        edit("amui")->setVal(double(plib::NotSet));
        edit("amoi")->setVal(NAN); // a NaN cannot be compared
        QCOMPARE(refused(), QStringLiteral("asoi amoi in asoi"));
        edit("asoi")->clear();
        pressOk(dialog.get());
        QVERIFY(!dialog->isVisible());
    }

    /// Minus 180 degrees is a common value for reinforcement around a point.
    void usualDirections()
    {
        tagZOB_QUAD_RIM record = unevenRecord(4);
        const auto dialog = open<dlgDistanceDirection>(&record);
        auto direction = find<VKD_H_LineEdit>(*dialog, "rio");
        direction->setText(QStringLiteral("-90"));
        QCOMPARE(direction->doubt(), QString());
        direction->setText(QStringLiteral("-181"));
        QVERIFY(!direction->doubt().isEmpty());
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
        auto diameter = dialog->findChild<VKD_A_BarDiameterCombo*>(QStringLiteral("m_pDIUQ"));
        diameter->setCurrent(20);
        for (bool isTaken : {false, true}) {
            whenModal([isTaken](QWidget* calculator) {
                auto bar = calculator->findChild<VKD_A_BarDiameterCombo*>();
                QCOMPARE(bar->getCurrent(), 20.0F);
                bar->setCurrentIndex(bar->currentIndex() + 1);
                find<QCheckBox>(*calculator, "takesDiameter")->setChecked(isTaken);
                qobject_cast<QDialog*>(calculator)->accept();
            });
            QMetaObject::invokeMethod(dialog.get(), "calcMaxUQ");
            QCOMPARE(diameter->getCurrent(), isTaken ? 25.0F : 20.0F);
        }
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
        auto width = find<QComboBox>(*dialog, "m_pWKO");
        QCOMPARE(width->lineEdit()->text(), QStringLiteral("0.25"));
        QCOMPARE(width->count(), 3);
        auto stress = find<QComboBox>(*dialog, "m_pSIGU");
        QCOMPARE(stress->lineEdit()->text(), QString()); // no entry selected
        stress->showPopup();
        QTest::keyClick(stress->view(), Qt::Key_End);
        QTest::keyClick(stress->view(), Qt::Key_Enter);
        dialog->writeToRecord(&record);
        QCOMPARE(record.sigu, 450.0F);
        QCOMPARE(record.wko, 0.25F);
        QCOMPARE(width->count(), 3);
    }

private:
    /// Returns the labels and fields of a dialog that shows two records in succession.
    template <class Dialog>
    static QString shownAfterStep(int type, int next)
    {
        const auto usualRecord = [](int of) { // without hints about unusual values
            tagZOB_QUAD_RIM usual = unevenRecord(of);
            for (plib::RealField width : plib::fields::CrackWidths)
                usual.*width /= 10;
            return usual;
        };
        tagZOB_QUAD_RIM record = usualRecord(type);
        const auto dialog = open<Dialog>(&record);
        record = usualRecord(next);
        if (next != type)
            dialog->showRecord(record);
        QStringList texts;
        for (QGroupBox* box : dialog->template findChildren<QGroupBox*>())
            texts << box->title() << textsOf(box).split(QLatin1Char('|'));
        for (const QLineEdit* edit : dialog->template findChildren<QLineEdit*>())
            texts << edit->objectName() + QLatin1Char(' ') + edit->text();
        texts.sort();
        dialog->writeToRecord(&record);
        return texts.join(QLatin1Char('|')) + changes(usualRecord(next), record);
    }

    /// Sets a different number in each field.
    template <class Dialog>
    void typeIntoFields(int type, const char* names, double factor, const QString& combo = {})
    {
        tagZOB_QUAD_RIM record = unevenRecord(type);
        const auto dialog = open<Dialog>(&record);
        const QStringList fields = QString::fromLatin1(names).split(QLatin1Char(' '));
        for (int i = 0; i < fields.size(); ++i) {
            auto typed = dialog->template findChild<QLineEdit*>(fields[i]);
            if (!combo.isEmpty())
                typed =
                    find<QComboBox>(*dialog, (combo + fields[i].toUpper()).toLatin1())->lineEdit();
            QVERIFY2(typed, names);
            typed->selectAll();
            QTest::keyClicks(typed, QStringLiteral("%1,5").arg(i + 10));
        }
        dialog->writeToRecord(&record);
        for (int i = 0; i < fields.size(); ++i)
            QCOMPARE(record.*plib::fieldByName(fields[i])->real, float((i + 10.5) * factor));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_designDialogs)
#include "tst_designDialogs.moc"
