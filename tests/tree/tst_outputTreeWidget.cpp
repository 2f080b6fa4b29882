#include "CatalogueTestSupport.h"
#include "WidgetTestSupport.h"

#include <catalogue/Catalogue.h>
#include <tree/GraphicalOutputTreeWidget.h>
#include <tree/GraphicalOutputTreeWidgetItem.h>
#include <tree/outputTreeIcons.h>
#include <vkd_dbo_model.h>
#include <VKD_H_PluginParameter.h>
#include <VKD_H_ZOBDoc.h>
#include <vkd_lib_searchpath.h>
#include <vkd_lib_value.h>
#include <VKD_P_WidgetGraphicalOutput_Role.h>
#include <VKD_QT_InitTranslator.h>

#include <QMenu>
#include <QMessageBox>
#include <QTranslator>

#include <sys/resource.h>

using testsupport::line;
using testsupport::treeText;
using Tree = GraphicalOutputTreeWidget;

namespace {
constexpr int StandardPage = 1;

/// Prevents all files from being opened, even by a privileged user, until a message is translated.
/// At that point, the failure is being reported, and message boxes and sanitizers need files.
class NoMoreFiles : public QTranslator
{
public:
    NoMoreFiles()
    {
        QCoreApplication::installTranslator(this);
        getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit none{0, m_before.rlim_max};
        setrlimit(RLIMIT_NOFILE, &none);
    }

    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        if (qstrcmp(source, "Couldn't open file") == 0)
            setrlimit(RLIMIT_NOFILE, &m_before);
        return QString();
    }

private:
    rlimit m_before{};
};

/// Returns the roles that hosts read, from level to load case; "-" stands for a role that is not
/// set.
QString roles(const QTreeWidgetItem* item)
{
    using namespace vkd::plib::widgetgraphicaloutput;
    QStringList texts;
    for (int role = LevelRole; role <= LoadCaseRole; ++role) {
        const QVariant value = item->data(0, role);
        const bool isList = value.userType() == QMetaType::QStringList;
        texts << (!value.isValid() ? QStringLiteral("-")
                  : isList         ? value.toStringList().join(QLatin1Char('/'))
                                   : value.toString());
    }
    return texts.join(QLatin1Char('|'));
}

/// Returns the name of an icon of the tree; a null icon has no name.
QString iconName(const QIcon& icon)
{
    const std::pair<const char*, QIcon> all[] = {{"plot", plib::plotIcon()},
                                                 {"LF", plib::rowIcon(vkd::Language::German)},
                                                 {"LC", plib::rowIcon(vkd::Language::English)}};
    for (const auto& [name, known] : all)
        if (!icon.isNull() && icon.pixmap(16).toImage() == known.pixmap(16).toImage())
            return QLatin1String(name);
    return QString();
}
} // namespace

class TestOutputTreeWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 1);
        m_texts = std::make_unique<testsupport::Texts>("");
        m_doc = VKD_H_ZOBDoc::create(m_texts->path("p.zob"));
        m_parameter = std::make_unique<VKD_H_PluginParameter>(m_doc.get());
        plib::sharedCatalogue() = {};
    }

    /// The test runs in both desktop languages, because the language determines the icons of the
    /// rows.
    void shippedCatalogue()
    {
        useBuilding();
        m_texts.reset(); // the shipped texts would take precedence
        qunsetenv("VKD_SHARE");
        for (int language : {0, 1}) {
            plib::sharedCatalogue() = {};
            vkd_lib_setvalue(VKD_SETTING_LANGUAGE, language);
            Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
            tree.setUsedNumbersAndNames(testsupport::rows(3));
            const QString states = treeText(tree.invisibleRootItem());
            tree.applySelection(tree.selectionText());
            QCOMPARE(treeText(tree.invisibleRootItem()), states);
            QVERIFY(tree.topLevelItemCount() > 2);
            for (QTreeWidgetItemIterator it(&tree); *it; ++it) {
                const int level = outputItem(*it)->level;
                QCOMPARE((*it)->isExpanded(), level < 2);
                const char* icons[] = {"", "", "plot", language == 0 ? "LF" : "LC"};
                QCOMPARE(iconName((*it)->icon(0)), QLatin1String(icons[level]));
            }
            tree.dump();
        }
    }

    void menu()
    {
        VKD_QT_InitTranslator::languageChanged();
        useCatalogue(line("A|B|C", "last-l", 1) + line("A|B|D", " "));
        Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
        tree.setUsedNumbersAndNames(testsupport::rows(2));
        tree.show();
        QTreeWidgetItem* plot = tree.topLevelItem(0)->child(0)->child(0);
        const QString states = treeText(tree.invisibleRootItem());

        QStringList texts;
        /// Triggers the entry at this position, not counting separators.
        const auto choose = [&](int entry) {
            QTimer::singleShot(0, &tree, [&texts, entry] {
                auto shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
                texts.clear();
                QList<QAction*> entries;
                for (QAction* action : shown->actions()) {
                    texts
                        << (action->text() + QLatin1Char(' ') + iconName(action->icon())).trimmed();
                    if (!action->isSeparator())
                        entries << action;
                }
                entries[entry]->trigger();
                shown->close();
            });
            Q_EMIT tree.customContextMenuRequested(QPoint(5, 5));
        };
        choose(3); // load cases
        QCOMPARE(texts.join(QLatin1Char(',')),
                 QStringLiteral("Expand All,Collapse All,Expand plots plot,,"
                                "Expand loadcases LC,,Close loadcases LC"));
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
        QCOMPARE(treeText(tree.invisibleRootItem()), states);
    }

    /// The user's choice is replaced with the default choice until a choice has been applied, and
    /// whenever the rows change.
    void choiceAfterARebuild()
    {
        useCatalogue(line("A|B|C", "last-l", 1) + line("A|B|D", " ").replace("| |0|", "|Quad|0|"));
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
        tree.setUsedNumbersAndNames(testsupport::rows(2)); // the same rows: nothing changes
        QCOMPARE(states(), QStringLiteral("xxxxx"));
        filled.clear();
        for (int i = 0; i < 2; ++i)
            tree.additionalData(QStringLiteral("Quad"), true);
        QCOMPARE(states(), QStringLiteral("xxxxxx")); // its plot is set to the state of the caption
        tree.additionalData(QStringLiteral("quad"), false);
        QCOMPARE(tree.topLevelItem(0)->child(0)->childCount(), 2);
        tree.additionalData(QStringLiteral("Quad"), false); // removes both additions
        QCOMPARE(states(), QStringLiteral("xxxxx"));
        QCOMPARE(filled.size(), 4);
        tree.setUsedNumbersAndNames(testsupport::rows(1));
        QCOMPARE(states(), QStringLiteral("xxxx"));
        tree.setUsedNumbersAndNames({});
        QCOMPARE(states(), QStringLiteral("..."));
    }

    void itemRoles_data()
    {
        const Columns<QByteArray, int, QStringList> row("line", "rowCount", "expected");
        const QStringList captions{QStringLiteral("0|&ABC|-|-|-"),
                                   QStringLiteral("1|&ABC    002|-|-|-")};
        const QString plot = QStringLiteral("2|&ABC    0021 A^ABC|Base/B/Base one I|%1|-");
        row("stands alone", line("&ABC|B|1 A^ABC", " "), 1,
            captions + QStringList(plot.arg(QLatin1String("false"))));
        row("has rows", line("&ABC|B|1 A^ABC", "last-l"), 2,
            captions + QStringList{plot.arg(QLatin1String("false")), QStringLiteral("3|-|-|-|1"),
                                   QStringLiteral("3|-|-|-|2")});
        row("waits for rows", line("&ABC|B|1 A^ABC", "last-e"), 2,
            captions + QStringList(plot.arg(QLatin1String("true"))));
        row("a later plot adds rows", line("A|B|B", "last-e") + line("A|B|C", "last-l"), 1,
            {QStringLiteral("0|001|-|-|-"), QStringLiteral("1|001    002|-|-|-"),
             QStringLiteral("2|001    002    003|A/B/B|false|-"), QStringLiteral("3|-|-|-|1")});
        row("nothing offered", QByteArray(), 1, {QStringLiteral("-|-|-|-|-")});
    }

    void itemRoles()
    {
        QFETCH(QByteArray, line);
        QFETCH(int, rowCount);
        m_texts =
            std::make_unique<testsupport::Texts>("0|ABC|Grund|Base\n1|ABC|Grund eins|Base one\n");
        useCatalogue(line);
        Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
        tree.setUsedNumbersAndNames(testsupport::rows(rowCount));
        tree.applySelection(QStringLiteral("Checked:x")); // replaces the appearance of the rows
        QStringList shown;
        for (QTreeWidgetItemIterator it(&tree); *it; ++it)
            shown << roles(*it);
        QTEST(shown, "expected");
    }

    void captionsFollowTheLanguage()
    {
        m_texts =
            std::make_unique<testsupport::Texts>("0|ABC|Grund|Base\n1|ABC|Grund eins|Base one\n");
        useCatalogue(line("&ABC and more|@XYZ Literal|1 A^ABC", "last-l", 1) +
                     line("&ABC|Plain|^XXX Fallback", " "));
        Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
        tree.setUsedNumbersAndNames(testsupport::rows(1));
        const auto texts = [&tree] { return treeText(tree.invisibleRootItem()); };
        const QString english = QStringLiteral("[x] Base\n  [x] Literal\n    [x] Base one I\n"
                                               "      [x] 1 : a\n  [x] Plain\n    [x] Fallback\n");
        const QString german = QString(english)
                                   .replace(QLatin1String("Base one"), QLatin1String("Grund eins"))
                                   .replace(QLatin1String("Base"), QLatin1String("Grund"));
        vkd_lib_setvalue(VKD_SETTING_LANGUAGE, 0);
        tree.rebuild(true); // the catalogue's captions do not change
        QCOMPARE(texts(), english);
        const QString choice = tree.selectionText();
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&tree, &change);
        QCOMPARE(texts(), german);
        tree.rebuild(false);
        QCOMPARE(texts(), german);
        QCOMPARE(tree.selectionText(), choice);
        const QTreeWidgetItem* plot = tree.topLevelItem(0)->child(0)->child(0);
        QCOMPARE(roles(plot),
                 QStringLiteral("2|&ABC   @XYZ1 A^ABC|Grund/Literal/Grund eins I|false|-"));
    }

    void nothingOffered()
    {
        useCatalogue(line("A|B|C", " ").replace("| |0|", "|Quad|0|"));
        Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
        tree.applySelection(QStringLiteral("Checked:001"));
        tree.dump();
        QCOMPARE(tree.topLevelItem(0)->text(0), QStringLiteral("No Entries in database!"));
        QVERIFY(!tree.topLevelItem(0)->data(0, Qt::CheckStateRole).isValid());
        QCOMPARE(tree.selectionText(), QStringLiteral("\n"));
        std::vector<QString> lines;
        QCOMPARE(tree.collectScriptLines(lines, true), 0);
        tree.additionalData(QStringLiteral("Quad"), true);
        QCOMPARE(treeText(tree.invisibleRootItem()), QStringLiteral("[x] A\n  [x] B\n    [x] C\n"));
    }

    void noCatalogue()
    {
        useCatalogue(line("A|B|C", " "));
        QString shown;
        testsupport::whenModal([&](QWidget* box) {
            const auto error = static_cast<QMessageBox*>(box);
            if (error->icon() == QMessageBox::Critical)
                shown = error->windowTitle() + QLatin1Char('/') + error->text();
            box->close();
        });
        const NoMoreFiles untilReported;
        Tree tree(nullptr, StandardPage, m_parameter.get(), "m_list");
        QCOMPARE(shown, QStringLiteral("Couldn't open file/Failed to open file ") +
                            m_texts->path("graphicaloutput.data"));
        const Tree other(nullptr, StandardPage, m_parameter.get(), "m_list");
        QCOMPARE(other.topLevelItemCount(), 1);
        tree.setUsedNumbersAndNames(testsupport::rows(1));
        tree.additionalData(QStringLiteral("Quad"), true);
        tree.applySelection(QStringLiteral("Checked:001"));
        QCOMPARE(tree.topLevelItemCount(), 0);
        QCOMPARE(tree.selectionText(), QStringLiteral("\n"));
        QCOMPARE(tree.contextMenuPolicy(), Qt::DefaultContextMenu);
    }

private:
    void useCatalogue(const QByteArray& file)
    {
        testsupport::writeFile(m_texts->path("graphicaloutput.data"), file);
    }

    void useBuilding()
    {
        vkd::dbo::Model model;
        const auto path = vkd_lib_searchpath("models/building.json", 3);
        const QString file = QFile::decodeName(path->c_str());
        QVERIFY(vkd::dbo::readModelFile(file, vkd::Language::German, &model).isOk());
        QVERIFY(vkd::dbo::storeModel(m_doc->handle(), model).isOk());
    }

    std::unique_ptr<testsupport::Texts> m_texts;
    std::unique_ptr<VKD_H_ZOBDoc> m_doc;
    std::unique_ptr<VKD_H_PluginParameter> m_parameter;
};

PLIB_WIDGET_TEST_MAIN(TestOutputTreeWidget)
#include "tst_outputTreeWidget.moc"
