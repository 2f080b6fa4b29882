#include "cli/WholeFiles.h"

#include "cli/CommandLine.h"

#include <QFileInfo>
#include <QSaveFile>

namespace workbench {

namespace {
[[noreturn]] void fail(const QSaveFile& file, const QString& reason)
{
    throw CommandError{QStringLiteral("cannot write %1: %2").arg(file.fileName(), reason)};
}
} // namespace

WholeFiles::WholeFiles() = default;
WholeFiles::~WholeFiles() = default;

void WholeFiles::add(const QString& path, const QString& text)
{
    m_files.push_back(std::make_unique<QSaveFile>(path));
    QSaveFile& file = *m_files.back();
    const QByteArray bytes = text.toUtf8();
    const QFileInfo existing(path);
    if (existing.exists() && !existing.isFile()) // saving would replace a pipe or a device
        fail(file, QStringLiteral("it is not a file"));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        fail(file, file.errorString());
}

void WholeFiles::commit()
{
    for (const auto& file : m_files)
        if (!file->commit())
            fail(*file, file->errorString());
}

} // namespace workbench
