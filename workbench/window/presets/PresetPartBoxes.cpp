#include "window/presets/PresetPartBoxes.h"

#include <QCheckBox>
#include <QGridLayout>

namespace workbench {

PresetPartBoxes::PresetPartBoxes(const QString& title, QWidget* parent)
    : QGroupBox(title, parent)
{
    constexpr int Columns = 3;
    const struct
    {
        const char* name;
        QString text;
    } kinds[] = {
        {"partType", tr("&Type")},     {"partDirections", tr("Di&rections")},
        {"partCover", tr("Co&ver")},   {"partBars", tr("&Bars")},
        {"partLimits", tr("&Limits")}, {"partCracks", tr("Crac&ks")},
    };
    auto layout = new QGridLayout(this);
    for (const auto& kind : kinds) {
        auto box = new QCheckBox(kind.text, this);
        box->setObjectName(QLatin1String(kind.name));
        layout->addWidget(box, m_boxes.size() / Columns, m_boxes.size() % Columns);
        connect(box, &QCheckBox::toggled, this, &PresetPartBoxes::changed);
        m_boxes << box;
    }
}

void PresetPartBoxes::setParameters(const QVariantMap& parameters)
{
    const QVector<PresetPart> parts = partsIn(parameters);
    for (int i = 0; i < m_boxes.size(); ++i) {
        m_boxes[i]->setEnabled(parts.contains(PresetParts[i]));
        m_boxes[i]->setChecked(m_boxes[i]->isEnabled());
    }
}

QVector<PresetPart> PresetPartBoxes::checkedParts() const
{
    QVector<PresetPart> parts;
    for (int i = 0; i < m_boxes.size(); ++i)
        if (m_boxes[i]->isChecked())
            parts << PresetParts[i];
    return parts;
}

} // namespace workbench
