#include "CatalogueTestSupport.h"
#include "FuzzTarget.h"

#include <catalogue/catalogueLint.h>
#include <script/scriptLines.h>
#include <tree/checkStates.h>
#include <tree/selectionText.h>

#include <QBuffer>

/// The tree of any catalogue must have consistent check states and a selection that can be
/// restored.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    QByteArray catalogue = fuzz::bytesOf(bytes, size);
    testsupport::Rows rows = testsupport::rows(3);
    rows.push_back({2, -7, QStringLiteral("12+14: Wind")});
    plib::OutputNode root;
    testsupport::build(&root, testsupport::parse(catalogue), rows);
    const QString proposed = testsupport::treeText(&root);
    plib::settleBranch(&root);
    FUZZ_CHECK(testsupport::treeText(&root) == proposed); // parents already match their children

    // Items with the same identifier share a line, so the text becomes stable only after it has
    // been applied once.
    plib::applySelection(&root, plib::selectionText(&root));
    const QString restored = plib::selectionText(&root);
    plib::applySelection(&root, restored);
    FUZZ_CHECK(plib::selectionText(&root) == restored);

    std::vector<QString> lines;
    for (int progname : {1, 122})
        for (bool english : {false, true})
            plib::collectScriptLines(&root, lines, plib::keywordsIf(english), progname,
                                     [] { return 0; });
    QBuffer device(&catalogue);
    device.open(QIODevice::ReadOnly);
    for (const plib::CatalogueFinding& finding : plib::lintCatalogue(device, nullptr)) {
        FUZZ_CHECK(finding.line > 0);
        fuzz::checkReason(finding.text);
    }
    return 0;
}
