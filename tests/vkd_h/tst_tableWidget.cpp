#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_H_LineEdit.h>
#include <VKD_H_TableItems.h>
#include <VKD_H_TableWidget.h>
#include <VKD_H_TableWidgetBox.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <VKD_QT4_ComboBox.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>

namespace {
const std::list<ComboList> Choices{{QStringLiteral("red"), 7}, {QStringLiteral("blue"), 9}};

/// Columns with the IDs 5 and 8: a text and a combo box.
class Table : public VKD_H_TableWidget
{
public:
    Table()
        : VKD_H_TableWidget(0, 2, nullptr, "table")
    {
        const QString text = QStringLiteral("header");
        setHorizontalHeaderItem(0, new VKD_H_TwHeaderItem(5, text, text, true, Qt::AlignCenter));
        setHorizontalHeaderItem(
            1, new VKD_H_TwHeaderComboBoxItem(8, Choices, text, text, true, Qt::AlignCenter));
        for (int row = 0; row < 3; ++row) {
            addNewRow(true);
            item(row, 0)->setText(QStringLiteral("t%1").arg(row));
            item(row, 1)->setText(QStringLiteral("red"));
        }
    }

    int idAt(int row) const
    {
        return dynamic_cast<VKD_H_TwSimpleComboBoxItem&>(*itemOnColId(row, 8)).getCurrentId();
    }

    QString firstColumn() const
    {
        QString all;
        for (int row = 0; row < rowCount(); ++row)
            all += item(row, 0)->text();
        return all;
    }
};
} // namespace

class tst_tableWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void escapeLeavesTheChoice()
    {
        Table table;
        table.show();
        const QRect cell = table.visualItemRect(table.item(1, 1));
        table.setCurrentCell(1, 1);
        QTest::keyClick(&table, Qt::Key_B); // first character of the other entry
        QCoreApplication::processEvents();
        QVERIFY(!table.findChild<VKD_QT4_ComboBox*>(QStringLiteral("cellCombo")));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::ControlModifier, cell.center());
        QCoreApplication::processEvents();
        QVERIFY(!table.findChild<VKD_QT4_ComboBox*>(QStringLiteral("cellCombo")));
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell.center());
        QCoreApplication::processEvents();
        auto combo = table.findChild<VKD_QT4_ComboBox*>(QStringLiteral("cellCombo"));
        QVERIFY(combo);
        QTRY_VERIFY(combo->view()->isVisible());
        QTest::keyClick(combo->view(), Qt::Key_Down);
        QTest::keyClick(combo->view(), Qt::Key_Escape);
        QTest::keyClick(combo, Qt::Key_Escape);
        QCOMPARE(table.idAt(1), 7);
    }

    void scatteredRowsAreDeleted()
    {
        Table table;
        for (int row = 3; row < 9; ++row) {
            table.addNewRow(true);
            table.item(row, 0)->setText(QString::number(row));
        }
        table.setCurrentCell(6, 1, QItemSelectionModel::NoUpdate);
        QSignalSpy counted(&table, &VKD_H_TableWidget::signal_rowCountChanged);
        for (int row : {8, 0, 4, 5, 2})
            table.setRangeSelected({row, 0, row, 1}, true);
        QVERIFY(table.isRowSelected(4) && !table.isRowSelected(3));
        QTest::keyClick(&table, Qt::Key_Delete);
        QCOMPARE(table.firstColumn(), QStringLiteral("t1367"));
        QCOMPARE(table.currentIndex(), table.model()->index(2, 1)); // moved up with its row
        QVERIFY(table.getSelectetRows().empty());
        QCOMPARE(counted.first().first().toInt(), 9);
        QCOMPARE(counted.last().last().toInt(), 4);
    }

    void rowsKeepTheirLooks()
    {
        Table table;
        table.addNewRow(true);
        const QVector<int> heights{100, 31, 62, 83};
        for (int row = 0; row < 4; ++row) {
            table.setRowHeight(row, heights[row]);
            table.setVerticalHeaderItem(row, new QTableWidgetItem(QString::number(row)));
        }
        table.setRowHidden(2, true);
        table.selectRow(0);
        table.deleteSelectedRows();
        for (int row = 0; row < 3; ++row) {
            QCOMPARE(table.verticalHeaderItem(row)->text(), QString::number(row + 1));
            QCOMPARE(table.isRowHidden(row), row == 1);
            table.setRowHidden(row, false);
            QCOMPARE(table.rowHeight(row), heights[row + 1]);
        }
    }

    /// After Tab and Enter the editor stays open and shows the reason, until the text is corrected.
    void refusedNumber()
    {
        Table table;
        const StructLineEdit distance = vkd_h_defaultStructLineEdit(1024);
        const QString text = QStringLiteral("cover");
        table.setHorizontalHeaderItem(
            0, new VKD_H_TwHeaderLineEditItem(5, distance, text, text, true, Qt::AlignRight));
        table.createEmptyItems(0);
        table.show();
        QApplication::setActiveWindow(&table);
        const auto editor = [&table] {
            QCoreApplication::processEvents(); // the view closes its editors later
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return table.findChild<VKD_H_LineEdit*>(QStringLiteral("cellEdit"));
        };
        for (Qt::Key end : {Qt::Key_Return, Qt::Key_Escape}) {
            table.editItem(table.item(0, 0));
            editor()->selectAll();
            QTest::keyClicks(editor(), QStringLiteral("-"));
            for (Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Enter}) {
                QTest::keyClick(editor(), key);
                QVERIFY(editor() && editor()->hasFocus());
                QVERIFY(!editor()->accessibleDescription().isEmpty());
            }
            if (end == Qt::Key_Return) {
                editor()->selectAll();
                QTest::keyClicks(editor(), QStringLiteral("30"));
            }
            QTest::keyClick(editor(), end);
            QVERIFY(!editor());
            auto number = dynamic_cast<VKD_H_TwSimpleLineEditItem*>(table.item(0, 0));
            QCOMPARE(number->getVal(nullptr), 0.03);
        }
    }

    /// Opens the menu, triggers an entry, and compares the menu and the resulting rows.
    void contextMenu()
    {
        Table table;
        const auto choose = [&table](int entry) {
            QStringList texts;
            QTimer::singleShot(0, &table, [&texts, entry] {
                auto menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                for (const QAction* action : menu->actions())
                    texts << QLatin1String(action->isEnabled() ? "" : "no ") + action->text();
                menu->actions().at(entry)->trigger();
                menu->close();
            });
            QContextMenuEvent opening(QContextMenuEvent::Keyboard, QPoint(), QPoint());
            QApplication::sendEvent(table.viewport(), &opening);
            return texts.join(QLatin1Char('|')) + QLatin1Char(' ') + table.firstColumn();
        };
        QCOMPARE(choose(1), QStringLiteral("no Kopieren|Alles auswählen||Neu|Löschen t0t1t2"));
        QCOMPARE(choose(4), QStringLiteral("Kopieren|Alles auswählen||Neu|Löschen "));
        QCOMPARE(choose(3), QStringLiteral("no Kopieren|Alles auswählen||Neu|Löschen "));
        QCOMPARE(table.rowCount(), 1);
        table.setContextmenueEnabled_new_del(false);
        table.selectRow(0);
        QTest::keyClick(&table, Qt::Key_Delete);
        QCOMPARE(table.rowCount(), 1);
        table.clearSelection();
        QCOMPARE(choose(0), QStringLiteral("no Kopieren|Alles auswählen "));
    }

    void buttonFollowsTheLanguage()
    {
        testsupport::setLanguage(testsupport::English);
        VKD_H_TableWidgetBox box(new VKD_H_TableWidget(1, 1), QString(), nullptr, "box");
        box.createDefaultLayout(true, false);
        box.addButton(VKD_H_TableWidgetBox::Delete, true);
        testsupport::setLanguage(testsupport::German);
        QCOMPARE(box.getButton(VKD_H_TableWidgetBox::Delete)->text(), QStringLiteral("Löschen"));
    }

    /// The text shown by a combo box over a cell, alone or within another widget, is copied.
    void copyOfCombos()
    {
        Table table;
        auto alone = new VKD_QT4_ComboBox(nullptr, "alone");
        auto frame = new QWidget;
        auto within = new VKD_QT4_ComboBox(frame, "within");
        alone->addItem(QStringLiteral("alone"));
        within->addItem(QStringLiteral("within"));
        table.setCellWidget(0, 1, alone);
        table.setCellWidget(1, 1, frame);
        table.setRangeSelected({0, 1, 1, 1}, true);
        table.copySelection();
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("alone\nwithin\n"));
    }

    void copyForSpreadsheets()
    {
        Table table;
        table.item(1, 0)->setText(QStringLiteral("two\nlines <\"b\">"));
        table.setRangeSelected({0, 0, 1, 0}, true);
        table.setRangeSelected({1, 1, 2, 1}, true);
        QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier | Qt::AltModifier);
        const QMimeData* copied = QApplication::clipboard()->mimeData();
        QCOMPARE(copied->text(), QStringLiteral("t0\t\n\"two\nlines <\"\"b\"\">\"\tred\n\tred\n"));
        QCOMPARE(copied->html(),
                 QStringLiteral("<table><tr><td>t0</td><td></td></tr><tr><td>two<br>lines "
                                "&lt;&quot;b&quot;&gt;</td><td>red</td></tr>"
                                "<tr><td></td><td>red</td></tr></table>"));
    }
};

PLIB_WIDGET_TEST_MAIN(tst_tableWidget)
#include "tst_tableWidget.moc"
