#pragma once

#include "project/presets/Preset.h"

#include <QGroupBox>

class QCheckBox;

namespace workbench {

/// Check boxes for the parts of a preset. Only the parts that the preset contains can be checked.
class PresetPartBoxes : public QGroupBox
{
    Q_OBJECT

public:
    PresetPartBoxes(const QString& title, QWidget* parent);

    /// Enables and checks the boxes of the parts that these parameters contain.
    void setParameters(const QVariantMap& parameters);
    QVector<PresetPart> checkedParts() const;

Q_SIGNALS:
    void changed();

private:
    QVector<QCheckBox*> m_boxes; // in the order of PresetParts
};

} // namespace workbench
