#include "OutputDesk.h"
#include "WidgetTestSupport.h"

#include <AnimatorView.h>
#include <vkd_dbo_camera.h>
#include <VKD_H_TableWidget.h>
#include <VKD_H_TwHeaderLineEditItem.h>
#include <vkd_lib_value.h>
#include <VKD_P_WidgetGraphicalOutput_AdditionalData>
#include <VKD_P_WidgetGraphicalOutput_TableWidgetData>
#include <VKD_QT_TabDialog.h>

using Desk = OutputDesk;

namespace {
QString commands(QSignalSpy& spy)
{
    QStringList numbers;
    for (const QList<QVariant>& arguments : spy)
        numbers << QString::number(arguments.first().value<AnimatorViewControl>());
    spy.clear();
    return numbers.join(QLatin1Char(' '));
}

/// Returns the rows of the first plot that is bound to load cases.
QString rowsOfFirstPlot(Desk& desk)
{
    QStringList texts;
    for (QTreeWidgetItemIterator item(desk.tree()); *item && texts.isEmpty(); ++item)
        if ((*item)->parent() && (*item)->parent()->parent())
            for (int i = 0; i < (*item)->childCount(); ++i)
                texts << (*item)->child(i)->text(0);
    return texts.join(QLatin1Char('|'));
}
} // namespace

/// Tests the objects that a host binds to an output page: load case tables, radio groups for
/// content tags, and an animator.
class tst_outputBindings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1);
        qRegisterMetaType<AnimatorViewControl>();
    }

    void loadCasesOfABoundTable()
    {
        Desk desk(m_project);
        VKD_H_TableWidget table(0, 3);
        const StructLineEdit number = VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(-1);
        const QString text = QStringLiteral("header");
        table.setHorizontalHeaderItem(
            0, new VKD_H_TwHeaderLineEditItem(0, number, text, text, true, Qt::AlignRight));
        table.setHorizontalHeaderItem(
            1, new VKD_H_TwHeaderCheckBoxItem(1, text, text, true, Qt::AlignCenter));
        table.setHorizontalHeaderItem(2,
                                      new VKD_H_TwHeaderItem(2, text, text, true, Qt::AlignLeft));
        VKD_P_WidgetGraphicalOutput_TableWidgetData binding;
        binding.reset(); // has no effect before binding
        binding.setWidgets(&desk.page, &table, 0, 1, 2);
        QSignalSpy rebuilt(desk.tree()->model(), &QAbstractItemModel::modelReset);
        const auto rows = [&desk] { return rowsOfFirstPlot(desk); };
        for (int value : {7, 3}) {
            table.addNewRow(true);
            dynamic_cast<VKD_H_TwSimpleLineEditItem*>(table.item(table.rowCount() - 1, 0))
                ->setVal(value);
        }
        QCOMPARE(rows(), QString()); // no box is checked
        for (int row : {0, 1})
            dynamic_cast<VKD_H_TwSimpleCheckBoxItem*>(table.item(row, 1))->setChecked(true);
        QCOMPARE(rows(), QStringLiteral("3 |7 "));
        table.item(0, 2)->setText(QStringLiteral("Wind"));
        QCOMPARE(rows(), QStringLiteral("3 |7 : Wind"));
        rebuilt.clear();
        desk.tree()->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
        table.item(0, 2)->setToolTip(text);
        binding.reset();
        QCOMPARE(rebuilt.size(), 0);
        QCOMPARE(desk.tree()->topLevelItem(0)->checkState(0), Qt::Unchecked);
        table.removeRow(0);
        QCOMPARE(rows(), QStringLiteral("3 "));
    }

    void numbersOfABoundTable()
    {
        Desk desk(m_project);
        VKD_H_TableWidget table(0, 1);
        // The first two numbers are equal after truncation, so the second is used. Three numbers
        // are out of range.
        for (double number : {3.2, 3.9, 2147483648.0, 3e9, -3e9, 123456789.0, -0.5, -1.5}) {
            table.addNewRow(false);
            auto item =
                new VKD_H_TwSimpleLineEditItem(VKD_H_TwHeaderLineEditItem::getDefaultStrcLe(-1));
            item->setVal(number);
            table.setItem(table.rowCount() - 1, 0, item);
        }
        VKD_P_WidgetGraphicalOutput_TableWidgetData binding;
        binding.setWidgets(&desk.page, &table, 0, -1, -1);
        binding.reset();
        QCOMPARE(rowsOfFirstPlot(desk), QStringLiteral("-1.5 |-0.5 |3.9 |1.23457e+08 "));
    }

    void switchOfAContentTag()
    {
        Desk desk(m_project);
        StructRadioButtonGrup entry;
        entry.text = QStringLiteral("choice");
        VKD_QT_RadioButtonGroup group(entry.text, {entry, entry}, nullptr, "group");
        VKD_P_WidgetGraphicalOutput_AdditionalData binding;
        binding.setWidget(&desk.page, &group, QStringLiteral("Bric"), 1);
        const auto plots = [&desk] {
            return desk.tree()->findItems(QString(), Qt::MatchContains | Qt::MatchRecursive).size();
        };
        const int before = plots();
        group.getRadioButton(1)->click();
        QVERIFY(plots() > before); // the slab has no solid elements
        QSignalSpy filled(desk.tree()->model(), &QAbstractItemModel::modelReset);
        group.getRadioButton(1)->click(); // adds the tag again
        QVERIFY(filled.size() > 0);
        group.getRadioButton(0)->click(); // removes all tags
        QCOMPARE(plots(), before);
        {
            Desk gone(m_project);
            binding.setWidget(&gone.page, &group, QStringLiteral("Bric"), 1);
        }
        binding.clicked(1); // the page no longer exists
    }

    void viewsAndTheAnimator()
    {
        QWidget home;
        auto animator = new AnimatorView(m_project.doc()->handle(), &home);
        {
            Desk desk(m_project, VKD_P_GraphicalOutput_Standard, animator);
            QSignalSpy sent(&desk.page, &VKD_P_WidgetGraphicalOutput::signalBeobXY);
            QCOMPARE(desk.group("PerspectiveGroup")->selectedButton(), 3);
            QCOMPARE(commands(sent), QString());
            QVERIFY(animator->isEnabled());
            const std::pair<int, const char*> steps[] = {{4, "7"}, {0, "6 3"}, {1, "4"},
                                                         {2, "5"}, {4, "7"},   {3, "6 0"}};
            for (const auto& [view, expected] : steps) {
                desk.choose("PerspectiveGroup", view);
                QCOMPARE(commands(sent), QLatin1String(expected)); // stores the user's camera first
                QCOMPARE(animator->isEnabled(), view == 4);
            }
            // The page's string contains the user's camera.
            desk.choose("PerspectiveGroup", 4);
            QTest::keyClick(animator, Qt::Key_Left);
            const QString kept = desk.page.writeXMLstring();
            const QString camera = vkd::dbo::getAnimatorPerspektive(0, 1);
            QVERIFY(desk.page.getTORVAL_BEOB(true) == QLatin1String("TYPE STAN ") + camera);
            vkd::dbo::setCamera(ZobHandle::scratch(), vkd::dbo::Camera());
            commands(sent);
            desk.page.readXMLstring(kept);
            QCOMPARE(vkd::dbo::getAnimatorPerspektive(0, 1), camera);
            QCOMPARE(commands(sent), QStringLiteral("7"));
            desk.page.readXMLstring(part("Scale", "0")); // contains no camera
            QCOMPARE(commands(sent), QStringLiteral("7"));
            QCOMPARE(vkd::dbo::getAnimatorPerspektive(0, 1), camera);
            using Page = VKD_P_WidgetGraphicalOutput;
            const std::pair<void (Page::*)(AnimatorViewControl, double), bool> signalsToView[] = {
                {&Page::signalBeobXY, true},
                {&Page::signalBeobXZ, false},
                {&Page::signalBeobYZ, true},
                {&Page::signalBeob3D, true}};
            for (const auto& [signal, isConnected] : signalsToView) {
                vkd::dbo::setCamera(ZobHandle::scratch(), vkd::dbo::Camera());
                (desk.page.*signal)(AnimatorStoreCamera, 0.0);
                QCOMPARE(vkd::dbo::getAnimatorPerspektive(0, 1) == camera, isConnected);
            }
        }
        QCOMPARE(animator->parentWidget(), &home); // not destroyed with the page
        QWidget other;
        {
            Desk desk(m_project, VKD_P_GraphicalOutput_Standard, animator);
            animator->setParent(&other); // the host keeps it in another widget
        }
        QCOMPARE(animator->parentWidget(), &other);
    }

    void firstShow()
    {
        const char* const expected[] = {"3", "4", "5", "0"};
        for (int view = 0; view < 4; ++view) {
            AnimatorView animator(m_project.doc()->handle());
            VKD_QT_TabDialog dialog;
            auto other = new QWidget;
            auto container = new QWidget;
            dialog.addTab(other, QStringLiteral("other"));
            dialog.addTab(container, QStringLiteral("plots"));
            Desk desk(m_project, VKD_P_GraphicalOutput_Standard, &animator, container);
            desk.choose("PerspectiveGroup", view);
            QSignalSpy sent(&desk.page, &VKD_P_WidgetGraphicalOutput::signalBeobXY);
            Q_EMIT dialog.currentChanged(other);
            QCoreApplication::processEvents();
            QCOMPARE(sent.size(), 0);
            for (int times = 0; times < 2; ++times) {
                Q_EMIT dialog.currentChanged(container);
                QCOMPARE(sent.size(), times); // emitted only once, and not immediately
                QCoreApplication::processEvents();
                QCOMPARE(sent.size(), 1);
            }
            QCOMPARE(commands(sent), QLatin1String(expected[view]));
            QVERIFY(!animator.isEnabled());
        }
    }

private:
    HostProject m_project{QStringLiteral("slab")};
};

PLIB_WIDGET_TEST_MAIN(tst_outputBindings)
#include "tst_outputBindings.moc"
