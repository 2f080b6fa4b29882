#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_H_Dialog.h>
#include <VKD_H_LineEdit.h>
#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_Ok.h>

#include <QPushButton>
#include <QTabWidget>

#include <memory>

using namespace testsupport;

namespace {
constexpr double NotSet = -99999.0;
constexpr int Crack = 1026, Distance = 1024;

VKD_H_LineEdit* field(QWidget* parent, int code, const char* name = "field")
{
    StructLineEdit description = vkd_h_defaultStructLineEdit(code); // destroyed after this call
    return new VKD_H_LineEdit(parent, &description, name, QStringLiteral("Axial Distance"),
                              QStringLiteral("from the surface"), true);
}

/// Replaces the text by typing. An empty string deletes the text.
void type(QLineEdit* edit, const char* text)
{
    edit->selectAll();
    if (!*text)
        QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, QLatin1String(text));
}

/// A dialog with two fields. The class of the dialog does not itself check the fields.
struct Dialog
{
    Dialog()
    {
        auto layout = new VKD_QT_VBoxLayout(&box);
        buttons = new VKD_QT_Ok(&box, 3, "buttons");
        for (QWidget* widget : {static_cast<QWidget*>(first), static_cast<QWidget*>(second),
                                static_cast<QWidget*>(buttons)})
            layout->addWidget(widget);
        QObject::connect(buttons->cmdOk(), &QPushButton::clicked, &box, &QDialog::accept);
        QObject::connect(buttons->cmdCancel(), &QPushButton::clicked, &box, &QDialog::reject);
        first->setVal(0.03);
        second->setVal(0.04);
        box.show();
        QApplication::setActiveWindow(&box);
        first->setFocus();
    }

    VKD_QT_Dialog box;
    VKD_H_LineEdit* first = field(&box, Distance, "first");
    VKD_H_LineEdit* second = field(&box, Distance, "second");
    VKD_QT_Ok* buttons;
};

/// An editable combo box with preset crack widths, as callers create it.
struct Combo
{
    Combo()
    {
        for (const char* text : {"0.10", "0.20", "0.30", " - "})
            box.addItem(QLatin1String(text));
        box.setEditable(true);
        box.setInsertPolicy(QComboBox::NoInsert);
        StructLineEdit description = vkd_h_defaultStructLineEdit(Crack);
        description.notSetTexts = {QStringLiteral("-")};
        edit = new VKD_H_LineEdit(&box, &description, "edit", QString(), QString(), true);
        box.setLineEdit(edit);
        box.show();
        QApplication::setActiveWindow(&box);
        box.setFocus();
    }

    VKD_QT4_ComboBox box;
    VKD_H_LineEdit* edit;
};

QWidget* messageOf(const QWidget* field)
{
    return field->findChild<QWidget*>(QStringLiteral("fieldMessage"));
}
} // namespace

class TestLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setLanguage(English); }

    void leavingWritesTheNumber()
    {
        setLanguage(German);
        Dialog dialog;
        type(dialog.first, " 12.5 ");
        QTest::keyClick(dialog.first, Qt::Key_Tab);
        QCOMPARE(dialog.first->text(), QStringLiteral("12,5"));
        QCOMPARE(dialog.second->selectedText(), QStringLiteral("40,0"));
        QTest::keyClick(dialog.second, Qt::Key_Delete);
        QTest::keyClick(dialog.second, Qt::Key_Backtab);
        QCOMPARE(dialog.second->getVal(), NotSet);
    }

    /// OK moves the focus to a refused field if the user can reach the field.
    void refusedOutOfSight()
    {
        VKD_H_Dialog dialog;
        auto tabs = new QTabWidget(&dialog);
        auto options = new QWidget(tabs), back = new QWidget(tabs);
        VKD_H_LineEdit* edit = field(options, Distance);
        tabs->addTab(back, QStringLiteral("back"));
        tabs->addTab(options, QStringLiteral("front"));
        edit->setText(QStringLiteral("abc"));
        dialog.show();
        dialog.accept();
        QVERIFY(dialog.isVisible() && edit->isVisible());
        tabs->setCurrentWidget(back);
        edit->hide();
        dialog.accept();
        QVERIFY(!dialog.isVisible());
        dialog.show();
        edit->show();
        tabs->setTabVisible(1, false);
        dialog.accept();
        QVERIFY(!dialog.isVisible());
    }

    /// Neither Enter nor a focus change turns refused text into a value.
    void refusedText()
    {
        Dialog dialog;
        VKD_H_LineEdit* edit = dialog.first;
        edit->setText(QStringLiteral("-")); // not typed, so no further input will follow
        QVERIFY(edit->toolTip().contains(QLatin1String("number")) && !messageOf(edit));
        type(edit, "1.234,5");
        QVERIFY(edit->toolTip().contains(QLatin1String("decimal separator")));
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(dialog.box.isVisible());
        QWidget* message = messageOf(edit);
        QVERIFY(message && message->isVisible());
        QTest::keyClick(edit, Qt::Key_Tab);
        QVERIFY(dialog.second->hasFocus());
        QVERIFY(message->isVisible());
        QTest::keyClick(dialog.box.windowHandle(), Qt::Key_7); // simulates a window system event
        QVERIFY(!message->isVisible());
        QCOMPARE(dialog.second->text(), QStringLiteral("7"));
        QCOMPARE(edit->text(), QStringLiteral("1.234,5"));
        QCOMPARE(edit->getVal(), 0.03);
        QCOMPARE(vkd_qt_leadToRefusedField(&dialog.box), edit);
        QVERIFY(edit->hasFocus() && edit->accessibleDescription().startsWith(edit->refusal()));
        type(edit, "234,5");
        QVERIFY(!message->isVisible() && edit->refusal().isEmpty());
        QCOMPARE(edit->toolTip(), QStringLiteral("Axial Distance in mm\nfrom the surface"));
        QCOMPARE(edit->accessibleDescription(), QStringLiteral("from the surface"));
        QCOMPARE(vkd_qt_leadToRefusedField(&dialog.box), nullptr);
        type(edit, "-"); // further typing can still complete the number
        QVERIFY(!edit->refusal().isEmpty());
        QVERIFY(!edit->toolTip().contains(QLatin1String("number")));
        QTest::keyClick(edit, Qt::Key_Tab);
        QVERIFY(edit->toolTip().contains(QLatin1String("number")));
        dialog.box.done(QDialog::Accepted); // called by a host
        QVERIFY(dialog.box.isVisible() && edit->hasFocus());
        dialog.box.callDone(QDialog::Accepted); // another result that closes the dialog
        QVERIFY(!dialog.box.isVisible());
    }

    void escape()
    {
        Dialog dialog;
        const QSignalSpy changed(dialog.first, &VKD_H_LineEdit::valueChanged);
        for (const char* text : {"77", "abc", ""}) {
            type(dialog.first, text);
            QTest::keyClick(dialog.first, Qt::Key_Escape);
            QVERIFY(dialog.box.isVisible());
            QCOMPARE(dialog.first->text(), QStringLiteral("30.0"));
            QCOMPARE(dialog.first->getVal(), 0.03);
            QVERIFY(dialog.first->refusal().isEmpty());
        }
        QCOMPARE(changed.count(), 5); // 7, 77, restored, empty, restored; none for abc
        QTest::keyClick(dialog.first, Qt::Key_Escape);
        QVERIFY(!dialog.box.isVisible());
        dialog.first->setVal(0.033333333);
        QTest::keyClicks(dialog.first, QStringLiteral("7"));
        QTest::keyClick(dialog.first, Qt::Key_Backspace); // restores the displayed text
        QCOMPARE(changed.count(), 7);
        QCOMPARE(dialog.first->getVal(), 0.033333333);
    }

    /// Implausible values are accepted with a message.
    void doubts_data()
    {
        const Columns<int, QString> columns("code", "doubt");
        const auto row = [&columns](int code, const char* typed, const char* usual = nullptr) {
            const QString doubt =
                usual ? QStringLiteral("Usual values are %1. The value is accepted all the same.")
                            .arg(QString::fromUtf8(usual))
                      : QString();
            columns(typed, code, doubt);
        };
        row(5, "180");
        row(5, "180.1", "0.0° to 180.0°");
        row(5, "-1", "0.0° to 180.0°");
        row(Distance, "300");
        row(Distance, "300.1", "0.0 mm to 300.0 mm");
        row(Crack, "1");
        row(Crack, "1,01", "0.00 mm to 1.00 mm");
        row(1092, "600");
        row(1092, "601", "0.0 N/mm² to 600.0 N/mm²");
        row(1021, "251.33");
        row(1021, "252", "0.00 cm²/m to 251.33 cm²/m");
        row(1001, "99999");
        row(-1, "99999");
        row(Distance, "");
        row(Distance, "abc");
    }

    void doubts()
    {
        QFETCH(int, code);
        QFETCH(QString, doubt);
        Dialog dialog;
        VKD_H_LineEdit* edit = field(&dialog.box, code);
        dialog.box.layout()->addWidget(edit);
        edit->show();
        edit->setFocus();
        const QSize size = edit->sizeHint();
        type(edit, QTest::currentDataTag());
        QCOMPARE(edit->doubt(), doubt);
        QCOMPARE(edit->sizeHint(), size);
        const bool isRefused = !edit->refusal().isEmpty();
        QCOMPARE(!doubt.isEmpty(), !isRefused && messageOf(edit) && messageOf(edit)->isVisible());
        QVERIFY(edit->accessibleDescription().startsWith(doubt) &&
                edit->toolTip().startsWith(doubt));
        const double value = edit->getVal();
        dialog.box.accept();
        QCOMPARE(dialog.box.isVisible(), isRefused);
        QCOMPARE(edit->getVal(), value);
    }

    void mouse()
    {
        Dialog dialog;
        QTest::mouseClick(dialog.second, Qt::LeftButton);
        QCOMPARE(dialog.second->selectedText(), QStringLiteral("40.0"));
        QTest::mouseClick(dialog.second, Qt::LeftButton); // the second click sets the cursor
        QCOMPARE(dialog.second->selectedText(), QString());
    }

    void languageChange()
    {
        const std::unique_ptr<VKD_H_LineEdit> edit(field(nullptr, Distance));
        edit->setVal(0.0125);
        setLanguage(German);
        QCOMPARE(edit->text(), QStringLiteral("12,5"));
        type(edit.get(), "1,2,3");
        QVERIFY2(edit->toolTip().contains(QStringLiteral("„1,2,3“ hat mehr als ein")) &&
                     edit->toolTip().contains(QStringLiteral("der Wert 12,5 mm.")),
                 qPrintable(edit->toolTip()));
    }

    /// The arrow keys select the presets next to the current value.
    void typingAfterAPreset()
    {
        Combo combo;
        const auto after = [&combo](const char* typed, Qt::Key key) {
            combo.box.setCurrentIndex(0);
            type(combo.edit, typed);
            const int index = combo.box.currentIndex();
            QTest::keyClick(&combo.box, key);
            return QString::number(index) + QLatin1Char(' ') + combo.edit->text();
        };
        QCOMPARE(after("0.25", Qt::Key_Down), QStringLiteral("-1 0.30"));
        QCOMPARE(after("0,25", Qt::Key_Up), QStringLiteral("-1 0.20"));
        QCOMPARE(after("0.15", Qt::Key_PageDown), QStringLiteral("-1 0.20"));
        QCOMPARE(after("0.15", Qt::Key_PageUp), QStringLiteral("-1 0.10"));
        QCOMPARE(after("0.2", Qt::Key_Down), QStringLiteral("1 0.30"));
        QCOMPARE(after("0.05", Qt::Key_Up), QStringLiteral("-1 0.05")); // there is no lower preset
        type(combo.edit, "0.2");
        QCOMPARE(combo.edit->text(), QStringLiteral("0.2")); // not completed to 0.20
        combo.edit->setVal(double(0.2F));
        QTest::keyClick(&combo.box, Qt::Key_Up);
        QTest::keyClick(&combo.box, Qt::Key_Escape); // a preset is not typed text
        QCOMPARE(combo.edit->text(), QStringLiteral("0.10"));
        combo.box.setCurrentIndex(2);
        QTest::keyClick(&combo.box, Qt::Key_Down); // the last entry is not a number
        QCOMPARE(combo.edit->getVal(), NotSet);
    }
};

PLIB_WIDGET_TEST_MAIN(TestLineEdit)
#include "tst_lineEdit.moc"
