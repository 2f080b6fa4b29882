#pragma once

#include <QVector>
#include <QWidget>

class QAction;
class QLabel;
class QMenu;
class QToolButton;

namespace workbench {

class ShortList;

/// The list of a project's outputs, with actions to edit it. The pane only shows the list;
/// OutputCommands carries out the actions.
class OutputsPane : public QWidget
{
    Q_OBJECT

public:
    /// An output in the list.
    struct Row
    {
        QString name;
        bool isChanged;
    };

    explicit OutputsPane(QWidget* parent);

    void setTexts();
    /// Shows the outputs. Without outputs, all actions are disabled.
    void setOutputs(const QVector<Row>& outputs, int current);
    /// Shows how many chosen plots of the current output are not offered.
    void setAbsentPlots(int count);
    /// Returns whether outputs are shown.
    bool isFilled() const;
    /// Gives the focus to the list, if it is visible.
    void enter();
    /// Opens the editor for the name of the current output, if the list is visible. The editor
    /// contains `text`, or the name if `text` is null.
    void editName(const QString& text = QString());
    /// Closes the editor for the name, applies its text and returns it. If no editor is open,
    /// returns a null string.
    QString finishEditing();

    /// The menu with all actions.
    QMenu* const menu;
    // These actions are in the order of the menu.
    QAction* const undo;
    QAction* const redo;
    QAction* const newOutput;
    QAction* const duplicate;
    QAction* const rename;
    QAction* const remove;
    QAction* const moveUp;
    QAction* const moveDown;
    QAction* const previous;
    QAction* const next;
    QAction* const copyFrom;
    QAction* const saveAll;
    QAction* const exportAll;

Q_SIGNALS:
    /// Emitted when the user chooses another output.
    void chosen(int index);
    /// Emitted when the user has entered a name for the current output.
    void renamed(const QString& name);
    /// Emitted when isFilled() has changed.
    void filled();
    /// Emitted when the user can no longer type a name. `byKey` is true if the user has closed the
    /// editor with Return or Escape.
    void namingEnded(bool byKey);

private:
    QAction* add(const char* name, const QKeySequence& shortcut = {});
    QAction* addStep(const char* name, const QList<QKeySequence>& shortcuts);
    void addToList(QAction* action, const QKeySequence& shortcut);
    void layOut();
    void listen();
    void fill(const QVector<Row>& outputs);

    ShortList* m_list;
    QToolButton* m_more;
    QLabel* m_note;
};

} // namespace workbench
