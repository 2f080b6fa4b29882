#pragma once

#include <vkd_language.h>

#include <QVector>
#include <QWidget>

class QAction;
class QComboBox;
class QLabel;
class QToolButton;

namespace workbench {

class CheckMark;
struct CheckSource;
class FindBar;
struct LineChange;
class ScriptView;
class TextLines;

/// Shows the script of the current selection. Marks the lines that changed last, and provides a
/// search and the result of checking the script.
class ScriptPane : public QWidget
{
    Q_OBJECT

public:
    /// Creates a button for each window action that copies or saves the script.
    ScriptPane(QAction* copy, QAction* save, QWidget* parent);

    /// These functions return or set the language of the keywords. The setter does not emit a
    /// signal.
    vkd::Language keywords() const;
    void setKeywords(vkd::Language language);

    /// Sets the data against which the script is checked.
    void setCheckSource(const CheckSource& source);
    /// Adds actions of the window to the context menu of the script.
    void addToMenu(const QList<QAction*>& actions);
    /// Marks the lines of the current plot. If `reveals` is true, scrolls to them.
    void setPlot(int firstLine, int lineCount, bool reveals);

    QString script() const;
    /// Shows a script and marks the lines that differ from the previous script. Does nothing if the
    /// script is unchanged.
    void setScript(const QString& script);
    /// Shows a script without marking lines.
    void setOtherScript(const QString& script);

Q_SIGNALS:
    void keywordsChosen(vkd::Language language);
    /// Emitted when the user clicks a line or presses Return in it.
    void lineChosen(int line);

protected:
    void changeEvent(QEvent* event) override;

private:
    QAction* newAction(const char* name, const QKeySequence& shortcut);
    void connectFind();
    void layOut();
    void setTexts();
    void show(const TextLines& lines, const QVector<LineChange>& changes);

    QLabel* m_languageLabel;
    // The widgets are in tab order.
    QComboBox* m_language;
    QToolButton* m_copy;
    QToolButton* m_save;
    ScriptView* m_text;
    FindBar* m_findBar;
    CheckMark* m_check;

    QAction* m_find;
    QAction* m_next;
    QAction* m_previous;
    QAction* m_wrap;
};

} // namespace workbench
