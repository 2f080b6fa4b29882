#include "WidgetTestSupport.h"

#include <QtTableView.h>

#include <QClipboard>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QStandardItemModel>

using vkd::properties::nextGen::QtTableView;

namespace {
/// Without data, a drag ends at once.
struct Model : QStandardItemModel
{
    using QStandardItemModel::QStandardItemModel;
    QMimeData* mimeData(const QModelIndexList&) const override { return ++dragged, nullptr; }
    mutable int dragged = 0;
};

/// A visible table of three load cases. Each has an editable title with a check box, and a kind
/// that is not editable.
class Table : public QtTableView
{
public:
    Table()
        : m_model(*new Model(3, 2, this))
    {
        for (int row = 0; row < 3; ++row) {
            auto title = new QStandardItem(QStringLiteral("LC %1").arg(row + 1));
            title->setCheckable(true);
            auto kind = new QStandardItem(QStringLiteral("dead"));
            kind->setEditable(false);
            m_model.setItem(row, 0, title);
            m_model.setItem(row, 1, kind);
        }
        setModel(&m_model);
        setDragDropMode(DragDrop);
        setCurrentIndex(m_model.index(0, 0));
        resize(400, 300);
        show();
    }

    QLineEdit* editor() const
    {
        const auto all = viewport()->findChildren<QLineEdit*>();
        for (QLineEdit* any : all)
            if (any->isVisible())
                return any;
        return nullptr;
    }
    QString titles() const
    {
        QStringList all;
        for (int row = 0; row < m_model.rowCount(); ++row)
            all << m_model.item(row, 0)->text();
        return all.join(QLatin1Char('|'));
    }
    /// Returns whether a click on the check box in the first row changes the check state.
    bool clickOnBox()
    {
        QCoreApplication::processEvents(); // until then, Qt 6 ignores clicks on a closed editor
        const Qt::CheckState before = m_model.item(0)->checkState();
        QStyleOptionViewItem option;
        option.initFrom(this);
        option.features |= QStyleOptionViewItem::HasCheckIndicator;
        option.rect = visualRect(m_model.index(0, 0));
        const QRect box = style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option);
        QTest::mouseClick(viewport(), Qt::LeftButton, {}, box.center());
        return m_model.item(0)->checkState() != before;
    }
    /// Returns whether the table accepts dropped data.
    bool drop()
    {
        const QString before = titles();
        const std::unique_ptr<QMimeData> mime(
            m_model.QStandardItemModel::mimeData({m_model.index(2, 0)}));
        const QPoint belowRows(5, viewport()->height() - 5);
        QDragEnterEvent enter(belowRows, Qt::CopyAction, mime.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport(), &enter);
        QDropEvent event(belowRows, Qt::CopyAction, mime.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport(), &event);
        return titles() != before;
    }
    /// Returns whether a drag with these actions reads the data of the cells.
    bool drags(Qt::DropActions actions)
    {
        const int before = m_model.dragged;
        startDrag(actions);
        return m_model.dragged > before;
    }
    QImage picture(int column)
    {
        return viewport()->grab(visualRect(m_model.index(1, column))).toImage();
    }

    Model& m_model;
};
} // namespace

class tst_qtTableView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noEditing()
    {
        Table table;
        for (bool readOnly : {false, true, false}) {
            table.set_read_only(readOnly);
            QCOMPARE(table.clickOnBox(), !readOnly);
            QCOMPARE(table.drop(), !readOnly);
            QVERIFY(table.drags(Qt::CopyAction | Qt::MoveAction));
            QCOMPARE(table.drags(Qt::MoveAction), !readOnly);
            table.setCurrentIndex(table.m_model.index(0, 0));
            const QString before = table.titles();
            for (int key : {Qt::Key_F2, Qt::Key_X, Qt::Key_Space, Qt::Key_Delete})
                QTest::keyClick(&table, Qt::Key(key));
            QTest::mouseDClick(table.viewport(), Qt::LeftButton, {},
                               table.visualRect(table.currentIndex()).center());
            QCOMPARE(table.editor() != nullptr, !readOnly);
            QCOMPARE(table.titles(), before);
            QVERIFY(table.isEnabled());
        }
    }

    void openEditorCloses()
    {
        Table table;
        table.edit(table.currentIndex());
        QVERIFY(table.editor());
        table.editor()->setText(QStringLiteral("typed"));
        table.set_read_only(true);
        QVERIFY(!table.editor());
        QCOMPARE(table.titles(), QStringLiteral("typed|LC 2|LC 3"));
    }

    void selectionAndCopying()
    {
        Table table;
        table.m_model.item(2, 1)->setText(QStringLiteral("a \"b\""));
        table.set_read_only(true);
        table.setCurrentIndex(table.m_model.index(1, 0));
        QTest::keyClick(&table, Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyClick(&table, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keySequence(&table, QKeySequence::Copy);
        QCOMPARE(QApplication::clipboard()->text(),
                 QStringLiteral("LC 2\tdead\nLC 3\t\"a \"\"b\"\"\"\n"));
    }

    void widgetsOverCells()
    {
        Table table;
        auto own = new QLineEdit, offByHost = new QLineEdit, late = new QLineEdit;
        offByHost->setEnabled(false);
        table.setIndexWidget(table.m_model.index(0, 1), own);
        table.setIndexWidget(table.m_model.index(1, 1), offByHost);
        table.set_read_only(true);
        table.setIndexWidget(table.m_model.index(2, 1), late);
        QTRY_VERIFY(!late->isEnabled());
        QVERIFY(!own->isEnabled());
        table.setIndexWidget(table.m_model.index(0, 1), nullptr);
        QCoreApplication::sendPostedEvents(own, QEvent::DeferredDelete);
        table.set_read_only(false);
        QVERIFY(late->isEnabled());
        QVERIFY(!offByHost->isEnabled());
    }

    void onlyEditFieldsAreDimmed()
    {
        Table table;
        const QImage title = table.picture(0), kind = table.picture(1);
        table.set_read_only(true);
        QVERIFY(table.picture(0) != title && table.picture(1) == kind);
        table.set_read_only(false);
        QVERIFY(table.picture(0) == title);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_qtTableView)
#include "tst_qtTableView.moc"
