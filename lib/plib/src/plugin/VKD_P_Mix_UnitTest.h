#pragma once

#include <QObject>

/// The self-check of the installed library, which vkd_unittests() runs. It does not replace the
/// tests in the source tree: it checks only that the library contains the images and that the
/// platform finds them by language.
class VKD_P_Mix_UnitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void check_qrc_system();
};
