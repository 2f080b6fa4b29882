#include "WidgetTestSupport.h"

#include <VKD_QT_Layouts.h>
#include <VKD_QT_RadioButtonGroup.h>

#include <QLineEdit>
#include <QRadioButton>

namespace {
std::vector<StructRadioButtonGrup> entries(int count, int withWidget = -1)
{
    std::vector<StructRadioButtonGrup> items;
    items.reserve(size_t(count));
    for (int i = 0; i < count; ++i)
        items.push_back({-1, QStringLiteral("Entry %1").arg(i), {}, {}, int(i == withWidget)});
    return items;
}

/// A window with a radio group, whose entry 1 has a field, and with fields before and after the
/// group.
struct Page
{
    explicit Page(const std::vector<StructRadioButtonGrup>& items = entries(4, 1))
        : before(new QLineEdit(&window))
        , group(new VKD_QT_RadioButtonGroup(QStringLiteral("Scale"), items, &window, "scale"))
        , behind(new QLineEdit(&window))
        , own(new QLineEdit)
    {
        auto layout = new VKD_QT_VBoxLayout(&window);
        for (QWidget* widget : {static_cast<QWidget*>(before), static_cast<QWidget*>(group),
                                static_cast<QWidget*>(behind)})
            layout->addWidget(widget);
        group->setWidget(1, own);
        group->init(items);
        window.show();
        QApplication::setActiveWindow(&window);
        before->setFocus();
    }

    QRadioButton* radio(int entry) const
    {
        return window.findChild<QRadioButton*>(QStringLiteral("scale_%1").arg(entry));
    }

    static void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    QWidget window;
    QLineEdit* before;
    VKD_QT_RadioButtonGroup* group;
    QLineEdit* behind;
    QLineEdit* own;
};
} // namespace

class tst_radioButtonGroup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choiceOfTheUser()
    {
        const Page page;
        QSignalSpy told(page.group, &VKD_QT_RadioButtonGroup::buttWasClicked);
        QCOMPARE(page.group->selectedButton(), -1);
        QTest::mouseClick(page.radio(0), Qt::LeftButton, {}, {8, page.radio(0)->height() / 2});
        QCOMPARE(told.takeFirst().first().toInt(), 0);
        for (int none : {2, -1, 4}) // set programmatically
            page.group->setButton(none);
        QCOMPARE(told.size(), 0);
        QCOMPARE(page.group->selectedButton(), 2);
        page.group->getRadioButton(2)->click(); // already checked
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.takeFirst().first().toInt(), 2);
        page.radio(2)->setFocus();
        Page::key(Qt::Key_Down);
        QCOMPARE(told.takeFirst().first().toInt(), 3);
        QCOMPARE(page.group->selectedButton(), 3);
    }

    void oneTabStop()
    {
        const Page page;
        page.group->setButton(2);
        QWidgetList stops;
        for (int i = 0; i < 4; ++i) {
            stops << QApplication::focusWidget();
            Page::key(Qt::Key_Tab);
        }
        QCOMPARE(stops, (QWidgetList{page.before, page.own, page.radio(2), page.behind}));
        QCOMPARE(page.group->selectedButton(), 2); // the Tab key only passed through the field
    }

    void usingAWidgetChoosesItsEntry()
    {
        const Page page;
        QSignalSpy told(page.group, &VKD_QT_RadioButtonGroup::buttWasClicked);
        const auto press = [](Qt::Key code) { return [code] { Page::key(code); }; };
        const auto isChosenBy = [&](const std::function<void()>& use) {
            page.group->setButton(0);
            told.clear();
            page.own->setFocus();
            use();
            const int chosen = page.group->selectedButton();
            return chosen == told.size() && page.own->hasFocus() ? chosen : -1;
        };
        for (Qt::Key use : {Qt::Key_5, Qt::Key_Delete})
            QCOMPARE(isChosenBy(press(use)), 1);
        for (Qt::Key none : {Qt::Key_Return, Qt::Key_Shift, Qt::Key_F1})
            QCOMPARE(isChosenBy(press(none)), 0);
        QCOMPARE(isChosenBy([&] { QTest::mouseClick(page.own, Qt::LeftButton); }), 1);
    }

    void places_data()
    {
        const Columns<Qt::Orientation, int, QString> row("orientation", "count", "rows");
        row("row", Qt::Horizontal, -1, "01234");
        row("rows of 3", Qt::Horizontal, 3, "012/34");
        row("column", Qt::Vertical, -1, "0/1/2/3/4");
        row("columns of 3", Qt::Vertical, 3, "03/14/2");
    }

    void places()
    {
        QFETCH(const Qt::Orientation, orientation);
        QFETCH(const int, count);
        VKD_QT_RadioButtonGroup group({}, entries(5, 4), nullptr, "g", orientation, count);
        auto own = new QLineEdit(&group);
        group.setWidget(4, own);
        group.show();
        QMap<int, QMap<int, QString>> entryAt; // keyed by y and x
        for (int entry = 0; entry < 5; ++entry) {
            const QRect place = group.getRadioButton(entry)->geometry();
            entryAt[place.center().y()][place.x()] = QString::number(entry);
        }
        QStringList shown;
        for (const auto& row : qAsConst(entryAt))
            shown << QStringList(row.values()).join(QString());
        QTEST(shown.join(QLatin1Char('/')), "rows");
        const QRect last = group.getRadioButton(4)->geometry();
        QVERIFY(own->x() > last.right() && own->geometry().center().y() == last.center().y());
    }

    void otherEntries()
    {
        const Page page;
        const QPointer<QWidget> own = page.own;
        page.group->setButton(1);
        QRadioButton* kept = page.group->getRadioButton(1);
        page.group->setWidget(0, nullptr); // the entry cannot have a widget
        page.group->init(entries(6, 1));
        QCOMPARE(page.group->getRadioButton(1), kept);
        QCOMPARE(page.group->selectedButton(), 1);
        QVERIFY(own && page.radio(5));
        QCOMPARE(own->accessibleName(), QStringLiteral("Entry 1"));
        page.group->init(entries(1));
        QCOMPARE(page.group->selectedButton(), -1);
        QVERIFY(!page.radio(1) && !page.group->getRadioButton(1));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!own);
    }

    /// A slot removes the field whose use has selected the entry.
    void otherEntriesWhileAFieldIsUsed()
    {
        for (bool byEntries : {true, false}) {
            const Page page;
            const QPointer<QLineEdit> own = page.own;
            connect(page.group, &VKD_QT_RadioButtonGroup::buttWasClicked, page.group, [&] {
                if (byEntries)
                    page.group->init(entries(1));
                else
                    page.group->setWidget(1, new QLineEdit);
            });
            own->setFocus();
            Page::key(Qt::Key_5);
            QVERIFY(own && !own->isVisible() && own->text().isEmpty());
            QCOMPARE(page.group->selectedButton(), byEntries ? -1 : 1);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(!own);
        }
    }
};

PLIB_WIDGET_TEST_MAIN(tst_radioButtonGroup)
#include "tst_radioButtonGroup.moc"
