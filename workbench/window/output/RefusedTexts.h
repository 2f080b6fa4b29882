#pragma once

#include <QHash>
#include <QString>

class QWidget;

namespace workbench {

/// The texts that the number fields of a page refuse. A page that replaces another page shows them
/// again, so that they are not lost.
class RefusedTexts
{
public:
    RefusedTexts() = default;
    explicit RefusedTexts(const QWidget* page);

    bool isEmpty() const { return m_texts.isEmpty(); }
    /// Enters the texts in the fields with the same object names.
    void restore(const QWidget* page) const;

private:
    QHash<QString, QString> m_texts; ///< keyed by the object name of the field
};

} // namespace workbench
