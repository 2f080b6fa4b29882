#pragma once

#include <QObject>
#include <QPointer>

class DesignParameter;
class QKeyEvent;
class dlgSelection;

namespace plib {

class GroupsLine;

/// Lets the user type the groups of the current row: a digit or F2 in its first cell opens a line
/// edit over the combo box of the group editor. Groups that do not exist are refused. The object is
/// a child of the design page.
class GroupsEntry : public QObject
{
    Q_OBJECT

public:
    explicit GroupsEntry(DesignParameter* page);

    /// Also opens the line edit if a digit or F2 is pressed in this editor.
    void listenTo(const dlgSelection* editor);
    /// Applies the typed groups, if any. If they are not accepted, the line edit stays open, gets
    /// the focus and shows the reason, and the function returns false.
    bool finish();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isForGroups(const QKeyEvent& key) const;
    dlgSelection* openEditor();
    void open(const QString& typed);
    void enter(int direction);
    void leave();
    void close();
    QString apply();

    DesignParameter* m_page;
    QPointer<GroupsLine> m_line;
    int m_row = -1;   ///< the row that is being edited
    QString m_before; ///< initial text of the line edit
};

} // namespace plib
