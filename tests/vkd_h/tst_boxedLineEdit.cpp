#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_Dialog.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_TabDialog.h>
#include <vkd_lib_value.h>
#include <VKD_QT_Layouts.h>

#include <QLabel>
#include <QTabWidget>

using namespace testsupport;

namespace {

StructBoxedEdit fontSize()
{
    StructBoxedEdit description;
    description.label = QStringLiteral("&Font Size (mm) : ");
    description.toolTip = QStringLiteral("on paper");
    description.edit.minimum = 1.0;
    description.edit.maximum = 999.0;
    description.edit.value = 2.0;
    description.edit.flags = StructBoxedEdit::EmptyIsDefault;
    description.edit.decimalSigns = QStringLiteral(",");
    return description;
}

/// A dialog with the field and another one behind.
struct Dialog
{
    Dialog()
    {
        StructBoxedEdit description = fontSize(); // gone after this
        auto layout = new VKD_QT_VBoxLayout(&box);
        size = new VKD_H_BoxedLineEdit(&box, &description, "size");
        other = new QLineEdit(&box);
        layout->addWidget(size);
        layout->addWidget(other);
        box.show();
        QApplication::setActiveWindow(&box);
        size->setFocus();
    }

    void type(const char* text)
    {
        size->setFocus();
        size->edit()->selectAll();
        QTest::keyClick(size->edit(), Qt::Key_Delete);
        QTest::keyClicks(size->edit(), QString::fromLatin1(text));
    }

    VKD_H_Dialog box;
    VKD_H_BoxedLineEdit* size;
    QLineEdit* other;
};
} // namespace

class tst_boxedLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setLanguage(English); }

    void names()
    {
        const Dialog dialog;
        QCOMPARE(dialog.size->edit()->accessibleName(), QStringLiteral("Font Size (mm)"));
        QCOMPARE(dialog.size->findChild<QLabel*>()->buddy(), dialog.size->edit());
        QVERIFY(dialog.size->edit()->hasFocus());
        VKD_H_BoxedLineEdit plain(nullptr, nullptr, "plain");
        QCOMPARE(plain.getText(), QString());
    }

    void emptyFieldStandsForTheDefault_data()
    {
        const Columns<int, int, double, QString> row("flags", "key", "value", "text");
        const int isDefault = StructBoxedEdit::EmptyIsDefault;
        row("tab", isDefault, int(Qt::Key_Tab), 2.0, "2.0");
        row("enter", isDefault, int(Qt::Key_Return), 2.0, "2.0");
        row("escape", isDefault, int(Qt::Key_Escape), 7.0, "7.0");
        row("needed", 0, int(Qt::Key_Tab), 7.0, "");
        row("allowed", int(StructLineEdit::EmptyAllowed), int(Qt::Key_Tab), -99999.0, "");
    }

    void emptyFieldStandsForTheDefault()
    {
        QFETCH(const int, flags);
        QFETCH(const int, key);
        StructBoxedEdit description = fontSize();
        description.edit.flags = flags;
        QWidget window;
        VKD_H_BoxedLineEdit size(&window, &description, "size");
        size.setVal(7.0);
        size.edit()->selectAll();
        QTest::keyClick(size.edit(), Qt::Key_Delete);
        if (flags == StructBoxedEdit::EmptyIsDefault) {
            QCOMPARE(size.getVal(), 2.0);
            QCOMPARE(size.edit()->refusal(), QString());
            QVERIFY(size.edit()->placeholderText().startsWith(QLatin1Char('2')));
        }
        if (key == Qt::Key_Tab) {
            QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
            QCoreApplication::sendEvent(size.edit(), &out);
        } else
            QTest::keyClick(size.edit(), Qt::Key(key));
        QTEST(size.getVal(), "value");
        QFETCH(const QString, text);
        QCOMPARE(size.getText().isEmpty(), text.isEmpty());
        QCOMPARE(size.getText().toDouble(), text.toDouble());
    }

    void textsFromOutside()
    {
        Dialog dialog;
        QSignalSpy changed(dialog.size, &VKD_H_BoxedLineEdit::valueChanged);
        for (const char* text : {"2,5", " 2,5", "2.50"}) {
            dialog.size->setText(QLatin1String(text));
            dialog.size->setFocus();
            QTest::keyClick(dialog.size->edit(), Qt::Key_Tab);
            QCOMPARE(dialog.size->getText(), QLatin1String(text));
            QCOMPARE(dialog.size->getVal(), 2.5);
        }
        for (const char* text : {"abc", "0,5", "1000", "2,5,1"}) {
            dialog.size->setText(QLatin1String(text));
            QCOMPARE(dialog.size->getText(), QLatin1String(text));
            QVERIFY(!dialog.size->edit()->refusal().isEmpty());
            QVERIFY(dialog.size->edit()->toolTip().contains(dialog.size->edit()->refusal()));
            QCOMPARE(dialog.size->getVal(), 2.5);
            QTest::keyClick(dialog.size->edit(), Qt::Key_Escape);
            QCOMPARE(dialog.size->getText().toDouble(), 2.5);
        }
        dialog.size->setText(QString());
        QCOMPARE(dialog.size->getVal(), 2.0);
        QCOMPARE(changed.size(), 0);
    }

    void editing()
    {
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, German);
        Dialog dialog;
        QSignalSpy changed(dialog.size, &VKD_H_BoxedLineEdit::valueChanged);
        dialog.size->setText(QStringLiteral("2.5"));
        dialog.type("3.5");
        QCOMPARE(dialog.size->getText(), QStringLiteral("3.5"));
        QCOMPARE(dialog.size->getVal(), 3.5);
        QVERIFY(changed.size() > 0);
        QTest::keyClick(dialog.size->edit(), Qt::Key_Tab);
        QCOMPARE(dialog.size->edit()->text(), QStringLiteral("3,5"));
        QCOMPARE(dialog.size->getText(), QStringLiteral("3.5")); // as typed
        dialog.size->setVal(4.0);
        QVERIFY(dialog.size->getText().startsWith(QStringLiteral("4")));
    }

    void dialogsWithARefusedNumber()
    {
        Dialog dialog;
        dialog.type("abc");
        dialog.other->setFocus();
        dialog.box.accept();
        QVERIFY(dialog.box.isVisible() && dialog.size->edit()->hasFocus());
        dialog.type("3");
        dialog.box.accept();
        QCOMPARE(dialog.box.result(), int(QDialog::Accepted));
    }

    void pagesWithARefusedNumber()
    {
        VKD_H_TabDialog tabs;
        StructBoxedEdit description = fontSize();
        auto size = new VKD_H_BoxedLineEdit(nullptr, &description, "size");
        tabs.addTab(new QLineEdit, QStringLiteral("first"));
        tabs.addTab(size, QStringLiteral("second"));
        tabs.show();
        QApplication::setActiveWindow(&tabs);
        size->setText(QStringLiteral("abc"));
        tabs.accept();
        QVERIFY(tabs.isVisible());
        QCOMPARE(tabs.tabWidget()->currentIndex(), 1);
        QVERIFY(size->edit()->hasFocus());
        auto message = size->findChild<QWidget*>(QStringLiteral("fieldMessage"));
        QVERIFY(message && message->isVisible());
        size->setText(QStringLiteral("3"));
        tabs.accept();
        QVERIFY(!tabs.isVisible());
    }
};

PLIB_WIDGET_TEST_MAIN(tst_boxedLineEdit)
#include "tst_boxedLineEdit.moc"
