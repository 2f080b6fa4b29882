#include "WidgetTestSupport.h"
#include "window/script/ScriptView.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

#include <random>

using namespace workbench;

namespace {
TextLines linesOf(const QString& letters)
{
    return TextLines(QString(letters).replace(QLatin1Char(' '), QLatin1Char('\n')));
}

/// Returns "before+gone>after+come" for each change.
QString inWords(const QVector<LineChange>& changes)
{
    QStringList words;
    for (const LineChange& change : changes)
        words << QStringLiteral("%1+%2>%3+%4")
                     .arg(change.before)
                     .arg(change.gone)
                     .arg(change.after)
                     .arg(change.come);
    return words.join(QLatin1Char(' '));
}

/// Returns a text of up to 12 lines, many of which are equal.
QString randomText(std::mt19937& random)
{
    QString text;
    for (unsigned length = random() % 12; length > 0; --length)
        text += QString(int(random() % 3), QLatin1Char('a')) + QLatin1Char("\nb"[random() % 2]);
    return text;
}

QString applied(const TextLines& before, const TextLines& after, const QVector<LineChange>& changes)
{
    QStringList result = before.text().split(QLatin1Char('\n'));
    const QStringList come = after.text().split(QLatin1Char('\n'));
    for (auto change = changes.crbegin(); change != changes.crend(); ++change) {
        result.erase(result.begin() + change->before,
                     result.begin() + change->before + change->gone);
        for (int i = change->come - 1; i >= 0; --i)
            result.insert(change->before, come[change->after + i]);
    }
    return result.join(QLatin1Char('\n'));
}
} // namespace

class tst_scriptView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changes_data()
    {
        const Columns<QString, QString, QString> row("before", "after", "changes");
        row("other and gone", "a b c d e f", "a x c e y f", "1+1>1+1 3+1>3+0 5+0>4+1");
        row("repeated", "a a", "a a a", "2+0>2+1");
        row("from nothing", "", "a b", "0+1>0+2");
        row("longer at the end", "a b", "a bc", "1+1>1+1");
        row("many", QStringLiteral("x ").repeated(500), QStringLiteral("y ").repeated(500),
            "0+500>0+500");
    }

    void changes()
    {
        QFETCH(const QString, before);
        QFETCH(const QString, after);
        QTEST(inWords(lineChanges(linesOf(before), linesOf(after))), "changes");
    }

    void changesOfAnyTexts()
    {
        std::mt19937 random(7);
        for (int round = 0; round < 2000; ++round) {
            const TextLines before(randomText(random));
            const TextLines after(randomText(random));
            QCOMPARE(applied(before, after, lineChanges(before, after)), after.text());
        }
    }

    void keys_data()
    {
        const Columns<int, QString, QString, int> row("start", "keys", "selected", "cursor");
        row("next line, the column stays", 5, "Down,Down", "", 16);
        row("characters", 8, "Right,Right,Left", "", 10);
        row("words", 0, "Ctrl+Shift+Right,Ctrl+Shift+Right", "one two", 8);
        row("word back", 7, "Ctrl+Left", "", 4);
        row("line", 5, "Home,Shift+End", "one two", 7);
        row("pages", 5, "PgDown,PgDown,PgUp,PgUp,Home", "", 0);
        row("end", 5, "Ctrl+End,Shift+Left", "d", 15);
        row("all", 5, "Ctrl+A", "one two\n\U0001F600\nthird", 16);
        row("surrogates", 8, "Shift+Right", "\U0001F600", 10);
    }

    void keys()
    {
        const std::unique_ptr<ScriptView> view = shown("one two\n\U0001F600\nthird", 400);
        QFETCH(const int, start);
        QFETCH(const QString, keys);
        view->select(start, start);
        for (const QString& key : keys.split(QLatin1Char(',')))
            QTest::keySequence(view.get(), QKeySequence(key));
        QFETCH(const QString, selected);
        QCOMPARE(view->selectedText().trimmed(), selected);
        QTEST(view->cursorPosition(), "cursor");
    }

    void mouse()
    {
        const std::unique_ptr<ScriptView> view = shown("one two\nthree four\nfive", 400);
        const auto at = [&view](int position) { return view->cursorRect(position).center(); };
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at(15));
        QCOMPARE(view->selectedText(), QStringLiteral("four"));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at(15));
        QCOMPARE(view->selectedText(), QStringLiteral("three four\n"));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at(15)); // in the selection
        QCOMPARE(view->selectedText(), QString());
        QTest::mousePress(view->viewport(), Qt::LeftButton, {}, at(20));
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, at(4));
        QTest::keyClick(view.get(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("two\nthree four\nf"));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ShiftModifier, at(13));
        QCOMPARE(view->selectedText(), QStringLiteral(" four\nf"));
    }

    void cursorBlinks()
    {
        QApplication::setCursorFlashTime(40);
        const std::unique_ptr<ScriptView> view = shown("one", 400);
        const QImage first = view->viewport()->grab().toImage();
        QTRY_VERIFY(view->viewport()->grab().toImage() != first);
    }

    /// The first change is visible, even if lines were only removed.
    void placeAfterChanges()
    {
        QString text = QStringLiteral("line\n").repeated(100000);
        const std::unique_ptr<ScriptView> view = shown(text, 200);
        view->verticalScrollBar()->setValue(100);
        const auto change = [&](int line, const char* by) {
            text.replace(5 * line, 5, QLatin1String(by));
            const TextLines lines(text);
            view->setLines(lines, lineChanges(view->lines(), lines));
            return view->verticalScrollBar()->value();
        };
        QVERIFY(change(70000, "LINE\n") > 69900);
        const QImage added = view->viewport()->grab().toImage();
        const int top = change(70000, "");
        QVERIFY(top > 69900 && top <= 70000);
        QCOMPARE(view->marks().removedBefore(70000), 1);
        QVERIFY(!view->marks().isChanged(70000));
        const QImage removed = view->viewport()->grab().toImage();
        view->verticalScrollBar()->setValue(69995);
        const auto hintBeside = [&view](int line) {
            QHelpEvent event(QEvent::ToolTip, {3, view->cursorRect(5 * line).center().y()}, {});
            QCoreApplication::sendEvent(view->findChild<QWidget*>(QStringLiteral("ScriptGutter")),
                                        &event);
            return QToolTip::text();
        };
        QCOMPARE(hintBeside(70001), QString());
        QVERIFY(hintBeside(69999).endsWith(QLatin1Char('1')));
        view->setLines(view->lines(), {});
        view->verticalScrollBar()->setValue(top);
        QVERIFY(view->viewport()->grab().toImage() != removed && added != removed);
        QCOMPARE(change(50000, "LINE\n"), 50000);
        QVERIFY(view->viewport()->rect().contains(view->cursorRect(250000)));
        QCOMPARE(view->cursorPosition(), 250000);
    }

    /// Wrapped lines do not overlap, and each character is found at its position.
    void wrapping()
    {
        const QString text = (QStringLiteral("short\n%1\n\n%2 ")
                                  .arg(QString(300, QLatin1Char('x')),
                                       QStringLiteral("words and words ").repeated(20)))
                                 .repeated(8);
        const std::unique_ptr<ScriptView> view = shown(text, 300);
        QVERIFY(view->horizontalScrollBar()->maximum() > 0);
        view->setWrapped(true);
        QCOMPARE(view->horizontalScrollBar()->maximum(), 0);
        for (int position : {0, 150, int(text.size()) / 2, 310, int(text.size())}) {
            view->select(position, position);
            const QRect cursor = view->cursorRect(position);
            QVERIFY(view->viewport()->rect().contains(cursor));
            QCOMPARE(view->positionAt(cursor.center()), position);
            QCOMPARE(view->lineNear(cursor.center().y()), view->lines().lineAt(position));
        }
        int next = 0;
        for (const auto& place : view->visiblePlaces()) {
            QVERIFY(next == 0 || place.top == next);
            next = place.top + place.height;
        }
        QCOMPARE(view->visiblePlaces().last().line, view->lines().count() - 1);
        QVERIFY(next <= view->viewport()->height());
        view->selectAll();
        QCOMPARE(view->selectedText(), text);
    }

    void clicks()
    {
        const std::unique_ptr<ScriptView> view = shown("one two\nthree four\nfive", 400);
        const QSignalSpy chosen(view.get(), &ScriptView::lineChosen);
        const QPoint second = view->cursorRect(10).center();
        QTest::mousePress(view->viewport(), Qt::LeftButton, {}, view->cursorRect(2).center());
        QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(chosen.size(), 0); // dragging only selects text
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->cursorRect(15).center());
        QTest::keyClick(view.get(), Qt::Key_Down);
        QTest::keyClick(view.get(), Qt::Key_Return);
        QTest::mouseClick(view->findChild<QWidget*>(QStringLiteral("ScriptGutter")), Qt::LeftButton,
                          {}, QPoint(3, second.y()));
        QStringList lines;
        for (const QVariantList& arguments : chosen)
            lines << arguments.first().toString();
        QCOMPARE(lines.join(QLatin1Char(' ')), QStringLiteral("1 2 1"));
        QCOMPARE(view->selectedText(), QStringLiteral("three four"));
    }

    void screenReader()
    {
        const std::unique_ptr<ScriptView> view = shown("one two\nthree", 400);
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(view.get());
        QVERIFY(reader && reader->textInterface() && reader->state().readOnly);
        QAccessibleTextInterface& text = *reader->textInterface();
        QCOMPARE(text.text(0, text.characterCount()), view->plainText());
        for (int offset : {0, 6, 9})
            QCOMPARE(text.offsetAtPoint(text.characterRect(offset).center()), offset);
        text.setSelection(0, 4, 7);
        QCOMPARE(view->selectedText(), QStringLiteral("two"));
        text.removeSelection(0);
        QCOMPARE(text.selectionCount(), 0);
    }

private:
    static std::unique_ptr<ScriptView> shown(const testsupport::Text& text, int height)
    {
        auto view = std::make_unique<ScriptView>();
        view->setFont(QFont(QStringLiteral("Monospace")));
        view->setLines(TextLines(text), {});
        view->resize(400, height);
        view->show();
        view->activateWindow();
        view->setFocus();
        return view;
    }
};

PLIB_WIDGET_TEST_MAIN(tst_scriptView)
#include "tst_scriptView.moc"
