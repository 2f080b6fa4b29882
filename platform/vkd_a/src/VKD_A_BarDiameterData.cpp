#include "VKD_A_BarDiameterData.h"

#include <vkd_h_units.h>
#include <vkd_zob.h>
#include <vkd_zob_keys.h>

#include <QtEndian>

#include <algorithm>
#include <cmath>

namespace {
using vkd::zob::keys::Bars;

QVector<float> commonBars()
{
    return {6, 8, 10, 12, 14, 16, 20, 25, 28, 32, 40};
}
} // namespace

bool VKD_A_BarDiameterData::load(int index)
{
    m_diameters.clear();
    cd_error_t status = VKD_ZOB_OK;
    for (int position = 0; status <= VKD_ZOB_CUT; ++position) {
        quint32 bytes = 0;
        int length = sizeof bytes;
        status = vkd_zob_get(index, Bars.key1, Bars.key2, &bytes, &length, position);
        const float diameter = qFromLittleEndian<float>(&bytes);
        if (status == VKD_ZOB_OK && length == int(sizeof bytes) && diameter > 0 &&
            std::isfinite(diameter))
            m_diameters.append(diameter);
    }
    vkd_zob_free_ex(index, Bars.key1, Bars.key2);
    std::sort(m_diameters.begin(), m_diameters.end());
    if (m_diameters.isEmpty())
        m_diameters = commonBars();
    return status == VKD_ZOB_END || status == VKD_ZOB_NO_KEY;
}

QString VKD_A_BarDiameterData::getString(float value) const
{
    return QStringLiteral("Ø") + vkd_h_getNumberString(double(value), -1);
}

float vkd_a_get_min_bar_type(int barClass)
{
    return barClass == 5 || barClass == 6 ? 10.0F : 6.0F;
}
