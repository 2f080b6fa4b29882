#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_TabDialog.h>
#include <VKD_QT_TableWidget.h>
#include <VKD_QT_TableWidgetButton.h>
#include <vkd_qt_xmlpart.h>

#include <QPushButton>
#include <QTabWidget>
#include <QWheelEvent>

using namespace testsupport;

class tst_widgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialogComesBackFromADetour()
    {
        VKD_QT_Dialog dialog;
        QSignalSpy reopened(&dialog, &VKD_QT_Dialog::isReOpen);
        dialog.show();
        dialog.reject();
        dialog.show(); // was not away for a detour
        QCOMPARE(reopened.size(), 0);
        for (int times = 1; times < 3; ++times) {
            QTimer::singleShot(0, &dialog, [&] { dialog.callDone(6); });
            QCOMPARE(dialog.exec(), 6);
            dialog.show();
            QCOMPARE(reopened.size(), times);
            QCOMPARE(reopened.last().first().toInt(), 6);
        }
    }

    void boxLeftByEscape()
    {
        const auto answer = [](Qt::Key key) {
            whenModal([key](QWidget* box) { QTest::keyClick(box, key); });
            return VKD_QT_MessageBox::warning(nullptr, QStringLiteral("t"), QStringLiteral("x"),
                                              QMessageBox::Yes, QMessageBox::No, 0);
        };
        QCOMPARE(answer(Qt::Key_Escape), 0); // and not No, which Qt would press
        QCOMPARE(answer(Qt::Key_Enter), int(QMessageBox::Yes));
        whenModal([](QWidget* box) { box->close(); });
        QCOMPARE(VKD_QT_MessageBox::warning(nullptr, QStringLiteral("t"), QStringLiteral("x"), {},
                                            {}, {}, 0, -1),
                 -1);
    }

    void okInTheLanguageOfTheDesktop()
    {
        QStringList cancel;
        for (int language : {0, 1}) {
            setLanguage(language);
            const VKD_QT_Ok row(nullptr, 3, "okayandcancelbutton");
            QVERIFY(row.cmdOk()->isDefault());
            cancel << row.cmdCancel()->text();
        }
        QCOMPARE(cancel.join(QLatin1Char('/')).remove(QLatin1Char('&')),
                 QStringLiteral("Abbrechen/Cancel"));
        QVERIFY(!VKD_QT_Ok(nullptr, 1, "").cmdCancel());
    }

    void wheelOverACombo()
    {
        QWidget window;
        VKD_QT4_ComboBox combo(&window, "combo");
        QWidget other(&window);
        other.setFocusPolicy(Qt::StrongFocus);
        for (int id : {3, 4, 5})
            combo.addEntry(QString::number(id), id);
        window.show();
        window.activateWindow();
        const auto idAfterTheWheel = [&] {
            QWheelEvent wheel({5, 5}, combo.mapToGlobal(QPoint(5, 5)), {}, {0, -120}, Qt::NoButton,
                              Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&combo, &wheel);
            return combo.getCurrentId();
        };
        other.setFocus();
        QCOMPARE(idAfterTheWheel(), 3);
        combo.setFocus();
        QTRY_VERIFY(combo.hasFocus());
        QCOMPARE(idAfterTheWheel(), 4);
        combo.addItem(QStringLiteral("without an id"));
        combo.setCurrentIndex(3);
        QCOMPARE(combo.getCurrentId(), VKD_QT4_ComboBox::NoId);
    }

    void comboKeepsItsState_data()
    {
        const Columns<QString, int> row("stored", "entry");
        row("id among other parts", "<List_4>x</List_4><cbo>7</cbo><cb>4</cb>", 2);
        row("text of an entry without id", "<cbo>1 &lt; 2</cbo>", 3);
        row("number as a text", "<cbo>10</cbo>", 4);
        row("text of an entry with an id", "<cbo>seven</cbo>", 1);
        row("unknown id", "<cbo>5</cbo>", 1);
        row("other tag", "<cbo2>7</cbo2>", 1);
        row("empty text", "<cbo></cbo>", 5);
        row("no parts", "7", 1);
    }

    void comboKeepsItsState()
    {
        QFETCH(const QString, stored);
        QFETCH(const int, entry);
        VKD_QT4_ComboBox combo(nullptr, "cbo");
        QCOMPARE(combo.writeXMLstring(), QString());
        combo.addEntry(QStringLiteral("four"), 4);
        combo.addEntry(QStringLiteral("minus one"), -1);
        combo.addEntry(QStringLiteral("seven"), 7);
        combo.addItems({QStringLiteral("1 < 2"), QStringLiteral("10"), QString()});
        combo.setCurrentIndex(1);
        combo.readXMLstring(stored);
        QCOMPARE(combo.currentIndex(), entry);
        const QString part = combo.writeXMLstring();
        combo.setCurrentIndex(0);
        combo.readXMLstring(vkd_qt_writeXMLpart(part, QStringLiteral("other")) + part);
        QCOMPARE(combo.currentIndex(), entry);
    }

    void comboShowsPictures()
    {
        VKD_QT4_ComboBox combo;
        QPixmap picture(60, 12);
        picture.fill(Qt::black);
        const int narrow = combo.iconSize().width();
        combo.addItem(picture, QStringLiteral("dashed"), 2);
        QCOMPARE(combo.getCurrentId(), 2);
        QVERIFY(combo.iconSize().width() == 60 && narrow < 60);
    }

    void tabDialogTellsItsPages()
    {
        VKD_QT_TabDialog dialog;
        QSignalSpy changed(&dialog, &VKD_QT_TabDialog::currentChanged);
        QWidgetList pages;
        for (const char* label : {"a", "b", "c"}) {
            pages << new QWidget;
            dialog.addTab(pages.last(), QLatin1String(label));
        }
        dialog.tabWidget()->setCurrentIndex(1);
        QCOMPARE(changed.size(), 0);
        dialog.show();
        dialog.tabWidget()->setCurrentIndex(2);
        dialog.okRow()->cmdCancel()->click();
        dialog.show(); // the same page as before
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed[0].first().value<QWidget*>(), pages[1]);
        QCOMPARE(changed[1].first().value<QWidget*>(), pages[2]);
        dialog.okRow()->cmdOk()->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void cellButtonShowsThePresentText()
    {
        QTableWidget table(2, 1);
        table.setItem(1, 0, new QTableWidgetItem);
        table.setItem(0, 0, new QTableWidgetItem(QStringLiteral("x")));
        VKD_QT_TableWidgetButton button(&table, table.item(0, 0),
                                        VKD_QT_TableWidgetButton::MarkBeside);
        const int narrow = button.sizeHint().width();
        table.item(0, 0)->setText(QStringLiteral("a much longer text"));
        QVERIFY(button.sizeHint().width() > narrow);
        table.removeRow(0); // the cell has gone before its button
        table.item(0, 0)->setText(QStringLiteral("a text that is longer still"));
        button.show();
        button.repaint();
        QVERIFY(button.sizeHint().width() <= narrow);
    }

    void rowsOfASelection()
    {
        VKD_QT_TableWidget table(6, 2);
        QCOMPARE(table.getSelectetRows(), std::set<int>());
        table.setRangeSelected({1, 0, 2, 0}, true);
        table.setRangeSelected({2, 1, 4, 1}, true);
        QCOMPARE(table.getSelectetRows(), (std::set<int>{1, 2, 3, 4}));
        QVERIFY(table.isRowSelected(4));
        QVERIFY(!table.isRowSelected(5));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_widgets)
#include "tst_widgets.moc"
