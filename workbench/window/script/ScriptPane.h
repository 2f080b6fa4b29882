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

/// Shows the script of the current selection; the lines of the last change have a coloured
/// background.
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

    QString script() const;
    /// Shows a script and marks the lines that differ from the previous script. Does nothing if the
    /// script is unchanged.
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
    // The widgets are in tab order.
    QComboBox* m_language;
    QToolButton* m_copy;
    QToolButton* m_save;
    ScriptView* m_text;
};

} // namespace workbench
