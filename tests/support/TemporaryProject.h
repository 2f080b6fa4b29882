#pragma once

#include <VKD_H_ZOBDoc.h>

#include <QTemporaryDir>
#include <QtGlobal>

namespace testsupport {

/// An open project in a temporary folder.
class TemporaryProject
{
public:
    TemporaryProject()
        : doc(VKD_H_ZOBDoc::create(m_folder.filePath(QStringLiteral("project.zob"))))
    {
        if (!doc)
            qFatal("no project");
    }

    ZobHandle handle() const { return doc->handle(); }
    int index() const { return doc->index(); }

private:
    QTemporaryDir m_folder; // declared first, so that it is deleted after the document is closed

public:
    std::unique_ptr<VKD_H_ZOBDoc> doc;
};

} // namespace testsupport
