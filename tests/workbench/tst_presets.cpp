#include "DesignDesk.h"
#include "LanguageSupport.h"
#include "project/OpenProject.h"
#include "project/output/KeptPlots.h"
#include "project/presets/plotPresets.h"
#include "project/presets/presetPlaces.h"
#include "WidgetTestSupport.h"
#include "window/output/OutputDialog.h"
#include "window/presets/PageParameters.h"
#include "window/presets/presetsAction.h"

#include <VKD_QT_Ok.h>

#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTreeWidget>

using namespace testsupport;
using namespace workbench;

namespace {
/// Returns all numbers in a text, sorted.
QStringList numbersIn(QString text)
{
    static const QRegularExpression number(QStringLiteral("[0-9]+(?:\\.[0-9]+)*"));
    QStringList numbers;
    auto found = number.globalMatch(text.replace(QLatin1Char(','), QLatin1Char('.')));
    while (found.hasNext())
        numbers << found.next().captured();
    numbers.sort();
    return numbers;
}

/// Returns the parameters whose values appear in the name or the description of a preset.
QVariantMap figuresIn(const Preset& preset)
{
    const struct
    {
        const char* pattern;
        double unit; ///< unit of the figure, in base units
        const char* fields;
    } figures[] = {
        {"Ø([0-9]+)", 1, "dio dioq diu diuq"},
        {"axis of the first layer:? (?:[^=;]*= )?([0-9]+) mm", 0.001, "hio hiu"},
        {"upper side: .*= ([0-9]+) mm\\. Crack", 0.001, "hio"},
        {"(?:crack width|w_k =) ([0-9.]+) mm", 1, "wko wkoq wku wkuq"},
        {"stress of ([0-9]+) N/mm²", 1, "sigo sigoq sigu siguq"},
        {"([0-9.]+) cm²/m (?:in the principal|\\(9\\.6\\.2 \\(1\\), )", 1, "aso asu"},
        {"([0-9.]+) cm²/m in (?:the cross|each face, and)", 1, "asoq asuq"},
        {"([0-9]+) cm²/m \\(9\\.2", 1, "amo amoq amu amuq"},
        {"([0-9]+) cm²/m in each face \\(9\\.6\\.2", 1, "amo amu"},
    };
    const QString text = preset.name + QLatin1Char(' ') + preset.description;
    const auto figure = [&text](const char* pattern) {
        const QRegularExpression place(QString::fromUtf8(pattern),
                                       QRegularExpression::CaseInsensitiveOption);
        return place.match(text).captured(1);
    };
    QVariantMap parameters;
    for (const auto& known : figures)
        for (const QString& field : QString::fromLatin1(known.fields).split(QLatin1Char(' ')))
            if (const QString found = figure(known.pattern); !found.isEmpty())
                parameters[field] = found.toDouble() * known.unit;
    if (!parameters.contains(QStringLiteral("hio"))) // diameter for crack control
        return parameters;
    for (const char* spacing : {"hioq", "hiuq"}) // the layers are in contact
        parameters[QLatin1String(spacing)] = parameters[QStringLiteral("dio")].toDouble() / 1000;
    const double cover =
        figure("nominal cover (?:at least k1 = |[0-9 +]*= )?([0-9]+) mm").toDouble();
    parameters[QStringLiteral("hiu")] =
        (cover + parameters[QStringLiteral("diu")].toDouble() / 2) / 1000;
    return parameters;
}

QString textOf(const QVariantMap& parameters)
{
    QStringList texts;
    for (auto it = parameters.begin(); it != parameters.end(); ++it)
        texts << it.key() + QLatin1Char('=') + QString::number(it.value().toDouble(), 'g', 5);
    return texts.join(QLatin1Char(' '));
}

/// A design page with three rows, of which the last two are selected, and the preset dialog.
class PresetDesk
{
public:
    PresetDesk()
    {
        m_desk.table()->setCurrentCell(1, 3);
        m_desk.table()->setRangeSelected({2, 3, 2, 3}, true);
    }

    /// Opens the dialog, calls the function with it, and closes it.
    void open(const std::function<void(const QWidget&)>& use) const
    {
        whenModal([&use](QWidget* dialog) {
            use(*dialog);
            qobject_cast<QDialog*>(dialog)->reject();
        });
        m_action->trigger();
    }

    const DesignDesk* operator->() const { return &m_desk; }

private:
    HostProject m_project{QStringLiteral("slab")};
    DesignDesk m_desk{m_project, {record(-1, 1, 0), record(1, 2, 4), record(2, 1, 0)}};
    OpenProject m_none;
    QAction* m_action = addPresetsAction(m_desk.page, &m_none);
};

void press(const QWidget& dialog, const char* button)
{
    find<QPushButton>(dialog, button)->click();
}

void choose(const QWidget& dialog, const char* preset)
{
    const auto list = find<QTreeWidget>(dialog, "presetList");
    list->setCurrentItem(
        list->findItems(QLatin1String(preset), Qt::MatchStartsWith | Qt::MatchRecursive).value(0));
}
} // namespace

Q_DECLARE_METATYPE(workbench::Preset)

/// Tests presets: their files, their places and their dialog.
class tst_presets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", m_folder->path().toLocal8Bit());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder->path());
        setLanguage(English);
    }

    void reading_data()
    {
        const Columns<QString, QString> row("json", "expected");
        row("whole",
            R"({"name": " A  b ", "description": "x", "parameters": {"hio": 1, "wko": null}})",
            "A b: x: hio=1 wko=");
        row("two",
            R"({"name": "A", "parameters": {"hio": 1}}, {"name": "B", "parameters": {"a": 2}})",
            "A: : hio=1|B: : a=2");
        row("the same name", R"({"name": "A", "parameters": {"a": 1}},
            {"name": "A ", "parameters": {"a": 2}})",
            "There are two presets \"A\".");
        row("no name", R"({"name": " ", "parameters": {"a": 1}})",
            "Preset 1 needs a name of at most 80 characters.");
        row("no parameters", R"({"name": "A", "parameters": {}})", "\"A\" has no parameters.");
        row("no object", "7", "Preset 1 needs a name of at most 80 characters.");
        row("a text as a value", R"({"name": "A", "parameters": {"hio": "1"}})",
            "\"A\": the value of \"hio\" is not a number.");
        row("unknown field", R"({"name": "A", "colour": 1, "parameters": {"a": 1}})",
            "The field \"colour\" is unknown.");
        row("bad JSON", "{", "The JSON is invalid at byte 61: unterminated object.");
        row("newer", R"(], "version": 2, "later": [)",
            "It was written by a newer version of this program: version 2 of the format, and this "
            "program reads up to version 1.");
        row("other", R"(], "format": "x", "y": [)", "It does not contain design presets.");
        row("plots", R"({"name": "A", "plots": {"&X": ["a", "b"], "^Y": []}})", "A: : &X=a/b ^Y=");
        row("plots: no captions", R"({"name": "A", "plots": {"&X": [1]}})",
            "\"A\": the captions of \"&X\" are not a list of strings.");
        row("plots: none", R"({"name": "A", "plots": {}})", "\"A\" has no plots.");
        row("plots: other", R"(], "format": "vkd-design-presets", "y": [)",
            "It does not contain presets of plots.");
    }

    void reading()
    {
        QFETCH(const QString, json);
        const bool isPlots = QByteArray(QTest::currentDataTag()).startsWith("plots");
        const PresetKind kind = isPlots ? PresetKind::Plots : PresetKind::DesignParameters;
        const QString start =
            QStringLiteral(R"({"format": "vkd-%1-presets", "version": 1, "presets": [)")
                .arg(isPlots ? QLatin1String("plot") : QLatin1String("design"));
        PresetReading read = readPresets(kind, (start + json + QLatin1String("]}")).toUtf8(),
                                         vkd::Language::English);
        for (int round = 0; round < 2; ++round) {
            QStringList texts(read.fault);
            for (const Preset& preset : qAsConst(read.presets)) {
                QStringList values;
                for (auto it = preset.contents.begin(); it != preset.contents.end(); ++it)
                    values << it.key() + QLatin1Char('=') + it.value().toString() +
                                  it.value().toStringList().join(QLatin1Char('/'));
                texts << QStringList{preset.name, preset.description, values.join(QLatin1Char(' '))}
                             .join(QLatin1String(": "));
            }
            texts.removeAll(QString());
            QTEST(texts.join(QLatin1Char('|')), "expected");
            if (read.fault.isEmpty()) // the second round reads what was written
                read = readPresets(kind, presetsJson(kind, read.presets), vkd::Language::German);
        }
    }

    /// The page accepts each supplied preset and stores the figures that its description contains.
    /// The descriptions in both languages contain the same figures.
    void suppliedPresets_data()
    {
        const Columns<Preset, Preset> row("english", "german");
        setLanguage(English);
        const PresetList english =
            presetsOf(PresetKind::DesignParameters, PresetPlace::Supplied, {}).presets;
        setLanguage(German);
        const PresetList german =
            presetsOf(PresetKind::DesignParameters, PresetPlace::Supplied, {}).presets;
        QCOMPARE(german.size(), english.size());
        for (int i = 0; i < english.size(); ++i)
            row(english[i].name.toUtf8(), english[i], german[i]);
    }

    void suppliedPresets()
    {
        QFETCH(const Preset, english);
        QFETCH(const Preset, german);
        HostProject project(QStringLiteral("slab"));
        DesignDesk desk(project, {record(-1, 1, 0)});
        QCOMPARE(PageParameters(desk.page).faults(english.contents), QStringList());
        QVERIFY(german.name != english.name && german.contents == english.contents);
        QVERIFY(german.description.startsWith(QLatin1String("EN 1992-1-1")));
        QCOMPARE(numbersIn(german.name + german.description),
                 numbersIn(english.name + english.description));
        QVariantMap stored = english.contents;
        for (const char* free : {"type", "rio", "riu"})
            stored.remove(QLatin1String(free));
        const QVariantMap described = figuresIn(english);
        QCOMPARE(textOf(stored), textOf(described));
    }

    /// Presets that this version cannot read are not overwritten.
    void storing_data()
    {
        const Columns<int> row("place");
        row("user", int(PresetPlace::User));
        row("project", int(PresetPlace::Project));
    }

    void storing()
    {
        QFETCH(const int, place);
        constexpr auto kind = PresetKind::DesignParameters;
        HostProject project(QStringLiteral("slab"));
        const ZobHandle handle = project.doc()->handle();
        const auto store = [&](const PresetChange& change) {
            return changePresets(kind, PresetPlace(place), handle, change);
        };
        const auto names = [&] {
            const PresetReading reading = presetsOf(kind, PresetPlace(place), handle);
            QStringList texts(reading.fault);
            for (const Preset& preset : reading.presets)
                texts << preset.name;
            return texts.join(QLatin1Char(' ')).trimmed();
        };
        QCOMPARE(names(), QString());
        for (const char* name : {"A", "B"})
            QCOMPARE(store([name](PresetList& presets) {
                         presets << Preset{unusedName(presets, QLatin1String(name)),
                                           {},
                                           {{QStringLiteral("hio"), 1}}};
                     }),
                     QString());
        QCOMPARE(names(), QStringLiteral("A B"));
        if (PresetPlace(place) == PresetPlace::Project)
            return;
        const QByteArray newer = R"({"format": "vkd-design-presets", "version": 3, "presets": []})";
        writeFile(userPresetsPath(kind), newer);
        QVERIFY(
            store([](PresetList&) {}).startsWith(QLatin1String("presets.json: It was written")));
        QCOMPARE(readFile(userPresetsPath(kind)), newer);
    }

    void applyingParts()
    {
        const PresetDesk desk;
        desk.open([](const QWidget& dialog) {
            choose(dialog, "XC4");
            QVERIFY(find<QTextBrowser>(dialog, "presetDetails")
                        ->toPlainText()
                        .contains(QLatin1String("Table 4.4N")));
            find<QAbstractButton>(dialog, "partCracks")->click();
            press(dialog, "presetApply");
        });
        const QString applied = QStringLiteral("45.0 mm ;45.0 mm ;10.0 mm ;10.0 mm");
        for (int row = 0; row < 3; ++row)
            QCOMPARE(desk->row(row).contains(applied), row > 0);
        QVERIFY(!desk->row(2).contains(QLatin1String("0.30 mm")));
        trigger(*desk->page, "undo");
        QVERIFY(!desk->row(1).contains(applied) && !desk->row(2).contains(applied));
    }

    void managing()
    {
        const PresetDesk desk;
        const QString file = m_folder->filePath(QStringLiteral("out.json"));
        desk.open([&](const QWidget& dialog) {
            whenModal([](QWidget* form) {
                find<QLineEdit>(*form, "presetName")->setText(QStringLiteral("A & B"));
                find<QAbstractButton>(*form, "partCover")->click();
                qobject_cast<QDialog*>(form)->accept();
            });
            press(dialog, "presetNew");
            for (const char* button : {"presetExport", "presetImport"}) {
                whenModal([&file](QWidget* files) { enterFile(files, file); });
                press(dialog, button);
            }
            choose(dialog, "A & B (2)");
            whenModal([](QWidget* form) {
                auto name = find<QLineEdit>(*form, "presetName");
                QCOMPARE(name->text(), QStringLiteral("A & B (2)"));
                const auto canAccept = [form](QLineEdit* field, const char* text) {
                    field->setText(QLatin1String(text));
                    return find<VKD_QT_Ok>(*form, "okayandcancelbutton")->cmdOk()->isEnabled();
                };
                QVERIFY(!canAccept(name, "A & B") && !canAccept(name, " ") &&
                        canAccept(name, "C & D"));
                qobject_cast<QDialog*>(form)->accept();
            });
            press(dialog, "presetRename");
            whenModal([](QWidget* box) { box->findChildren<QPushButton*>().value(0)->click(); });
            choose(dialog, "A & B");
            press(dialog, "presetDelete");
            const auto list = find<QTreeWidget>(dialog, "presetList");
            choose(dialog, "My presets");
            Q_EMIT list->itemDoubleClicked(list->currentItem(), 0); // not a preset
            for (const char* button : {"presetApply", "presetRename", "presetExport"})
                QVERIFY(!find<QPushButton>(dialog, button)->isEnabled());
            choose(dialog, "C & D");
            QVERIFY(list->currentItem()->parent());
            Q_EMIT list->itemDoubleClicked(list->currentItem(), 0);
            QVERIFY(!dialog.isVisible());
        });
        const PresetList stored =
            presetsOf(PresetKind::DesignParameters, PresetPlace::User, {}).presets;
        QCOMPARE(stored.size(), 1);
        QCOMPARE(stored.first().name, QStringLiteral("C & D"));
        QVERIFY(!partsIn(stored.first().contents).contains(PresetPart::Cover));
        QCOMPARE(find<QAction>(*desk->page, "undo")->text(),
                 QStringLiteral("&Undo Preset \"C && D\""));
    }

    void selectionWithPlots_data()
    {
        const Columns<QString, QString, QString> row("shown", "replaced", "added");
        row("other plots", "\nChecked:A\n", "\nChecked:P\nChecked:Q\n",
            "\nChecked:A\nPartially:P : 9,\nChecked:P\nChecked:Q\n");
        row("load cases of the plots", "\nUnchecked:A\nPartially:P : 1,3,\n",
            "\nPartially:P : 9,1,3,\nChecked:Q\n",
            "\nUnchecked:A\nPartially:P : 9,1,3,\nChecked:Q\n");
    }

    /// The page does not offer load case 9, which is kept for plot P.
    void selectionWithPlots()
    {
        QFETCH(const QString, shown);
        const KeptPlots kept(QStringLiteral("Partially:P : 9,\n"),
                             [](const QString&) { return std::nullopt; });
        const QString all = kept.addedTo(shown, [](const QString&) { return std::nullopt; });
        const QVariantMap preset{{QStringLiteral("P"), {}}, {QStringLiteral("Q"), {}}};
        QTEST(selectionWithPreset(preset, PlotsOfPreset::Replace, shown, all), "replaced");
        QTEST(selectionWithPreset(preset, PlotsOfPreset::Add, shown, all), "added");
    }

    /// Applies a preset with a plot that the model does not have, in one step.
    void plots()
    {
        HostProject project(QStringLiteral("slab"));
        OutputDialog output(project.doc(), {}, nullptr);
        const auto present = [&output] { return output.state().page; };
        const QString proposed = present();
        const auto open = [&output](const std::function<void(const QWidget&)>& use) {
            whenModal([&use](QWidget* dialog) {
                use(*dialog);
                qobject_cast<QDialog*>(dialog)->reject();
            });
            find<QAction>(output, "presets")->trigger();
        };
        open([](const QWidget& dialog) {
            whenModal([](QWidget* form) {
                find<QLineEdit>(*form, "presetName")->setText(QStringLiteral("All"));
                qobject_cast<QDialog*>(form)->accept();
            });
            press(dialog, "presetNew");
        });
        QVERIFY(changePresets(PresetKind::Plots, PresetPlace::User, {}, [](PresetList& presets) {
                    presets << Preset{
                        QStringLiteral("Other"),
                        {},
                        {{QStringLiteral("@X  $Y  ^Z"), QStringList(QStringLiteral("x"))}}};
                }).isEmpty());
        open([](const QWidget& dialog) {
            choose(dialog, "Other");
            QCOMPARE(find<QTextBrowser>(dialog, "presetDetails")->toPlainText(),
                     QStringLiteral("Other\nPlots that are not offered here: 1\nx"));
            press(dialog, "presetApply");
        });
        const QString other = present();
        QVERIFY(other != proposed);
        QCOMPARE(output.absentPlots(), 1);
        open([](const QWidget& dialog) {
            choose(dialog, "All");
            find<QAbstractButton>(dialog, "presetAdds")->click();
            press(dialog, "presetApply");
        });
        QCOMPARE(output.absentPlots(), 1);
        const QAction* undo = find<QAction>(output, "undo");
        QCOMPARE(undo->text(), QStringLiteral("&Undo Preset \"All\""));
        QVERIFY(output.captions().size() > 1);
        trigger(output, "undo");
        QCOMPARE(present(), other);
        trigger(output, "undo");
        QCOMPARE(present(), proposed);
        QCOMPARE(output.absentPlots(), 0);
        trigger(output, "redo");
        QCOMPARE(present(), other);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

PLIB_WIDGET_TEST_MAIN(tst_presets)
#include "tst_presets.moc"
