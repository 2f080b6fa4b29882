#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_H_BoxedLineEdit.h>
#include <VKD_H_Dialog.h>
#include <VKD_H_LineEdit.h>
#include <VKD_H_TabDialog.h>
#include <VKD_QT_Layouts.h>

#include <QClipboard>
#include <QTabBar>
#include <QTabWidget>

using namespace testsupport;

namespace {

StructBoxedEdit fontSize(int flags = StructBoxedEdit::EmptyIsDefault)
{
    StructBoxedEdit description;
    description.label = QStringLiteral("&Font Size (mm) : ");
    description.edit.minimum = 1.0;
    description.edit.maximum = 999.0;
    description.edit.value = 2.0;
    description.edit.emptied = 3.0;
    description.edit.flags = flags;
    return description;
}

/// A dialog with the tested field, followed by another field.
struct Dialog
{
    explicit Dialog(int flags = StructBoxedEdit::EmptyIsDefault)
    {
        StructBoxedEdit description = fontSize(flags); // destroyed after construction
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

    void emptied()
    {
        const auto after = [](int flags, Qt::Key key) { // both texts
            Dialog dialog(flags);
            dialog.size->setVal(7.0);
            dialog.type("");
            QTest::keyClick(dialog.size->edit(), key);
            return QStringLiteral("%1 %2").arg(dialog.size->getText(), dialog.size->edit()->text());
        };
        const int isDefault = StructBoxedEdit::EmptyIsDefault;
        QCOMPARE(after(isDefault, Qt::Key_Shift), QStringLiteral("7 ")); // during typing
        QCOMPARE(after(isDefault, Qt::Key_Tab), QStringLiteral("3 3"));
        QCOMPARE(after(isDefault, Qt::Key_Escape), QStringLiteral("7 7"));
        QCOMPARE(after(0, Qt::Key_Tab), QStringLiteral("7 "));
        QCOMPARE(after(StructLineEdit::EmptyAllowed, Qt::Key_Tab), QStringLiteral(" "));
        const Dialog dialog;
        QVERIFY(dialog.size->edit()->placeholderText().startsWith(QLatin1Char('3')));
    }

    void textsFromOutside()
    {
        Dialog dialog;
        QSignalSpy changed(dialog.size, &VKD_H_BoxedLineEdit::valueChanged);
        for (const char* text : {"2,5", " 2,5", "2.50"}) {
            dialog.size->setText(QLatin1String(text));
            QTest::keyClick(dialog.size->edit(), Qt::Key_Tab);
            QCOMPARE(dialog.size->getText(), QLatin1String(text));
            QCOMPARE(dialog.size->edit()->text(), QLatin1String(text));
            dialog.size->setFocus();
            QTest::keyClicks(dialog.size->edit(), QStringLiteral("x"));
            QCOMPARE(dialog.size->getText(), QLatin1String(text)); // still the last accepted text
            QTest::keyClick(dialog.size->edit(), Qt::Key_Escape);
        }
        for (const char* text : {"abc", "0,5", "1000"}) {
            dialog.size->setText(QLatin1String(text));
            QCOMPARE(dialog.size->getText(), QLatin1String(text));
            QVERIFY(!dialog.size->edit()->refusal().isEmpty());
            QTest::keyClick(dialog.size->edit(), Qt::Key_Escape);
            QCOMPARE(dialog.size->getText().toDouble(), 2.5);
        }
        dialog.size->setText(QString());
        QCOMPARE(dialog.size->getText(), QStringLiteral("3"));
        QCOMPARE(changed.size(), 0);
    }

    void pageWithARefusedNumber()
    {
        VKD_H_TabDialog tabs;
        StructBoxedEdit description = fontSize();
        auto size = new VKD_H_BoxedLineEdit(nullptr, &description, "size");
        tabs.addTab(new QLineEdit, QStringLiteral("&first"));
        tabs.addTab(size, QStringLiteral("second"));
        tabs.show();
        QApplication::setActiveWindow(&tabs);
        size->setText(QStringLiteral("abc"));
        tabs.accept();
        QVERIFY(tabs.isVisible() && size->edit()->hasFocus());
        QCOMPARE(tabs.tabWidget()->currentIndex(), 1);
        // The user cannot switch to another tab either.
        QTabBar* bar = tabs.tabWidget()->tabBar();
        const auto tryAll = [&] {
            QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(0).center());
            const int byMouse = tabs.tabWidget()->currentIndex();
            tabs.tabWidget()->setCurrentIndex(1);
            QTest::keyClick(bar, Qt::Key_Left);
            const int byArrow = tabs.tabWidget()->currentIndex();
            tabs.tabWidget()->setCurrentIndex(1);
            QTest::keyClick(tabs.tabWidget(), Qt::Key_Backtab, Qt::ControlModifier);
            const int byTab = tabs.tabWidget()->currentIndex();
            tabs.tabWidget()->setCurrentIndex(1);
            QTest::keyClick(tabs.windowHandle(), Qt::Key_F, Qt::AltModifier);
            return QString::number(byMouse) + QString::number(byArrow) + QString::number(byTab) +
                   QString::number(tabs.tabWidget()->currentIndex());
        };
        QCOMPARE(tryAll(), QStringLiteral("1111"));
        QVERIFY(size->edit()->hasFocus());
        size->setVal(3.0);
        QCOMPARE(tryAll(), QStringLiteral("0000"));
        size->setText(QStringLiteral("abc"));
        tabs.reject();
        QVERIFY(!tabs.isVisible());
    }
};

PLIB_WIDGET_TEST_MAIN(tst_boxedLineEdit)
#include "tst_boxedLineEdit.moc"
