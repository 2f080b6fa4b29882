#pragma once

#include <QString>

#include <memory>
#include <vector>

class QSaveFile;

namespace workbench {

/// Writes the text files of a command, either all of them or none. Existing files are replaced only
/// after all files have been written.
class WholeFiles
{
public:
    WholeFiles();
    ~WholeFiles();

    /// These functions throw a CommandError if writing fails.
    void add(const QString& path, const QString& text);
    void commit();

private:
    std::vector<std::unique_ptr<QSaveFile>> m_files;
};

} // namespace workbench
