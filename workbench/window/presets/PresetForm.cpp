#include "window/presets/PresetForm.h"

#include "project/presetPlaces.h"
#include "window/presets/PresetPartBoxes.h"
#include "window/support/HelpKey.h"

#include <VKD_QT4_ComboBox.h>
#include <VKD_QT_Ok.h>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace workbench {

namespace {
constexpr int OkAndCancel = 3;
constexpr int DescriptionLines = 4;
} // namespace

PresetForm::PresetForm(const QVariantMap& parameters, bool hasProject, QWidget* parent)
    : PresetForm(tr("Preset from Row"), {QString(), QString(), parameters}, true, hasProject,
                 parent)
{
}

PresetForm::PresetForm(const Preset& preset, QWidget* parent)
    : PresetForm(tr("Rename Preset"), preset, false, false, parent)
{
}

PresetForm::PresetForm(const QString& title, const Preset& preset, bool isNew, bool hasProject,
                       QWidget* parent)
    : VKD_H_Dialog(parent, "PresetForm")
    , m_preset(preset)
    , m_name(new QLineEdit(preset.name, this))
    , m_description(new QPlainTextEdit(preset.description, this))
    , m_note(new QLabel(this))
{
    setWindowTitle(title);
    setHelpTopic(this, "MERDAN/PRESETS");
    m_name->setObjectName(QStringLiteral("presetName"));
    m_name->setMaxLength(LongestPresetName);
    m_name->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    m_description->setObjectName(QStringLiteral("presetDescription"));
    m_description->setTabChangesFocus(true);
    m_description->setFixedHeight((DescriptionLines + 1) * fontMetrics().lineSpacing());
    auto layout = new QFormLayout(this);
    layout->addRow(tr("&Name:"), m_name);
    layout->addRow(tr("&Description:"), m_description);
    if (isNew) {
        m_place = new VKD_QT4_ComboBox(this, "presetPlace");
        m_place->addItem(tr("My presets"), int(PresetPlace::User));
        if (hasProject)
            m_place->addItem(tr("Presets of this project"), int(PresetPlace::Project));
        layout->addRow(tr("&Store in:"), m_place);
        m_parts = new PresetPartBoxes(tr("Contents"), this);
        m_parts->setParameters(preset.parameters);
        layout->addRow(m_parts);
        connect(m_place, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &PresetForm::check);
        connect(m_parts, &PresetPartBoxes::changed, this, &PresetForm::check);
    }
    m_note->setObjectName(QStringLiteral("presetNote"));
    layout->addRow(m_note);
    m_buttons = new VKD_QT_Ok(this, OkAndCancel, "okayandcancelbutton");
    layout->addRow(m_buttons);
    connect(m_buttons->cmdOk(), &QPushButton::clicked, this, &PresetForm::accept);
    connect(m_buttons->cmdCancel(), &QPushButton::clicked, this, &PresetForm::reject);
    connect(m_name, &QLineEdit::textChanged, this, &PresetForm::check);
    m_name->selectAll();
    check();
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
            m_parts ? ofParts(m_preset.parameters, m_parts->checkedParts()) : m_preset.parameters};
}

void PresetForm::check()
{
    const Preset entered = preset();
    const bool isUsed =
        m_usedNames && entered.name != m_preset.name && m_usedNames(place()).contains(entered.name);
    m_note->setText(isUsed ? tr("Another preset has this name.") : QString());
    m_buttons->cmdOk()->setEnabled(!isUsed && !entered.name.isEmpty() &&
                                   !entered.parameters.isEmpty());
}

} // namespace workbench
