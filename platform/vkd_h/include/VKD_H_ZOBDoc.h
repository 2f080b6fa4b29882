#pragma once

#include "vkd_h_export.h"

#include <vkd_zob.h>
#include <ZobHandle.h>

#include <QString>

#include <memory>

/// An open project. It owns the database index of the project's file and closes the project in its
/// destructor. Documents are passed as non-owning pointers.
class VKD_H_EXPORT VKD_H_ZOBDoc
{
public:
    /// These functions open an existing project file or create a new file, which must not exist
    /// yet. They return null on failure. If `status` is not null, it receives the result of
    /// vkd_zob_open() or vkd_zob_create().
    static std::unique_ptr<VKD_H_ZOBDoc> open(const QString& path, VkdStatus* status = nullptr,
                                              const VkdGoOn& goOn = VkdGoOn());
    static std::unique_ptr<VKD_H_ZOBDoc> create(const QString& path, VkdStatus* status = nullptr);
    /// Returns the scratch store as a document, for data that does not yet belong to a project. The
    /// document has index 0 and no path. All scratch documents share one store, which exists until
    /// the process ends.
    static std::unique_ptr<VKD_H_ZOBDoc> scratch();
    ~VKD_H_ZOBDoc();
    VKD_H_ZOBDoc(const VKD_H_ZOBDoc&) = delete;
    VKD_H_ZOBDoc& operator=(const VKD_H_ZOBDoc&) = delete;

    /// Returns the database index for the store and the model queries: 1 or more for a project, -1
    /// after close().
    int index() const;
    /// Returns the same index as a handle; null after close().
    ZobHandle handle() const { return m_project; }
    QString path() const;

    /// Closes the document explicitly, so that the caller can check whether all changes were
    /// stored. Returns the result of vkd_zob_close(), or OK if the document was already closed.
    VkdStatus close();

private:
    VKD_H_ZOBDoc(ZobHandle project, const QString& path);

    ZobHandle m_project;
    QString m_path;
};
