#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace workbench {

class ScriptView;

/// The line below a script in which the user types words to find. All hits are marked; Return, F3
/// and Shift+F3 step through them, and Escape closes the line.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// `view` is not owned and must outlive the bar.
    FindBar(ScriptView* view, QWidget* parent);

    /// Shows the bar with the focus in it. If words of one line are selected in the script, the bar
    /// finds these words.
    void open();
    /// Selects the next or the previous hit. At the end, continues at the other end.
    void step(bool isForward);
    /// Finds the words in a new script, after the present event has been processed.
    void scriptChanged();

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolButton* newButton(const char* name, Qt::ArrowType arrow);
    void setTexts();
    void close();
    void find();
    void findFromCursor();
    void showCount();

    ScriptView* m_view;
    QLineEdit* m_words;
    QLabel* m_count;
    QToolButton* m_previous;
    QToolButton* m_next;
    QToolButton* m_close;
    QTimer m_finding;
};

} // namespace workbench
