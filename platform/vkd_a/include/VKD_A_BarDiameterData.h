#pragma once

#include "vkd_a_export.h"

#include <QString>
#include <QVector>

/// The table of bar diameters of a project. A bar value is the nominal diameter in millimetres.
class VKD_A_EXPORT VKD_A_BarDiameterData
{
public:
    /// Creates an empty table. getString() still works for every value.
    VKD_A_BarDiameterData() = default;

    /// Loads the bars stored in the project with this database index. If the project contains no
    /// bars, the table contains the common diameters of EN 10080, 6 to 40 mm. Returns false if the
    /// project is not open.
    bool load(int index);

    /// Returns the diameters in ascending order.
    const QVector<float>& diameters() const { return m_diameters; }

    /// Returns "Ø10" for 10, in the number format of the desktop. The table need not contain the
    /// diameter.
    QString getString(float value) const;

private:
    QVector<float> m_diameters;
};

/// Returns the initial bar value of a new record for a bar class: 10 mm for the lower side (5) and
/// the upper side (6) of area elements, and the smallest bar, 6 mm, for every other class.
VKD_A_EXPORT float vkd_a_get_min_bar_type(int barClass);
