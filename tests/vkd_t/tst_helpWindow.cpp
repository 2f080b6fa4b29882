#include "HelpTestSupport.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QWheelEvent>
#include <QWindow>

using namespace testsupport;

namespace {
enum RowOfContents { Para = 0, Types = 2, Cracks = 5 };

QString title()
{
    return helpWindows().at(0)->windowTitle();
}

void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(helpWindows().at(0)->windowHandle(), code, modifiers);
}

/// Clicks as the window system does, so that a modal dialog can block it.
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
    void init() { setLanguage(English); }
    void cleanup() { closeHelp(); }

    void unknownBookOrTopic_data()
    {
        const Columns<QByteArray, QByteArray> row("book", "topic");
        row("book", QByteArray("NONE"), QByteArray("PARA"));
        row("topic", QByteArray("MERDAN"), QByteArray("NONE"));
        row("no names", QByteArray(), QByteArray());
        row("path", QByteArray("../help/merdan"), QByteArray("PARA"));
    }

    void unknownBookOrTopic()
    {
        QFETCH(QByteArray, book);
        QFETCH(QByteArray, topic);
        QVERIFY(VKD_T_Help::show(nullptr, "Merdan", "types"));
        const QRegularExpression line(QStringLiteral("^no help: the book "));
        QTest::ignoreMessage(QtWarningMsg, line);
        QVERIFY(!VKD_T_Help::show(nullptr, book.constData(), topic.constData()));
        QCOMPARE(title(), QStringLiteral("Help - Types of Design"));
        closeHelp();
        QTest::ignoreMessage(QtWarningMsg, line);
        QVERIFY(!VKD_T_Help::show(nullptr, book.constData(), topic.constData()));
        QVERIFY(helpWindows().isEmpty());
    }

    void wayBack()
    {
        QVERIFY(VKD_T_Help::show(nullptr, "MERDAN", "PARA"));
        QVERIFY(!inHelp<QAction>("back")->isEnabled());
        QVERIFY(VKD_T_Help::show(nullptr, "MERDAN", "TYPES"));
        QCOMPARE(helpWindows().size(), 1);
        clickTopic(Cracks);
        QCOMPARE(title(), QStringLiteral("Help - Crack Control"));
        key(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(title(), QStringLiteral("Help - Types of Design"));
        QCOMPARE(inHelp<QListWidget>("contents")->currentRow(), int(Types));
        key(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(title(), QStringLiteral("Help - Design Parameters"));
        QVERIFY(!inHelp<QAction>("back")->isEnabled());
        key(Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(title(), QStringLiteral("Help - Types of Design"));
        QTest::keyPress(helpWindows().at(0)->windowHandle(),
                        Qt::Key_Escape); // no window to release in
        QVERIFY(helpWindows().isEmpty());
    }

    void linkIsFollowed()
    {
        QVERIFY(VKD_T_Help::show(nullptr, "MERDAN", "PARA"));
        Q_EMIT helpPage()->anchorClicked(
            helpPage()->source().resolved(QUrl(QStringLiteral("directions.html#distances"))));
        QCOMPARE(title(), QStringLiteral("Help - Directions and Distances"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("has no page")));
        Q_EMIT helpPage()->anchorClicked(QUrl(QStringLiteral("http://example.org/para.html")));
        QCOMPARE(title(), QStringLiteral("Help - Directions and Distances"));
    }

    void searchInBook()
    {
        QVERIFY(VKD_T_Help::show(nullptr, "MERDAN", "PARA"));
        auto result = inHelp<QLabel>("searchResult");
        QVERIFY(!result->isVisible());
        search(QStringLiteral("QUASI-permanent"));
        QCOMPARE(hits(), QStringList(QStringLiteral("Crack Control")));
        QCOMPARE(title(), QStringLiteral("Help - Design Parameters"));
        key(Qt::Key_Return); // not in this page, so the first hit's
        QCOMPARE(title(), QStringLiteral("Help - Crack Control"));
        QCOMPARE(helpPage()->textCursor().selectedText(), QStringLiteral("quasi-permanent"));

        search(QStringLiteral("xyzzy"));
        QCOMPARE(result->text(), QStringLiteral("Not found"));
        QVERIFY(result->isVisible() && hits().isEmpty());
        QVERIFY(!helpPage()->textCursor().hasSelection());
        key(Qt::Key_F3);
        QCOMPARE(title(), QStringLiteral("Help - Crack Control"));
    }

    void searchMarksPlaces()
    {
        QVERIFY(VKD_T_Help::show(nullptr, "MERDAN", "TYPES"));
        search(QStringLiteral("three layers"));
        const auto place = [] { return helpPage()->textCursor().selectionStart(); };
        const int first = place();
        QVERIFY(helpPage()->textCursor().hasSelection());
        key(Qt::Key_F3);
        const int second = place();
        QVERIFY(second > first);
        key(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(place(), first);
        key(Qt::Key_F3, Qt::ShiftModifier); // starts over at the end
        QCOMPARE(place(), second);
        QTest::keyClick(inHelp<QLineEdit>("searchText"), Qt::Key_Return);
        QCOMPARE(place(), first);
    }

    void languageChange()
    {
        QVERIFY(VKD_T_Help::show(nullptr, "MERDAN", "PARA"));
        clickTopic(Types);
        search(QStringLiteral("Bewehrung"));
        QVERIFY(hits().isEmpty());
        setLanguage(German);
        QCOMPARE(title(), QStringLiteral("Hilfe - Arten der Bemessung"));
        QVERIFY(helpPage()->toPlainText().startsWith(QStringLiteral("Arten der Bemessung")));
        QVERIFY(!hits().isEmpty());
        QCOMPARE(inHelp<QAction>("showContents")->text(), QStringLiteral("Inhalt"));
        key(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(title(), QStringLiteral("Hilfe - Bemessungsparameter"));

        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, English); // not told, but read with the next call
        QVERIFY(VKD_T_Help::show(nullptr, "MERDAN", "PARA"));
        QVERIFY(helpPage()->toPlainText().startsWith(QStringLiteral("Design Parameters")));
    }

    void zoom()
    {
        QVERIFY(VKD_T_Help::show(nullptr, "MERDAN", "PARA"));
        const qreal normal = helpPage()->font().pointSizeF();
        const auto turn = [](int angle) {
            QWheelEvent event(QPointF(9, 9), QPointF(9, 9), QPoint(), QPoint(0, angle),
                              Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(helpPage()->viewport(), &event);
        };
        turn(60);
        QCOMPARE(helpPage()->font().pointSizeF(), normal);
        turn(60);
        QCOMPARE(helpPage()->font().pointSizeF(), normal + 1);
        for (int i = 0; i < 100; ++i)
            turn(-120);
        QVERIFY(helpPage()->font().pointSizeF() >= 4);
        key(Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(helpPage()->font().pointSizeF(), normal);
    }

    void usableAboveModalDialog_data()
    {
        const Columns<Qt::WindowModality, bool, bool> row("modality", "isOpenBefore",
                                                          "isAskedAgain");
        row("asked in the dialog", Qt::ApplicationModal, false, true);
        row("asked before", Qt::ApplicationModal, true, false);
        row("asked before and in it", Qt::ApplicationModal, true, true);
        row("dialog of one window", Qt::WindowModal, true, true);
    }

    void usableAboveModalDialog()
    {
        QFETCH(Qt::WindowModality, modality);
        QFETCH(bool, isOpenBefore);
        QFETCH(bool, isAskedAgain);
        QWidget main;
        main.show();
        if (isOpenBefore)
            QVERIFY(VKD_T_Help::show(&main, "MERDAN", "PARA"));
        {
            QDialog dialog(&main);
            dialog.setWindowModality(modality);
            QDialog inner(&dialog);
            inner.setModal(true);
            for (QDialog* modal : {&dialog, &inner}) {
                modal->show();
                QVERIFY(QTest::qWaitForWindowExposed(modal));
                if (isAskedAgain)
                    QVERIFY(VKD_T_Help::show(modal, "MERDAN", "PARA"));
                QCoreApplication::processEvents();
                clickTopic(Types);
                QCOMPARE(title(), QStringLiteral("Help - Types of Design"));
                clickTopic(Para);
                QCOMPARE(title(), QStringLiteral("Help - Design Parameters"));
            }
            inner.hide();
            clickTopic(Cracks);
            QCOMPARE(title(), QStringLiteral("Help - Crack Control"));
        }
        clickTopic(Types); // stays when the dialog has closed
        QCOMPARE(title(), QStringLiteral("Help - Types of Design"));
    }

    void goesWithItsParents()
    {
        QScopedPointer<QWidget> main(new QWidget);
        QScopedPointer<QDialog> dialog(new QDialog(main.data()));
        auto page = new QWidget(dialog.data());
        dialog->show();
        QVERIFY(VKD_T_Help::show(page, "MERDAN", "PARA"));
        const auto host = [] { return helpWindows().at(0)->windowHandle()->transientParent(); };
        QCOMPARE(host(), dialog->windowHandle());
        dialog->hide();
        QCOMPARE(host(), main->windowHandle());
        QVERIFY(VKD_T_Help::show(page, "MERDAN", "PARA"));
        QCOMPARE(host(), dialog->windowHandle());
        dialog.reset();
        QCOMPARE(host(), main->windowHandle());
        main.reset();
        QVERIFY(helpWindows().isEmpty());
    }

    void closedAndAskedForAtOnce()
    {
        QVERIFY(VKD_T_Help::show(nullptr, "MERDAN", "PARA"));
        helpWindows().at(0)->close();
        QVERIFY(VKD_T_Help::show(nullptr, "MERDAN", "PARA"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(helpWindows().size(), 1);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_helpWindow)
#include "tst_helpWindow.moc"
