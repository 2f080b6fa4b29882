#pragma once

#include <QStringList>
#include <QWidget>

class QAction;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QToolButton;

namespace workbench {

class ScriptHighlighter;

/// The script of the present choice, with its lines that changed last marked by their background.
class ScriptPane : public QWidget
{
    Q_OBJECT

public:
    /// The actions of the window that copy the script and save it have a button each.
    ScriptPane(QAction* copy, QAction* save, QWidget* parent);

    /// The language of the keywords. To set it gives no signal.
    bool english() const;
    void setEnglish(bool english);

    QString script() const { return m_script; }
    /// Shows a script. Lines that the one before lacks are marked; an equal script changes nothing.
    void setScript(const QString& script);
    /// Shows a script that has nothing to do with the one before.
    void setOtherScript(const QString& script);

Q_SIGNALS:
    void languageChosen(bool english);

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();
    void show(const QString& script);
    void mark(const QVector<int>& lines);

    QString m_script;
    QVector<int> m_changed;
    QLabel* m_languageLabel;
    // In the order of Tab.
    QComboBox* m_language;
    QToolButton* m_copy;
    QToolButton* m_save;
    QPlainTextEdit* m_text;
    ScriptHighlighter* m_highlighter;
};

} // namespace workbench
