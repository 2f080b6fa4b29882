#pragma once

#include "vkd_a_export.h"

#include <QString>
#include <QVector>

/// The bars that a project reinforces with. A bar value is the nominal diameter in millimetres.
class VKD_A_EXPORT VKD_A_BarDiameterData
{
public:
    /// An empty table, which still gives a text for every value.
    VKD_A_BarDiameterData() = default;

    /// Takes the table of the project at this database index: the bars stored there, or else those
    /// of EN 10080 in common use, 6 to 40 mm. False if the project is not open.
    bool load(int index);

    /// The diameters in rising order.
    const QVector<float>& diameters() const { return m_diameters; }

    /// "Ø10" for 10; a diameter that is not in the table is shown as it is, in the number format of
    /// the desktop.
    QString getString(float value) const;

private:
    QVector<float> m_diameters;
};

/// The bar value that a new record has, for a bar class: 5 is the lower and 6 the upper side of
/// area elements, 10 mm both; every other class gives the smallest bar, 6 mm.
VKD_A_EXPORT float vkd_a_get_min_bar_type(int barClass);
