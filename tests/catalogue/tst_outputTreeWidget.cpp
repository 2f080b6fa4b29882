#include "CatalogueTestSupport.h"
#include "WidgetTestSupport.h"

#include <Catalogue.h>
#include <contentFilter.h>
#include <GraphicalOutputTreeWidget.h>
#include <GraphicalOutputTreeWidgetItem.h>
#include <scriptLines.h>
#include <selectionText.h>
#include <vkd_dbo_model.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_searchpath.h>
#include <vkd_lib_value.h>
#include <VKD_QT_InitTranslator.h>
#include <ZobModelQueries.h>

#include <QMenu>
#include <QMessageBox>
#include <QStyleOptionViewItem>
#include <QTranslator>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

using plib::OutputNode;
using testsupport::line;
using testsupport::Rows;
using Tree = GraphicalOutputTreeWidget;
using Item = GraphicalOutputTreeWidgetItem;

namespace {
constexpr int StandardPage = 1;

void append(const QTreeWidgetItem* parent, int depth, QString* text)
{
    const char* const marks[] = {"[ ] ", "[-] ", "[x] "};
    for (int i = 0; i < parent->childCount(); ++i) {
        QTreeWidgetItem* item = parent->child(i);
        const bool hasBox = item->data(0, Qt::CheckStateRole).isValid();
        *text += QString(2 * depth, QLatin1Char(' ')) +
                 QLatin1String(hasBox ? marks[item->checkState(0)] : "") + item->text(0) +
                 QLatin1Char('\n');
        append(item, depth + 1, text);
    }
}

QString treeText(const Tree& tree)
{
    QString text;
    append(tree.invisibleRootItem(), 0, &text);
    return text;
}

QString scripts(const Tree& tree)
{
    QString text;
    for (bool english : {false, true}) {
        std::vector<QString> lines;
        tree.collectScriptLines(lines, english);
        for (const QString& each : lines)
            text += each + QLatin1Char('\n');
    }
    return text;
}

/// What the tree shall be, on nodes without a screen and in single steps.
class Expected
{
public:
    explicit Expected(const VKD_H_PluginParameter* parameter)
        : m_model(parameter)
    {
        rebuild(true);
    }

    void rebuild(bool defaults)
    {
        const QString choice =
            m_hasChoice && !defaults ? plib::selectionText(root.get()) : QString();
        root = std::make_unique<OutputNode>();
        testsupport::Records offered;
        for (const auto& record : plib::sharedCatalogue().list)
            if (plib::isRecordOffered(record, StandardPage, m_model, additional))
                offered.push_back(record);
        testsupport::build(root.get(), offered, rows);
        if (!choice.trimmed().isEmpty())
            testsupport::applyStepByStep(root.get(), choice);
    }

    void applySelection(const QString& text)
    {
        m_hasChoice = true;
        if (!text.isEmpty())
            testsupport::applyStepByStep(root.get(), text);
    }

    QString scripts() const
    {
        QString text;
        for (bool english : {false, true}) {
            std::vector<QString> lines;
            plib::collectScriptLines(root.get(), lines, english, StandardPage,
                                     [this] { return m_model.kindOfSystem(); });
            for (const QString& each : lines)
                text += each + QLatin1Char('\n');
        }
        return text;
    }

    std::unique_ptr<OutputNode> root;
    Rows rows;
    std::list<QString> additional;

private:
    plib::ZobModelQueries m_model;
    bool m_hasChoice = false;
};

/// From now on no file can be opened, whoever runs the test, until a text is asked for: that is
/// when the failure gets reported, and boxes and sanitizers need files.
class NoMoreFiles : public QTranslator
{
public:
    NoMoreFiles()
    {
        QCoreApplication::installTranslator(this);
        getrlimit(RLIMIT_NOFILE, &m_before);
        rlimit low = m_before;
        low.rlim_cur = 64; // enough for the event loop
        setrlimit(RLIMIT_NOFILE, &low);
        for (int file; (file = open("/dev/null", O_RDONLY)) >= 0;)
            m_files.push_back(file);
    }

    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        if (qstrcmp(source, "Couldn't open file") != 0)
            return QString();
        for (int file : m_files)
            close(file);
        m_files.clear();
        setrlimit(RLIMIT_NOFILE, &m_before);
        return QString();
    }

private:
    rlimit m_before;
    mutable std::vector<int> m_files;
};
} // namespace

class TestOutputTreeWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shippedCatalogue_data();
    void shippedCatalogue();
    void menu_data();
    void menu();
    void whatARebuildKeeps();
    void nothingOffered();
    void noCatalogue();
    void statesAreThoseOfSingleSteps_data();
    void statesAreThoseOfSingleSteps();

private:
    void useCatalogue(const QByteArray& file);
    void useModel(const char* name);
    void click(Tree& tree, Expected& expected, std::mt19937& random);

    std::unique_ptr<testsupport::Texts> m_texts;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;
    std::unique_ptr<VKD_H_PluginParameter> m_parameter;
};

void TestOutputTreeWidget::init()
{
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1);
    m_texts = std::make_unique<testsupport::Texts>("");
    m_doc = VKD_H_ZOBDoc::create(m_texts->path("p.zob"));
    m_parameter = std::make_unique<VKD_H_PluginParameter>(m_doc.get());
    plib::sharedCatalogue() = {};
}

void TestOutputTreeWidget::useCatalogue(const QByteArray& file)
{
    testsupport::writeFile(m_texts->path("graphicaloutput.data"), file);
}

void TestOutputTreeWidget::useModel(const char* name)
{
    vkd::dbo::Model model;
    QString error;
    const auto path = vkd_lib_searchpath(QByteArray("models/") + name + ".json", 3);
    QVERIFY(vkd::dbo::readModelFile(QFile::decodeName(path->c_str()), 0, &model, &error));
    QVERIFY(vkd::dbo::storeModel(m_doc->index(), model));
}

void TestOutputTreeWidget::shippedCatalogue_data()
{
    QTest::addColumn<QByteArray>("model");
    QTest::addColumn<int>("language");
    for (const char* model : {"building", "slab", "hall"})
        for (int language : {0, 1})
            QTest::addRow("%s %d", model, language) << QByteArray(model) << language;
}

void TestOutputTreeWidget::shippedCatalogue()
{
    QFETCH(QByteArray, model);
    QFETCH(int, language);
    useModel(model.constData());
    m_texts.reset(); // out of the way of the shipped texts
    qunsetenv("VKD_SHARE");
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language);
    Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
    Expected expected(m_parameter.get());
    expected.rows = testsupport::rows(3);
    expected.rows.push_back({2, 4, QStringLiteral("4+5 : d")});
    tree.setUsedNumbersAndNames(expected.rows);
    expected.rebuild(true);
    QVERIFY(tree.topLevelItemCount() > 2);
    QCOMPARE(treeText(tree), testsupport::treeText(expected.root.get()));
    QCOMPARE(scripts(tree), expected.scripts());
    QCOMPARE(tree.selectionText(), plib::selectionText(expected.root.get()));
    tree.applySelection(tree.selectionText());
    for (QTreeWidgetItemIterator it(&tree); *it; ++it) {
        const Item* item = outputItem(*it);
        QVERIFY(item);
        QCOMPARE(item->isExpanded(), item->level < 2);
        const QString rowIcon = language == 0 ? QStringLiteral("LF") : QStringLiteral("LC");
        QCOMPARE(item->icon(0).name(), item->level == 3   ? rowIcon
                                       : item->level == 2 ? QStringLiteral("plot")
                                                          : QString());
    }
    tree.dump();
}

void TestOutputTreeWidget::menu_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("expected");
    QTest::newRow("german") << 0
                            << QStringLiteral(
                                   "Alle aufklappen,Alle zuklappen,Grafiken aufklappen plot,,"
                                   "Lastfälle aufklappen LF,,Lastfälle zuklappen LF");
    QTest::newRow("english") << 1
                             << QStringLiteral("Expand All,Collapse All,Expand plots plot,,"
                                               "Expand loadcases LC,,Close loadcases LC");
}

void TestOutputTreeWidget::menu()
{
    QFETCH(int, language);
    QFETCH(QString, expected);
    QTranslator german;
    vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language);
    VKD_QT_InitTranslator::languageChanged();
    if (language == 0 && german.load(QStringLiteral(GERMAN)))
        QCoreApplication::installTranslator(&german);
    useCatalogue(line("A|B|C", "last-l", 1, 0, "g", "e") + line("A|B|D", " ", 0, 0, "g", "e"));
    Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
    tree.setUsedNumbersAndNames(testsupport::rows(2));
    tree.show();
    QTreeWidgetItem* plot = tree.topLevelItem(0)->child(0)->child(0);
    const QString states = treeText(tree);

    QStringList texts;
    /// Picks an entry by its place among those that are no separators.
    const auto choose = [&](int entry) {
        QTimer::singleShot(0, &tree, [&texts, entry] {
            auto shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            texts.clear();
            QList<QAction*> entries;
            for (QAction* action : shown->actions()) {
                texts << (action->text() + QLatin1Char(' ') + action->icon().name()).trimmed();
                if (!action->isSeparator())
                    entries << action;
            }
            entries[entry]->trigger();
            shown->close();
        });
        Q_EMIT tree.customContextMenuRequested(QPoint(5, 5));
    };
    choose(3); // load cases
    QCOMPARE(texts.join(QLatin1Char(',')), expected);
    QVERIFY(plot->isExpanded());
    tree.setCurrentItem(plot->child(1));
    choose(4);
    QVERIFY(!plot->isExpanded() && plot->parent()->isExpanded());
    QCOMPARE(tree.currentItem(), plot);
    choose(1);
    QVERIFY(!tree.topLevelItem(0)->isExpanded());
    choose(2);
    QVERIFY(tree.topLevelItem(0)->isExpanded() && plot->parent()->isExpanded());
    QVERIFY(!plot->isExpanded());
    QCOMPARE(treeText(tree), states);
}

/// The choice of the user falls back to the default until one was applied, and with new rows.
void TestOutputTreeWidget::whatARebuildKeeps()
{
    useCatalogue(line("A|B|C", "last-l", 1, 0, "g", "e") +
                 line("A|B|D", " ", 0, 0, "g", "e").replace("| |0|", "|Quad|0|"));
    Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
    tree.setUsedNumbersAndNames(testsupport::rows(2));
    QSignalSpy filled(&tree, &Tree::checkStatesChanged);
    const auto states = [&] {
        QString marks;
        for (QTreeWidgetItemIterator it(&tree); *it; ++it)
            marks += QLatin1Char(".-x"[(*it)->checkState(0)]);
        return marks;
    };
    const QString byDefault = QStringLiteral("---x.");
    QCOMPARE(states(), byDefault);
    tree.topLevelItem(0)->setCheckState(0, Qt::Checked);
    tree.additionalData(QStringLiteral("Beam"), true);
    QCOMPARE(states(), byDefault);
    tree.applySelection(QString());
    QCOMPARE(states(), byDefault);
    tree.topLevelItem(0)->setCheckState(0, Qt::Checked);
    tree.setUsedNumbersAndNames(testsupport::rows(2)); // the same: nothing to do
    QCOMPARE(states(), QStringLiteral("xxxxx"));
    filled.clear();
    for (int i = 0; i < 2; ++i)
        tree.additionalData(QStringLiteral("Quad"), true);
    QCOMPARE(states(), QStringLiteral("xxxxxx")); // its plot comes with its caption's state
    tree.additionalData(QStringLiteral("quad"), false);
    QCOMPARE(tree.topLevelItem(0)->child(0)->childCount(), 2);
    tree.additionalData(QStringLiteral("Quad"), false); // both of them
    QCOMPARE(states(), QStringLiteral("xxxxx"));
    QCOMPARE(filled.size(), 4);
    tree.setUsedNumbersAndNames(testsupport::rows(1));
    QCOMPARE(states(), QStringLiteral("xxxx"));
    tree.setUsedNumbersAndNames({});
    QCOMPARE(states(), QStringLiteral("..."));
}

void TestOutputTreeWidget::nothingOffered()
{
    useCatalogue(line("A|B|C", " ", 0, 0, "g", "e").replace("| |0|", "|Quad|0|"));
    Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
    tree.applySelection(QStringLiteral("Checked:001"));
    tree.dump();
    QCOMPARE(treeText(tree), QStringLiteral("No Entries in database!\n"));
    QCOMPARE(tree.selectionText(), QStringLiteral("\n"));
    QCOMPARE(scripts(tree), QString());
    tree.additionalData(QStringLiteral("Quad"), true);
    QCOMPARE(treeText(tree), QStringLiteral("[x] A\n  [x] B\n    [x] C\n"));
}

void TestOutputTreeWidget::noCatalogue()
{
    useCatalogue(line("A|B|C", " ", 0, 0, "g", "e"));
    QString shown;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    testsupport::whenModal([&](QWidget* box) {
        const auto error = static_cast<QMessageBox*>(box);
        icon = error->icon();
        shown = error->windowTitle() + QLatin1Char('/') + error->text();
        box->close();
    });
    const NoMoreFiles untilReported;
    Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
    QCOMPARE(shown, QStringLiteral("Couldn't open file/Failed to open file ") +
                        m_texts->path("graphicaloutput.data"));
    QCOMPARE(icon, QMessageBox::Critical);
    const Tree other(nullptr, StandardPage, m_parameter.get(), "m_list");
    QCOMPARE(other.topLevelItemCount(), 1);
    tree.setUsedNumbersAndNames(testsupport::rows(1));
    tree.additionalData(QStringLiteral("Quad"), true);
    tree.applySelection(QStringLiteral("Checked:001"));
    tree.rebuild(true);
    QCOMPARE(tree.topLevelItemCount(), 0);
    QCOMPARE(tree.selectionText() + scripts(tree), QStringLiteral("\n"));
    QCOMPARE(tree.contextMenuPolicy(), Qt::DefaultContextMenu);
}

void TestOutputTreeWidget::statesAreThoseOfSingleSteps_data()
{
    QTest::addColumn<int>("seed");
    for (int seed = 1; seed <= 40; ++seed)
        QTest::addRow("%d", seed) << seed;
}

/// A click on any item, with the mouse or by the key.
void TestOutputTreeWidget::click(Tree& tree, Expected& expected, std::mt19937& random)
{
    QTreeWidgetItem* item = tree.invisibleRootItem();
    OutputNode* node = expected.root.get();
    do {
        const int child = testsupport::below(random, item->childCount());
        item = item->child(child);
        node = node->child(child);
    } while (item->childCount() > 0 && testsupport::below(random, 3) > 0);
    tree.expandAll();
    tree.setCurrentItem(item);
    tree.scrollToItem(item);
    if (testsupport::below(random, 2)) {
        QTest::keyClick(&tree, Qt::Key_Space);
    } else {
        QStyleOptionViewItem option;
        option.initFrom(&tree);
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        option.rect = tree.visualItemRect(item);
        const QRect box =
            tree.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &tree);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, box.center());
    }
    plib::setBranchState(node, node->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void TestOutputTreeWidget::statesAreThoseOfSingleSteps()
{
    QFETCH(int, seed);
    std::mt19937 random{unsigned(seed)};
    const auto below = [&](int end) { return testsupport::below(random, end); };
    const char* const words[] = {" ", "last", "last-l", "sngl-c", "desi-e"};
    const char* const tags[] = {" ", " ", "Quad", "Beam"};
    const auto name = [&] { return QByteArray("@") + "abc"[below(3)] + "__ " + "abc"[below(3)]; };
    QByteArray catalogue = line("@a__ a|@b__ b|@b__ b", "last-l", 1, 1, "g", "e");
    for (int i = below(12); i >= 0; --i)
        catalogue += line(name() + '|' + name() + '|' + name(), words[below(5)], below(4), below(4),
                          "g" + QByteArray::number(i), "e")
                         .replace("| |0|", QByteArray("|") + tags[below(4)] + "|0|");
    useCatalogue(catalogue);
    Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
    tree.show();
    Expected expected(m_parameter.get());
    QStringList stored{QString()};
    for (int step = 0; step < 60; ++step) {
        const int kind = below(10);
        if (kind < 5) {
            click(tree, expected, random);
        } else if (kind == 5) {
            const bool defaults = below(4) == 0;
            tree.rebuild(defaults);
            expected.rebuild(defaults);
        } else if (kind == 6) {
            const QString tag = QLatin1String(tags[2 + below(2)]);
            const bool add = below(2);
            tree.additionalData(tag, add);
            if (add)
                expected.additional.push_back(tag);
            else
                expected.additional.remove(QString(tag));
            expected.rebuild(false);
        } else if (kind == 7 && below(2)) {
            Rows rows = testsupport::rows(below(4));
            for (auto& row : rows)
                row.kind = 1 + below(2);
            tree.setUsedNumbersAndNames(rows);
            if (rows != expected.rows) {
                expected.rows = rows;
                expected.rebuild(true);
            }
        } else if (kind == 8) {
            const QString text = stored[below(stored.size())];
            tree.applySelection(text);
            expected.applySelection(text);
        } else {
            stored << tree.selectionText();
        }
        QCOMPARE(treeText(tree), testsupport::treeText(expected.root.get()));
        QCOMPARE(tree.selectionText(), plib::selectionText(expected.root.get()));
        QCOMPARE(scripts(tree), expected.scripts());
    }
}

PLIB_WIDGET_TEST_MAIN(TestOutputTreeWidget)
#include "tst_outputTreeWidget.moc"
