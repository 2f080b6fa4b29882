#include "window/textoutput/TextOutputEditor.h"

#include "project/OpenProject.h"
#include "window/choice/TypedFilters.h"
#include "window/files/chooseFileToSave.h"
#include "window/files/ProjectAccess.h"
#include "window/files/saveTextFile.h"
#include "window/support/WindowMessages.h"
#include "window/textoutput/TextOutputDialog.h"

#include <QDir>
#include <QMainWindow>

namespace workbench {

TextOutputEditor::TextOutputEditor(OpenProject* project, ProjectAccess* access,
                                   WindowMessages* messages, const QList<QAction*>& actions)
    : m_project(project)
    , m_access(access)
    , m_messages(messages)
    , m_actions(actions)
{
}

TextOutputEditor::~TextOutputEditor() = default;

bool TextOutputEditor::isChanged() const
{
    return m_dialog && m_dialog->isChanged();
}

std::optional<TextOutputState> TextOutputEditor::state() const
{
    return m_dialog ? std::make_optional(m_dialog->state()) : std::nullopt;
}

void TextOutputEditor::show()
{
    if (!m_dialog && !m_access->read([this] { return load(); }))
        return;
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
}

/// Creates the dialog. If the project cannot be read, there is no dialog, because storing an
/// incomplete state would overwrite the saved one.
cd_error_t TextOutputEditor::load()
{
    cd_error_t status = m_project->look(ProjectPart::TextOutput);
    if (status != VKD_ZOB_OK)
        return status;
    create();
    status = m_dialog->readStatus().code;
    if (status != VKD_ZOB_OK)
        m_dialog.reset();
    return status;
}

void TextOutputEditor::create()
{
    m_dialog = std::make_unique<TextOutputDialog>(m_project->handle(), m_messages->window());
    m_dialog->addActions(m_actions);
    connect(m_dialog.get(), &TextOutputDialog::choiceChanged, this, &TextOutputEditor::modified);
    connect(m_dialog.get(), &TextOutputDialog::exportRequested, this,
            &TextOutputEditor::exportContents);
    connect(m_dialog.get(), &QDialog::accepted, this, [this] {
        if (store())
            closeLater();
        else
            show(); // the user's choice is not lost
    });
    connect(m_dialog.get(), &QDialog::rejected, this, [this] {
        closeLater();
        m_messages->say(tr("The text output was not changed."));
    });
}

void TextOutputEditor::exportContents(const QString& contents)
{
    const QString path = chooseFileToSave(
        m_dialog.get(), tr("Export Table of Contents"),
        QDir(m_project->folder()).filePath(m_project->name() + QLatin1String(".txt")),
        tr("Text files (*.txt)") + QLatin1String(";;") + tr("All files (*)"), QStringLiteral("txt"),
        m_project->path());
    if (!path.isEmpty() && saveTextFile(path, contents, m_messages))
        m_messages->say(
            tr("The table of contents has been saved as %1.").arg(QDir::toNativeSeparators(path)));
}

/// Destroys the dialog later, because it may be closing at the moment.
void TextOutputEditor::closeLater()
{
    if (m_dialog)
        m_dialog.release()->deleteLater();
    Q_EMIT modified();
}

void TextOutputEditor::close()
{
    m_dialog.reset();
}

bool TextOutputEditor::store()
{
    const TextOutputState state = m_dialog->state();
    const auto put = [this, &state] { return state.put(m_project->handle()).code; };
    if (!m_access->storePart(ProjectPart::TextOutput, put,
                             tr("The text output cannot be stored in the file %1."),
                             [this] { reload(); }))
        return false;
    m_dialog->setUnchanged();
    Q_EMIT modified();
    m_messages->say(tr("The text output has been stored in the project file."));
    return true;
}

void TextOutputEditor::reload()
{
    TextOutputState state;
    const auto read = [this, &state] {
        VkdStatus status{m_project->look(ProjectPart::TextOutput), QString()};
        if (status.isOk())
            state = TextOutputState::read(m_project->handle(), ExtentFields::DefaultLists, &status);
        return cd_error_t(status.code);
    };
    if (!m_access->read(read))
        return;
    m_dialog->setState(state);
    m_dialog->setUnchanged();
    Q_EMIT modified();
}

bool TextOutputEditor::mayLeave()
{
    return !isChanged() ||
           m_messages->mayLeave(tr("The text output has been changed, but not yet stored in the "
                                   "project.\nDo you want to store it?"),
                                [this] { return store(); });
}

void TextOutputEditor::reopen(const TextOutputState& state)
{
    create();
    m_dialog->setState(state);
    m_dialog->show();
}

void TextOutputEditor::recreate()
{
    if (!m_dialog)
        return;
    const TextOutputState before = m_dialog->state();
    const TypedFilters filters(m_dialog.get());
    m_dialog.reset(); // saves its geometry, which the new dialog restores
    reopen(before);
    filters.restore(m_dialog.get());
}

} // namespace workbench
