#include "window/script/ScriptPane.h"

#include "sheet/actionButton.h"
#include "window/script/ScriptView.h"

#include <VKD_QT4_ComboBox.h>

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
{
    m_text->setObjectName(QStringLiteral("ScriptText"));
    m_copy->setObjectName(QStringLiteral("CopyScript"));
    m_save->setObjectName(QStringLiteral("SaveScript"));
    m_languageLabel->setBuddy(m_language);
    m_language->addItems({QString(), QString()});
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
    m_text->setPlaceholderText(tr("No plot is chosen. Choose plots in Graphical Output."));
}

void ScriptPane::show(const TextLines& lines, const QVector<LineChange>& changes)
{
    if (m_text->plainText().isEmpty() && !lines.text().isEmpty()) // finding the font is slow
        m_text->setFont(fixedFont());
    m_text->setLines(lines, changes);
}

} // namespace workbench
