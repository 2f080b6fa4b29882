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
    /// Closes the file and opens it again, so that later reads come from the file.
    void reopen()
    {
        const QString path = doc->path();
        if (!doc->close().isOk() || !(doc = VKD_H_ZOBDoc::open(path)))
            qFatal("not stored, or not opened again");
    }

private:
    QTemporaryDir m_folder; // declared first, so that it is deleted after the document is closed

public:
    std::unique_ptr<VKD_H_ZOBDoc> doc;
};

} // namespace testsupport
