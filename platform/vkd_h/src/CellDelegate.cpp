#include "CellDelegate.h"

#include "VKD_H_LineEdit.h"
#include "VKD_H_TableWidget.h"
#include "VKD_H_TwHeaderLineEditItem.h"

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
    const QTableWidgetItem* item = m_table->item(index.row(), index.column());
    const QTableWidgetItem* header = m_table->horizontalHeaderItem(index.column());
    const QString name = header ? header->text() : QString();
    if (auto choice = dynamic_cast<const VKD_H_TwSimpleComboBoxItem*>(item))
        return newCombo(parent, *choice, name);
    if (auto number = dynamic_cast<const VKD_H_TwSimpleLineEditItem*>(item)) {
        StructLineEdit description = number->description();
        return new VKD_H_LineEdit(parent, &description, "cellEdit", name, QString(), true);
    }
    return QStyledItemDelegate::createEditor(parent, option, index);
}

QWidget* CellDelegate::newCombo(QWidget* parent, const VKD_H_TwSimpleComboBoxItem& item,
                                const QString& name) const
{
    auto combo = new VKD_QT4_ComboBox(parent, "cellCombo");
    for (const ComboList& entry : item.entries())
        combo->addEntry(entry.text, entry.id);
    combo->setAccessibleName(name);
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
