#include "LanguageSupport.h"
#include "WidgetTestSupport.h"

#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Dialog.h>
#include <VKD_QT_MessageBox.h>
#include <VKD_QT_Ok.h>
#include <VKD_QT_OutlineStyle.h>
#include <VKD_QT_TabDialog.h>
#include <VKD_QT_TableWidget.h>
#include <VKD_QT_TableWidgetButton.h>
#include <vkd_qt_translateQt.h>
#include <VKD_QT_TreeWidget.h>
#include <VKD_QT_Widgets.h>
#include <vkd_qt_xmlpart.h>

#include <QHeaderView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTabWidget>
#include <QToolTip>
#include <QTranslator>
#include <QVBoxLayout>

using namespace testsupport;

/// Returns the maximum difference in lightness between the background and any pixel, from 0 to 255.
static int contrast(QWidget& widget)
{
    const int ground = widget.palette().color(QPalette::Base).lightness();
    const QImage picture = widget.grab().toImage();
    int greatest = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            greatest = qMax(greatest, qAbs(picture.pixelColor(x, y).lightness() - ground));
    return greatest;
}

/// Returns the width of a widget's first line of text, which in a group box is above the frame.
static int inkWidth(QWidget& widget)
{
    const QImage line =
        widget.grab(QRect(0, 0, widget.width(), widget.fontMetrics().height() - 2)).toImage();
    QVector<int> columns;
    for (int x = 0; x < line.width(); ++x)
        for (int y = 0; y < line.height(); ++y)
            if (line.pixel(x, y) != line.pixel(line.width() - 1, 0))
                columns << x;
    return columns.last() - columns.first();
}

class tst_widgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A dialog may grow while it is open, for example when it shows a row with more fields.
    void growingDialogStaysOnScreen()
    {
        VKD_QT_Dialog dialog;
        auto layout = new QVBoxLayout(&dialog);
        dialog.show();
        QVERIFY(!dialog.windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
        const QRect area = dialog.screen()->availableGeometry();
        dialog.move(area.bottomRight() - QPoint(dialog.width(), dialog.height()));
        for (int row = 0; row < 10; ++row)
            layout->addWidget(new QLineEdit);
        QTRY_VERIFY(dialog.height() > 200 && area.contains(dialog.frameGeometry()));
    }

    void dialogReopens()
    {
        VKD_QT_Dialog dialog;
        QSignalSpy reopened(&dialog, &VKD_QT_Dialog::isReOpen);
        for (int times = 1; times < 3; ++times) {
            QTimer::singleShot(0, &dialog, [&] { dialog.callDone(6); });
            QCOMPARE(dialog.exec(), 6);
            dialog.show();
            QCOMPARE(reopened.size(), times);
            QCOMPARE(reopened.last().first().toInt(), 6);
            dialog.hide();
            dialog.show();
            QCOMPARE(reopened.size(), times);
        }
    }

    /// The dialog does not close for picking if a subclass has kept it open or picking has been
    /// cancelled.
    void dialogDoesNotReopen()
    {
        struct : VKD_QT_Dialog
        {
            void done(int result) override
            {
                if (!staysOpen)
                    VKD_QT_Dialog::done(result);
            }
            bool staysOpen = true;
        } dialog;
        const QSignalSpy reopened(&dialog, &VKD_QT_Dialog::isReOpen);
        for (bool vetoed : {true, false}) {
            dialog.show();
            dialog.staysOpen = vetoed;
            dialog.callDone(5);
            QCOMPARE(dialog.isVisible(), vetoed);
            dialog.staysOpen = false;
            dialog.reject();
            dialog.show();
            QCOMPARE(reopened.size(), 0);
        }
    }

    /// The labels of the platform's buttons are German even if Qt's own strings are not. Qt's
    /// strings are translated only if the host has not installed a translation.
    void textsOfQtBelongToTheHost()
    {
        struct HostTexts : QTranslator
        {
            bool isEmpty() const override { return false; }
            QString translate(const char*, const char*, const char*, int) const override
            {
                return QStringLiteral("host");
            }
        } hostTexts;
        const auto texts = [] {
            QString no;
            whenModal([&no](QWidget* box) {
                no = qobject_cast<QMessageBox*>(box)->button(QMessageBox::No)->text();
                box->close();
            });
            VKD_QT_MessageBox::warning(nullptr, {}, {}, QMessageBox::No, 0, 0);
            return no + QLatin1Char(' ') + QCoreApplication::translate("QPlatformTheme", "Save");
        };
        setLanguage(German);
        QCOMPARE(texts(), QStringLiteral("&Nein Save"));
        QCoreApplication::installTranslator(&hostTexts);
        vkd_qt_translateQt();
        QCOMPARE(texts(), QStringLiteral("host host"));
        QCoreApplication::removeTranslator(&hostTexts);
        QCOMPARE(texts(), QStringLiteral("&Nein Save"));
        vkd_qt_translateQt();
        QCOMPARE(texts(), QStringLiteral("&Nein Speichern"));
        setLanguage(English);
        QCOMPARE(texts(), QStringLiteral("&No Save"));
    }

    void boxLeftByEscape()
    {
        const auto answer = [](Qt::Key key) {
            whenModal([key](QWidget* box) { QTest::keyClick(box, key); });
            return VKD_QT_MessageBox::warning(nullptr, QStringLiteral("t"), QStringLiteral("x"),
                                              QMessageBox::Yes, QMessageBox::No, 0);
        };
        QCOMPARE(answer(Qt::Key_Escape), int(QMessageBox::No)); // the safe answer
        QCOMPARE(answer(Qt::Key_Enter), int(QMessageBox::Yes));
        whenModal([](QWidget* box) { box->close(); });
        QCOMPARE(VKD_QT_MessageBox::warning(nullptr, QStringLiteral("t"), QStringLiteral("x"), {},
                                            {}, {}, 0, -1),
                 -1);
    }

    void comboKeepsItsState()
    {
        VKD_QT4_ComboBox combo(nullptr, "cbo");
        QCOMPARE(combo.writeXMLstring(), QString());
        combo.addEntry(QStringLiteral("four"), 4);
        combo.addEntry(QStringLiteral("minus one"), -1);
        combo.addEntry(QStringLiteral("seven"), 7);
        combo.addItems({QStringLiteral("1 < 2"), QStringLiteral("10"), QString()});
        const auto entryAfter = [&combo](const QString& stored) {
            combo.setCurrentIndex(1);
            combo.readXMLstring(stored);
            const QString entry = combo.currentText(), part = combo.writeXMLstring();
            combo.setCurrentIndex(0);
            combo.readXMLstring(vkd_qt_writeXMLpart(part, QStringLiteral("other")) + part);
            return combo.currentText() == entry ? entry : QStringLiteral("otherwise read again");
        };
        compareCases(entryAfter, R"(
<List_4>x</List_4><cbo>7</cbo><cb>4</cb> => seven
<cbo>1 &lt; 2</cbo> => 1 < 2
<cbo>10</cbo> => 10
<cbo>seven</cbo> => minus one
<cbo>5</cbo> => minus one
<cbo2>7</cbo2> => minus one
<cbo></cbo> =>
)");
    }

    void cutEntryHasAToolTip()
    {
        VKD_QT4_ComboBox combo(nullptr, "cbo");
        combo.addItems({QStringLiteral("an entry that is cut"), QStringLiteral("x")});
        combo.setPlaceholderText(QStringLiteral("a hint that is cut"));
        combo.resize(70, 30);
        const auto tipOf = [&combo](int index) {
            combo.setCurrentIndex(index);
            QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), combo.mapToGlobal(QPoint(1, 1)));
            QCoreApplication::sendEvent(&combo, &event);
            return QToolTip::text();
        };
        QCOMPARE(tipOf(-1) + tipOf(1), QString());
        QCOMPARE(tipOf(0), combo.itemText(0));
    }

    void tabDialogNotifiesItsPages()
    {
        VKD_QT_TabDialog dialog;
        QSignalSpy changed(&dialog, &VKD_QT_TabDialog::currentChanged);
        QWidgetList pages;
        for (const char* label : {"a", "b", "c"}) {
            pages << new QWidget;
            dialog.addTab(pages.last(), QLatin1String(label));
        }
        dialog.tabWidget()->setCurrentIndex(1);
        auto edit = new QLineEdit(pages[1]);
        QCOMPARE(changed.size(), 0);
        dialog.show();
        QCOMPARE(dialog.focusWidget(), edit);
        dialog.tabWidget()->setCurrentIndex(2);
        auto combo = new QComboBox(pages[2]);
        combo->addItem(QStringLiteral("x"));
        combo->show();
        combo->showPopup(); // the list is a window and therefore not in the dialog's tab order
        dialog.findChild<VKD_QT_Ok*>()->cmdCancel()->click();
        dialog.show(); // the same page as before
        QCOMPARE(changed.size(), 2);
        QCOMPARE(changed[0].first().value<QWidget*>(), pages[1]);
        QCOMPARE(changed[1].first().value<QWidget*>(), pages[2]);
        dialog.findChild<VKD_QT_Ok*>()->cmdOk()->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    /// A button ignores changes to other cells. Otherwise a change would read all cells of a column
    /// that has a button over each cell.
    void cellButtonPassesOverOtherCells()
    {
        struct Item : QTableWidgetItem
        {
            QVariant data(int role) const override
            {
                asked += role == Qt::DisplayRole;
                return QTableWidgetItem::data(role);
            }
            mutable int asked = 0;
        };
        QTableWidget table(2, 2);
        auto item = new Item;
        table.setItem(0, 1, item);
        const VKD_QT_TableWidgetButton button(&table, item, VKD_QT_TableWidgetButton::MarkOnly);
        item->asked = 0;
        for (const QPoint cell : {QPoint(0, 0), QPoint(1, 1)})
            table.setItem(cell.y(), cell.x(), new QTableWidgetItem(QStringLiteral("x")));
        QCOMPARE(item->asked, 0);
        item->setText(QStringLiteral("y"));
        QVERIFY(button.accessibleName().endsWith(QLatin1String(": y")));
    }

    void cellButtonShowsMarkAndFocus()
    {
        struct Style : QProxyStyle
        {
            void drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const override
            {
                focusFrames += element == PE_FrameFocusRect;
                QProxyStyle::drawPrimitive(element, option, painter, widget);
            }
            mutable int focusFrames = 0;
        } style;
        VKD_QT_TableWidgetButton button(nullptr, nullptr, VKD_QT_TableWidgetButton::MarkOnly);
        button.setStyle(&style);
        button.setPalette(QPalette(Qt::white));
        button.setFlat(true);
        QVERIFY(contrast(button) > 100);
        QCOMPARE(style.focusFrames, 0);
        button.show();
        QApplication::setActiveWindow(&button);
        button.setFocus();
        button.grab();
        QVERIFY(style.focusFrames > 0);
    }

    void titleOfABoxIsNotCut()
    {
        const QString title =
            QStringLiteral("Querschnitte in cm²/m nach Durchmesser und Abstand in mm");
        VKD_QT_Label label(title, nullptr);
        label.setAlignment(Qt::AlignTop);
        VKD_QT_GroupBox box(title, nullptr, "box");
        for (QWidget* widget : {static_cast<QWidget*>(&label), static_cast<QWidget*>(&box)}) {
            widget->setFont(QFont(QStringLiteral("DejaVu Sans"), 9)); // could truncate the m
            widget->resize(800, 80);
        }
        QCOMPARE(inkWidth(box), inkWidth(label));
    }

    /// In a dark palette, Fusion's own lines have almost the colour of the background.
    void emptyBoxesAndGridCanBeSeen()
    {
        QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
        dark.setColor(QPalette::Base, QColor(35, 35, 35));
        for (const QPalette& palette : {QPalette(QColor(239, 239, 239)), dark}) {
            VKD_QT_TreeWidget tree;
            (new QTreeWidgetItem(&tree))->setCheckState(0, Qt::Unchecked);
            VKD_QT_TableWidget table(2, 2);
            for (QAbstractItemView* view : {static_cast<QAbstractItemView*>(&tree),
                                            static_cast<QAbstractItemView*>(&table)}) {
                view->setPalette(palette);
                QVERIFY2(contrast(*view->viewport()) > 35, view->metaObject()->className());
            }
            VKD_QT_OutlineStyle style(QStringLiteral("fusion"));
            QCheckBox check;
            QRadioButton radio;
            for (QWidget* button : {static_cast<QWidget*>(&check), static_cast<QWidget*>(&radio)}) {
                button->setStyle(&style);
                button->setPalette(palette);
                QVERIFY2(contrast(*button) > 35, button->metaObject()->className());
            }
        }
    }
};

PLIB_WIDGET_TEST_MAIN(tst_widgets)
#include "tst_widgets.moc"
