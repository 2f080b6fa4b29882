#include "groups/shownName.h"

#include <vkd_dbo_packedNames.h>

namespace vkd {
namespace h {

QString shownName(int packed)
{
    QString name = dbo::unpackedName(packed);
    for (QChar& character : name)
        if (!character.isPrint())
            character = QLatin1Char('?');
    return name;
}

} // namespace h
} // namespace vkd
