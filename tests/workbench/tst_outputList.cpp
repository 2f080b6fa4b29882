#include "LanguageSupport.h"
#include "project/output/KeptPlots.h"
#include "project/output/OutputList.h"
#include "TemporaryProject.h"
#include "WidgetTestSupport.h"
#include "window/outputs/OutputsHistory.h"

using namespace testsupport;
using namespace workbench;

namespace {
/// Returns the names and pages of the outputs, with marks for the current output and for changed
/// outputs.
QString shown(const OutputList& outputs)
{
    QStringList texts;
    for (int i = 0; i < outputs.size(); ++i)
        texts << (i == outputs.currentIndex() ? QStringLiteral(">") : QString()) + outputs.name(i) +
                     outputs.at(i).state.page +
                     (outputs.isChanged(i) ? QStringLiteral("*") : QString());
    return texts.join(QLatin1Char('|')) +
           (outputs.isChanged() ? QStringLiteral(" changed") : QString());
}

/// Carries out steps: + new output, 2 duplicate, - remove, !PAGE change, ? discard changes, =NAME
/// rename, @N make current, ^N move, s store, u undo, r redo. An underscore stands for a space.
void perform(const QString& steps, OutputList* outputs, OutputsHistory* history)
{
    for (const QString& step : steps.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString rest = step.mid(1).replace(QLatin1Char('_'), QLatin1Char(' '));
        const OutputList before = *outputs;
        switch (step[0].unicode()) {
        case '+': outputs->add(outputs->newName(), {}); break;
        case '2':
            outputs->add(outputs->unusedName(outputs->name(outputs->currentIndex())), {});
            break;
        case '-': outputs->remove(); break;
        case '!': outputs->setState({rest, 0, {}}, true); break;
        case '?': outputs->revert(); break;
        case '=': outputs->rename(rest); break;
        case '@': outputs->setCurrent(rest.toInt()); break;
        case '^': outputs->move(rest.toInt()); break;
        case 's': outputs->setStored(); break;
        case 'u': history->undo(outputs); continue;
        case 'r': history->redo(outputs); continue;
        }
        history->record(OutputsStep::Rename, QString(), before, *outputs);
    }
}

void perform(const QString& steps, OutputList* outputs)
{
    OutputsHistory history;
    perform(steps, outputs, &history);
}
} // namespace

/// Tests the list of outputs and its undo steps without a window.
class tst_outputList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLanguage(English); }

    void list_data()
    {
        const Columns<QString, QString> row("steps", "expected");
        row("of a project from before", "", ">Output 1");
        row("the only one stays", "-", ">Output 1");
        row("new", "+", "Output 1|>Output 2* changed");
        row("new and removed", "+ -", ">Output 1");
        row("new after the current one", "+ @0 +", "Output 1|>Output 3*|Output 2* changed");
        row("used name", "+ @0 =Output_3 +", "Output 3*|>Output 4*|Output 2* changed");
        row("first one removed", "+ s @0 -", ">Output 2 changed");
        row("moved", "+ s ^0", ">Output 2|Output 1 changed");
        row("moved back", "+ s ^0 ^1", "Output 1|>Output 2");
        row("names exchanged", "+ s =a @0 =Output_2 ^1 @0 =Output_1",
            ">Output 1*|Output 2* changed");
        row("changes discarded", "!:x + s !:y @0 !:z ?", ">Output 1:x|Output 2:y* changed");
        row("duplicates", "=Walls 2 2 =Top_(2024) 2",
            "Walls*|Walls (2)*|Top (2024)*|>Top (2024) (2)* changed");
        row("duplicate of a duplicate", "=Walls_(2) 2", "Walls (2)*|>Walls (3)* changed");
        row("undone: removed", "+ !:p s @0 - u", ">Output 1|Output 2:p");
        row("undone: removed and stored", "+ s @0 - s u", ">Output 1*|Output 2 changed");
        row("undone: renamed, then changed", "=Walls !:p u", ">Output 1:p* changed");
        row("undone: moved, then another one shown", "+ s ^0 @1 u", "Output 1|>Output 2");
        row("undone: all", "+ 2 =x ^0 - u u u u u", ">Output 1");
        row("redone: new, with its plots", "+ !:p u r", "Output 1|>Output 2:p* changed");
        row("redone: removed", "+ s - u r", ">Output 1 changed");
    }

    /// A list does not change when it is stored and read again.
    void list()
    {
        QFETCH(const QString, steps);
        OutputList outputs;
        perform(steps, &outputs);
        QTEST(shown(outputs), "expected");
        const testsupport::TemporaryProject project;
        OutputList longer;
        perform(QStringLiteral("+ + + + +"), &longer);
        QVERIFY(longer.put(project.handle()).isOk());
        QVERIFY(outputs.put(project.handle()).isOk());
        const OutputList read = OutputList::read(project.handle());
        QCOMPARE(read.names(), outputs.names());
        for (int i = 0; i < read.size(); ++i)
            QCOMPARE(read.at(i).state.page, outputs.at(i).state.page);
    }

    void following_data()
    {
        const Columns<QString, QString, QString> row("mine", "theirs", "expected");
        row("changes to different outputs", "@0 !:m", "@1 !:t", ">A:m*|B:t|C changed");
        row("changes to one output", "@0 !:m", "@0 !:t", ">A:m*|B|C changed");
        row("their change to the current output", "@1 =b @0", "@0 !:t", ">A:t|b*|C changed");
        row("discarded", "@0 !:m ?", "@0 !:t", ">A:t|B|C");
        row("their new output", "@0", "@1 + !:t", ">A|B|C|Output 4:t changed");
        row("two new outputs with one name", "@2 +", "@2 + !:t",
            "A|B|C|>Output 4*|Output 4 (2):t* changed");
        row("removed by me", "@0 -", "@0 !:t", ">B|C changed");
        row("removed by them", "@0 !:m @1", "@0 - @0 - ", "A:m*|>B*|C changed");
        row("unchanged and removed by them", "@2", "@0 -", "B|>C, or A*|B|>C changed");
        row("renamed by both", "@1 =m !:m", "@1 =t", "A|>m:m*|C|t changed");
        row("moved by both", "@0 ^2", "@1 ^0", "B|C|>A changed");
        row("removed, restored after a change by another program", "@0 - / u", "@1 !:t",
            ">A|B:t|C");
        row("removed, restored after another program renamed it", "@0 - / u", "@0 =t",
            ">A*|B|C|t changed");
        row("restored name used by another program", "@2 + =N - / u", "@2 + =N",
            "A|B|C|>N (2)*|N changed");
    }

    /// The only output of a project has no name until the user or another program enters one.
    void namedByAnotherProgram()
    {
        OutputList outputs, project;
        perform(QStringLiteral("=A s"), &project);
        outputs.follow(project, OutputList::Removed::Drop);
        QCOMPARE(shown(outputs), QStringLiteral(">A"));
    }

    /// Another program has stored the project's list in the meantime.
    void following()
    {
        QFETCH(const QString, mine);
        QFETCH(const QString, theirs);
        OutputList outputs;
        perform(QStringLiteral("+ + @0 =A @1 =B @2 =C s"), &outputs);
        OutputList project = outputs;
        OutputsHistory history;
        perform(mine.section(QLatin1Char('/'), 0, 0), &outputs, &history);
        perform(theirs + QLatin1String(" s"), &project);
        OutputList complete = outputs;
        for (int i = 0; i < 2; ++i) {
            outputs.follow(project, OutputList::Removed::Drop);
            complete.follow(project, OutputList::Removed::Keep);
        }
        const bool isSame = shown(outputs) == shown(complete);
        perform(mine.section(QLatin1Char('/'), 1), &outputs, &history);
        QTEST(shown(outputs) + (isSame ? QString() : QLatin1String(", or ") + shown(complete)),
              "expected");
    }

    /// Old steps are dropped, but never the newest ones.
    void limitedMemory()
    {
        OutputList outputs;
        OutputsHistory history;
        const QString large(6000000, QLatin1Char('x'));
        for (int round = 0; round < 3; ++round)
            perform(QLatin1String("+ !") + large + QLatin1String(" -"), &outputs, &history);
        int undone = 0;
        for (; history.canUndo(); ++undone)
            history.undo(&outputs);
        QCOMPARE(undone, 4);
        perform(QStringLiteral("+ +"), &outputs);
        const QByteArray steps(30000000, 'x');
        for (int current : {0, 1, 2}) {
            outputs.setCurrent(current);
            outputs.setSteps(steps);
            QCOMPARE(outputs.at(0).steps.isEmpty(), current == 2);
        }
        QCOMPARE(outputs.at(2).steps.size(), steps.size());
    }

    void names_data()
    {
        const Columns<QString, QString> row("name", "fault");
        row("its own", "OUTPUT 2", "");
        row("blanks", " ", "An output needs a name.");
        row("used", " output  1 ", "Another output has this name.");
        row("long", QString(81, QLatin1Char('x')), "A name has at most 80 characters.");
    }

    void names()
    {
        OutputList outputs;
        outputs.add(outputs.newName(), {});
        QFETCH(const QString, name);
        QTEST(outputs.faultOfName(name), "fault");
    }

    void keptPlots_data()
    {
        const Columns<QString, QString, QString> row("saved", "shown", "expected");
        row("all offered", "\nChecked:A\nPartially:B : 1,2,\n", "\nUnchecked:A\n", "");
        row("absent plots", "\nChecked:X\nPartially:Y : 1,\nUnchecked:Z\n", "\nUnchecked:A\n",
            "Checked:X\nPartially:Y : 1,\n");
        row("absent load cases", "\nPartially:B : 1,8,9,\n", "\nUnchecked:B\n",
            "Partially:B : 8,9,\n");
        row("with others", "\nPartially:B : 8,\n", "\nPartially:B : 1,\n", "");
        row("of a checked plot", "\nPartially:C : 8,\n", "\nChecked:C\n", "");
    }

    /// A tree offers A, the plot B with load cases 1 and 2, and the checked plot C.
    void keptPlots()
    {
        const auto offered = [](const QString& id) -> std::optional<OfferedPlot> {
            const bool isOffered = QStringLiteral("ABC").contains(id);
            return isOffered ? std::make_optional(OfferedPlot{id == QLatin1String("C"), {1, 2}})
                             : std::nullopt;
        };
        QFETCH(const QString, saved);
        QFETCH(QString, shown);
        QFETCH(const QString, expected);
        const QString text = KeptPlots(saved, offered).addedTo(shown, offered);
        if (shown.contains(QLatin1String("Partially")))
            shown.insert(shown.size() - 3, QStringLiteral("8,"));
        QCOMPARE(text, shown + expected);
    }
};

PLIB_WIDGET_TEST_MAIN(tst_outputList)
#include "tst_outputList.moc"
