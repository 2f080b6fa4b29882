#include "vkd_h_program.h"

QString vkd_h_generatePROG(VKD_H_PluginParameter*, const QString& program, const QString& title,
                           const QString& caption, int language, int)
{
    const QString head = language == 0 ? QStringLiteral("KOPF") : QStringLiteral("HEAD");
    return QStringLiteral("PROG %1 $ %2\n%3 %4\n").arg(program, caption, head, title);
}

QString vkd_h_generateENDE(int language)
{
    return language == 0 ? QStringLiteral("ENDE") : QStringLiteral("END");
}
