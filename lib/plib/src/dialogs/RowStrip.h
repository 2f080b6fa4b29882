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
/// is outside the layout of the dialog. The window title of the dialog does not mention the rows.
class RowStrip : public QWidget
{
    Q_OBJECT

public:
    explicit RowStrip(VKD_QT_Dialog* dialog);

    void setTitle(const QString& title);
    /// Shows a second line, unless the note is empty.
    void setNote(const QString& note);
    /// Sets the reasons why the user cannot go to the previous or next row. A reason is empty if
    /// there is such a row. Adds the buttons on the first call.
    void setSteps(const QString& previousRefusal, const QString& nextRefusal);
    /// Adds a button to the right of the title.
    void addButton(QToolButton* button);
    /// Shows a message beside the title until the title is set again.
    void showMessage(const QString& text);

Q_SIGNALS:
    /// Emitted with -1 for the previous row and 1 for the next row.
    void stepRequested(int direction);

private:
    /// A button that goes to another row, and the texts for its tool tip.
    struct Step
    {
        QToolButton* button = nullptr;
        QString purpose;
        QString refusal;
    };

    void addStep(Step* step, const char* name, Qt::ArrowType arrow, int key, const QString& purpose,
                 int direction);
    static void setRefusal(Step* step, const QString& refusal);

    ElidedLabel* m_titleLabel;
    QLabel* m_noteLabel;
    QHBoxLayout* m_row;
    QLabel* m_messageLabel;
    Step m_previous;
    Step m_next;
};

} // namespace plib
