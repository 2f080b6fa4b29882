#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <vector>

namespace workbench {

/// Writes several files, either all of them or none. Each file is first written completely under a
/// temporary name in its folder. commit() backs up the existing files and renames the temporary
/// files. If this fails for one file, the preceding ones are restored; replaced() lists those that
/// cannot be restored. If the program is killed during commit(), some files may be replaced, and
/// the temporary files remain.
class WholeFiles
{
    Q_DECLARE_TR_FUNCTIONS(workbench::WholeFiles)

public:
    WholeFiles() = default;
    WholeFiles(const WholeFiles&) = delete;
    WholeFiles& operator=(const WholeFiles&) = delete;
    /// Removes the temporary files.
    ~WholeFiles();

    /// Both functions return whether they have succeeded. After a failure, failedPath() and
    /// reason() describe the error, and no more files can be added or committed.
    bool add(const QString& path, const QByteArray& contents);
    bool commit();

    int size() const { return int(m_files.size()); }
    const QString& failedPath() const { return m_failedPath; }
    const QString& reason() const { return m_reason; }
    /// Returns the paths of the files that are replaced although commit() has failed.
    QStringList replaced() const;

private:
    struct File
    {
        QString path;
        QString target; ///< the file to which a symbolic link refers
        QString temporary;
        bool wasThere = false; ///< whether the target existed before commit()
        bool isPut = false;

        QString backup() const { return temporary + QLatin1String(".old"); }
    };

    bool put(File& file);
    static void takeBack(File& file);
    bool fail(const QString& path, const QString& reason);

    std::vector<File> m_files;
    QString m_failedPath;
    QString m_reason;
};

} // namespace workbench
