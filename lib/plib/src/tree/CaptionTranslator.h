#pragma once

#include <QObject>

class QTreeWidget;

namespace plib {

/// Shows the captions of an output tree in the language of the desktop after the tree received a
/// QEvent::LanguageChange. The catalogue itself cannot be reloaded for this, because it keeps the
/// records of each language in which it was loaded, and a tree offers them all. Before the first
/// such event, a tree shows the captions of the catalogue.
class CaptionTranslator : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of the tree.
    explicit CaptionTranslator(QTreeWidget* tree);

    /// Translates the items of a tree that was filled again.
    void translate();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTreeWidget* m_tree;
    bool m_isActive = false; // since the first change of the language
};

} // namespace plib
