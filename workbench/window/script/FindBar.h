#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace workbench {

class ScriptView;

/// The bar below a script for finding words in it. All hits are marked; Return, F3 and Shift+F3
/// step through them, and Escape closes the bar.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// `view` is not owned and must outlive the bar.
    FindBar(ScriptView* view, QWidget* parent);

    /// Shows the bar and gives it the focus. If the selection in the script lies within one line,
    /// searches for the selected words.
    void open();
    /// Selects the next or the previous hit, and wraps around at either end.
    void step(bool isForward);
    /// Searches a new script after the current event has been processed.
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
