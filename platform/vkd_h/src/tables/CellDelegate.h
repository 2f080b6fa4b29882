#pragma once

#include <QStyledItemDelegate>

class VKD_H_TableWidget;
class VKD_H_TwSimpleComboBoxItem;
class VKD_QT4_ComboBox;

/// Paints and edits the cells of a VKD_H_TableWidget. Cells with a combo box have an arrow.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CellDelegate(VKD_H_TableWidget* table);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    VKD_QT4_ComboBox* newCombo(QWidget* parent, const VKD_H_TwSimpleComboBoxItem& item,
                               const QPersistentModelIndex& cell, const QString& name) const;

    VKD_H_TableWidget* m_table;
};
