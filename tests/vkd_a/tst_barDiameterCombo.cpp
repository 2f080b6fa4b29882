#include "LanguageSupport.h"
#include "TemporaryProject.h"
#include "WidgetTestSupport.h"

#include <VKD_A_BarDiameterCombo.h>
#include <VKD_A_BarDiameterData.h>

#include <cmath>
#include <cstring>

using namespace testsupport;

static constexpr float NotSet = VKD_A_BarDiameterCombo::NotSet;

class TestBarDiameterCombo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Stores bars that differ from the common bars, so that a test fails if the combo box offers
    /// the wrong bars.
    void init()
    {
        setLanguage(English);
        m_project = std::make_unique<TemporaryProject>();
        int length = 4, position = 0;
        for (const char* bar : {"\0\0\x80\x41", "\0\0\x20\x41", "\0\0\xa0\x41"}) // 16, 10, 20
            QCOMPARE(vkd_zob_put(m_project->index(), 15, 0, bar, &length, position++ > 0), 0);
    }

    void barsOfTheProject()
    {
        VKD_A_BarDiameterCombo box(nullptr, "bar");
        QCOMPARE(box.getCurrent(), NotSet); // the table is not loaded yet
        box.setCurrent(10.0F);
        QVERIFY(box.load(m_project->index()));
        QString entries;
        for (int i = 0; i < box.count(); ++i)
            entries += box.itemText(i);
        QCOMPARE(entries, QStringLiteral("not setØ10Ø16Ø20"));
        QCOMPARE(box.getCurrent(), 10.0F); // loading preserves the choice
        QVERIFY(box.setCurrent(NotSet));
        QCOMPARE(box.currentIndex(), 0);
        setLanguage(German);
        QCOMPARE(box.currentText(), QStringLiteral("nicht gesetzt"));
    }

    void otherDiameter()
    {
        const QList<QPair<float, int>> entries{{12.7F, 2}, {std::nextafter(16.0F, 17.0F), 3},
                                               {57.3F, 4}, {0.0F, 1},
                                               {-3.0F, 1}, {float(qQNaN()), 4}};
        VKD_A_BarDiameterCombo box;
        box.load(m_project->index());
        const QSignalSpy changed(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
        for (const auto& [diameter, entry] : entries) {
            QVERIFY(!box.setCurrent(diameter));
            QCOMPARE(box.currentIndex(), entry);
            QCOMPARE(box.count(), 5);
            const float current = box.getCurrent();
            QCOMPARE(std::memcmp(&current, &diameter, sizeof current), 0);
        }
        QVERIFY(box.setCurrent(20.0F));
        QCOMPARE(box.count(), 4);
        QCOMPARE(changed.count(), 0);
        QTest::keyClick(&box, Qt::Key_Up); // the user selects an entry
        QCOMPARE(box.getCurrent(), 16.0F);
        QCOMPARE(changed.count(), 1);
    }

    /// An entry without a diameter is preserved. It is inserted by the caller.
    void entryOfTheCaller()
    {
        VKD_A_BarDiameterCombo box;
        box.load(m_project->index());
        box.insertItem(0, QStringLiteral("several"), QVariant());
        box.setCurrentIndex(0);
        setLanguage(German);
        QCOMPARE(box.currentText() + box.itemText(1), QStringLiteral("severalnicht gesetzt"));
        for (const float diameter : {12.7F, 20.0F, NotSet}) {
            box.setCurrent(diameter);
            QCOMPARE(box.getCurrent(), diameter);
            QCOMPARE(box.findText(QStringLiteral("several")), 0);
        }
        QCOMPARE(box.count(), 5);
    }

    void typing_data()
    {
        const Columns<QString, float> row("typed", "chosen");
        row("a bar", "20", 20.0F);
        row("with decimals", "16.0", 16.0F);
        row("decimals of an own entry", "12,7", 12.7F);
        row("only the first digit", "2", 12.7F);
        row("a bar and more", "16.5", 12.7F);
        row("ends with a bar", "3.20", 12.7F);
        row("no number", "1.,6", 12.7F);
    }

    /// Only a diameter that the list contains can be chosen.
    void typing()
    {
        QFETCH(const QString, typed);
        VKD_A_BarDiameterCombo box;
        box.load(m_project->index());
        box.setCurrent(12.7F);
        QTest::keyClicks(&box, typed);
        QTEST(box.getCurrent(), "chosen");
        for (const bool isByUser : {false, true}) { // the next character starts a new diameter
            box.setCurrent(10.0F);
            QTest::keyClick(&box, Qt::Key_1);
            if (isByUser)
                box.setCurrentIndex(box.findData(20.0F));
            else
                box.setCurrent(20.0F);
            QTest::keyClick(&box, Qt::Key_6);
            QCOMPARE(box.getCurrent(), 20.0F);
        }
    }

    void withoutNotSet()
    {
        VKD_A_BarDiameterCombo box;
        box.load(m_project->index());
        box.setNotSetAllowed(false);
        QCOMPARE(box.count(), 3);
        QCOMPARE(box.getCurrent(), 10.0F);
        box.setCurrent(16.0F);
        QTest::keyClicks(&box, QStringLiteral("10"));
        QCOMPARE(box.getCurrent(), 10.0F);
        QTest::keyClicks(&box, QStringLiteral(",5"));
        QCOMPARE(box.getCurrent(), 16.0F);
        QVERIFY(!box.setCurrent(12.7F));
        QCOMPARE(box.currentText(), QStringLiteral("Ø12.7"));
    }

    /// Only the lists of bars of area elements, for the lower and the upper side, begin with 10 mm.
    void barsOfNewRecords()
    {
        QVector<float> diameters;
        for (int barClass = 4; barClass <= 7; ++barClass)
            diameters << vkd_a_get_min_bar_type(barClass);
        QCOMPARE(diameters, (QVector<float>{6.0F, 10.0F, 10.0F, 6.0F}));
    }

private:
    std::unique_ptr<TemporaryProject> m_project;
};

PLIB_WIDGET_TEST_MAIN(TestBarDiameterCombo)
#include "tst_barDiameterCombo.moc"
