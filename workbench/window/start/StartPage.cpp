#include "window/start/StartPage.h"

#include "window/start/recentProjects.h"
#include "window/start/SampleModel.h"
#include "window/start/StartButton.h"
#include "window/support/HelpKey.h"
#include "window/support/WindowSettings.h"

#include <QAction>
#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QStyle>

namespace workbench {

namespace {
constexpr int PathRole = Qt::UserRole;
constexpr QSize PictureSize(180, 120);
constexpr int PageMargin = 24; // around the page and between its columns
constexpr int ListWidth = 560;
constexpr int ListHeight = 400; // enough for all recent projects

QLabel* newTitle(QWidget* parent)
{
    auto title = new QLabel(parent);
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    return title;
}
} // namespace

StartPage::StartPage(const Actions& actions, QWidget* parent)
    : QScrollArea(parent)
    , m_recentTitle(newTitle(this))
    , m_newTitle(newTitle(this))
    , m_drop(new QLabel(this))
    , m_recent(new QListWidget(this))
    , m_remove(new QAction(m_recent))
{
    setObjectName(QStringLiteral("StartPage"));
    setHelpTopic(this, "GRAV/START");
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true); // the page may be larger than the window
    auto page = new QWidget(this);
    auto columns = new QHBoxLayout(page);
    columns->setContentsMargins(PageMargin, PageMargin, PageMargin, PageMargin);
    columns->setSpacing(PageMargin);
    QLayout* newProject = newProjectColumn(actions); // so that Open is last in tab order
    columns->addStretch(1);
    columns->addLayout(recentColumn(actions.open), 100);
    columns->addLayout(newProject);
    columns->addStretch(1);
    setWidget(page);
    addPictures();
    setTexts();
}

QLayout* StartPage::recentColumn(QAction* open)
{
    m_recent->setObjectName(QStringLiteral("RecentProjects"));
    m_recent->setTextElideMode(Qt::ElideMiddle);
    m_recent->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_recent->setMinimumWidth(30 * fontMetrics().averageCharWidth());
    m_recent->setMaximumSize(ListWidth, ListHeight);
    m_recent->setSpacing(2);
    m_recent->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_recentTitle->setBuddy(m_recent);
    m_remove->setObjectName(QStringLiteral("RemoveRecent"));
    m_remove->setShortcut(QKeySequence::Delete);
    m_remove->setShortcutContext(Qt::WidgetShortcut);
    m_recent->addAction(m_remove);
    connect(m_remove, &QAction::triggered, this, &StartPage::remove);
    connect(m_recent, &QListWidget::itemClicked, this, &StartPage::chooseClicked);
    connect(m_recent, &QListWidget::itemActivated, this, &StartPage::choose);
    auto column = new QVBoxLayout;
    column->addWidget(m_recentTitle);
    column->addWidget(m_recent, 100);
    column->addWidget(new StartButton(open, this));
    column->addStretch(1);
    column->setSpacing(PageMargin / 3);
    return column;
}

QLayout* StartPage::newProjectColumn(const Actions& actions)
{
    auto samples = new QHBoxLayout;
    for (QAction* action : actions.samples) {
        m_samples.append(new StartButton(action, this));
        samples->addWidget(m_samples.last());
    }
    m_drop->setObjectName(QStringLiteral("DropHint"));
    m_drop->setWordWrap(true);
    auto column = new QVBoxLayout;
    column->addWidget(m_newTitle);
    column->addLayout(samples);
    column->addWidget(new StartButton(actions.modelFile, this));
    column->addSpacing(PageMargin);
    column->addWidget(m_drop);
    column->addStretch();
    column->setSpacing(PageMargin / 3);
    samples->setSpacing(PageMargin / 3);
    return column;
}

/// The background of the pictures is that of the palette.
void StartPage::addPictures()
{
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    for (StartButton* sample : qAsConst(m_samples)) {
        const QString name = sample->defaultAction()->data().toString();
        sample->setPicture(SampleModel::picture(name, isDark), PictureSize);
    }
}

void StartPage::refresh()
{
    m_recent->clear();
    addProjects();
    const bool hasProjects = m_recent->count() > 0;
    setFocusProxy(hasProjects || m_samples.isEmpty() ? static_cast<QWidget*>(m_recent)
                                                     : m_samples.first());
    m_recent->setEnabled(hasProjects);
    if (!hasProjects)
        m_recent->addItem(tr("No project has been opened yet."));
}

/// A project whose file is missing cannot be opened, but remains in the list, because its disk may
/// be missing only temporarily.
void StartPage::addProjects()
{
    const QVector<RecentProject> projects = recentProjects(WindowSettings().savedRecentFiles());
    for (const RecentProject& project : projects) {
        const QString folder =
            project.isPresent ? project.folder : tr("%1 (not found)").arg(project.folder);
        auto item = new QListWidgetItem(project.name + QLatin1Char('\n') + folder, m_recent);
        item->setData(PathRole, project.path);
        item->setToolTip(QDir::toNativeSeparators(project.path));
        if (!project.isPresent)
            item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
    }
    m_recent->setCurrentRow(0);
}

/// On some desktops, a single click also activates the item.
void StartPage::chooseClicked(const QListWidgetItem* item)
{
    if (!m_recent->style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick, nullptr,
                                      m_recent))
        choose(item);
}

void StartPage::choose(const QListWidgetItem* item)
{
    Q_EMIT projectChosen(item->data(PathRole).toString());
}

void StartPage::remove()
{
    const QListWidgetItem* item = m_recent->currentItem();
    if (!item)
        return;
    const int row = m_recent->currentRow();
    WindowSettings().removeRecentFile(item->data(PathRole).toString());
    refresh();
    m_recent->setCurrentRow(qMin(row, m_recent->count() - 1));
    setFocus();
}

void StartPage::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        setTexts();
        refresh();
    }
    if (event->type() == QEvent::PaletteChange) {
        addPictures();
        refresh();
    }
}

void StartPage::setTexts()
{
    setAccessibleName(tr("Start page"));
    m_recentTitle->setText(tr("&Recent Projects"));
    m_recent->setAccessibleName(tr("Recent projects"));
    m_newTitle->setText(tr("New Project from a Model"));
    m_remove->setText(tr("Remove from List"));
    m_drop->setText(tr("You can also drop a project or a model file onto this window."));
}

} // namespace workbench
