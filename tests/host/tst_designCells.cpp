#include "DesignDesk.h"
#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <QAbstractItemView>
#include <QAction>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QToolTip>
#include <QWindow>

using namespace testsupport;

/// The cells of the page's table: editors, selection, widths, tool tips, marks.
class tst_designCells : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLanguage(English); }
    void init() { m_project = std::make_unique<HostProject>(QStringLiteral("slab")); }

    void editorsOpenAndClose()
    {
        DesignDesk desk(*m_project,
                        {record(-1, 1, 0), record(1, 2, 1), record(2, 0, 2), record(3, 4, 3)});
        const auto select = [&](int row, int column) {
            desk.table()->setCurrentCell(row, column);
            return desk.editors();
        };
        const auto again = [&] {
            Q_EMIT desk.table()->itemSelectionChanged();
            return desk.editors();
        };
        QCOMPARE(select(0, 2), QStringLiteral("0,2"));
        QCOMPARE(select(1, 0), QStringLiteral("1,0"));
        QCOMPARE(desk.table()->item(1, 0)->text(), QString()); // the combo box shows the text
        QCOMPARE(select(1, 3), QStringLiteral("1,3"));
        QCOMPARE(desk.table()->item(1, 0)->text(), QStringLiteral("1"));
        QCOMPARE(select(0, 0), QStringLiteral("1,3")); // the editor stays open
        QCOMPARE(select(3, 4), QStringLiteral("3,4"));
        QCOMPARE(again(), QString());
        QCOMPARE(again(), QStringLiteral("3,4"));
        desk.table()->cellWidget(3, 4)->setFocus();
        QCOMPARE(again(), QStringLiteral("3,4")); // the user has clicked in the editor
        QTest::keyClick(desk.table(), Qt::Key_Escape);
        QCOMPARE(desk.editors(), QString());
        QCOMPARE(select(3, 2), QStringLiteral("3,2"));
        // A row without design has no editor. The old editor is closed, but its cell is stored:
        // returning to this cell counts as a second selection.
        QCOMPARE(select(2, 2), QString());
        QCOMPARE(select(3, 2), QString());
        QCOMPARE(again(), QStringLiteral("3,2"));
        QCOMPARE(select(3, 1), QString());
        desk.table()->setCurrentItem(nullptr);
        QCOMPARE(desk.editors(), QString());
    }

    /// Sends clicks to the window, as the window system does.
    void editorAwayFromTheCurrentCell()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 1), record(2, 2, 2)});
        const auto click = [&desk](QWidget* widget) {
            QTest::mouseClick(desk.windowHandle(), Qt::LeftButton, {},
                              widget->mapTo(&desk, widget->rect().center()));
        };
        desk.table()->setCurrentCell(1, 0);
        desk.table()->setCurrentCell(0, 0);
        confirmGroups(QStringLiteral("3"));
        click(find<QPushButton>(desk, "buttonGroups"));
        QCOMPARE(desk.table()->currentIndex(), desk.table()->model()->index(1, 0));
        QCOMPARE(desk.groupCombo()->currentText(), QStringLiteral("3"));
        desk.table()->setCurrentCell(2, 2);
        desk.table()->setCurrentCell(0, 0);
        whenModal([](QWidget* dialog) {
            find<QLineEdit>(*dialog, "hio")->setText(QStringLiteral("33"));
            qobject_cast<QDialog*>(dialog)->accept();
        });
        click(desk.table()->cellWidget(2, 2));
        QVERIFY(desk.row(2).contains(QLatin1String("33.0")));
        QCOMPARE(desk.groups(), QStringLiteral("Remaining Groups|3|2"));
        QCOMPARE(desk.editors(), QStringLiteral("2,2"));
    }

    /// A wide page distributes its width among the columns, starting with those whose text wraps. A
    /// column that the user has resized keeps its width.
    void columnWidths()
    {
        DesignDesk desk(*m_project, {record(1, 0, 0)}); // the text in the cells is short
        const auto widths = [&desk](int width) {
            desk.resize(width, 500);
            QTest::qWait(0);
            QStringList texts;
            for (int column = 0; column < desk.table()->columnCount(); ++column)
                texts << QString::number(desk.table()->columnWidth(column));
            const int room = desk.table()->viewport()->width();
            return texts.join(QLatin1Char(' ')) +
                   (desk.table()->horizontalHeader()->length() == room ? QStringLiteral(" full")
                                                                       : QString());
        };
        widths(100);
        QVERIFY(desk.width() >= 890); // the minimum width of the page
        widths(1000);
        const int margin = 1000 - desk.table()->viewport()->width();
        QCOMPARE(widths(2 * 740 + margin), QStringLiteral("300 300 400 240 240 full"));
        QCOMPARE(widths(1000 + margin), QStringLiteral("202 202 270 163 163 full"));
        desk.table()->horizontalHeader()->resizeSection(2, 50);
        QCOMPARE(widths(2 * 540 + 50 + margin), QStringLiteral("300 300 50 240 240 full"));
        desk.table()->horizontalHeader()->resizeSection(0, 1000);
        QCOMPARE(widths(1000 + margin), QStringLiteral("1000 150 50 120 120"));
    }

    /// A wider page first widens the columns whose text wraps.
    void wrappedText()
    {
        VKD_P_DesignParameter page(m_project->doc(), m_project->doc(), nullptr, false, false);
        page.init();
        page.readZob(); // before the first show
        page.resize(1000, 500);
        page.show();
        const auto table = find<QTableWidget>(page, "table");
        QTRY_COMPARE(table->horizontalHeader()->length(), table->viewport()->width());
        const auto needed = [table](int column) {
            return table->sizeHintForIndex(table->model()->index(0, column)) + QSize(1, 1);
        };
        const std::vector<int> initial{150, 150, 200, 120, 120};
        QFont font = table->font();
        font.setPointSizeF(font.pointSizeF() * 2 * initial[2] / needed(2).width());
        table->setFont(font);
        table->item(0, 1)->setText(QStringLiteral("Three Layers"));
        const auto isWrapped = [&] {
            return table->rowHeight(0) > needed(2).height() + table->fontMetrics().height() / 2;
        };
        QVERIFY(isWrapped());
        double width = page.width() - table->viewport()->width();
        for (int column = 0; column < table->columnCount(); ++column)
            width += 1.1 * qMax(needed(column).width(), initial[std::size_t(column)]);
        page.resize(qRound(width), 500);
        QTRY_VERIFY(!isWrapped());
    }

    /// The tool tip of each cell shows the whole row, also over an editor, and fits on the screen.
    void rowToolTips()
    {
        std::vector<tagZOB_QUAD_RIM> records{record(-1, 1, 0)};
        for (int group = 100001; group < 101000; group += 2)
            records.push_back(record(group, 2, 1)); // a single row with very many groups
        DesignDesk desk(*m_project, records);
        const auto shown = [](QWidget* widget, const QPoint& point) {
            QHelpEvent help(QEvent::ToolTip, point, widget->mapToGlobal(point));
            QApplication::sendEvent(widget, &help);
            return QToolTip::text();
        };
        desk.table()->setCurrentCell(1, 3);
        QWidget* viewport = desk.table()->viewport();
        const QRect cell = desk.table()->visualItemRect(desk.table()->item(1, 2));
        const QString text = shown(viewport, cell.center());
        QVERIFY2(text.contains(QLatin1String(">Direction cross<")), qPrintable(text));
        QCOMPARE(shown(desk.table()->cellWidget(1, 3), {5, 5}), text);
        for (const QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == QLatin1String("qtooltip_label"))
                QVERIFY(widget->width() < widget->screen()->geometry().width());
        QVERIFY(shown(viewport, {5, 5}) != text);
        QToolTip::hideText();
    }

    /// A row loses its mark when it loses its last shared group. Delete clears the selected entry,
    /// also in the open list and on the buttons, but does not delete the row.
    void groupInTwoRows()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(3, 1, 1), record(1, 1, 2),
                                     record(3, 1, 3), record(3, 1, 4)});
        const auto notes = [&desk] {
            QStringList texts;
            for (int row = 0; row < desk.table()->rowCount(); ++row) {
                const QTableWidgetItem* cell = desk.table()->item(row, 0);
                texts << cell->toolTip().remove(QStringLiteral("Group 3: also in row "));
                if (cell->icon().isNull() != cell->toolTip().isEmpty() ||
                    cell->data(Qt::AccessibleDescriptionRole).toString() != cell->toolTip())
                    texts << QStringLiteral("sign without a text, or a text without a sign");
            }
            return texts.join(QLatin1Char('|'));
        };
        QCOMPARE(notes(), QStringLiteral("|4, 5||2, 5|2, 4"));
        desk.table()->setCurrentCell(1, 0);
        QCOMPARE(desk.groupCombo()->toolTip(), QStringLiteral("Group 3: also in row 4, 5"));
        // The editor covers the cell, so the editor itself shows the mark.
        QCOMPARE(desk.groupCombo()->parentWidget()->geometry(),
                 desk.table()->visualItemRect(desk.table()->item(1, 0)));
        desk.press("btnDown");
        QCOMPARE(notes(), QStringLiteral("||4, 5|3, 5|3, 4"));
        desk.keys({Qt::Key_F2});
        QTest::keyClick(desk.groupCombo(), Qt::Key_Delete);
        QVERIFY(desk.groupCombo()->toolTip().isEmpty());
        QCOMPARE(notes(), QStringLiteral("|||5|4"));
        desk.table()->setCurrentCell(4, 0);
        desk.groupCombo()->showPopup();
        QTest::keyClick(desk.groupCombo()->view(), Qt::Key_Delete);
        QCOMPARE(notes(), QStringLiteral("||||"));
        QVERIFY(!desk.groupCombo()->view()->isVisible());
        desk.table()->setCurrentCell(3, 0);
        QTest::keyClick(find<QPushButton>(desk, "buttonGroups"), Qt::Key_Delete);
        desk.table()->setCurrentCell(0, 0);
        desk.table()->setCurrentCell(1, 1);
        QCOMPARE(desk.groups(), QStringLiteral("Remaining Groups|1|None|None|None"));
    }

    /// An entry chosen in the list of types appears in the cell immediately, without another key
    /// press.
    void openListOfTypes_data()
    {
        const Columns<QString, int> row("action", "rows");
        row("another row is deleted", QString(), 2);
        row("another row is duplicated", "duplicateRows", 4);
        row("the page is written", "none", 3);
    }

    void openListOfTypes()
    {
        QFETCH(const QString, action);
        QFETCH(const int, rows);
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 1), record(2, 0, 2)});
        desk.table()->setCurrentCell(1, 1);
        desk.table()->setCurrentCell(2, 1, QItemSelectionModel::NoUpdate); // row 1 is selected
        QTest::keyClick(desk.table(), Qt::Key_F2);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        auto list = find<QComboBox>(desk, "cellCombo");
        QTest::keyClick(list, Qt::Key_Down);
        const QString chosen = list->currentText();
        if (action.isEmpty())
            QTest::keyClick(list, Qt::Key_Delete);
        else if (auto copying = desk.page->findChild<QAction*>(action))
            copying->trigger();
        QVERIFY(!find<QAction>(*desk.page, "undo")->text().contains(QLatin1String("Type")));
        desk.page->writeToZob();
        QCOMPARE(desk.table()->rowCount(), rows);
        QCOMPARE(desk.table()->item(action.isEmpty() ? 1 : 2, 1)->text(), chosen);
        QCOMPARE(m_project->records().back().group, 2);
        QVERIFY(m_project->records().back().type != 0);
    }

    /// Clicks with Ctrl add cells to the selection, even cells in which a click opens an editor.
    /// The button in the last of several selected cells edits all their rows.
    void selectingSeveralRows()
    {
        DesignDesk desk(*m_project, {record(-1, 1, 0), record(1, 2, 1), record(2, 2, 2)});
        QTableWidget* table = desk.table();
        QWindow* window = desk.windowHandle();
        const auto at = [&](int row) {
            return table->viewport()->mapTo(&desk,
                                            table->visualItemRect(table->item(row, 3)).center());
        };
        QTest::mousePress(window, Qt::LeftButton, {}, at(0));
        for (int row : {1, 2})
            for (int pixel : {0, 3})
                QTest::mouseMove(window, at(row) + QPoint(pixel, pixel));
        QTest::mouseRelease(window, Qt::LeftButton, {}, at(2));
        QTRY_COMPARE(desk.editors(), QStringLiteral("2,3"));
        QString title;
        whenModal([&title](QWidget* dialog) {
            title = find<QLabel>(*dialog, "rowTitle")->accessibleName();
            dialog->close();
        });
        QTest::mouseClick(window, Qt::LeftButton, {}, at(2));
        QCOMPARE(title, QStringLiteral("Rows 1-3: groups 1, 2 and remaining groups"));
        table->clearSelection();
        for (int row : {1, 2})
            QTest::mouseClick(window, Qt::LeftButton, Qt::ControlModifier, at(row));
        desk.press("btnDelete");
        QCOMPARE(desk.groups(), QStringLiteral("Remaining Groups"));
    }

private:
    std::unique_ptr<HostProject> m_project;
};

PLIB_WIDGET_TEST_MAIN(tst_designCells)
#include "tst_designCells.moc"
