#include "vkd_dbo_camera.h"

#include "modelkeys.h"

#include <vkd_zob.h>

#include <QStringList>
#include <QtEndian>

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

namespace vkd {
namespace dbo {

namespace {
using Values = std::array<double, 8>; // eye, roll, centre, zoom

Values toValues(const Camera& camera)
{
    return {camera.eye[0],    camera.eye[1],    camera.eye[2],    camera.roll,
            camera.centre[0], camera.centre[1], camera.centre[2], camera.zoom};
}

Camera fromValues(const Values& v)
{
    return {{v[0], v[1], v[2]}, v[3], {v[4], v[5], v[6]}, v[7]};
}

bool isUsable(const Values& values)
{
    for (double value : values)
        if (!std::isfinite(value))
            return false;
    return std::hypot(values[0], values[1], values[2]) > 0 && values[7] > 0;
}

/// Returns the shortest text that is read back as the same value. Qt's own conversion would lose
/// the sign of a negative zero.
QString exactText(double value)
{
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value);
    return QString::fromLatin1(text, int(end.ptr - text));
}

QString persistentMark()
{
    return QStringLiteral("camera1");
}
} // namespace

Camera camera(ZobHandle project)
{
    Values stored;
    int length = sizeof stored;
    const auto status = vkd_zob_get(project.index(), keys::Camera.key1, keys::Camera.key2,
                                    stored.data(), &length, 0);
    vkd_zob_free_ex(project.index(), keys::Camera.key1, keys::Camera.key2);
    if (status != VKD_ZOB_OK || length != int(sizeof stored))
        return Camera();
    qFromLittleEndian<double>(stored.data(), stored.size(), stored.data());
    return isUsable(stored) ? fromValues(stored) : Camera();
}

void setCamera(ZobHandle project, const Camera& camera)
{
    Values values = toValues(camera);
    if (!isUsable(values))
        return;
    qToLittleEndian<double>(values.data(), values.size(), values.data());
    const int length = sizeof values;
    vkd_zob_put(project.index(), keys::Camera.key1, keys::Camera.key2, values.data(), &length, 0);
}

QString getAnimatorPerspektive(int index, int form)
{
    const Values values = toValues(camera(ZobHandle(index)));
    if (form == ScriptCamera)
        return QStringLiteral("%1 %2 %3 ROTA %4")
            .arg(QString::number(values[0]), QString::number(values[1]), QString::number(values[2]),
                 QString::number(values[3]));
    if (form != PersistentCamera)
        return QString();
    QString text = persistentMark();
    for (double value : values)
        text += QLatin1Char(' ') + exactText(value);
    return text;
}

void setAnimatorPerspektive(int index, const QString& persistent)
{
    const QStringList parts = persistent.split(QLatin1Char(' '));
    Values values{};
    if (parts.size() != int(values.size()) + 1 || parts.first() != persistentMark())
        return;
    for (size_t i = 0; i < values.size(); ++i) {
        bool isNumber = false;
        values[i] = parts[int(i) + 1].toDouble(&isNumber);
        if (!isNumber)
            return;
    }
    setCamera(ZobHandle(index), fromValues(values));
}

} // namespace dbo
} // namespace vkd
