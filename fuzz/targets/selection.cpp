#include "CatalogueTestSupport.h"
#include "FuzzTarget.h"

#include <tree/checkStates.h>
#include <tree/selectionText.h>

namespace {
/// Returns a catalogue with two captions, and with plots that have load cases and plots that have
/// none.
QByteArray catalogue()
{
    return testsupport::line("@SYS System|$G00 Overview|^G01 Materials", "-", 1) +
           testsupport::line("@SYS System|$G00 Overview|^G02 Groups", "-") +
           testsupport::line("&L00 Loads|$L00 Diagrams|&L01 All loads", "LC") +
           testsupport::line("&L00 Loads|$L01 Areas|&L02 %1 of areas", "LC", 1);
}
} // namespace

/// After any text has been applied, the state of each parent must match its children, and the text
/// that the tree returns must restore its state.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    static const testsupport::Records records = testsupport::parse(catalogue());
    plib::OutputNode root, other;
    for (plib::OutputNode* tree : {&root, &other})
        testsupport::build(tree, records, testsupport::rows(9));
    plib::applySelection(&root, fuzz::textOf(bytes, size));
    const QString chosen = testsupport::treeText(&root);
    plib::settleBranch(&root);
    FUZZ_CHECK(testsupport::treeText(&root) == chosen);
    plib::applySelection(&other, plib::selectionText(&root));
    FUZZ_CHECK(testsupport::treeText(&other) == chosen);
    return 0;
}
