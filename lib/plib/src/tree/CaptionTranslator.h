#pragma once

#include <QObject>

class QTreeWidget;

namespace plib {

/// Shows the captions of an output tree in the desktop language after the tree has received a
/// QEvent::LanguageChange. The catalogue itself cannot be reloaded for this purpose, because it
/// keeps the records of every language in which it has been loaded, and a tree offers all records.
/// Before the first such event, the tree shows the captions of the catalogue.
class CaptionTranslator : public QObject
{
    Q_OBJECT

public:
    /// The tree becomes the parent of this object.
    explicit CaptionTranslator(QTreeWidget* tree);

    /// Translates the items again. Must be called after the tree has been refilled.
    void translate();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTreeWidget* m_tree;
    bool m_isActive = false; // true after the first language change
};

} // namespace plib
