#pragma once

#include <QObject>

/// The self-check of the installed library, run by vkd_unittests(). It does not replace the tests
/// in the source tree. It only checks that the images are included in the library and that the
/// platform finds them by language.
class VKD_P_Mix_UnitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void check_qrc_system();
};
