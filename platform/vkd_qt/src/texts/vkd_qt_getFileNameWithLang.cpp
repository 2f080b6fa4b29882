#include "vkd_qt_getFileNameWithLang.h"

#include <QFile>

QString vkd_qt_getFileNameWithLang(const QString& name, int language)
{
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    if (dot <= name.lastIndexOf(QLatin1Char('/'))) // the dot is part of a folder name
        return name;
    QString form = name;
    form.insert(dot, QLatin1Char('_') + QString::number(language));
    return name.startsWith(QLatin1Char(':')) && QFile::exists(form) ? form : name;
}
