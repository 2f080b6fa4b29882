#pragma once

#include <vkd_zob.h>

#include <QString>

#include <memory>

class QWidget;
class VKD_H_ZOBDoc;
class ZobTransaction;

namespace workbench {

/// A file in whose place a project is to come. A project that lies there is kept from being written
/// by other programs as long as the object lives, and what a crash left beside it is tidied up: it
/// would be taken for an unfinished change of the new file.
class ReplacedFile
{
public:
    /// `path` need not be there. `parent` is for waiting for other programs.
    ReplacedFile(QWidget* parent, const QString& path);
    ~ReplacedFile();
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;

    /// VKD_ZOB_OK, or why the file cannot be replaced, also VKD_ZOB_CANCELLED.
    cd_error_t status() const { return m_status; }

private:
    cd_error_t take(const QString& path);

    std::unique_ptr<VKD_H_ZOBDoc> m_document;
    std::unique_ptr<ZobTransaction> m_change; // keeps others from writing, and stores nothing
    cd_error_t m_status;
};

/// Copies an open project, as the last finished change left it, in place of the file at `path` or
/// as a new one, in one step. The result is VKD_ZOB_OK, VKD_ZOB_CANCELLED or why not; what was at
/// `path` is then as it was.
cd_error_t copyProject(QWidget* parent, const VKD_H_ZOBDoc& document, const QString& path);

} // namespace workbench
