#pragma once

#include <QHash>
#include <QString>

class QWidget;

namespace workbench {

/// The filters that the user has typed above the tables of a dialog. A dialog that replaces another
/// dialog shows them again.
class TypedFilters
{
public:
    TypedFilters() = default;
    explicit TypedFilters(const QWidget* dialog);

    void restore(const QWidget* dialog) const;

private:
    QHash<QString, QString> m_texts; ///< keyed by the object name of the bar
};

} // namespace workbench
