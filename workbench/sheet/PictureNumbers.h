#pragma once

#include <QString>
#include <QVector>

namespace workbench {

/// Counts the pictures before the lines of a script. A script is read only once, when the first
/// line is looked up, because reading a script with many load cases takes a long time.
class PictureNumbers
{
public:
    /// Returns the number of pictures that the script draws before a line. Lines are counted from
    /// 0.
    int before(int line, const QString& script);

private:
    QString m_script;
    QVector<int> m_before; ///< indexed by line
};

} // namespace workbench
