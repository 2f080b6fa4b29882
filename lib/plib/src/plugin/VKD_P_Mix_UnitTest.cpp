#include "plugin/VKD_P_Mix_UnitTest.h"

#include "plugin/languagePictures.h"

#include <QtTest>

// If a QtTest check fails, it returns from the function. The language is intentionally not restored
// in this case, so that hosts can see in which language the check failed.
void VKD_P_Mix_UnitTest::check_qrc_system()
{
    const QString cover = QStringLiteral(":/betondeckung.png");
    const QString covers[] = {QStringLiteral(":/betondeckung_0.png"),
                              QStringLiteral(":/betondeckung_1.png")};
    const QString noForms = QStringLiteral(":/neq_designline_zrt_bew_mod_allg.png");

    QCOMPARE(vkd_qt_getFileNameWithLang(cover, 0), covers[0]);
    QCOMPARE(vkd_qt_getFileNameWithLang(cover, 1), covers[1]);
    QCOMPARE(vkd_qt_getFileNameWithLang(noForms, 0), noForms);
    QCOMPARE(vkd_qt_getFileNameWithLang(noForms, 1), noForms);

    const int before = vkd_lib_getvalue(VKD_SETTING_LANGUAGE);
    for (int language : {0, 1}) {
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language);
        QCOMPARE(GET_FILENAME_WITH_LANG(cover), covers[language]);
        QCOMPARE(GET_PIXMAP_WITH_LANG(cover).cacheKey(), QPixmap(covers[language]).cacheKey());
    }
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, before);
}
