#include "window/design/DesignEditor.h"

#include "window/design/DesignDialog.h"
#include "window/design/PickBanner.h"
#include "window/support/ProjectAccess.h"
#include "window/support/storeErrorText.h"
#include "window/support/WindowMessages.h"

#include <AnimatorView.h>
#include <VKD_H_SelGRP_Dialog.h>
#include <VKD_QT_MessageBox.h>

#include <QDir>
#include <QMainWindow>

#include <algorithm>

namespace workbench {

DesignEditor::DesignEditor(OpenProject* project, ProjectAccess* access, WindowMessages* messages,
                           AnimatorView* view, PickBanner* banner)
    : m_project(project)
    , m_access(access)
    , m_messages(messages)
    , m_view(view)
    , m_banner(banner)
{
    connect(m_view, &AnimatorView::pickedGroupsChanged, this, &DesignEditor::showPicked);
    connect(m_banner, &PickBanner::done, this, &DesignEditor::takePicked);
    connect(m_banner, &PickBanner::cancelled, this, &DesignEditor::cancelPicking);
}

DesignEditor::~DesignEditor() = default;

void DesignEditor::edit()
{
    auto dialog = std::make_unique<DesignDialog>(m_project, m_messages->window());
    if (!m_access->run([&dialog] { return dialog->load(); }, tr("The file %1 cannot be read.")))
        return;
    m_dialog = std::move(dialog);
    m_dialog->showPage();
    run();
}

void DesignEditor::run()
{
    int result = m_dialog->exec();
    while (result == QDialog::Accepted && !store()) {
        m_dialog->showPage(); // the user's input is not lost
        result = m_dialog->exec();
    }
    if (result == VKD_H_SelGRP_Dialog::PickOutside)
        return startPicking();
    m_dialog.reset();
    if (result == QDialog::Accepted)
        Q_EMIT stored();
    else
        m_messages->say(tr("The design parameters stay as they were."));
}

/// Returns false if the dialog must be shown again.
bool DesignEditor::store()
{
    if (m_project->check() != ProjectWatch::File::Present)
        return storeElsewhere();
    const auto stored =
        m_access->store([this](SeenPart::Newer newer) { return m_dialog->store(newer); },
                        tr("The design parameters cannot be stored in the file %1."));
    if (stored == ProjectAccess::Stored::Reload)
        m_access->run([this] { return m_dialog->load(); }, tr("The file %1 cannot be read."));
    if (stored == ProjectAccess::Stored::Yes)
        sayStored();
    return stored == ProjectAccess::Stored::Yes;
}

void DesignEditor::sayStored()
{
    const int rows = m_dialog->rowsWithoutGroups();
    const QString stored = tr("The design parameters are in the project file.");
    if (rows == 0)
        m_messages->say(stored);
    else if (rows == 1)
        m_messages->say(stored + QLatin1Char(' ') +
                        tr("1 row without groups is kept with the page."));
    else
        m_messages->say(stored + QLatin1Char(' ') +
                        tr("%1 rows without groups are kept with the page.").arg(rows));
}

bool DesignEditor::storeElsewhere()
{
    const QString path = m_project->path();
    const QString sentence = tr("The design parameters cannot be stored in the file %1.")
                                 .arg(QDir::toNativeSeparators(path)) +
                             QLatin1Char('\n') + storeErrorText(path, VKD_ZOB_MOVED);
    constexpr int GoBack = 1;
    if (VKD_QT_MessageBox::warning(m_messages->window(), tr("Workbench"), sentence,
                                   tr("&Save Project As..."), tr("&Go Back"), QString(), 0,
                                   GoBack) == GoBack ||
        !m_saveAs())
        return false;
    m_dialog->continueWithCopy();
    return store();
}

/// Begins with the groups that are checked in the group dialog; picking adds groups or removes
/// them.
void DesignEditor::startPicking()
{
    std::vector<int> groups;
    VKD_H_SelGRP_Dialog::getAniSelectionFromZob(VKD_H_SelGRP_Dialog::StartOfPicking, groups);
    m_view->setPickedGroups(groups);
    m_view->setPicking(true);
    m_banner->setGroupsWithoutAreas(m_groupsWithoutAreas);
    showPicked();
    m_banner->show();
    Q_EMIT pickingChanged(true);
    // On some desktops, no window is active after several dialogs have been hidden at once.
    m_messages->window()->activateWindow();
    m_messages->say(tr("Pick groups in the view, or by Enter in the list of groups."));
}

/// The dialog reads the groups from the project. If the groups cannot be stored, the user can
/// continue picking.
void DesignEditor::takePicked()
{
    const auto put = [this] {
        const auto groups = m_view->pickedGroups();
        return VKD_H_SelGRP_Dialog::putAniSelectionToZob(m_project->handle().index(), groups).code;
    };
    if (!m_access->run(put, tr("The picked groups cannot be stored in the file %1.")))
        return;
    stopPicking();
    run();
}

void DesignEditor::cancelPicking()
{
    stopPicking();
    run();
}

void DesignEditor::stopPicking()
{
    m_view->setPicking(false);
    m_view->setPickedGroups({});
    m_banner->hide();
    Q_EMIT pickingChanged(false);
    m_messages->say(QString());
}

void DesignEditor::pick(int group)
{
    if (!m_view->isPicking())
        return;
    std::vector<int> groups = m_view->pickedGroups();
    const auto place = std::find(groups.begin(), groups.end(), group);
    if (place == groups.end())
        groups.push_back(group);
    else
        groups.erase(place);
    m_view->setPickedGroups(groups);
    showPicked();
}

void DesignEditor::showPicked()
{
    m_banner->setPicked(m_view->pickedGroups());
}

} // namespace workbench
