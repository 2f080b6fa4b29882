#pragma once

#include "vkd_h_export.h"

#include <vkd_zob.h>

#include <QString>

#include <memory>

/// A project that is open: it owns the database index under which the store knows the file, and
/// closes it with its own end. Documents are handed around as pointers that nobody else owns.
class VKD_H_EXPORT VKD_H_ZOBDoc
{
public:
    /// Opens a project file, or makes a new one that must not be there yet. Null if that fails, and
    /// `status`, if given, says why: the result of vkd_zob_open() or vkd_zob_create().
    static std::unique_ptr<VKD_H_ZOBDoc> open(const QString& path, VkdStatus* status = nullptr,
                                              const VkdGoOn& goOn = VkdGoOn());
    static std::unique_ptr<VKD_H_ZOBDoc> create(const QString& path, VkdStatus* status = nullptr);
    /// The scratch store as a document, for what is not to be in a project yet. All such documents
    /// are one store, which keeps what is in it; index 0, without a path.
    static std::unique_ptr<VKD_H_ZOBDoc> scratch();
    ~VKD_H_ZOBDoc();
    VKD_H_ZOBDoc(const VKD_H_ZOBDoc&) = delete;
    VKD_H_ZOBDoc& operator=(const VKD_H_ZOBDoc&) = delete;

    /// The database index for the calls of the store and the model queries; 1 or more for a
    /// project, and -1 once the document is closed.
    int index() const;
    QString path() const;

    /// Closes the document before its end, to learn whether all that was written is stored: the
    /// result of vkd_zob_close(), OK if the document was closed already.
    VkdStatus close();

private:
    VKD_H_ZOBDoc(int index, const QString& path);

    int m_index;
    QString m_path;
};
