#include "window/design/DesignEditor.h"

#include "window/design/DesignDock.h"
#include "window/files/ProjectAccess.h"
#include "window/files/storeErrorText.h"
#include "window/support/WindowMessages.h"

#include <VKD_QT_MessageBox.h>

#include <QAction>
#include <QDir>
#include <QMainWindow>
#include <QTableWidget>

namespace workbench {

DesignEditor::DesignEditor(OpenProject* project, ProjectAccess* access, WindowMessages* messages,
                           DesignDock* dock)
    : m_project(project)
    , m_access(access)
    , m_messages(messages)
    , m_dock(dock)
{
    m_dock->setMayClose([this] { return mayLeave(); });
    connect(m_dock, &DesignDock::applyRequested, this, &DesignEditor::store);
    connect(m_dock, &DesignDock::closed, this, [this] {
        m_closed = state();
        setPage(nullptr);
    });
    connect(m_dock->toggleViewAction(), &QAction::triggered, this, [this](bool isShown) {
        if (isShown)
            edit();
    });
}

/// Destroys the page before the project that it uses.
DesignEditor::~DesignEditor()
{
    m_dock->setPage(nullptr);
}

void DesignEditor::edit()
{
    if (!m_dock->page() && !load(m_closed))
        return m_dock->hide();
    m_dock->show();
    m_dock->raise();
    m_dock->activateWindow();
    m_dock->page()->table()->setFocus();
}

/// Replaces the page only if the project can be read. The new page continues with the undo steps of
/// the page before, if they fit.
bool DesignEditor::load(const std::optional<DesignPage::State>& before)
{
    auto page = std::make_unique<DesignPage>(m_project, m_dock);
    page->hide(); // until it is in the dock
    if (!m_access->run([&page] { return page->load(); }, tr("The file %1 cannot be read.")))
        return false;
    if (before)
        page->continueFrom(*before);
    setPage(std::move(page));
    return true;
}

void DesignEditor::setPage(std::unique_ptr<DesignPage> page)
{
    const bool isModified = page && page->isModified();
    if (page)
        connect(page.get(), &DesignPage::modifiedChanged, this, [this](bool isChanged) {
            m_dock->setModified(isChanged);
            Q_EMIT modified();
        });
    m_dock->setPage(std::move(page));
    m_dock->setModified(isModified);
    Q_EMIT pageChanged();
    Q_EMIT modified();
}

bool DesignEditor::isChanged() const
{
    return m_dock->page() && m_dock->page()->isModified();
}

bool DesignEditor::store()
{
    if (!finishEditing())
        return false;
    if (!isChanged())
        return true;
    if (!m_dock->page()->maySharedGroupsStay())
        return false;
    if (m_project->check() != ProjectWatch::File::Present)
        return storeElsewhere();
    const auto stored =
        m_access->store([this](SeenPart::Newer newer) { return m_dock->page()->store(newer); },
                        tr("The design parameters cannot be stored in the file %1."));
    if (stored == ProjectAccess::Stored::Reload)
        load(state());
    if (stored != ProjectAccess::Stored::Yes)
        return false;
    sayStored();
    Q_EMIT DesignEditor::stored();
    return true;
}

void DesignEditor::sayStored()
{
    const int rows = m_dock->page()->rowsWithoutGroups();
    const QString stored = tr("The design parameters have been stored in the project file.");
    if (rows == 0)
        m_messages->say(stored);
    else if (rows == 1)
        m_messages->say(stored + QLatin1Char(' ') +
                        tr("1 row without groups has been saved with the page."));
    else
        m_messages->say(stored + QLatin1Char(' ') +
                        tr("%1 rows without groups have been saved with the page.").arg(rows));
}

/// Saving under another name stores the rows in the copy.
bool DesignEditor::storeElsewhere()
{
    const QString path = m_project->path();
    const QString sentence = tr("The design parameters cannot be stored in the file %1.")
                                 .arg(QDir::toNativeSeparators(path)) +
                             QLatin1Char('\n') + storeErrorText(path, VKD_ZOB_MOVED);
    constexpr int GoBack = 1;
    return VKD_QT_MessageBox::warning(m_messages->window(), tr("Workbench"), sentence,
                                      tr("&Save Project As..."), tr("&Go Back"), QString(), 0,
                                      GoBack) != GoBack &&
           m_saveAs() && !isChanged();
}

bool DesignEditor::finishEditing()
{
    return !m_dock->page() || m_dock->page()->finishEditing();
}

bool DesignEditor::mayLeave()
{
    if (!finishEditing())
        return false;
    return !isChanged() ||
           m_messages->mayLeave(
               tr("The design parameters have been changed, but not yet stored in the project.\n"
                  "Do you want to store them?"),
               [this] { return store(); });
}

std::optional<DesignPage::State> DesignEditor::state() const
{
    return m_dock->page() ? std::make_optional(m_dock->page()->state()) : std::nullopt;
}

void DesignEditor::restore(const DesignPage::State& state)
{
    auto page = std::make_unique<DesignPage>(m_project, m_dock);
    page->hide();
    page->restore(state);
    setPage(std::move(page));
}

/// Does not read the project if there are changed rows, because the user would then be assumed to
/// have seen the rows that are now in the project.
void DesignEditor::showAgain(const std::optional<DesignPage::State>& before)
{
    if (!before)
        showProject();
    else if (before->isModified)
        restore(*before);
    else if (!load(before))
        m_dock->hide();
}

void DesignEditor::close()
{
    m_closed.reset(); // the next project may be another one
    setPage(nullptr);
}

void DesignEditor::showProject()
{
    if (m_dock->isVisible() && !m_dock->page() && !load(std::nullopt))
        m_dock->hide();
}

bool DesignEditor::followOthers()
{
    if (!m_dock->page() || !m_project->isOutdated(ProjectPart::Design))
        return true;
    finishEditing();
    if (isChanged()) {
        m_dock->page()->setOutdated();
        return false;
    }
    load(state());
    return true;
}

} // namespace workbench
