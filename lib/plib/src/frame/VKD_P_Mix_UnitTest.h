#pragma once

#include <QObject>

/// What a library that is installed and loaded can check of itself, run by vkd_unittests(). It does
/// not replace the tests of the tree: it tells whether the pictures came along with the library and
/// whether the platform's language rule finds them.
class VKD_P_Mix_UnitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void check_qrc_system();
};
