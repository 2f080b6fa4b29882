#include "tables/CellDelegate.h"

#include "VKD_H_LineEdit.h"
#include "VKD_H_TableWidget.h"
#include "VKD_H_TwHeaderLineEditItem.h"

#include <VKD_QT4_ComboBox.h>

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace {
constexpr int ArrowWidth = 14;

const VKD_H_TwSimpleComboBoxItem* comboItem(const VKD_H_TableWidget* table,
                                            const QModelIndex& index)
{
    return dynamic_cast<const VKD_H_TwSimpleComboBoxItem*>(
        table->item(index.row(), index.column()));
}

bool isEndOfTyping(const QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    switch (static_cast<const QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return true;
    default: return false;
    }
}

/// A combo box for a cell. A choice from the open list is committed immediately. Keys pressed while
/// the list is closed only change the current entry.
class CellCombo : public VKD_QT4_ComboBox
{
public:
    using VKD_QT4_ComboBox::VKD_QT4_ComboBox;
    bool isBrowsing() const { return m_isBrowsing; }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        m_isBrowsing = true;
        VKD_QT4_ComboBox::keyPressEvent(event);
        m_isBrowsing = false;
    }

private:
    bool m_isBrowsing = false;
};

/// Opens the list after the view has placed the combo box. The list of a closed editor stays
/// closed: while the view closes an editor, it also delivers the events posted to the editor.
void showListLater(VKD_QT4_ComboBox* combo, const VKD_H_TableWidget* table,
                   const QPersistentModelIndex& cell)
{
    const auto show = [combo, table, cell] {
        if (table->indexWidget(cell) == combo)
            combo->showPopup();
    };
    QMetaObject::invokeMethod(combo, show, Qt::QueuedConnection);
}
} // namespace

CellDelegate::CellDelegate(VKD_H_TableWidget* table)
    : QStyledItemDelegate(table)
    , m_table(table)
{
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const
{
    if (!comboItem(m_table, index))
        return QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem whole = option;
    initStyleOption(&whole, index);
    m_table->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &whole, painter, m_table);
    QStyleOptionViewItem besideArrow = option;
    besideArrow.rect.adjust(0, 0, -ArrowWidth, 0);
    QStyledItemDelegate::paint(painter, besideArrow, index);
    QStyleOption arrow;
    arrow.palette = option.palette;
    arrow.state = QStyle::State_Enabled;
    arrow.rect = QRect(0, 0, ArrowWidth, ArrowWidth);
    arrow.rect.moveCenter(
        QPoint(option.rect.right() - ArrowWidth / 2 - 2, option.rect.center().y()));
    m_table->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, m_table);
}

/// Opens the list after a click on the cell.
bool CellDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                               const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const bool isClick = event->type() == QEvent::MouseButtonRelease && comboItem(m_table, index);
    if (!isClick || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    const QPersistentModelIndex cell = index;
    const auto open = [this, cell] {
        if (cell.isValid() && cell == m_table->currentIndex() && !m_table->indexWidget(cell))
            m_table->edit(cell);
    };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection); // the view is handling the event
    return true;
}

/// Shows the full text of a cell in a tool tip if the cell is too small for it.
bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const QString text = index.data().toString();
    const QRect needed =
        option.fontMetrics.boundingRect(option.rect, Qt::AlignCenter | Qt::TextWordWrap, text);
    if (event->type() != QEvent::ToolTip || option.rect.contains(needed) ||
        index.data(Qt::ToolTipRole).isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), text, view);
    return true;
}

/// Keeps the editor open while its number is rejected, so that the user sees the reason. Escape
/// closes the editor.
bool CellDelegate::eventFilter(QObject* editor, QEvent* event)
{
    const auto field = qobject_cast<VKD_H_LineEdit*>(editor);
    if (!field || field->refusal().isEmpty())
        return QStyledItemDelegate::eventFilter(editor, event);
    if (event->type() == QEvent::FocusOut)
        return false; // the field shows the reason; the view would close the field
    if (!isEndOfTyping(event))
        return QStyledItemDelegate::eventFilter(editor, event);
    field->showRefusal();
    event->accept();
    return true;
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    const QTableWidgetItem* item = m_table->item(index.row(), index.column());
    const QTableWidgetItem* header = m_table->horizontalHeaderItem(index.column());
    const QString name = header ? header->text() : QString();
    if (auto choice = dynamic_cast<const VKD_H_TwSimpleComboBoxItem*>(item))
        return newCombo(parent, *choice, index, name);
    if (auto number = dynamic_cast<const VKD_H_TwSimpleLineEditItem*>(item)) {
        StructLineEdit description = number->description();
        return new VKD_H_LineEdit(parent, &description, "cellEdit", name, QString(), true);
    }
    return QStyledItemDelegate::createEditor(parent, option, index);
}

VKD_QT4_ComboBox* CellDelegate::newCombo(QWidget* parent, const VKD_H_TwSimpleComboBoxItem& item,
                                         const QPersistentModelIndex& cell,
                                         const QString& name) const
{
    auto combo = new CellCombo(parent, "cellCombo");
    for (const ComboList& entry : item.entries())
        combo->addEntry(entry.text, entry.id);
    combo->setAccessibleName(name);
    auto self = const_cast<CellDelegate*>(this);
    connect(combo, QOverload<int>::of(&QComboBox::activated), self, [self, combo, cell] {
        // The view may have closed the editor together with its list.
        if (combo->isBrowsing() || self->m_table->indexWidget(cell) != combo)
            return;
        Q_EMIT self->commitData(combo);
        Q_EMIT self->closeEditor(combo);
    });
    showListLater(combo, m_table, cell);
    return combo;
}

/// An editor also covers the icon of its cell, because there is little room next to the icon.
void CellDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const
{
    if (index.data(Qt::DecorationRole).isValid())
        editor->setGeometry(option.rect);
    else
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QTableWidgetItem* item = m_table->item(index.row(), index.column());
    if (auto combo = qobject_cast<VKD_QT4_ComboBox*>(editor))
        combo->setCurrentIndex(combo->findText(index.data().toString(), Qt::MatchExactly));
    else if (auto number = dynamic_cast<const VKD_H_TwSimpleLineEditItem*>(item))
        static_cast<VKD_H_LineEdit*>(editor)->setVal(number->getVal(nullptr));
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                const QModelIndex& index) const
{
    if (const auto combo = qobject_cast<VKD_QT4_ComboBox*>(editor)) {
        if (combo->currentIndex() >= 0 && combo->currentText() != index.data().toString())
            model->setData(index, combo->currentText());
    } else if (const auto edit = qobject_cast<VKD_H_LineEdit*>(editor)) {
        auto number =
            dynamic_cast<VKD_H_TwSimpleLineEditItem*>(m_table->item(index.row(), index.column()));
        if (number)
            number->setVal(edit->getVal());
    } else {
        QStyledItemDelegate::setModelData(editor, model, index);
    }
}
