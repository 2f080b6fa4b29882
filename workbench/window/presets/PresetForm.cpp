#include "window/presets/PresetForm.h"

#include "window/presets/PresetPartBoxes.h"
#include "window/presets/PresetsDialog.h"
#include "window/support/HelpKey.h"
#include "window/support/okAndCancel.h"

#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Ok.h>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace workbench {

namespace {
constexpr int DescriptionLines = 4;
} // namespace

PresetForm::PresetForm(const Questions& questions, const Preset& preset, QWidget* parent)
    : VKD_H_Dialog(parent, "PresetForm")
    , m_preset(preset)
    , m_name(new QLineEdit(preset.name, this))
    , m_description(new QPlainTextEdit(preset.description, this))
    , m_note(new QLabel(this))
    , m_layout(new QFormLayout(this))
{
    setWindowTitle(questions.title);
    setHelpTopic(this, questions.helpTopic);
    m_name->setObjectName(QStringLiteral("presetName"));
    m_name->setMaxLength(LongestPresetName);
    m_name->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    m_description->setObjectName(QStringLiteral("presetDescription"));
    m_description->setTabChangesFocus(true);
    m_description->setFixedHeight((DescriptionLines + 1) * fontMetrics().lineSpacing());
    m_layout->addRow(tr("&Name:"), m_name);
    m_layout->addRow(tr("&Description:"), m_description);
    if (!questions.places.isEmpty())
        addPlaces(questions.places);
    if (questions.parts)
        addParts();
    m_note->setObjectName(QStringLiteral("presetNote"));
    m_layout->addRow(m_note);
    m_buttons = newOkAndCancel(this);
    m_layout->addRow(m_buttons);
    connect(m_buttons->cmdOk(), &QPushButton::clicked, this, &PresetForm::accept);
    connect(m_buttons->cmdCancel(), &QPushButton::clicked, this, &PresetForm::reject);
    connect(m_name, &QLineEdit::textChanged, this, &PresetForm::check);
    m_name->selectAll();
    check();
}

void PresetForm::addPlaces(const QVector<PresetPlace>& places)
{
    m_place = new VKD_QT4_ComboBox(this, "presetPlace");
    for (PresetPlace place : places)
        m_place->addItem(PresetsDialog::titleOf(place), int(place));
    connect(m_place, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PresetForm::check);
    m_layout->addRow(tr("&Store in:"), m_place);
}

void PresetForm::addParts()
{
    m_parts = new PresetPartBoxes(tr("Contents"), this);
    m_parts->setParameters(m_preset.contents);
    connect(m_parts, &PresetPartBoxes::changed, this, &PresetForm::check);
    m_layout->addRow(m_parts);
}

void PresetForm::setUsedNames(const NamesOfPlace& names)
{
    m_usedNames = names;
    check();
}

PresetPlace PresetForm::place() const
{
    return m_place ? PresetPlace(m_place->currentData().toInt()) : PresetPlace::User;
}

Preset PresetForm::preset() const
{
    return {m_name->text().simplified(), m_description->toPlainText().trimmed(),
            m_parts ? ofParts(m_preset.contents, m_parts->checkedParts()) : m_preset.contents};
}

void PresetForm::check()
{
    const Preset entered = preset();
    const bool isUsed =
        m_usedNames && entered.name != m_preset.name && m_usedNames(place()).contains(entered.name);
    m_note->setText(isUsed ? tr("Another preset has this name.") : QString());
    m_buttons->cmdOk()->setEnabled(!isUsed && !entered.name.isEmpty() &&
                                   !entered.contents.isEmpty());
}

} // namespace workbench
