#include "CellDelegate.h"

#include "VKD_H_TableItems.h"
#include "VKD_H_TableWidget.h"

#include <VKD_QT4_ComboBox.h>

#include <QApplication>
#include <QPainter>

namespace {
constexpr int ArrowWidth = 14;

const VKD_H_TwSimpleComboBoxItem* comboItem(const VKD_H_TableWidget* table,
                                            const QModelIndex& index)
{
    return dynamic_cast<const VKD_H_TwSimpleComboBoxItem*>(
        table->item(index.row(), index.column()));
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
    QStyledItemDelegate::paint(painter, option, index);
    if (!comboItem(m_table, index))
        return;
    QStyleOption arrow;
    arrow.palette = option.palette;
    arrow.state = QStyle::State_Enabled;
    arrow.rect = QRect(0, 0, ArrowWidth, ArrowWidth);
    arrow.rect.moveCenter(
        QPoint(option.rect.right() - ArrowWidth / 2 - 2, option.rect.center().y()));
    m_table->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, painter, m_table);
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const
{
    const VKD_H_TwSimpleComboBoxItem* item = comboItem(m_table, index);
    if (!item)
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto combo = new VKD_QT4_ComboBox(parent, "cellCombo");
    for (const ComboList& entry : item->entries())
        combo->addEntry(entry.text, entry.id);
    if (const QTableWidgetItem* header = m_table->horizontalHeaderItem(index.column()))
        combo->setAccessibleName(header->text());
    // A choice is an answer: the user need not leave the cell to have it taken.
    auto self = const_cast<CellDelegate*>(this);
    connect(combo, QOverload<int>::of(&QComboBox::activated), self, [self, combo] {
        Q_EMIT self->commitData(combo);
        Q_EMIT self->closeEditor(combo);
    });
    QMetaObject::invokeMethod(combo, &QComboBox::showPopup, Qt::QueuedConnection);
    return combo;
}

void CellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto combo = qobject_cast<VKD_QT4_ComboBox*>(editor))
        combo->setCurrentIndex(combo->findText(index.data().toString(), Qt::MatchExactly));
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                const QModelIndex& index) const
{
    const auto combo = qobject_cast<VKD_QT4_ComboBox*>(editor);
    if (!combo)
        QStyledItemDelegate::setModelData(editor, model, index);
    else if (combo->currentIndex() >= 0 && combo->currentText() != index.data().toString())
        model->setData(index, combo->currentText());
}
