#include "HelpTestSupport.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QWheelEvent>
#include <QWindow>

using namespace testsupport;

namespace {
enum RowOfContents { Types = 3, Cracks = 7 };

/// Returns the title of the topic that the help shows, or an empty string if there is no help
/// window.
QString title()
{
    const QString whole = helpWindows().isEmpty() ? QString() : helpWindows().at(0)->windowTitle();
    return whole.section(QStringLiteral(" - "), 1);
}

bool show(QWidget* parent, const char* topic, const char* book = "MERDAN")
{
    return VKD_T_Help::show(parent, book, topic);
}

void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(helpWindows().at(0)->windowHandle(), code, modifiers);
}

/// Simulates a click from the window system, so that a modal dialog can block the click.
void clickTopic(int row)
{
    auto list = inHelp<QListWidget>("contents");
    const QPoint place = list->visualItemRect(list->item(row)).center();
    QWidget* window = helpWindows().at(0);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      list->viewport()->mapTo(window, place));
}

void search(const QString& text)
{
    key(Qt::Key_F, Qt::ControlModifier);
    inHelp<QLineEdit>("searchText")->clear();
    for (QChar letter : text)
        QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
}

QStringList hits()
{
    QStringList texts;
    auto list = inHelp<QListWidget>("hits");
    for (int i = 0; i < list->count(); ++i)
        texts << list->item(i)->text();
    return texts;
}
} // namespace

class tst_helpWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        setLanguage(English);
        QVERIFY(show(nullptr, "PARA"));
    }
    void cleanup() { closeHelp(); }

    void unknownBookOrTopic()
    {
        const QList<QPair<const char*, const char*>> unknown{
            {"NONE", "PARA"}, {"MERDAN", "NONE"}, {nullptr, nullptr}, {"../help/merdan", "PARA"}};
        for (const char* shown : {"Design Parameters", ""}) {
            for (const auto& one : unknown) {
                QTest::ignoreMessage(QtWarningMsg,
                                     QRegularExpression(QStringLiteral("^no help: the book ")));
                QVERIFY(!show(nullptr, one.second, one.first));
                QCOMPARE(title(), QLatin1String(shown));
            }
            closeHelp();
        }
    }

    void wayBack()
    {
        QVERIFY(!inHelp<QAction>("back")->isEnabled());
        QVERIFY(show(nullptr, "TYPES"));
        QCOMPARE(helpWindows().size(), 1);
        clickTopic(Cracks);
        QCOMPARE(title(), QStringLiteral("Crack Control"));
        key(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(title(), QStringLiteral("Types of Design"));
        QCOMPARE(inHelp<QListWidget>("contents")->currentRow(), int(Types));
        key(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(title(), QStringLiteral("Design Parameters"));
        QVERIFY(!inHelp<QAction>("back")->isEnabled());
        key(Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(title(), QStringLiteral("Types of Design"));
        QTest::keyPress(helpWindows().at(0)->windowHandle(), Qt::Key_Escape); // not released
        QVERIFY(helpWindows().isEmpty());
    }

    void linkIsFollowed()
    {
        Q_EMIT helpPage()->anchorClicked(
            helpPage()->source().resolved(QUrl(QStringLiteral("directions.html#distances"))));
        QCOMPARE(title(), QStringLiteral("Directions and Distances"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("has no page")));
        Q_EMIT helpPage()->anchorClicked(QUrl(QStringLiteral("http://example.org/para.html")));
        QCOMPARE(title(), QStringLiteral("Directions and Distances"));
    }

    void searchInBook()
    {
        auto result = inHelp<QLabel>("searchResult");
        QVERIFY(!result->isVisible());
        search(QStringLiteral("QUASI-permanent"));
        QCOMPARE(hits(), QStringList(QStringLiteral("Crack Control")));
        QCOMPARE(title(), QStringLiteral("Design Parameters"));
        key(Qt::Key_Return); // not found on this page, so the page with the first hit is opened
        QCOMPARE(title(), QStringLiteral("Crack Control"));
        QCOMPARE(helpPage()->textCursor().selectedText(), QStringLiteral("quasi-permanent"));

        search(QStringLiteral("xyzzy"));
        QCOMPARE(result->text(), QStringLiteral("Not found"));
        QVERIFY(result->isVisible() && hits().isEmpty());
        QVERIFY(!helpPage()->textCursor().hasSelection());
    }

    void searchMarksPlaces()
    {
        QVERIFY(show(nullptr, "TYPES"));
        search(QStringLiteral("layers"));
        const auto place = [] { return helpPage()->textCursor().selectionStart(); };
        QVector<int> places;
        for (int i = 0; i < 3; ++i) {
            places << place();
            key(Qt::Key_F3);
        }
        QVERIFY(places[0] < places[1] && places[1] < places[2]);
        key(Qt::Key_F3, Qt::ShiftModifier);
        key(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(place(), places[1]);
        key(Qt::Key_F3, Qt::ShiftModifier);
        key(Qt::Key_F3, Qt::ShiftModifier); // wraps around at the end
        QVERIFY(place() > places[2]);
        QTest::keyClick(inHelp<QLineEdit>("searchText"), Qt::Key_Return);
        QCOMPARE(place(), places[0]);
    }

    void languageChange()
    {
        clickTopic(Types);
        search(QStringLiteral("Bewehrung"));
        QVERIFY(hits().isEmpty());
        setLanguage(German);
        QCOMPARE(title(), QStringLiteral("Arten der Bemessung"));
        QVERIFY(helpPage()->toPlainText().startsWith(QStringLiteral("Arten der Bemessung")));
        QVERIFY(!hits().isEmpty());
        QCOMPARE(inHelp<QAction>("showContents")->text(), QStringLiteral("Inhalt"));
        key(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(title(), QStringLiteral("Bemessungsparameter"));

        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, English); // takes effect only on the next call
        QVERIFY(show(nullptr, "PARA"));
        QVERIFY(helpPage()->toPlainText().startsWith(QStringLiteral("Design Parameters")));
    }

    void zoom()
    {
        const qreal normal = helpPage()->font().pointSizeF();
        const auto turn = [](int angle) {
            QWheelEvent event(QPointF(9, 9), QPointF(9, 9), QPoint(), QPoint(0, angle),
                              Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(helpPage()->viewport(), &event);
        };
        turn(60); // half a notch
        turn(60);
        QCOMPARE(helpPage()->font().pointSizeF(), normal + 1);
        turn(-12000);
        QVERIFY(helpPage()->font().pointSizeF() >= 4);
        key(Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(helpPage()->font().pointSizeF(), normal);
    }

    void usableAboveModalDialogs()
    {
        QWidget main;
        main.show();
        {
            QDialog dialog(&main), inner(&dialog);
            dialog.setWindowModality(Qt::WindowModal);
            inner.setModal(true);
            for (QDialog* modal : {&dialog, &inner}) {
                QVERIFY(show(&main, "PARA"));
                modal->show();
                QVERIFY(QTest::qWaitForWindowExposed(modal, Patience));
                QCoreApplication::processEvents();
                clickTopic(Types);
                QCOMPARE(title(), QStringLiteral("Types of Design"));
            }
            inner.hide();
            clickTopic(Cracks);
            QCOMPARE(title(), QStringLiteral("Crack Control"));
        }
        clickTopic(Types); // the window must not close with the dialog
        QCOMPARE(title(), QStringLiteral("Types of Design"));
    }

    void destroyedWithItsParents()
    {
        QScopedPointer<QWidget> main(new QWidget);
        QScopedPointer<QDialog> dialog(new QDialog(main.data()));
        auto page = new QWidget(dialog.data());
        dialog->show();
        QVERIFY(show(page, "PARA"));
        const auto host = [] { return helpWindows().at(0)->windowHandle()->transientParent(); };
        QCOMPARE(host(), dialog->windowHandle());
        dialog->hide();
        QCOMPARE(host(), main->windowHandle());
        QVERIFY(show(helpPage(), "PARA"));
        QCOMPARE(host(), main->windowHandle());
        QVERIFY(show(page, "PARA"));
        QCOMPARE(host(), dialog->windowHandle());
        dialog.reset();
        QCOMPARE(host(), main->windowHandle());
        main.reset();
        QVERIFY(helpWindows().isEmpty());
    }

    void closedAndReopenedAtOnce()
    {
        helpWindows().at(0)->close();
        QVERIFY(show(nullptr, "PARA"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(helpWindows().size(), 1);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_helpWindow)
#include "tst_helpWindow.moc"
