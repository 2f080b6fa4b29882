#include "CatalogueTestSupport.h"
#include "TestSupport.h"

#include <catalogue/catalogueLint.h>
#include <script/scriptLines.h>
#include <tree/selectionText.h>
#include <vkd_lib_searchpath.h>

#include <QBuffer>
#include <QFile>

/// Passes damaged catalogues, rows and selection texts to all functions that read them. The results
/// are checked for properties that hold for any input. The sanitizers detect crashes, and the
/// timeout of ctest detects hangs.
class FuzzCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void damagedTexts();
};

static QByteArray mutated(QByteArray text, std::mt19937& random)
{
    static const QByteArray pieces[] = {
        "|",        "\n",         ":",  ",",    "+",        "-", "@",           "&25C",
        "Checked:", "Partially:", "%1", "\xFF", "\xC3\xA4", " ", "99999999999", QByteArray(1, '\0'),
        "$(LFNR)",  "UNIT"};
    for (int n = testsupport::below(random, 12); n >= 0 && !text.isEmpty(); --n) {
        const int at = testsupport::below(random, text.size());
        const int length = testsupport::below(random, 20);
        switch (testsupport::below(random, 4)) {
        case 0: text.remove(at, length); break;
        case 1: text.insert(at, pieces[testsupport::below(random, int(std::size(pieces)))]); break;
        case 2: text[at] = char(testsupport::below(random, 256)); break;
        default: text.insert(at, text.mid(testsupport::below(random, text.size()), 10 * length));
        }
    }
    return text;
}

void FuzzCatalogue::damagedTexts()
{
    std::mt19937 random(1);
    QFile file(QFile::decodeName(vkd_lib_searchpath("graphicaloutput.data", 3).value().c_str()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QList<QByteArray> shipped = file.readAll().split('\n');
    shipped.erase(
        std::remove_if(shipped.begin(), shipped.end(),
                       [](const QByteArray& l) { return l.startsWith("//") || l.isEmpty(); }),
        shipped.end());
    qint64 scripts = 0;
    for (int round = 0; round < 10000; ++round) {
        QByteArray catalogue;
        const int first = testsupport::below(random, shipped.size() - 6);
        for (int i = 0; i < 6; ++i)
            catalogue += shipped[first + i] + '\n';
        catalogue = mutated(catalogue, random);
        testsupport::Rows rows = testsupport::rows(3);
        rows.push_back({testsupport::below(random, 4), int(random()),
                        QString::fromUtf8(mutated("12+14: Wind", random))});
        plib::OutputNode root;
        testsupport::build(&root, testsupport::parse(catalogue), rows);
        const QString stored = plib::selectionText(&root);
        plib::applySelection(&root, QString::fromUtf8(mutated(stored.toUtf8(), random)));
        const QString before = testsupport::treeText(&root);
        plib::settleBranch(&root);
        QCOMPARE(testsupport::treeText(&root), before); // every parent matches its children
        std::vector<QString> lines;
        for (int progname : {1, 122})
            scripts += plib::collectScriptLines(&root, lines, plib::keywordsIf(round % 2), progname,
                                                [] { return 0; });
        QBuffer device(&catalogue);
        device.open(QIODevice::ReadOnly);
        plib::lintCatalogue(device, nullptr);
    }
    QVERIFY(scripts > 10000); // otherwise the mutations leave nothing to test
}

PLIB_TEST_MAIN(FuzzCatalogue)
#include "fuzz_catalogue.moc"
