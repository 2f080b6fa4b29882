#pragma once

#include "HelpSearch.h"

#include <QMainWindow>

class HelpBook;
class HelpBrowser;
class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class TransientParent;

/// The help window. It contains the page, the list of topics and search results on the left, and
/// the tool bar. HelpBook, HelpSearch and HelpBrowser find pages and text; TransientParent sets the
/// transient parent.
class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    HelpWindow();

    /// Opens a topic of a book, which may be the current book in another language.
    void open(const HelpBook& book, int topic);
    /// Shows the window in front of its transient parent, which is the active modal dialog or
    /// `caller`'s window.
    void showFor(QWidget* caller);

protected:
    void changeEvent(QEvent* event) override;

private:
    QAction* addKeyAction(const char* name, const QList<QKeySequence>& keys);
    void makeToolBar();
    void makeSearchField();
    void makeKeyActions();
    void makePanes();
    QListWidget* makeTopicList(const char* name, QWidget* parent);

    void translate();
    void changeLanguage();
    void topicChanged();
    void listTopics();
    void openListed(const QListWidgetItem* item);

    QString searchText() const;
    void search();
    void listHits();
    void findNext(bool backward);
    void updateSidePane();

    TransientParent* m_transientParent;
    QAction* m_back = nullptr;
    QAction* m_forward = nullptr;
    QAction* m_showContents = nullptr;
    QLineEdit* m_searchField = nullptr;
    QWidget* m_sidePane = nullptr;
    QListWidget* m_contents = nullptr;
    QLabel* m_searchResult = nullptr;
    QListWidget* m_hits = nullptr;
    HelpBrowser* m_browser = nullptr;
    HelpSearch m_search;
};
