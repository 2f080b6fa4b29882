#include "TemporaryProject.h"
#include "TestSupport.h"

#include <vkd_dbo_camera.h>
#include <vkd_dbo_model.h>

#include <cmath>
#include <cstring>

using namespace vkd::dbo;

static bool isSame(const Camera& a, const Camera& b)
{
    return std::memcmp(&a, &b, sizeof(Camera)) == 0;
}

/// Tests the camera that is stored in a project.
class TestCamera : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_project = std::make_unique<testsupport::TemporaryProject>(); }

    void standard()
    {
        for (int index : {0, m_project->index()}) {
            QVERIFY(isSame(camera(ZobHandle(index)), Camera{{1, -2, 1}, 0, {0, 0, 0}, 1}));
            QCOMPARE(getAnimatorPerspektive(index, 1), QStringLiteral("1 -2 1 ROTA 0"));
        }
    }

    void savedBitForBit()
    {
        for (const Camera& odd : {Camera{{0.1, -1. / 3, 2. / 3}, M_PI, {1e-7, -7, 3}, 1.1},
                                  Camera{{4e-320, 0, 0}, 1e-300, {1e308, 0, 0}, 9e99},
                                  Camera{{-0.0, 1, 0}, -0.0, {0, -0.0, 0}, 1}}) {
            setCamera(project(), odd);
            QVERIFY(storeModel(project(), Model()).isOk()); // must not change the camera
            m_project->reopen();
            QVERIFY(isSame(camera(project()), odd));
            setAnimatorPerspektive(0, getAnimatorPerspektive(m_project->index(), 2));
            QVERIFY(isSame(camera(ZobHandle::scratch()), odd));
            setCamera(ZobHandle::scratch(), Camera());
            QVERIFY(isSame(camera(project()), odd));
        }
    }

    void badTextChangesNothing()
    {
        const Camera before{{3, 4, 5}, 6, {7, 8, 9}, 10};
        setCamera(project(), before);
        for (const char* text :
             {"", "camera2 1 1 1 0 0 0 0 1", "camera1 1 1 1 0 0 0 0", "camera1 1 1 1 0 0 0 0 1 1",
              "camera1 1 1 x 0 0 0 0 1", "camera1 1 1 1 nan 0 0 0 1", "camera1 1 1 1 0 inf 0 0 1",
              "camera1 0 -0 0 0 0 0 0 1", "camera1 1 1 1 0 0 0 0 0", "camera1 1 1 1 0 0 0 0 -1"}) {
            setAnimatorPerspektive(m_project->index(), QLatin1String(text));
            QVERIFY2(isSame(camera(project()), before), text);
        }
    }

    void unusableRecordGivesTheStandard()
    {
        double values[8] = {1, 1, 1, 0, 0, 0, 0, std::nan("")};
        for (int length : {int(sizeof values), 8, 3}) {
            vkd_zob_put(m_project->index(), 410, 0, values, &length, 0);
            QVERIFY(isSame(camera(project()), Camera()));
        }
    }

    void scriptForm()
    {
        setCamera(project(), {{1.0 / 3, -1234567, 1e-7}, 12.3456789, {1, 2, 3}, 4});
        QCOMPARE(getAnimatorPerspektive(m_project->index(), 1),
                 QStringLiteral("0.333333 -1.23457e+06 1e-07 ROTA 12.3457"));
        QCOMPARE(getAnimatorPerspektive(m_project->index(), 3), QString());
    }

private:
    ZobHandle project() const { return m_project->handle(); }

    std::unique_ptr<testsupport::TemporaryProject> m_project;
};

PLIB_TEST_MAIN(TestCamera)
#include "tst_camera.moc"
