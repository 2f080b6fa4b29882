#pragma once

#include <QLineEdit>

namespace plib {

/// A line over the combo box of the group editor, in which the user types the groups of a row. It
/// only emits signals; its owner reads the text.
class GroupsLine : public QLineEdit
{
    Q_OBJECT

public:
    /// Covers this sibling, whose parent becomes the parent of the line.
    explicit GroupsLine(QWidget* covered);

    /// Explains why the text is not accepted, and selects it.
    void refuse(const QString& reason);

    bool eventFilter(QObject* covered, QEvent* event) override;

Q_SIGNALS:
    /// Emitted for Enter with 0, and for the arrow keys with -1 for up and 1 for down.
    void entered(int direction);
    /// Emitted when the user leaves the line in another way.
    void left();
    /// Emitted for Escape.
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace plib
