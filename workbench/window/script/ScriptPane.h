#pragma once

#include <vkd_language.h>

#include <QVector>
#include <QWidget>

class QAction;
class QComboBox;
class QLabel;
class QToolButton;

namespace workbench {

struct LineChange;
class ScriptView;
class TextLines;

/// Shows the script of the current choice; the background marks the lines that changed last.
class ScriptPane : public QWidget
{
    Q_OBJECT

public:
    /// Creates a button for each of the actions of the window that copy and save the script.
    ScriptPane(QAction* copy, QAction* save, QWidget* parent);

    /// Returns the language of the keywords. The setter emits no signal.
    vkd::Language keywords() const;
    void setKeywords(vkd::Language language);

    QString script() const;
    /// Shows a script and marks the lines that the previous one lacks. An equal script changes
    /// nothing.
    void setScript(const QString& script);
    /// Shows a script without marking lines.
    void setOtherScript(const QString& script);

Q_SIGNALS:
    void keywordsChosen(vkd::Language language);

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();
    void show(const TextLines& lines, const QVector<LineChange>& changes);

    QLabel* m_languageLabel;
    // In tab order.
    QComboBox* m_language;
    QToolButton* m_copy;
    QToolButton* m_save;
    ScriptView* m_text;
};

} // namespace workbench
