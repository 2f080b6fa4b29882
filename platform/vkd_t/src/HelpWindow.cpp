#include "HelpWindow.h"

#include "HelpBrowser.h"
#include "TransientParent.h"

#include <vkd_language.h>
#include <vkd_qt_icon_named.h>
#include <VKD_QT_Layouts.h>
#include <VKD_QT_SignalBlocker.h>

#include <QAction>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QToolBar>

namespace {
constexpr int TopicRole = Qt::UserRole;
constexpr QSize FirstSize(1000, 700);
constexpr int SideWidth = 260;

QIcon programIcon(const char* name)
{
    return vkd::qt::icon(QStringLiteral(":/icon/program/") + QLatin1String(name));
}

/// Sets the text and a tool tip that contains the shortcut.
void setTexts(QAction* action, const QString& text)
{
    action->setText(text);
    action->setToolTip(
        QStringLiteral("%1 (%2)").arg(text, action->shortcut().toString(QKeySequence::NativeText)));
}
} // namespace

HelpWindow::HelpWindow()
    : m_transientParent(new TransientParent(this))
{
    setObjectName(QStringLiteral("VKD_T_Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false); // the help alone must not keep the program running
    setContextMenuPolicy(Qt::NoContextMenu);
    makeToolBar();
    makePanes();
    makeKeyActions();
    translate();
    updateSidePane();
    resize(FirstSize);
    m_browser->setFocus();
}

void HelpWindow::open(const HelpBook& book, int topic)
{
    m_search = HelpSearch(book);
    m_browser->open(book, topic);
    listTopics();
    listHits();
}

void HelpWindow::showFor(QWidget* caller)
{
    m_transientParent->follow(caller);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void HelpWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        changeLanguage();
}

QAction* HelpWindow::addKeyAction(const char* name, const QList<QKeySequence>& keys)
{
    auto action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    addAction(action);
    return action;
}

void HelpWindow::makeToolBar()
{
    m_back = addKeyAction("back", {QKeySequence(int(Qt::ALT) | Qt::Key_Left)});
    m_back->setIcon(programIcon("back"));
    m_forward = addKeyAction("forward", {QKeySequence(int(Qt::ALT) | Qt::Key_Right)});
    m_forward->setIcon(programIcon("forward"));
    m_showContents = addKeyAction("showContents", {QKeySequence(int(Qt::CTRL) | Qt::Key_T)});
    m_showContents->setIcon(programIcon("contents"));
    m_showContents->setCheckable(true);
    m_showContents->setChecked(true);
    connect(m_showContents, &QAction::toggled, this, &HelpWindow::updateSidePane);
    makeSearchField();

    auto bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addActions({m_back, m_forward, m_showContents});
    auto space = new QWidget(bar);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(space);
    bar->addWidget(m_searchField);
    addToolBar(bar);
}

void HelpWindow::makeSearchField()
{
    m_searchField = new QLineEdit(this);
    m_searchField->setObjectName(QStringLiteral("searchText"));
    m_searchField->setClearButtonEnabled(true);
    m_searchField->addAction(programIcon("search"), QLineEdit::LeadingPosition);
    m_searchField->setFixedWidth(SideWidth);
    connect(m_searchField, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(m_searchField, &QLineEdit::returnPressed, this, [this] { findNext(false); });
}

void HelpWindow::makeKeyActions()
{
    connect(m_back, &QAction::triggered, m_browser, &QTextBrowser::backward);
    connect(m_forward, &QAction::triggered, m_browser, &QTextBrowser::forward);
    const auto key = [this](const char* name, const QList<QKeySequence>& keys, auto act) {
        connect(addKeyAction(name, keys), &QAction::triggered, this, act);
    };
    key("close", {Qt::Key_Escape}, [this] { close(); });
    key("search", {int(Qt::CTRL) | Qt::Key_F}, [this] {
        m_searchField->setFocus();
        m_searchField->selectAll();
    });
    key("findNext", {Qt::Key_F3}, [this] { findNext(false); });
    key("findPrevious", {int(Qt::SHIFT) | Qt::Key_F3}, [this] { findNext(true); });
    // On many keyboards, the plus sign and the equals sign share a key.
    key("zoomIn", {int(Qt::CTRL) | Qt::Key_Plus, int(Qt::CTRL) | Qt::Key_Equal},
        [this] { m_browser->zoomBy(1); });
    key("zoomOut", {int(Qt::CTRL) | Qt::Key_Minus}, [this] { m_browser->zoomBy(-1); });
    key("resetZoom", {int(Qt::CTRL) | Qt::Key_0}, [this] { m_browser->resetZoom(); });
}

void HelpWindow::makePanes()
{
    auto splitter = new QSplitter(this);
    m_sidePane = new QWidget(splitter);
    m_contents = makeTopicList("contents", m_sidePane);
    m_searchResult = new QLabel(m_sidePane);
    m_searchResult->setObjectName(QStringLiteral("searchResult"));
    m_searchResult->setMargin(4);
    m_hits = makeTopicList("hits", m_sidePane);
    auto column = new VKD_QT_VBoxLayout(m_sidePane);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_contents, 1);
    column->addWidget(m_searchResult);
    column->addWidget(m_hits, 1);

    m_browser = new HelpBrowser(splitter);
    m_browser->setObjectName(QStringLiteral("page"));
    connect(m_browser, &QTextBrowser::sourceChanged, this, &HelpWindow::topicChanged);
    connect(m_browser, &QTextBrowser::backwardAvailable, m_back, &QAction::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, m_forward, &QAction::setEnabled);
    m_back->setEnabled(false);
    m_forward->setEnabled(false);

    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({SideWidth, FirstSize.width() - SideWidth});
    setCentralWidget(splitter);
}

QListWidget* HelpWindow::makeTopicList(const char* name, QWidget* parent)
{
    auto list = new QListWidget(parent);
    list->setObjectName(QLatin1String(name));
    connect(list, &QListWidget::itemClicked, this, &HelpWindow::openListed);
    connect(list, &QListWidget::itemActivated, this, &HelpWindow::openListed);
    return list;
}

void HelpWindow::translate()
{
    setTexts(m_back, tr("Back"));
    setTexts(m_forward, tr("Forward"));
    setTexts(m_showContents, tr("Contents"));
    m_searchField->setPlaceholderText(tr("Search"));
    m_searchField->setAccessibleName(tr("Search the help"));
    m_searchField->setToolTip(
        tr("Search in all topics (%1)\n"
           "Next place: Enter or F3, previous place: Shift+F3")
            .arg(QKeySequence(int(Qt::CTRL) | Qt::Key_F).toString(QKeySequence::NativeText)));
    m_contents->setAccessibleName(tr("Contents"));
    m_hits->setAccessibleName(tr("Topics found"));
    m_browser->setAccessibleName(tr("Help topic"));
}

void HelpWindow::changeLanguage()
{
    translate();
    const int topic = m_browser->topic();
    if (topic < 0)
        return;
    const QString name = m_browser->book().topics()[topic].name;
    const HelpBook book(m_browser->book().name(), vkd::desktopLanguage());
    if (book.find(name) >= 0)
        open(book, book.find(name));
}

void HelpWindow::topicChanged()
{
    const int topic = m_browser->topic();
    if (topic < 0)
        return;
    setWindowTitle(tr("Help - %1").arg(m_browser->book().topics()[topic].title));
    m_contents->setCurrentRow(topic);
}

void HelpWindow::listTopics()
{
    m_contents->clear();
    for (const HelpBook::Topic& topic : m_browser->book().topics())
        m_contents->addItem(topic.title);
    for (int i = 0; i < m_contents->count(); ++i)
        m_contents->item(i)->setData(TopicRole, i);
    topicChanged();
}

void HelpWindow::openListed(const QListWidgetItem* item)
{
    m_browser->openTopic(item->data(TopicRole).toInt());
    if (item->listWidget() == m_hits)
        m_browser->findWhileTyping(searchText());
}

QString HelpWindow::searchText() const
{
    return m_searchField->text().trimmed();
}

void HelpWindow::search()
{
    listHits();
    if (searchText().isEmpty())
        m_browser->unmark();
    else
        m_browser->findWhileTyping(searchText());
}

void HelpWindow::listHits()
{
    m_hits->clear();
    for (int topic : m_search.topicsWith(searchText())) {
        auto item = new QListWidgetItem(m_browser->book().topics()[topic].title, m_hits);
        item->setData(TopicRole, topic);
    }
    m_searchResult->setText(m_hits->count() > 0 ? tr("Found in these topics:") : tr("Not found"));
    updateSidePane();
}

void HelpWindow::findNext(bool backward)
{
    if (m_hits->count() == 0)
        return;
    const QTextDocument::FindFlags flags =
        backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (!m_browser->findNext(searchText(), flags))
        openListed(m_hits->item(0)); // the only matches are on other pages
}

void HelpWindow::updateSidePane()
{
    const bool isSearching = !searchText().isEmpty();
    m_contents->setVisible(m_showContents->isChecked());
    m_searchResult->setVisible(isSearching);
    m_hits->setVisible(m_hits->count() > 0);
    m_sidePane->setVisible(m_showContents->isChecked() || isSearching);
}
