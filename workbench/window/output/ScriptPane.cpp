#include "window/output/ScriptPane.h"

#include "sheet/actionButton.h"
#include "window/output/changedLines.h"
#include "window/output/ScriptHighlighter.h"

#include <VKD_QT4_ComboBox.h>

#include <QEvent>
#include <QFontDatabase>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QToolButton>

namespace workbench {

namespace {
using vkd::Language; // its values are the rows of the combo box

QColor markColour(const QPalette& palette)
{
    QColor colour = palette.color(QPalette::Highlight);
    colour.setAlpha(60); // so that the text keeps its colours
    return colour;
}
/// Finds a font of fixed width: some desktops return a proportional one.
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
    , m_text(new QPlainTextEdit(this))
    , m_highlighter(new ScriptHighlighter(m_text->document(), palette()))
{
    m_text->setObjectName(QStringLiteral("ScriptText"));
    m_copy->setObjectName(QStringLiteral("CopyScript"));
    m_save->setObjectName(QStringLiteral("SaveScript"));
    m_languageLabel->setBuddy(m_language);
    m_language->addItems({QString(), QString()});
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto head = new QHBoxLayout;
    head->addWidget(m_languageLabel);
    head->addWidget(m_language);
    head->addStretch();
    head->addWidget(m_copy);
    head->addWidget(m_save);
    auto layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addWidget(m_text);
    connect(m_language, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { Q_EMIT keywordsChosen(keywords()); });
    setTexts();
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

void ScriptPane::setScript(const QString& script)
{
    if (script == m_script)
        return;
    const QVector<int> changed =
        changedLines(m_script.split(QLatin1Char('\n')), script.split(QLatin1Char('\n')));
    show(script);
    mark(changed);
}

void ScriptPane::setOtherScript(const QString& script)
{
    show(script);
    mark({});
}

void ScriptPane::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    if (event->type() == QEvent::PaletteChange) {
        m_highlighter->setColours(palette());
        mark(m_changed);
    }
}

void ScriptPane::setTexts()
{
    const QSignalBlocker blocker(m_language);
    m_languageLabel->setText(tr("&Keywords:"));
    m_language->setItemText(int(Language::German), tr("German"));
    m_language->setItemText(int(Language::English), tr("English"));
    m_language->setAccessibleName(tr("Language of the keywords"));
    m_text->setAccessibleName(tr("Script"));
    m_text->setPlaceholderText(tr("No plot is chosen. Choose plots in Graphical Output."));
}

void ScriptPane::show(const QString& script)
{
    const int place = m_text->verticalScrollBar()->value();
    if (m_script.isEmpty() && !script.isEmpty()) // searching for the font takes time
        m_text->setFont(fixedFont());
    m_script = script;
    m_text->setExtraSelections({}); // each inserted line would move all of them
    m_text->setPlainText(script);
    m_text->verticalScrollBar()->setValue(place);
}

void ScriptPane::mark(const QVector<int>& lines)
{
    m_changed = lines;
    QList<QTextEdit::ExtraSelection> marks;
    for (int line : lines) {
        QTextEdit::ExtraSelection selection;
        selection.cursor = QTextCursor(m_text->document()->findBlockByNumber(line));
        selection.format.setBackground(markColour(palette()));
        selection.format.setProperty(QTextFormat::FullWidthSelection, true);
        marks << selection;
    }
    m_text->setExtraSelections(marks);
    if (marks.isEmpty())
        return;
    m_text->setTextCursor(marks.first().cursor);
    m_text->ensureCursorVisible();
}

} // namespace workbench
