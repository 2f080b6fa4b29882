#include "window/files/ProjectAccess.h"

#include "window/files/askAboutNewer.h"
#include "window/files/waitForStore.h"
#include "window/support/WindowMessages.h"

#include <ZobSnapshot.h>

#include <QMainWindow>

namespace workbench {

ProjectAccess::ProjectAccess(OpenProject* project, WindowMessages* messages)
    : m_project(project)
    , m_messages(messages)
{
}

bool ProjectAccess::canRead()
{
    return read([] { return cd_error_t(VKD_ZOB_OK); });
}

bool ProjectAccess::read(const std::function<cd_error_t()>& work)
{
    const QString path = m_project->path();
    const int index = m_project->handle().index();
    const cd_error_t status = waitForStore(m_messages->window(), path, [&] {
        const ZobSnapshot snapshot(m_project->handle());
        return snapshot.status().isOk() ? work() : cd_error_t(snapshot.status().code);
    });
    const VkdStatus last = vkd_zob_last_failure(index);
    return m_messages->succeeds(last.code == status ? last : VkdStatus{status, QString()}, path,
                                tr("The file %1 cannot be read."));
}

bool ProjectAccess::run(const std::function<cd_error_t()>& work, const QString& sentence)
{
    const QString path = m_project->path();
    return m_messages->succeeds(waitForStore(m_messages->window(), path, work), path, sentence);
}

ProjectAccess::Stored ProjectAccess::store(const std::function<cd_error_t(SeenPart::Newer)>& store,
                                           const QString& sentence)
{
    QWidget* window = m_messages->window();
    const QString path = m_project->path();
    cd_error_t status =
        waitForStore(window, path, [&store] { return store(SeenPart::Newer::Keep); });
    if (status == PartChanged) {
        switch (askAboutNewer(window)) {
        case NewerAnswer::Reload: return Stored::Reload;
        case NewerAnswer::GoBack: return Stored::No;
        case NewerAnswer::Overwrite:
            status =
                waitForStore(window, path, [&store] { return store(SeenPart::Newer::Overwrite); });
        }
    }
    return m_messages->succeeds(status, path, sentence) ? Stored::Yes : Stored::No;
}

bool ProjectAccess::storePart(ProjectPart part, const std::function<cd_error_t()>& put,
                              const QString& sentence, const std::function<void()>& reload)
{
    const Stored stored =
        store([&](SeenPart::Newer newer) { return m_project->store(part, put, newer); }, sentence);
    if (stored == Stored::Reload)
        reload();
    return stored == Stored::Yes;
}

} // namespace workbench
