#pragma once

#include <QObject>

/// The self-check of the installed library, run by vkd_unittests(). It does not replace the tests
/// of the source tree: it only checks that the pictures are part of the library and that the
/// platform finds them by language.
class VKD_P_Mix_UnitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void check_qrc_system();
};
