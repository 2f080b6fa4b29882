#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QToolButton;
class QTreeWidget;

namespace plib {

class PlotSearch;

/// The search line above an output tree: the words, a box that limits the search to checked items,
/// the number of hits, buttons, and a reminder that check boxes affect only the items shown. Return
/// steps through the hits; the cursor keys move the focus to the tree. PlotKeys opens the search
/// line; closing it ends the search.
class SearchBar : public QWidget
{
    Q_OBJECT

public:
    /// The search must belong to the tree and must outlive the search line.
    SearchBar(PlotSearch* search, QTreeWidget* tree);

    /// Shows the search line with the focus in it.
    void open(Qt::FocusReason reason);
    /// Ends the search and gives the focus to the tree.
    void leave();
    /// Adds typed text to the words.
    void type(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolButton* newButton(const char* name, const QString& text);
    void layOut();
    void connectSearch();
    void find();
    void showCount();

    PlotSearch* m_search;
    QTreeWidget* m_tree;
    QLineEdit* m_words;
    QCheckBox* m_checkedOnly;
    QLabel* m_count;
    QToolButton* m_previous;
    QToolButton* m_next;
    QToolButton* m_close;
};

} // namespace plib
