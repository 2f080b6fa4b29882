#pragma once

#include "project/ProjectWatch.h"

#include <QFrame>

class QAction;
class QLabel;
class QToolButton;

namespace workbench {

/// A bar above the view that reports changes to the open project by other programs or the loss of
/// its file, and offers suitable actions. If the user closes the bar, it stays closed until the
/// next report.
class ChangeBar : public QFrame
{
    Q_OBJECT

public:
    ChangeBar(QAction* reload, QAction* saveAs, QWidget* parent);

    /// Shows the bar if `isChanged` is set or if the file has been lost since the last report.
    /// Hides the bar if the file is present again. `areRowsOlder` specifies whether unsaved design
    /// rows are based on an older state of the project.
    void report(bool isChanged, ProjectWatch::File file, bool areRowsOlder);
    /// Removes the note on unsaved rows from the message.
    void setRowsCurrent();
    /// Hides the bar. Called when another project is opened.
    void reset();

protected:
    void changeEvent(QEvent* event) override;

private:
    void setTexts();

    bool m_areRowsOlder = false;
    ProjectWatch::File m_file = ProjectWatch::File::Present;
    QLabel* m_text;
    QToolButton* m_reload;
    QToolButton* m_saveAs;
    QToolButton* m_close;
};

} // namespace workbench
