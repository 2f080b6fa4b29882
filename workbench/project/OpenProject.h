#pragma once

#include "project/ProjectWatch.h"
#include "project/SeenPart.h"

#include <array>
#include <memory>

class VKD_H_ZOBDoc;

namespace workbench {

/// The open project of a window, if there is one: the document, the states of the project's parts
/// that dialogs have read, and changes by other programs. The class does not use widgets.
/// ProjectAccess adds messages and waits for other programs.
class OpenProject : public QObject
{
    Q_OBJECT

public:
    explicit OpenProject(QObject* parent = nullptr);
    ~OpenProject() override;

    /// Replaces the document; a null pointer closes the project. Returns the previous document,
    /// which stays open as long as the caller owns it. The states that look() has stored are
    /// preserved, because dialogs continue to work on a reloaded project or on a copy.
    std::unique_ptr<VKD_H_ZOBDoc> setDocument(std::unique_ptr<VKD_H_ZOBDoc> document);
    bool isOpen() const { return bool(m_document); }
    /// Returns null if no project is open.
    VKD_H_ZOBDoc* document() const { return m_document.get(); }
    /// Returns a null handle if no project is open.
    ZobHandle handle() const;
    /// Returns the path of the file, or an empty string if no project is open.
    QString path() const;
    /// Returns the name of the file without its suffix.
    QString name() const;
    /// Returns the folder of the file, or the current folder if no project is open.
    QString folder() const;

    /// Returns a VkdZobStatus that indicates whether the project can currently be read.
    cd_error_t readStatus() const;

    /// These functions call the operations of SeenPart for a part of this project.
    cd_error_t look(ProjectPart part);
    bool isOutdated(ProjectPart part) const;
    cd_error_t store(ProjectPart part, const std::function<cd_error_t()>& put,
                     SeenPart::Newer newer);

    /// Returns the state of the file at the last check.
    ProjectWatch::File file() const { return m_watch.file(); }
    /// Immediately checks the project for changes by other programs.
    ProjectWatch::File check();
    /// Returns whether another program has changed the project since it was opened or
    /// markFollowed() was called.
    bool isChangedByOthers() const { return m_watch.changes() != m_followed; }
    void markFollowed() { m_followed = m_watch.changes(); }

Q_SIGNALS:
    /// Emitted after a check, if file() has changed or another program has changed the project.
    void changedOutside();

private:
    std::unique_ptr<VKD_H_ZOBDoc> m_document;
    ProjectWatch m_watch;
    int m_followed = 0;
    std::array<SeenPart, 3> m_parts{SeenPart(ProjectPart::Design), SeenPart(ProjectPart::Output),
                                    SeenPart(ProjectPart::TextOutput)};
};

} // namespace workbench
