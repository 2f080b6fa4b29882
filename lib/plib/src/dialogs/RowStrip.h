#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;
class VKD_QT_Dialog;

namespace plib {

class ElidedLabel;

/// A strip at the top of a dialog with the title of the edited rows. For a single row, it has
/// buttons to continue with the previous or next row, which also work with Alt+Up and Alt+Down. It
/// is outside the layout of the dialog, whose window title names only the parameters.
class RowStrip : public QWidget
{
    Q_OBJECT

public:
    explicit RowStrip(VKD_QT_Dialog* dialog);

    void setTitle(const QString& title);
    /// Shows a second line, unless the note is empty.
    void setNote(const QString& note);
    /// Adds the buttons on the first call.
    void setSteps(bool hasPrevious, bool hasNext);

Q_SIGNALS:
    /// Emitted with -1 for the previous row and 1 for the next row.
    void stepRequested(int direction);

private:
    QToolButton* newButton(const char* name, Qt::ArrowType arrow, int key, const QString& purpose,
                           int direction);

    ElidedLabel* m_titleLabel;
    QLabel* m_noteLabel;
    QHBoxLayout* m_row;
    QToolButton* m_previous = nullptr;
    QToolButton* m_next = nullptr;
};

} // namespace plib
