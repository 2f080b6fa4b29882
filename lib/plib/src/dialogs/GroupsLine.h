#pragma once

#include <QLineEdit>

namespace plib {

/// A line edit over the combo box of the group editor, in which the user types the groups of a row.
/// It only emits signals; its owner reads the text.
class GroupsLine : public QLineEdit
{
    Q_OBJECT

public:
    /// The line edit becomes a sibling of the given widget and covers it.
    explicit GroupsLine(QWidget* covered);

    /// Shows the reason why the text is not accepted, and selects the text.
    void refuse(const QString& reason);

    bool eventFilter(QObject* covered, QEvent* event) override;

Q_SIGNALS:
    /// Emitted when Enter (0), Up (-1) or Down (1) is pressed.
    void entered(int direction);
    /// Emitted when the line edit loses the focus to another widget of the window.
    void left();
    /// Emitted when Escape is pressed.
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace plib
