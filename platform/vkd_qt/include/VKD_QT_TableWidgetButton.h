#pragma once

#include "vkd_qt_export.h"

#include <QPersistentModelIndex>
#include <QPushButton>

class QStyleOptionButton;
class QStylePainter;
class QTableWidgetItem;

/// A button over a cell of a table. It always shows the current text of the cell and a mark that
/// indicates that a click opens a dialog. Text that is too long is elided and shown in a tool tip.
/// The text is painted in the same form as by the delegate of the cell.
class VKD_QT_EXPORT VKD_QT_TableWidgetButton : public QPushButton
{
    Q_OBJECT

public:
    /// The place of the mark.
    enum ButtonModus {
        MarkBeside = 0,      ///< mark to the right of the text, if there is room
        MarkOnly = 1,        ///< mark without text
        MarkInTheCorner = 2, ///< the text has the full width, for narrow columns
    };

    /// `table` becomes the parent. `item` is one of its items and is not owned.
    VKD_QT_TableWidgetButton(QWidget* table, QTableWidgetItem* item, ButtonModus modus);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    QString itemText() const;
    QString shownText() const;
    void takeName();
    bool fits(const QRect& area) const;
    void paintText(QStylePainter* painter, const QStyleOptionButton& option,
                   const QRect& area) const;

    QPersistentModelIndex m_index;
    ButtonModus m_modus;
};
