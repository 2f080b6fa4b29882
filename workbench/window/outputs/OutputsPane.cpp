#include "window/outputs/OutputsPane.h"

#include "sheet/actionButton.h"

#include <QAction>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace workbench {

/// A list with the height of a few rows. The height is fixed so that the panes below do not move
/// when outputs are added.
class ShortList : public QListWidget
{
public:
    static constexpr int ShownRows = 4;

    using QListWidget::QListWidget;

    QSize sizeHint() const override
    {
        const int row = qMax(fontMetrics().height(), sizeHintForRow(0));
        return {QListWidget::sizeHint().width(), ShownRows * row + 2 * frameWidth()};
    }
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

    /// Calls a function that may change the names. An open editor keeps its text.
    template <typename Change>
    void keepTypedText(const Change& change)
    {
        const QPointer<QLineEdit> editor = openEditor();
        const QString text = editor ? editor->text() : QString();
        change();
        if (editor && editor->text() != text)
            editor->setText(text);
    }

    QString finishEditing()
    {
        const QPointer<QLineEdit> editor = openEditor();
        if (!editor)
            return QString();
        const QString text = editor->text();
        // After Return, the delegate commits the text in a posted event. Send this event before the
        // editor is closed.
        QCoreApplication::sendPostedEvents(itemDelegate(), QEvent::MetaCall);
        if (editor && editor == openEditor()) {
            commitData(editor);
            closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
        return text;
    }

private:
    QLineEdit* openEditor() const { return qobject_cast<QLineEdit*>(indexWidget(currentIndex())); }
};

namespace {
/// Returns whether the user has closed the editor with Return or Escape.
bool isEndedByKey(QAbstractItemDelegate::EndEditHint hint)
{
    return hint == QAbstractItemDelegate::SubmitModelCache ||
           hint == QAbstractItemDelegate::RevertModelCache;
}

QToolButton* newButton(QAction* action, const char* name, QWidget* parent)
{
    QToolButton* button = actionButton(action, parent);
    button->setObjectName(QLatin1String(name));
    return button;
}

/// Sets the flags only once, because setting them would reset the text in an open editor.
QListWidgetItem* addItem(QListWidget* list)
{
    auto item = new QListWidgetItem(list);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable);
    return item;
}
} // namespace

OutputsPane::OutputsPane(QWidget* parent)
    : QWidget(parent)
    , menu(new QMenu(this))
    , undo(addStep("undo", {int(Qt::CTRL) | Qt::Key_Z}))
    , redo(addStep("redo", {int(Qt::CTRL) | Qt::SHIFT | Qt::Key_Z, int(Qt::CTRL) | Qt::Key_Y}))
    , newOutput(add("NewOutput", int(Qt::CTRL) | Qt::SHIFT | Qt::Key_N))
    , duplicate(add("DuplicateOutput"))
    , rename(add("RenameOutput"))
    , remove(add("DeleteOutput"))
    , moveUp(add("MoveOutputUp"))
    , moveDown(add("MoveOutputDown"))
    , previous(add("PreviousOutput", int(Qt::CTRL) | Qt::Key_PageUp))
    , next(add("NextOutput", int(Qt::CTRL) | Qt::Key_PageDown))
    , copyFrom(add("CopyOutputs"))
    , saveAll(add("SaveAllScripts"))
    , exportAll(add("ExportAllSheets"))
    , m_list(new ShortList(this))
    , m_more(new QToolButton(this))
    , m_note(new QLabel(this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed); // leaves room for the script
    m_list->setObjectName(QStringLiteral("OutputList"));
    m_list->setEditTriggers(QAbstractItemView::DoubleClicked);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_more->setObjectName(QStringLiteral("MoreOutputActions"));
    m_more->setMenu(menu);
    m_more->setPopupMode(QToolButton::InstantPopup);
    m_more->setFocusPolicy(Qt::StrongFocus);
    m_note->setObjectName(QStringLiteral("AbsentPlots"));
    m_note->setWordWrap(true);
    m_note->hide();
    addToList(rename, Qt::Key_F2);
    addToList(remove, QKeySequence::Delete);
    addToList(moveUp, int(Qt::ALT) | Qt::Key_Up);
    addToList(moveDown, int(Qt::ALT) | Qt::Key_Down);
    menu->insertSeparator(newOutput);
    menu->insertSeparator(previous);
    menu->insertSeparator(copyFrom);
    menu->insertSeparator(saveAll);
    layOut();
    listen();
    setTexts();
}

QAction* OutputsPane::add(const char* name, const QKeySequence& shortcut)
{
    QAction* action = menu->addAction(QString());
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    // An editor that is open while the list changes its current row would rename another output.
    connect(action, &QAction::triggered, this, &OutputsPane::finishEditing);
    return action;
}

/// Adds an action whose shortcuts work in the whole pane.
QAction* OutputsPane::addStep(const char* name, const QList<QKeySequence>& shortcuts)
{
    QAction* action = add(name);
    action->setShortcuts(shortcuts);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    return action;
}

/// Adds a shortcut that works only in the list.
void OutputsPane::addToList(QAction* action, const QKeySequence& shortcut)
{
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_list->addAction(action);
}

void OutputsPane::layOut()
{
    QToolButton* first = newButton(newOutput, "NewOutputButton", this);
    QToolButton* second = newButton(duplicate, "DuplicateOutputButton", this);
    auto head = new QHBoxLayout;
    head->addWidget(first);
    head->addWidget(second);
    head->addStretch();
    head->addWidget(m_more);
    auto layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6); // as in the panes below
    layout->addLayout(head);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_note);
    setTabOrder(first, second);
    setTabOrder(second, m_more);
    setTabOrder(m_more, m_list);
}

void OutputsPane::listen()
{
    connect(rename, &QAction::triggered, this, [this] { editName(); });
    // The other output is shown only after the list has handled the event.
    connect(m_list, &QListWidget::currentRowChanged, this, &OutputsPane::chosen,
            Qt::QueuedConnection);
    connect(m_list, &QListWidget::itemChanged, this,
            [this](const QListWidgetItem* item) { Q_EMIT renamed(item->text()); });
    connect(m_list->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            [this](QWidget*, QAbstractItemDelegate::EndEditHint hint) {
                Q_EMIT namingEnded(isEndedByKey(hint));
            });
    connect(m_list, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& place) { menu->popup(m_list->viewport()->mapToGlobal(place)); });
    const auto step = [this](int distance) {
        const int count = m_list->count();
        if (count > 1)
            m_list->setCurrentRow((m_list->currentRow() + distance + count) % count);
    };
    connect(previous, &QAction::triggered, this, [step] { step(-1); });
    connect(next, &QAction::triggered, this, [step] { step(1); });
}

void OutputsPane::setOutputs(const QVector<Row>& outputs, int current)
{
    const bool wasFilled = isFilled();
    const QSignalBlocker blocker(m_list);
    m_list->keepTypedText([&] { fill(outputs); });
    m_list->setCurrentRow(current);
    for (QAction* action : menu->actions())
        action->setEnabled(!outputs.isEmpty());
    const int last = outputs.size() - 1;
    for (QAction* action : {remove, previous, next})
        action->setEnabled(last > 0);
    moveUp->setEnabled(current > 0);
    moveDown->setEnabled(current < last);
    if (isFilled() != wasFilled)
        Q_EMIT filled();
}

void OutputsPane::fill(const QVector<Row>& outputs)
{
    while (m_list->count() > outputs.size())
        delete m_list->takeItem(m_list->count() - 1);
    for (int i = 0; i < outputs.size(); ++i) {
        QListWidgetItem* item = i < m_list->count() ? m_list->item(i) : addItem(m_list);
        QFont font = m_list->font();
        font.setItalic(outputs[i].isChanged);
        item->setText(outputs[i].name);
        item->setFont(font);
        item->setToolTip(outputs[i].isChanged ? tr("Not yet saved in the project") : QString());
    }
}

bool OutputsPane::isFilled() const
{
    return m_list->count() > 0;
}

void OutputsPane::setAbsentPlots(int count)
{
    m_note->setText(tr("Checked plots that this model lacks: %1. They are kept.").arg(count));
    m_note->setVisible(count > 0);
}

void OutputsPane::enter()
{
    if (m_list->isVisible())
        m_list->setFocus();
}

void OutputsPane::editName(const QString& text)
{
    if (!m_list->currentItem() || !m_list->isVisible())
        return;
    m_list->setFocus();
    m_list->editItem(m_list->currentItem());
    const auto editor = qobject_cast<QLineEdit*>(m_list->indexWidget(m_list->currentIndex()));
    if (editor && !text.isNull())
        editor->setText(text);
}

QString OutputsPane::finishEditing()
{
    Q_EMIT namingEnded(false);
    return m_list->finishEditing();
}

void OutputsPane::setTexts()
{
    m_list->setAccessibleName(tr("Outputs"));
    menu->setTitle(tr("&Outputs"));
    m_more->setText(tr("More"));
    newOutput->setText(tr("&New Output"));
    newOutput->setIconText(tr("New"));
    newOutput->setToolTip(tr("Adds an output without plots, with the settings of the current one"));
    duplicate->setText(tr("&Duplicate"));
    duplicate->setToolTip(tr("Adds a copy of the current output"));
    rename->setText(tr("&Rename"));
    remove->setText(tr("D&elete"));
    moveUp->setText(tr("&Move Up"));
    moveDown->setText(tr("Move Do&wn"));
    previous->setText(tr("&Previous"));
    next->setText(tr("Ne&xt"));
    copyFrom->setText(tr("Copy &from Project..."));
    saveAll->setText(tr("&Save All Scripts..."));
    exportAll->setText(tr("Expor&t All Sheets..."));
}

} // namespace workbench
