#include "project/OpenProject.h"

#include <VKD_H_ZOBDoc.h>
#include <ZobSnapshot.h>

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace workbench {

OpenProject::OpenProject(QObject* parent)
    : QObject(parent)
{
    connect(&m_watch, &ProjectWatch::noticed, this, &OpenProject::changedOutside);
}

OpenProject::~OpenProject() = default;

std::unique_ptr<VKD_H_ZOBDoc> OpenProject::setDocument(std::unique_ptr<VKD_H_ZOBDoc> document)
{
    auto previous = std::exchange(m_document, std::move(document));
    m_watch.setProject(handle(), path());
    m_followed = 0;
    return previous;
}

ZobHandle OpenProject::handle() const
{
    return m_document ? m_document->handle() : ZobHandle();
}

QString OpenProject::path() const
{
    return m_document ? m_document->path() : QString();
}

QString OpenProject::name() const
{
    return QFileInfo(path()).completeBaseName();
}

QString OpenProject::folder() const
{
    return m_document ? QFileInfo(path()).absolutePath() : QDir::currentPath();
}

cd_error_t OpenProject::readStatus() const
{
    return ZobSnapshot(handle()).status().code;
}

cd_error_t OpenProject::look(ProjectPart part)
{
    return m_parts[int(part)].look(handle());
}

bool OpenProject::isOutdated(ProjectPart part) const
{
    return m_parts[int(part)].isOutdated(handle());
}

cd_error_t OpenProject::store(ProjectPart part, const std::function<cd_error_t()>& put,
                              SeenPart::Newer newer)
{
    return m_parts[int(part)].store(handle(), put, newer);
}

ProjectWatch::File OpenProject::check()
{
    m_watch.look();
    return m_watch.file();
}

} // namespace workbench
