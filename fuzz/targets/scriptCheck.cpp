#include "FuzzTarget.h"

#include "check/ScriptCheck.h"

#include <script/possibleLines.h>
#include <VKD_P_WidgetGraphicalOutput_Progname.h>

namespace {
workbench::ScriptGrammar grammar(plib::Keywords keywords)
{
    plib::GraphicalOutputRecord record;
    record.prog1 = VKD_P_GraphicalOutput_Standard;
    record.ctrl = 0;
    record.scriptGerman = QStringLiteral("QUAD VERS RICH LOKZ FUEL $(FILLI) WERT $(SCHRI)");
    record.scriptEnglish = QStringLiteral("QUAD DISP DIRE LOCZ FILL $(FILLI) VALU $(SCHRI)");
    return workbench::ScriptGrammar(plib::possibleLines({record}, keywords));
}
} // namespace

/// Each finding must refer to a position in the script, and the findings must be in order.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    static const workbench::ScriptGrammars grammars{grammar(plib::Keywords::German),
                                                    grammar(plib::Keywords::English)};
    const QString script = fuzz::textOf(bytes, size);
    const QStringList lines = script.split(QLatin1Char('\n'));
    const vkd::Language keywords = workbench::likelyKeywords(script, grammars);
    int last = 0;
    for (const auto& finding : workbench::checkScript(script, grammars, keywords, QSet<int>{1})) {
        FUZZ_CHECK(finding.line >= last && finding.line < lines.size());
        FUZZ_CHECK(finding.start >= 0 && finding.length >= 0);
        FUZZ_CHECK(finding.start + finding.length <= lines[finding.line].size());
        FUZZ_CHECK(!finding.sentence().isEmpty());
        last = finding.line;
    }
    return 0;
}
