#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <vkd_a_barArea.h>
#include <VKD_A_BarDiameterCombo.h>
#include <vkd_a_ReinforcementCalculation.h>
#include <vkd_a_weldedFabric.h>
#include <VKD_H_LineEdit.h>
#include <vkd_h_units.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTabWidget>

#include <cmath>
#include <cstring>

using namespace testsupport;

namespace {
constexpr float NotSet = -99999.0F;
constexpr int CommonBars = 0; // the scratch store, which does not contain bars

/// The parts of the dialog.
struct Parts
{
    explicit Parts(QWidget* dialog)
        : window(dialog)
        , diameter(find<VKD_A_BarDiameterCombo>(*dialog, "diameter"))
        , arrangement(find<QComboBox>(*dialog, "arrangement"))
        , spacing(find<VKD_H_LineEdit>(*dialog, "spacing"))
        , number(find<VKD_H_LineEdit>(*dialog, "number"))
        , table(find<QTableWidget>(*dialog, "table"))
    {
    }

    QString text(const char* name) const { return find<QLabel>(*window, name)->text(); }
    QPushButton* ok() const { return button(QDialogButtonBox::Ok); }
    QPushButton* button(QDialogButtonBox::StandardButton which) const
    {
        return window->findChild<QDialogButtonBox*>()->button(which);
    }
    void type(QLineEdit* field, const QByteArray& text) const
    {
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, QString::fromLatin1(text));
    }
    void click(int row, int column) const
    {
        table->scrollTo(table->model()->index(row, column));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualItemRect(table->item(row, column)).center());
    }

    QWidget* window;
    VKD_A_BarDiameterCombo* diameter;
    QComboBox* arrangement;
    VKD_H_LineEdit* spacing;
    VKD_H_LineEdit* number;
    QTableWidget* table;
};

/// Returns the value after a dialog in which `act` was called; `act` must close it.
float calculate(float value, float barDiameter, const std::function<void(const Parts&)>& act)
{
    bool isDone = false;
    whenModal([&](QWidget* dialog) {
        act(Parts(dialog));
        isDone = true;
        if (dialog->isVisible()) {
            QTest::qFail("the dialog is still open", __FILE__, __LINE__);
            dialog->close();
        }
    });
    vkd_a_ReinforcementCalculation(nullptr, CommonBars, 1, value, barDiameter);
    return isDone ? value : float(qQNaN());
}
} // namespace

class TestReinforcementCalculation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setLanguage(English); }

    void printedTables()
    {
        const struct
        {
            VkdBarLayout layout; // mm, m, bars
            double area;
        } rows[] = {{{10, 0.150, 1}, 5.24},
                    {{12, 0.100, 1}, 11.31},
                    {{8, 0.200, 1}, 2.51},
                    {{28, 0.075, 1}, 82.10},
                    {{6, 0.250, 1}, 1.13},
                    {{16, 0.125, 2}, 32.17},
                    {{40, 0.050, 1}, vkd_h_plausibleRange(1021).maximum}};
        for (const auto& [layout, area] : rows) {
            QCOMPARE(vkd_a_barFault(layout), VkdBarFault::None);
            QCOMPARE(vkd_a_roundedArea(vkd_a_barArea(layout)), area);
            QVERIFY(std::fabs(vkd_a_barArea(layout) - area) <= 0.005);
            QCOMPARE(vkd_a_barSpacing(area, layout.diameter, layout.barsPerPlace), layout.spacing);
        }
    }

    void weldedFabrics()
    {
        QStringList areas; // in mm²/m
        for (const VkdWeldedFabric& fabric : vkd_a_weldedFabrics())
            areas << QStringLiteral("%1 %2 %3")
                         .arg(QLatin1String(fabric.name))
                         .arg(qRound(100.0 * vkd_a_barArea(fabric.along)))
                         .arg(qRound(100.0 * vkd_a_barArea(fabric.across)));
        QCOMPARE(areas.join(QLatin1Char('|')),
                 QStringLiteral("Q188A 188 188|Q257A 257 257|Q335A 335 335|Q424A 424 424|"
                                "Q524A 524 524|Q636A 636 628|R188A 188 113|R257A 257 113|"
                                "R335A 335 113|R424A 424 201|R524A 524 201"));
    }

    void begins_data()
    {
        // begin: diameter, spacing, number, row, column, current value
        const Columns<float, float, QString> row("value", "barDiameter", "begin");
        const float nan = float(qQNaN());
        const QString usual = QStringLiteral("Ø10 150.0 6.67 2 4 not set");
        row("not set", NotSet, NotSet, usual);
        row("no numbers", nan, nan, usual);
        row("infinite", float(qInf()), 1e30F, usual);
        row("value and bar", 11.31F, 12.0F, "Ø12 100.0 10 3 2 11.31 cm²/m (chosen: 100 %)");
        row("bar of another project", 9.0F, 12.7F,
            "Ø12.7 140.8 7.1 3 4 9.00 cm²/m (chosen: 100 %)");
        row("far too much", 900.0F, 10.0F, "Ø10 0.9 1111.11 2 0 900.00 cm²/m");
    }

    void begins()
    {
        QFETCH(const float, value);
        QFETCH(const float, barDiameter);
        QString begin;
        const float after = calculate(value, barDiameter, [&begin](const Parts& parts) {
            begin =
                QStringLiteral("%1 %2 %3 %4 %5 %6")
                    .arg(parts.diameter->currentText(), parts.spacing->text(), parts.number->text())
                    .arg(parts.table->currentRow())
                    .arg(parts.table->currentColumn())
                    .arg(parts.text("present"));
            parts.type(parts.spacing, "77");
            QTest::mouseClick(parts.button(QDialogButtonBox::Cancel), Qt::LeftButton);
        });
        QTEST(begin, "begin");
        QCOMPARE(std::memcmp(&after, &value, sizeof value), 0); // Cancel
    }

    void spacingAndNumber()
    {
        const float value = calculate(NotSet, 12.0F, [](const Parts& parts) {
            parts.type(parts.spacing, "125");
            QCOMPARE(parts.number->text(), QStringLiteral("8"));
            QCOMPARE(parts.text("area"), QStringLiteral("9.05 cm²/m"));
            parts.type(parts.number, "1");
            QCOMPARE(parts.spacing->text(), QStringLiteral("1000.0"));
            parts.type(parts.number, "5");
            QCOMPARE(parts.spacing->text(), QStringLiteral("200.0"));
            QTest::keyClick(parts.arrangement, Qt::Key_Down); // pairs preserve the spacing
            QCOMPARE(parts.number->text(), QStringLiteral("10"));
            QCOMPARE(parts.spacing->text(), QStringLiteral("200.0"));
            parts.type(parts.number, "8");
            QCOMPARE(parts.spacing->text(), QStringLiteral("250.0"));
            parts.type(parts.number, "10");
            QCOMPARE(parts.table->item(3, 2)->text(), QStringLiteral("22.62"));
            QTest::keyClick(parts.diameter, Qt::Key_Up);
            QTest::keyClick(parts.spacing, Qt::Key_Return);
        });
        QCOMPARE(value, 7.85F);
    }

    void impossibleInput()
    {
        const float value = calculate(5.0F, 10.0F, [](const Parts& parts) {
            for (const char* text : {"0", "", "9.9", "1.2.3", "-5", "."}) {
                parts.type(parts.spacing, "150");
                QTest::keyClick(parts.spacing, Qt::Key_Tab); // restores the value
                QVERIFY(parts.ok()->isEnabled());
                QCOMPARE(parts.text("note"), QString());
                parts.type(parts.spacing, text);
                QVERIFY2(!parts.ok()->isEnabled(), text);
                QVERIFY2(!parts.text("note").isEmpty(), text);
                QTest::keyClick(parts.spacing, Qt::Key_Return);
                QVERIFY2(parts.window->isVisible(), text);
            }
            parts.type(parts.number, "40"); // possible, but the bars are close together
            QVERIFY(parts.ok()->isEnabled());
            QVERIFY(parts.text("note").contains(QLatin1String("15 mm is below 21 mm")));
            QTest::mouseClick(parts.ok(), Qt::LeftButton);
        });
        QCOMPARE(value, 31.42F);
    }

    void layers_data()
    {
        // indexes into the lists; -1 means no second layer
        const Columns<int, int, int, QByteArray, QString> row("arrangement", "second", "aggregate",
                                                              "spacing", "result");
        row("two layers", 0, 0, 1, "100", "13.09 cm²/m");
        row("fabric", 2, -1, 1, "", "1.88 cm²/m");
        row("fabric across, and bars", 3, 0, 1, "", "7.12 cm²/m");
        row("pairs, too tight", 1, -1, 1, "40",
            "39.27 cm²/m The clear distance of 20 mm is below 21 mm (EN 1992-1-1, 8.2).");
        row("pairs, fine aggregate", 1, -1, 0, "40", "39.27 cm²/m");
        row("pairs that overlap", 1, -1, 1, "20",
            QStringLiteral("\u2013 The bars overlap: the spacing has to be greater than 20 mm."));
    }

    void layers()
    {
        QFETCH(const int, arrangement);
        QFETCH(const int, second);
        QFETCH(const int, aggregate);
        QFETCH(const QByteArray, spacing);
        QString result;
        calculate(NotSet, 10.0F, [&](const Parts& parts) {
            find<QComboBox>(*parts.window, "aggregate")->setCurrentIndex(aggregate);
            parts.arrangement->setCurrentIndex(arrangement);
            if (!spacing.isEmpty())
                parts.type(parts.spacing, spacing);
            if (second >= 0) {
                find<QCheckBox>(*parts.window, "hasSecond")->click();
                find<QComboBox>(*parts.window, "arrangement2")->setCurrentIndex(second);
            }
            result = (parts.text("area") + QLatin1Char(' ') + parts.text("note")).trimmed();
            QTest::keyClick(parts.window, Qt::Key_Escape);
        });
        QTEST(result, "result");
    }

    /// The expected values were calculated by hand from Table 3.1 and the equations of EN 1992-1-1.
    void minimumOfASlab_data()
    {
        const Columns<QByteArray, QByteArray, bool, QByteArray, float> row(
            "depth", "concrete", "isSecondary", "principal", "area");
        row("usual", "200", "C30/37", false, "", 3.02F); // 0.26 * 2.8965 / 500 * 2000 = 3.0123
        row("lower limit", "200", "C12/15", false, "", 2.60F);   // 0.0013 * 2000
        row("high strength", "200", "C55/67", false, "", 4.39F); // 2.12 * ln 7.3 = 4.2143
        row("secondary", "200", "C30/37", true, "10", 2.00F);
        row("secondary without principal", "200", "C30/37", true, "", 0.61F);
    }

    void minimumOfASlab()
    {
        QFETCH(const QByteArray, depth);
        QFETCH(const QByteArray, concrete);
        QFETCH(const bool, isSecondary);
        QFETCH(const QByteArray, principal);
        const float value = calculate(7.0F, 10.0F, [&](const Parts& parts) {
            parts.window->findChild<QTabWidget*>()->setCurrentIndex(1);
            QVERIFY(!parts.ok()->isEnabled()); // the effective depth is missing
            parts.type(find<QLineEdit>(*parts.window, "depth"), depth);
            find<QComboBox>(*parts.window, "concrete")->setCurrentText(QLatin1String(concrete));
            find<QComboBox>(*parts.window, "direction")->setCurrentIndex(isSecondary);
            if (!principal.isEmpty())
                parts.type(find<QLineEdit>(*parts.window, "principal"), principal);
            QTest::mouseClick(parts.ok(), Qt::LeftButton);
        });
        QTEST(value, "area");
    }

    void table()
    {
        const float value = calculate(NotSet, 12.7F, [](const Parts& parts) {
            QCOMPARE(parts.table->item(1, 6)->text(), QStringLiteral("2.51"));
            QVERIFY(parts.table->horizontalHeader()->minimumSectionSize() >
                    parts.table->fontMetrics().horizontalAdvance(QStringLiteral("125.66")));
            parts.click(3, 4); // the marked cell, which is nearest to 12.7/150
            QCOMPARE(parts.diameter->getCurrent(), 12.0F);
            parts.click(1, 6);
            QCOMPARE(parts.spacing->text(), QStringLiteral("200.0"));
            QTest::keyClick(parts.table, Qt::Key_Down);
            QTest::keyClick(parts.table, Qt::Key_Right);
            QCOMPARE(parts.diameter->getCurrent(), 10.0F);
            QCOMPARE(parts.number->text(), QStringLiteral("4"));
            parts.type(parts.spacing, "270"); // marks the nearest cell
            QCOMPARE(parts.table->currentColumn(), 7);
            QCOMPARE(parts.spacing->getVal(), 0.27);
            QTest::mouseClick(parts.ok(), Qt::LeftButton);
        });
        QCOMPARE(value, 2.91F);
    }

    /// OK without a change preserves a value that the bars only approximate.
    void unchanged()
    {
        const auto after = [](Qt::Key key, float value) {
            return calculate(value, 10.0F,
                             [key](const Parts& parts) { QTest::keyClick(parts.window, key); });
        };
        const float value = std::nextafter(5.24F, 6.0F);
        QVERIFY(after(Qt::Key_Return, value) == value); // an exact comparison
        QVERIFY(after(Qt::Key_Escape, value) == value);
        QVERIFY(after(Qt::Key_Return, NotSet) == 5.24F);
    }
};

PLIB_WIDGET_TEST_MAIN(TestReinforcementCalculation)
#include "tst_reinforcementCalculation.moc"
