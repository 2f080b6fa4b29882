#include "window/script/ScriptPane.h"

#include "sheet/actionButton.h"
#include "window/script/CheckMark.h"
#include "window/script/FindBar.h"
#include "window/script/ScriptView.h"
#include "window/support/WindowSettings.h"

#include <VKD_QT4_ComboBox.h>

#include <QAction>
#include <QEvent>
#include <QFontDatabase>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>

namespace workbench {

namespace {
using vkd::Language; // its values are the rows of the combo box

const QString WrapKey = QStringLiteral("wrapsScript");

/// Returns a fixed-width font. Some desktops return a proportional font as their fixed font.
QFont fixedFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (!QFontInfo(font).fixedPitch()) {
        font.setFamily(QStringLiteral("Monospace"));
        font.setStyleHint(QFont::TypeWriter);
    }
    return font;
}
} // namespace

ScriptPane::ScriptPane(QAction* copy, QAction* save, QWidget* parent)
    : QWidget(parent)
    , m_languageLabel(new QLabel(this))
    , m_language(new VKD_QT4_ComboBox(this, "KeywordLanguage"))
    , m_copy(actionButton(copy, this))
    , m_save(actionButton(save, this))
    , m_text(new ScriptView(this))
    , m_findBar(new FindBar(m_text, this))
    , m_check(new CheckMark(m_text, this))
    , m_find(newAction("FindInScript", QKeySequence::Find))
    , m_next(newAction("FindNextInScript", QKeySequence::FindNext))
    , m_previous(newAction("FindPreviousInScript", QKeySequence::FindPrevious))
    , m_wrap(newAction("WrapScript", {}))
{
    m_text->setObjectName(QStringLiteral("ScriptText"));
    m_copy->setObjectName(QStringLiteral("CopyScript"));
    m_save->setObjectName(QStringLiteral("SaveScript"));
    m_languageLabel->setBuddy(m_language);
    m_language->addItems({QString(), QString()});
    m_wrap->setCheckable(true);
    layOut();
    connect(m_language, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { Q_EMIT keywordsChosen(keywords()); });
    connect(m_text, &ScriptView::lineChosen, this, &ScriptPane::lineChosen);
    connect(m_wrap, &QAction::toggled, this, [this](bool isWrapped) {
        m_text->setWrapped(isWrapped);
        WindowSettings().setValue(WrapKey, isWrapped);
    });
    connectFind();
    m_wrap->setChecked(WindowSettings().value(WrapKey).toBool());
    setTexts();
}

/// The shortcut works in the whole pane; the action is also in the script's context menu.
QAction* ScriptPane::newAction(const char* name, const QKeySequence& shortcut)
{
    auto action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    m_text->addAction(action);
    return action;
}

void ScriptPane::connectFind()
{
    connect(m_find, &QAction::triggered, m_findBar, &FindBar::open);
    connect(m_next, &QAction::triggered, m_findBar, [this] { m_findBar->step(true); });
    connect(m_previous, &QAction::triggered, m_findBar, [this] { m_findBar->step(false); });
}

void ScriptPane::layOut()
{
    auto head = new QHBoxLayout;
    head->addWidget(m_languageLabel);
    head->addWidget(m_language);
    head->addStretch();
    head->addWidget(m_copy);
    head->addWidget(m_save);
    auto foot = new QHBoxLayout;
    foot->addWidget(m_check);
    foot->addStretch();
    for (QAction* action : {m_find, m_wrap}) {
        QToolButton* button = actionButton(action, this);
        button->setAutoRaise(true);
        foot->addWidget(button);
    }
    auto layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6); // leaves room for the output page
    layout->addLayout(head);
    layout->addWidget(m_text);
    layout->addWidget(m_findBar);
    layout->addLayout(foot);
}

void ScriptPane::setCheckSource(const CheckSource& source)
{
    m_check->setSource(source);
}

void ScriptPane::addToMenu(const QList<QAction*>& actions)
{
    m_text->addActions(actions);
}

void ScriptPane::setPlot(int firstLine, int lineCount, bool reveals)
{
    m_text->setPlot(firstLine, lineCount);
    if (reveals)
        m_text->reveal(firstLine, lineCount);
}

Language ScriptPane::keywords() const
{
    return Language(m_language->currentIndex());
}

void ScriptPane::setKeywords(Language language)
{
    const QSignalBlocker blocker(m_language);
    m_language->setCurrentIndex(int(language));
}

QString ScriptPane::script() const
{
    return m_text->plainText();
}

void ScriptPane::setScript(const QString& script)
{
    if (script == m_text->plainText())
        return;
    const TextLines lines(script);
    show(lines, lineChanges(m_text->lines(), lines));
}

void ScriptPane::setOtherScript(const QString& script)
{
    show(TextLines(script), {});
}

void ScriptPane::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
}

void ScriptPane::setTexts()
{
    const QSignalBlocker blocker(m_language);
    m_languageLabel->setText(tr("&Keywords:"));
    m_language->setItemText(int(Language::German), tr("German"));
    m_language->setItemText(int(Language::English), tr("English"));
    m_language->setAccessibleName(tr("Language of the keywords"));
    m_text->setAccessibleName(tr("Script"));
    m_find->setText(tr("&Find..."));
    m_find->setIconText(tr("Find")); // text of the button below the script
    m_find->setToolTip(tr("Finds words in the script (Ctrl+F)"));
    m_next->setText(tr("Find &Next"));
    m_previous->setText(tr("Find &Previous"));
    m_wrap->setText(tr("&Wrap Lines"));
    m_wrap->setIconText(tr("Wrap"));
    m_wrap->setToolTip(tr("Wraps long lines to the width of the panel"));
    m_text->setPlaceholderText(tr("No plot is checked. Check plots in Graphical Output."));
}

void ScriptPane::show(const TextLines& lines, const QVector<LineChange>& changes)
{
    if (m_text->plainText().isEmpty() && !lines.text().isEmpty()) // finding the font is slow
        m_text->setFont(fixedFont());
    m_text->setLines(lines, changes);
    m_findBar->scriptChanged();
    m_check->scriptChanged(keywords());
}

} // namespace workbench
