#pragma once

#include <QObject>

class DesignParameter;
class QAction;
class QMenu;

namespace plib {

/// The actions of the design page that open the dialogs or set the type of the selected rows, for
/// the menu of the table and for hosts. They are needed to edit several rows with the mouse,
/// because a click on a cell selects only this cell. The object is a child of the page.
class RowActions : public QObject
{
    Q_OBJECT

public:
    explicit RowActions(DesignParameter* page);

private:
    QAction* add(const char* name, const QString& text);
    void addSeparator();
    QMenu* typeMenu();
    void checkType(const QMenu* menu) const;
    void enable();

    DesignParameter* m_page;
    QList<QAction*> m_actions;
};

} // namespace plib
