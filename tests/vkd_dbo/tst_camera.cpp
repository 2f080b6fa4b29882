#include "TestSupport.h"

#include <vkd_dbo_camera.h>
#include <vkd_dbo_model.h>
#include <vkd_zob.h>

#include <QTemporaryDir>

#include <cmath>
#include <cstring>

using namespace vkd::dbo;

Q_DECLARE_METATYPE(Camera)

/// The camera that a project remembers.
class TestCamera : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("p")).toUtf8();
        QCOMPARE(vkd_zob_create(m_path, &m_index), int(VKD_ZOB_OK));
    }

    void cleanup() { QCOMPARE(vkd_zob_close(m_index), int(VKD_ZOB_OK)); }

    void standard()
    {
        for (int index : {0, m_index}) {
            QVERIFY(isSame(camera(index), Camera{{1, -2, 1}, 0, {0, 0, 0}, 1}));
            QCOMPARE(getAnimatorPerspektive(index, 1), QStringLiteral("1 -2 1 ROTA 0"));
        }
    }

    void keptBitForBit_data()
    {
        const Columns<Camera> row("odd");
        row("long fractions", {{0.1, -1. / 3, 2. / 3}, M_PI, {1e-7, -7, 3}, 1.1});
        row("very small and large", {{4e-320, 0, 0}, 1e-300, {1e308, 0, 0}, 9e99});
        row("negative zero", {{-0.0, 1, 0}, -0.0, {0, -0.0, 0}, 1});
    }

    void keptBitForBit()
    {
        QFETCH(const Camera, odd);
        setCamera(m_index, odd);
        QVERIFY(storeModel(m_index, Model())); // which is no reason to look from elsewhere
        vkd_zob_close(m_index);
        QCOMPARE(vkd_zob_open(m_path, &m_index), int(VKD_ZOB_OK));
        QVERIFY(isSame(camera(m_index), odd));
        setAnimatorPerspektive(0, getAnimatorPerspektive(m_index, 2));
        QVERIFY(isSame(camera(0), odd));
        setCamera(0, Camera());
        QVERIFY(isSame(camera(m_index), odd));
    }

    void badTextChangesNothing_data()
    {
        const Columns<QString> row("text");
        row("null", {});
        row("empty", "");
        row("other mark", "camera2 1 1 1 0 0 0 0 1");
        row("too few", "camera1 1 1 1 0 0 0 0");
        row("too many", "camera1 1 1 1 0 0 0 0 1 1");
        row("no number", "camera1 1 1 x 0 0 0 0 1");
        row("not a number", "camera1 1 1 1 nan 0 0 0 1");
        row("endless", "camera1 1 1 1 0 inf 0 0 1");
        row("no direction", "camera1 0 -0 0 0 0 0 0 1");
        row("zoom 0", "camera1 1 1 1 0 0 0 0 0");
        row("zoom below 0", "camera1 1 1 1 0 0 0 0 -1");
    }

    void badTextChangesNothing()
    {
        QFETCH(const QString, text);
        const Camera before{{3, 4, 5}, 6, {7, 8, 9}, 10};
        setCamera(m_index, before);
        setAnimatorPerspektive(m_index, text);
        QVERIFY(isSame(camera(m_index), before));
    }

    void unusableRecordGivesTheStandard()
    {
        double values[8] = {1, 1, 1, 0, 0, 0, 0, std::nan("")};
        for (int length : {int(sizeof values), 8, 3}) {
            vkd_zob_put(m_index, 410, 0, values, &length, 0);
            QVERIFY(isSame(camera(m_index), Camera()));
        }
    }

    void scriptForm()
    {
        setCamera(m_index, {{1.0 / 3, -1234567, 1e-7}, 12.3456789, {1, 2, 3}, 4});
        QCOMPARE(getAnimatorPerspektive(m_index, 1),
                 QStringLiteral("0.333333 -1.23457e+06 1e-07 ROTA 12.3457"));
        QCOMPARE(getAnimatorPerspektive(m_index, 0), QString());
        QCOMPARE(getAnimatorPerspektive(m_index, 3), QString());
    }

private:
    static bool isSame(const Camera& a, const Camera& b)
    {
        return std::memcmp(&a, &b, sizeof(Camera)) == 0;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_path;
    int m_index = -1;
};

PLIB_TEST_MAIN(TestCamera)
#include "tst_camera.moc"
