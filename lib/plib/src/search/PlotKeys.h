#pragma once

#include <QObject>

class QBoxLayout;
class QKeyEvent;
class VKD_QT_TreeWidget;

namespace plib {

class PlotSearch;
class SearchBar;
class ShownBoxes;

/// The keys of an output tree, and the page's actions for finding and unchecking plots. Typing a
/// letter or Ctrl+F opens the search line, which is created when it is first needed; Space and the
/// keys that expand and collapse branches keep their meaning. Return expands or collapses the
/// current branch or steps through the hits, and never reaches the default button of a dialog.
/// Delete unchecks the current item. The keys for context menus open the menu at the current row.
class PlotKeys : public QObject
{
    Q_OBJECT

public:
    /// Adds the actions to the page, which owns the object. `column` is the layout that contains
    /// the tree; the search line is inserted above the tree.
    PlotKeys(QWidget* page, VKD_QT_TreeWidget* tree, QBoxLayout* column);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addActions(QWidget* page);
    SearchBar* bar();
    bool press(const QKeyEvent& event);
    bool type(const QKeyEvent& event);
    void enter(bool forward);
    void step(bool forward);
    void uncheck();
    void openMenu();

    VKD_QT_TreeWidget* m_tree;
    QBoxLayout* m_column;
    PlotSearch* m_search;
    ShownBoxes* m_boxes;
    SearchBar* m_bar = nullptr;
};

} // namespace plib
